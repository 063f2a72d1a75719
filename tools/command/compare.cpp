// SPDX-License-Identifier: MIT
// diff, check, guess: what can be said about messages.

#include "tools/command/failure.hpp"
#include "tools/command/messages.hpp"
#include "tools/command/verbs.hpp"
#include "tools/core/check.hpp"
#include "tools/core/diff.hpp"
#include "tools/core/guess.hpp"
#include "tools/core/walk.hpp"

#include <fmt/format.h>

namespace inspect::command {

namespace {

// Complains, with the name of the file, unless the record is there as a whole.
int decode_file(Record &record, const Source &source, Session &session)
{
    const Input input(source);
    const int32_t result = record.decode(input.bytes());
    if (result != WIRE_OK) {
        const Verdict verdict = explain(record, input.bytes(), result);
        session.complain(fmt::format("{}: {}", inspect::quoted(source.file), verdict.text()));
    }
    return status_of(result);
}

void write_answer(std::string_view question, bool holds, Session &session)
{
    const std::string answer =
        session.palette().paint(holds ? Ink::value : Ink::note, holds ? "yes" : "no");
    session.output().write(fmt::format("{:<48} {}\n", question, answer));
}

void write_finding(const Finding &finding, Session &session)
{
    const Palette &palette = session.palette();
    const std::string offset = finding.offset ? fmt::format("{:08x}", *finding.offset) : "";
    session.output().write(
        fmt::format("{}  {}{}\n", palette.paint(Ink::quiet, fmt::format("{:8}", offset)),
                    palette.paint(Ink::name, finding.path.empty() ? "" : finding.path + ": "),
                    palette.paint(Ink::note, finding.text)));
}

void write_check(const Check &found, Session &session)
{
    if (found.verdict.result == WIRE_OK) {
        write_answer("canonical: encoding gives the same bytes again", found.is_canonical, session);
        write_answer("fits JSON: JSON gives the same record again", found.fits_json, session);
    }
    for (const Finding &finding : found.findings)
        write_finding(finding, session);
}

} // namespace

int run(const DiffArguments &arguments, Session &session)
{
    const RecordType &type = own_type_of_name(arguments.type);
    if (arguments.before == "-" && arguments.after == "-")
        throw Failure(kUsage, "standard input can be only one of the two messages");
    Record before(type, session.memory_limit());
    Record after(type, session.memory_limit());
    if (const int status = decode_file(before, {arguments.before, arguments.format}, session))
        return status;
    if (const int status = decode_file(after, {arguments.after, arguments.format}, session))
        return status;
    const size_t found = write_diff(before.view(), after.view(), session.palette(), session.sink());
    return found == 0 ? kDone : kNotSo;
}

int run(const CheckArguments &arguments, Session &session)
{
    const RecordType &type = own_type_of_name(arguments.type);
    return for_each_message(session, arguments.source, [&](const Message &message) {
        const Check found = check(type, message.bytes, session.memory_limit());
        write_heading(session, message);
        write_check(found, session);
        if (const int status = tell_verdict(session, message, found.verdict))
            return status;
        return found.is_canonical ? kDone : kNotSo;
    });
}

int run(const GuessArguments &arguments, Session &session)
{
    return for_each_message(session, arguments.source, [&](const Message &message) {
        const Progress told = progress(session, "guess", message);
        const std::vector<Guess> found = guess(message.bytes, session.memory_limit(), told);
        write_heading(session, message);
        write_guesses(found, message.bytes.size(), session.palette(), session.sink());
        if (!found.empty())
            return kDone;
        write_refusals(refusals(message.bytes, session.memory_limit(), told), session.palette(),
                       session.sink());
        return kNotSo;
    });
}

} // namespace inspect::command
