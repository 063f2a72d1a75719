// SPDX-License-Identifier: MIT
// The four operations of a record type as the cases call them: once on the shared library, once on
// the model beside it.

#pragma once

#include "tests/model/catalogue.hpp"

#include <cstdint>

namespace model {

constexpr int32_t kOk = 0;
constexpr int32_t kMalformed = -1;
constexpr int32_t kBadWireType = -2;
constexpr int32_t kTypeMismatch = -3;
constexpr int32_t kNoMemory = -4;

constexpr uint32_t kBytesInPlace = 1;

struct WireSegment {
    const uint8_t *data;
    uint32_t length;
};

using AllocFn = void *(*)(uint32_t size, void *context);
using FreeFn = void (*)(void *block, void *context);

struct EncodeArguments {
    uint8_t *buffer;
    uint32_t capacity;
    WireSegment *segments;
    uint32_t *segment_count;
    uint32_t flags;
};

struct DecodeArguments {
    const uint8_t *input;
    uint32_t length;
    AllocFn allocate;
    void *context;
    uint32_t flags;
};

class Codec {
public:
    virtual ~Codec() = default;

    virtual uint32_t encode(const RecordType &type, const uint8_t *record,
                            const EncodeArguments &arguments) = 0;
    virtual int32_t decode(const RecordType &type, uint8_t *record,
                           const DecodeArguments &arguments) = 0;
    virtual int32_t duplicate(const RecordType &type, uint8_t *to, const uint8_t *from,
                              AllocFn allocate, void *context) = 0;
    virtual void release(const RecordType &type, uint8_t *record, FreeFn release_block,
                         void *context, uint32_t flags) = 0;
};

} // namespace model
