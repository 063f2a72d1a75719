// SPDX-License-Identifier: MIT
// The walk reads along with the library: on messages of all types, whole and spoiled, both end with
// the same result, and nothing that shows a message stumbles over one.
#include "tests/tools/hex_bytes.hpp"
#include "tools/core/check.hpp"
#include "tools/core/dump.hpp"
#include "tools/core/text.hpp"
#include "tools/core/walk.hpp"

#include <algorithm>
#include <array>
#include <fstream>
#include <gtest/gtest.h>
#include <random>
#include <string>

namespace inspect {

namespace {

struct Case {
    const RecordType *type;
    std::vector<uint8_t> message;
};

// Of every type, written by another Protocol Buffers library.
std::vector<Case> encodings()
{
    std::vector<Case> cases;
    std::ifstream file(TARN_SOURCE_DIR "/tests/catalogue/vectors.txt");
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with('#'))
            continue;
        const RecordType *type = find_type(line.substr(0, line.find(' ')));
        cases.push_back({type, from_hex(line.substr(line.rfind(' ') + 1))});
    }
    return cases;
}

class Unseen : public Visitor {
public:
    bool visit(const Piece &) override { return true; }
};

void expect_agreement(const Case &each, size_t memory)
{
    Record record(*each.type, memory);
    const int32_t result = record.decode(each.message);
    WalkOptions options;
    if (result == WIRE_ERR_NO_MEMORY)
        options.blocks = record.arena().blocks();
    Unseen nobody;
    const Verdict verdict = walk(*each.type, each.message, nobody, options);
    EXPECT_EQ(verdict.result, result) << each.type->name << ": " << hex(each.message, "");
    EXPECT_EQ(verdict.result == WIRE_OK, verdict.reason.empty());
    EXPECT_LE(verdict.offset, each.message.size());
}

class Spoiler {
public:
    std::vector<uint8_t> spoil(std::vector<uint8_t> bytes)
    {
        for (uint32_t times = below(4); times > 0 && !bytes.empty(); times--)
            spoil_at(bytes, bytes.begin() + below(static_cast<uint32_t>(bytes.size())));
        return bytes;
    }

    uint32_t below(uint32_t limit) { return static_cast<uint32_t>(random_() % limit); }

private:
    void spoil_at(std::vector<uint8_t> &bytes, std::vector<uint8_t>::iterator at)
    {
        switch (below(6)) {
        case 0:
            *at = static_cast<uint8_t>(below(256));
            break;
        case 1:
            bytes.erase(at);
            break;
        case 2:
            bytes.insert(at, static_cast<uint8_t>(below(256)));
            break;
        case 3:
            bytes.insert(at, 0x80);
            break;
        case 4: {
            // An unknown field that ends up to 128 bytes further back.
            const auto back = static_cast<uint8_t>(0x80 + below(128));
            const std::array<uint8_t, 7> jump = {0xFA, 0x0F, back, 0xFF, 0xFF, 0xFF, 0x0F};
            bytes.insert(at, jump.begin(), jump.end());
            break;
        }
        default:
            bytes.erase(at, bytes.end());
        }
    }

    std::mt19937 random_{1}; // NOLINT(cert-msc*): the same every time
};

TEST(agreement, of_walk_and_library_on_messages_of_all_types)
{
    const std::vector<Case> cases = encodings();
    ASSERT_GT(cases.size(), 2000u);
    for (const Case &each : cases)
        expect_agreement(each, SIZE_MAX);
}

TEST(agreement, of_walk_and_library_on_spoiled_messages)
{
    const std::vector<Case> cases = encodings();
    Spoiler spoiler;
    for (int i = 0; i < 10000; i++) {
        const auto any = [&] { return spoiler.below(static_cast<uint32_t>(cases.size())); };
        const Case &one = cases[any()];
        const RecordType *type = spoiler.below(4) == 0 ? cases[any()].type : one.type;
        const size_t memory = spoiler.below(8) == 0 ? spoiler.below(2000) : size_t{1} << 20;
        expect_agreement({type, spoiler.spoil(one.message)}, memory);
    }
}

TEST(agreement, on_spoiled_messages_leaves_dump_and_check_with_the_result_of_the_library)
{
    const std::vector<Case> cases = encodings();
    constexpr size_t kMemory = size_t{1} << 20;
    Spoiler spoiler;
    for (int i = 0; i < 1000; i++) {
        const Case &one = cases[spoiler.below(static_cast<uint32_t>(cases.size()))];
        const std::vector<uint8_t> message = spoiler.spoil(one.message);
        Record record(*one.type, kMemory);
        const int32_t result = record.decode(message);
        DumpOptions options;
        options.memory_limit = kMemory;
        size_t lines = 0;
        const Sink count = [&lines](std::string_view text) {
            lines += static_cast<size_t>(std::ranges::count(text, '\n'));
        };
        EXPECT_EQ(write_dump(*one.type, message, options, count).result, result);
        EXPECT_GT(lines, 0u);
        EXPECT_EQ(check(*one.type, message, kMemory).verdict.result, result);
    }
}

} // namespace

} // namespace inspect
