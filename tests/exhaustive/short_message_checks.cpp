// SPDX-License-Identifier: MIT
// Every message of one, two and three bytes through the operations of every record type.
#include "tests/exhaustive/check.hpp"
#include "tests/exhaustive/short_message_reference.hpp"

#include <algorithm>
#include <cinttypes>
#include <cstdio>
#include <cstring>
#include <memory>

namespace exhaustive {

using catalogue::Kind;
using catalogue::Member;
using catalogue::RecordType;

namespace {

// Blocks for one message and its copy.
struct Memory {
    alignas(8) uint8_t content[2048];
    uint32_t used = 0;
    uint32_t asked = 0;
    uint32_t bytes = 0;
    uint32_t returned = 0;

    void clear() { used = asked = bytes = returned = 0; }

    static void *allocate(uint32_t size, void *memory)
    {
        Memory &self = *static_cast<Memory *>(memory);
        self.asked++;
        self.bytes += size;
        if (self.used + size > sizeof self.content)
            return nullptr;
        void *block = self.content + self.used;
        self.used += (size + 7) / 8 * 8;
        return memset(block, 0xC3, size);
    }

    static void release(void *, void *memory) { static_cast<Memory *>(memory)->returned++; }
};

class Tested {
public:
    Tested(const RecordType &type, uint32_t flags)
        : type_(type), fields_(type), flags_(flags), record_(blank()), copy_(blank()),
          empty_(blank())
    {
        type.decode(at(empty_), nullptr, 0, nullptr, nullptr, 0);
    }

    const char *check(const uint8_t *message, uint32_t size)
    {
        const Outcome expected =
            decode_short(fields_, message, size, (flags_ & WIRE_FLAG_BYTES_IN_PLACE) != 0);
        memory_.clear();
        if (type_.decode(at(record_), message, size, Memory::allocate, &memory_, flags_) !=
            expected.result)
            return "the result";
        if (memory_.asked != expected.blocks || memory_.bytes != expected.bytes)
            return "the memory asked for";
        if (expected.blocks == 0 && expected.encoded_size == 0)
            return memcmp(record_.get(), empty_.get(), type_.size) == 0 ? nullptr
                                                                        : "the record is not empty";
        const char *wrong = check_content(expected);
        return wrong ? wrong : check_copy(expected);
    }

private:
    using Storage = std::unique_ptr<uint8_t[]>;

    // Padding is compared, too: nobody writes it.
    Storage blank() const
    {
        Storage storage(new uint8_t[type_.size + 1]);
        memset(storage.get(), 0xA5, type_.size + 1);
        return storage;
    }

    void *at(const Storage &storage) const { return type_.size ? storage.get() : nullptr; }

    bool encodes_to(const Storage &record, const Outcome &expected) const
    {
        uint8_t encoding[8];
        return type_.encode(at(record), encoding, sizeof encoding, nullptr, nullptr, 0) ==
                   expected.encoded_size &&
               memcmp(encoding, expected.encoding, expected.encoded_size) == 0;
    }

    const char *check_content(const Outcome &expected)
    {
        return encodes_to(record_, expected) ? nullptr : "the encoding";
    }

    // Hands everything back: first what the record holds, then what its copy does.
    const char *check_copy(const Outcome &expected)
    {
        if (type_.duplicate(at(copy_), at(record_), Memory::allocate, &memory_) != WIRE_OK ||
            !encodes_to(copy_, expected))
            return "the copy";
        type_.release(at(record_), Memory::release, &memory_, flags_);
        if (memory_.returned != expected.blocks)
            return "how many blocks are handed back";
        type_.release(at(copy_), Memory::release, &memory_, 0);
        return memory_.returned == memory_.asked ? nullptr
                                                 : "how many blocks of the copy are handed back";
    }

    const RecordType &type_;
    const Fields fields_;
    const uint32_t flags_;
    Storage record_;
    Storage copy_;
    Storage empty_;
    Memory memory_;
};

bool has_bytes(const RecordType &type)
{
    return std::any_of(type.members.begin(), type.members.end(), [](const Member &member) {
        return member.kind == Kind::bytes ||
               (is_nested(member.kind) && has_bytes(catalogue::find_type(member.child)));
    });
}

// The other bits of the word mean nothing.
constexpr uint32_t kCopied = ~WIRE_FLAG_BYTES_IN_PLACE;
constexpr uint32_t kInPlace = UINT32_MAX;

struct Subject {
    const RecordType *type;
    uint32_t flags;
};

std::vector<Subject> subjects(uint32_t flags)
{
    std::vector<Subject> all;
    for (const RecordType &type : catalogue::record_types())
        if (flags == kCopied || has_bytes(type))
            all.push_back({&type, flags});
    return all;
}

Difference check_messages(const Subject &subject, uint8_t first)
{
    Tested tested(*subject.type, subject.flags);
    for (uint32_t size = 1; size <= 3; size++)
        for (uint32_t rest = 0; rest < 1u << 8 * (size - 1); rest++) {
            const uint8_t message[3] = {first, static_cast<uint8_t>(rest),
                                        static_cast<uint8_t>(rest >> 8)};
            if (const char *wrong = tested.check(message, size)) {
                char text[300];
                std::snprintf(text, sizeof text, "%s, the first %" PRIu32 " of %02X %02X %02X: %s",
                              subject.type->name, size, message[0], message[1], message[2], wrong);
                return text;
            }
        }
    return {};
}

Check check_all(const char *name, uint32_t flags)
{
    const std::vector<Subject> all = subjects(flags);
    return {name, static_cast<uint32_t>(all.size()) * 256, 1 + 256 + 65536, [all](uint32_t part) {
                return check_messages(all[part / 256], static_cast<uint8_t>(part));
            }};
}

} // namespace

std::vector<Check> short_message_checks()
{
    return {
        check_all("messages of one to three bytes, to every record type", kCopied),
        check_all("the same with byte strings in place, where there are any", kInPlace),
    };
}

} // namespace exhaustive
