// SPDX-License-Identifier: MIT
#include "tools/command/messages.hpp"

#include "tools/command/failure.hpp"
#include "tools/core/error.hpp"
#include "tools/core/text.hpp"

#include <fmt/format.h>

namespace inspect::command {

namespace {

// Without what all names have in common: it would make every name like every other.
std::string_view shortened(std::string_view name)
{
    for (const std::string_view prefix : {"tarn.", "tarn_", "ethsw_mgmt_"})
        if (name.starts_with(prefix))
            name.remove_prefix(prefix.size());
    return name;
}

std::string unknown_type(const std::string &name)
{
    std::vector<std::string_view> names;
    for (const RecordType &type : every_type())
        names.push_back(type.short_name());
    const std::string hint = did_you_mean(shortened(name), names);
    return fmt::format("unknown type {}{}", inspect::quoted(name),
                       hint.empty() ? "; \"ethsw-inspect list\" names all" : hint);
}

int first_failure(int status, int next)
{
    return status == kDone ? next : status;
}

} // namespace

const RecordType &type_of_name(const std::string &name)
{
    const RecordType *const type = find_type(name);
    if (!type)
        throw Failure(kUsage, unknown_type(name));
    return *type;
}

const RecordType &own_type_of_name(const std::string &name)
{
    const RecordType &type = type_of_name(name);
    if (type.is_foreign)
        throw Failure(kUsage, fmt::format("{} belongs to the sibling library: it can be shown, but "
                                          "not decoded or encoded alone",
                                          type.short_name()));
    return type;
}

Input::Input(const Source &source) : file_(source.file)
{
    const InputFormat format = source.format.value_or(recognise(file_.text()));
    bytes_ = parse_input(file_.text(), format, parsed_);
    if (format != InputFormat::raw)
        file_.drop();
}

std::string Message::title() const
{
    return fmt::format("message {} ({} bytes at {:#x})", number, bytes.size(), offset);
}

std::string Message::prefix() const
{
    return number == 0 ? "" : title() + ": ";
}

int for_each_message(Session &session, const Source &source,
                     const std::function<int(const Message &)> &call)
{
    const Input input(source);
    const size_t size = input.bytes().size();
    FrameReader frames(input.bytes(), source.framing);
    size_t number = source.framing == Framing::none ? 0 : 1;
    int status = kDone;
    try {
        while (const auto frame = frames.next())
            status = first_failure(status, call({frame->message, frame->offset, number++, size}));
    } catch (const Error &error) {
        session.complain(error.what());
        status = first_failure(status, kUnreadable);
    }
    return status;
}

void write_heading(Session &session, const Message &message)
{
    if (message.number == 0)
        return;
    if (message.number > 1)
        session.output().write("\n");
    session.output().write(session.palette().paint(Ink::heading, message.title()) + "\n");
}

Progress progress(Session &session, std::string_view work, const Message &message)
{
    return [&session, work, message](double share) {
        const double done =
            static_cast<double>(message.offset) + share * static_cast<double>(message.bytes.size());
        session.meter().tell(work, done / static_cast<double>(message.stream_size));
    };
}

int status_of(int32_t result)
{
    return result >= WIRE_ERR_NO_MEMORY && result <= WIRE_OK ? -result : kInternal;
}

int tell_verdict(Session &session, const Message &message, const Verdict &verdict)
{
    if (verdict.result != WIRE_OK)
        session.complain(message.prefix() + verdict.text());
    return status_of(verdict.result);
}

} // namespace inspect::command
