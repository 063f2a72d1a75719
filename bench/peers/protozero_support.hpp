// SPDX-License-Identifier: MIT
// What the code for single record types that bench/generate/protozero.py writes is made of.

#pragma once

#include "bench/bump.hpp"
#include "ethsw_mgmt/ethsw_mgmt.h"

#include <protozero/buffer_fixed.hpp>
#include <protozero/pbf_reader.hpp>
#include <protozero/pbf_writer.hpp>

#include <stdlib.h>
#include <string.h>

#include <span>

namespace bench::by_hand {

using Writer = protozero::basic_pbf_writer<protozero::fixed_size_buffer_adaptor>;

inline uint32_t varint_size(uint64_t value)
{
    return static_cast<uint32_t>(protozero::length_of_varint(value));
}

// With the length in front.
inline uint32_t sized(size_t length)
{
    return varint_size(length) + static_cast<uint32_t>(length);
}

// The size is not told to the writer, though it could be: then it writes straight on instead of
// closing up, but to find out takes longer.
template <typename Content>
void write_message(Writer &writer, protozero::pbf_tag_type number, Content content)
{
    Writer message(writer, number);
    content(message);
}

// How many more elements of the list come whose first element the reader is at, this one included.
inline uint32_t count(protozero::pbf_reader reader)
{
    const protozero::pbf_tag_type number = reader.tag();
    uint32_t elements = 1;
    for (reader.skip(); reader.next(number); reader.skip())
        elements++;
    return elements;
}

// Memory for decoding: from a Bump or from malloc.
template <typename Source>
class Memory {
public:
    Memory(Source source, bool bytes_in_place) : source_(source), bytes_in_place_(bytes_in_place) {}

    const char *text(protozero::data_view view)
    {
        char *text = static_cast<char *>(allocate(view.size() + 1));
        memcpy(text, view.data(), view.size());
        text[view.size()] = '\0';
        return text;
    }

    void bytes(const uint8_t *&pointer, uint32_t &length, protozero::data_view view)
    {
        length = static_cast<uint32_t>(view.size());
        if (bytes_in_place_) {
            pointer = reinterpret_cast<const uint8_t *>(view.data());
            return;
        }
        void *block = allocate(view.size());
        memcpy(block, view.data(), view.size());
        pointer = static_cast<const uint8_t *>(block);
    }

    template <typename Element>
    void list(Element *&pointer, uint32_t length)
    {
        pointer = static_cast<Element *>(allocate(length * sizeof(Element)));
    }

    void free_block(const void *block) { source_.free(block); }

    void free_bytes(const void *block)
    {
        if (!bytes_in_place_)
            source_.free(block);
    }

private:
    void *allocate(size_t size)
    {
        void *block = source_.allocate(static_cast<uint32_t>(size));
        if (!block)
            throw std::bad_alloc();
        return block;
    }

    Source source_;
    bool bytes_in_place_;
};

struct FromBump {
    void *allocate(uint32_t size) { return bump.allocate(size); }
    void free(const void *) {}

    Bump &bump;
};

struct FromHeap {
    void *allocate(uint32_t size) { return malloc(size); }
    void free(const void *block) { ::free(const_cast<void *>(block)); }
};

} // namespace bench::by_hand
