// SPDX-License-Identifier: MIT
// Streams of messages.
#include "tools/core/framing.hpp"

#include "tests/tools/hex_bytes.hpp"
#include "tools/core/error.hpp"
#include "tools/core/text.hpp"

#include <gtest/gtest.h>

namespace inspect {

namespace {

struct Stream {
    Framing framing;
    const char *bytes;
    const char *frames; // offsets and messages
};

std::string frames_of(Bytes stream, Framing framing)
{
    FrameReader reader(stream, framing);
    std::string out;
    while (const std::optional<Frame> frame = reader.next())
        out += std::to_string(frame->offset) + ":" + hex(frame->message, "") + " ";
    EXPECT_FALSE(reader.next());
    return out;
}

TEST(framing, finds_the_messages)
{
    const Stream streams[] = {
        {Framing::none, "", "0: "},
        {Framing::none, "03 01", "0:0301 "},
        {Framing::varint, "", ""},
        {Framing::varint, "00", "1: "},
        {Framing::varint, "02 08 05 00 01 08", "1:0805 4: 5:08 "},
        {Framing::varint, "81 80 80 80 80 80 80 80 80 00 07", "10:07 "},
        {Framing::u32le, "01 00 00 00 07 00 00 00 00", "4:07 9: "},
        {Framing::u32be, "00 00 00 01 07 00 00 00 00", "4:07 9: "},
    };
    for (const Stream &stream : streams)
        EXPECT_EQ(frames_of(from_hex(stream.bytes), stream.framing), stream.frames) << stream.bytes;
}

TEST(framing, tells_where_a_stream_is_wrong)
{
    const Stream streams[] = {
        {Framing::varint, "01 08 80",
         "offset 0x2 (2) of the stream: the length of a message is cut off"},
        {Framing::varint, "01 08 03 01 02",
         "offset 0x2 (2) of the stream: a message of 3 bytes, but 2 are left"},
        {Framing::varint, "ff ff ff ff ff ff ff ff ff 01",
         "offset 0x0 (0) of the stream: a message of 18446744073709551615 bytes, but 0 are left"},
        {Framing::varint, "ff ff ff ff ff ff ff ff ff 02",
         "offset 0x0 (0) of the stream: the length of a message does not fit 64 bits"},
        {Framing::varint, "80 80 80 80 80 80 80 80 80 80 00",
         "offset 0x0 (0) of the stream: the length of a message does not fit 64 bits"},
        {Framing::u32le, "00 00 00 00 01 00 00",
         "offset 0x4 (4) of the stream: the length of a message is cut off"},
        {Framing::u32le, "ff ff ff ff 01",
         "offset 0x0 (0) of the stream: a message of 4294967295 bytes, but 1 are left"},
        {Framing::u32be, "00 00 00 02 01",
         "offset 0x0 (0) of the stream: a message of 2 bytes, but 1 are left"},
    };
    for (const Stream &stream : streams) {
        const std::vector<uint8_t> bytes = from_hex(stream.bytes);
        FrameReader reader(bytes, stream.framing);
        try {
            while (reader.next()) {
            }
            ADD_FAILURE() << stream.bytes;
        } catch (const Error &error) {
            EXPECT_STREQ(error.what(), stream.frames);
        }
        EXPECT_THROW(reader.next(), Error) << "again";
    }
}

TEST(framing, writes_what_it_reads)
{
    const std::vector<uint8_t> message(300, 8);
    for (const Framing framing : {Framing::varint, Framing::u32le, Framing::u32be}) {
        std::vector<uint8_t> stream;
        append_frame(stream, message, framing);
        append_frame(stream, {}, framing);
        FrameReader reader(stream, framing);
        EXPECT_EQ(hex(reader.next()->message), hex(message));
        EXPECT_EQ(reader.next()->message.size(), 0u);
        EXPECT_FALSE(reader.next());
    }
}

TEST(framing, writes_lengths_as_they_are_meant)
{
    const std::vector<uint8_t> message(258, 8);
    const std::pair<Framing, const char *> beginnings[] = {
        {Framing::none, "0808"},
        {Framing::varint, "820208"},
        {Framing::u32le, "0201000008"},
        {Framing::u32be, "0000010208"},
    };
    for (const auto &[framing, beginning] : beginnings) {
        std::vector<uint8_t> stream;
        append_frame(stream, message, framing);
        EXPECT_EQ(hex(stream, "").substr(0, std::string(beginning).size()), beginning);
    }
}

} // namespace

} // namespace inspect
