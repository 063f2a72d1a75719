// SPDX-License-Identifier: MIT
// Fuzzer: texts and streams. The first byte of an input chooses what its rest is read as.
#include "tests/tools/fuzz/claims.hpp"
#include "tools/core/error.hpp"
#include "tools/core/framing.hpp"
#include "tools/core/input.hpp"
#include "tools/core/output.hpp"

#include <algorithm>
#include <optional>

namespace inspect {

namespace {

enum Choice : uint8_t { kRecognise, kFormats, kFramings = kFormats + 5, kChoices = kFramings + 4 };

// A few characters can stand for 64 MiB of repeated lines. Inputs that have found that out only
// cost time.
constexpr size_t kMostKept = size_t{1} << 13;

std::string written(Bytes bytes, OutputFormat format)
{
    std::string out;
    write_bytes(bytes, format, "name", [&out](std::string_view text) { out += text; });
    return out;
}

void require_same_again(Bytes bytes, OutputFormat out, InputFormat in)
{
    const std::string text = written(bytes, out);
    require_tame(text);
    require(bytes.empty() || recognise(text) == in, "what is written is recognised");
    std::vector<uint8_t> storage;
    require(std::ranges::equal(parse_input(text, in, storage), bytes), "it is read as it was");
}

// Returns how many bytes there are, or nothing after an Error.
std::optional<size_t> parse(std::string_view text, InputFormat format)
{
    try {
        std::vector<uint8_t> storage;
        const Bytes bytes = parse_input(text, format, storage);
        if (format == InputFormat::raw)
            require(bytes.data() == reinterpret_cast<const uint8_t *>(text.data()), "raw is as is");
        if (bytes.size() <= kMostKept) {
            require_same_again(bytes, OutputFormat::hex, InputFormat::hex);
            require_same_again(bytes, OutputFormat::c_array, InputFormat::c_array);
        }
        return bytes.size();
    } catch (const Error &error) {
        require_message(error.what());
        require(format != InputFormat::raw, "raw is never wrong");
        return {};
    }
}

std::optional<size_t> parse_recognised(std::string_view text)
{
    const InputFormat format = recognise(text);
    const std::optional<size_t> size = parse(text, format);
    if (format == InputFormat::base64)
        require(size.value_or(0) != 0, "what is taken for base64 is base64");
    return size;
}

void split(Bytes stream, Framing framing)
{
    std::vector<uint8_t> again;
    FrameReader reader(stream, framing);
    try {
        size_t end = 0;
        while (const std::optional<Frame> frame = reader.next()) {
            require(frame->offset >= end && frame->offset <= stream.size(), "frames go forwards");
            end = frame->offset + frame->message.size();
            require(end <= stream.size(), "a frame is in the stream");
            append_frame(again, frame->message, framing);
        }
        require(end == stream.size(), "frames are all of the stream");
    } catch (const Error &error) {
        require_message(error.what());
        return;
    }
    // Only varints can be written in several ways.
    if (framing != Framing::varint)
        require(std::ranges::equal(again, stream), "frames are written as they were");
    else
        require(again.size() <= stream.size(), "lengths are written in the shortest way");
}

} // namespace

} // namespace inspect

using namespace inspect;

// The name is libFuzzer's.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (size == 0)
        return -1;
    const uint8_t choice = data[0] % kChoices;
    const Bytes bytes(data + 1, size - 1);
    const std::string_view text(reinterpret_cast<const char *>(bytes.data()), bytes.size());
    std::optional<size_t> parsed;
    if (choice >= kFramings)
        split(bytes, static_cast<Framing>(choice - kFramings));
    else if (choice >= kFormats)
        parsed = parse(text, static_cast<InputFormat>(choice - kFormats));
    else
        parsed = parse_recognised(text);
    return parsed.value_or(0) > kMostKept ? -1 : 0;
}
