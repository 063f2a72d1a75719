// SPDX-License-Identifier: MIT
// Fills records: numbers as such systems have them, texts, lists and byte strings, all drawn from
// one seed and kept in one arena.

#pragma once

#include <stdint.h>

#include <memory_resource>
#include <random>
#include <span>
#include <string_view>

namespace bench {

class Maker {
public:
    explicit Maker(uint64_t seed) : random_(seed) {}

    // Less than `end`.
    uint32_t below(uint32_t end) { return static_cast<uint32_t>(random_() % end); }
    bool one_in(uint32_t count) { return below(count) == 0; }

    // A code: states, types, modes.
    uint32_t code() { return below(8); }
    // An amount that mostly takes one byte and sometimes two.
    uint32_t amount() { return below(one_in(4) ? 4000 : 100); }
    // Identifiers, masks, register contents.
    uint32_t word() { return static_cast<uint32_t>(random_()); }
    uint32_t rate() { return below(100'000) * 1000; }
    uint64_t address() { return random_() & 0xFFFF'FFFF'FFFF; }
    // Frames or bytes seen on a busy interface: of any magnitude.
    uint64_t counter() { return random_() >> (24 + below(36)); }
    // Things that should not happen, and rarely do.
    uint64_t errors() { return one_in(5) ? below(1000) : 0; }
    uint8_t truth() { return below(2) == 1; }

    template <typename Record>
    Record *record()
    {
        return new (memory_.allocate(sizeof(Record), 8)) Record{};
    }

    template <typename Element>
    std::span<Element> list(Element *&pointer, uint32_t &count, uint32_t length)
    {
        void *block = memory_.allocate(sizeof(Element) * length, 8);
        pointer = new (block) Element[length]{};
        count = length;
        return {pointer, length};
    }

    [[gnu::format(printf, 2, 3)]] const char *text(const char *format, ...);
    const uint8_t *bytes(uint32_t length);

private:
    std::mt19937_64 random_;
    std::pmr::monotonic_buffer_resource memory_{1 << 20};
};

} // namespace bench

// A member and its flag.
#define BENCH_SET(record, member, ...) ((record).member = (__VA_ARGS__), (record).has_##member = 1)

// Every member named gets a value of its own: the expression is evaluated for each.
#define BENCH_SET_EACH(record, value, ...)                                                         \
    do {                                                                                           \
        BENCH_EXPAND(BENCH_SET_NEXT(record, value, __VA_ARGS__))                                   \
    } while (false)
#define BENCH_SET_NEXT(record, value, member, ...)                                                 \
    BENCH_SET(record, member, value);                                                              \
    __VA_OPT__(BENCH_SET_MORE BENCH_PARENTHESES(record, value, __VA_ARGS__))
#define BENCH_SET_MORE() BENCH_SET_NEXT
#define BENCH_PARENTHESES ()
#define BENCH_EXPAND(...) BENCH_EXPAND_4(BENCH_EXPAND_4(BENCH_EXPAND_4(__VA_ARGS__)))
#define BENCH_EXPAND_4(...)                                                                        \
    BENCH_EXPAND_1(BENCH_EXPAND_1(BENCH_EXPAND_1(BENCH_EXPAND_1(__VA_ARGS__))))
#define BENCH_EXPAND_1(...)                                                                        \
    BENCH_EXPAND_0(BENCH_EXPAND_0(BENCH_EXPAND_0(BENCH_EXPAND_0(__VA_ARGS__))))
#define BENCH_EXPAND_0(...) __VA_ARGS__

#define BENCH_BYTES(record, member, ...)                                                           \
    ((record).member##_length = (__VA_ARGS__),                                                     \
     BENCH_SET(record, member, make.bytes((record).member##_length)))

// Sets the flag, and returns the elements to be filled.
#define BENCH_LIST(record, member, ...)                                                            \
    ((record).has_##member = 1, make.list((record).member, (record).member##_count, (__VA_ARGS__)))
