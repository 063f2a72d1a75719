// SPDX-License-Identifier: MIT
// The library under test, loaded at run time and called by exported name.

#pragma once

#include "tests/model/codec.hpp"

#include <string>
#include <unordered_map>

namespace model {

class LibraryCodec : public Codec {
public:
    // Loads the sibling first, since the library expects its functions to be there, and looks up
    // the operations of every type but the foreign ones. Throws std::runtime_error.
    LibraryCodec(const std::string &library, const std::string &sibling,
                 const Catalogue &catalogue);

    uint32_t encode(const RecordType &type, const uint8_t *record,
                    const EncodeArguments &arguments) override;
    int32_t decode(const RecordType &type, uint8_t *record,
                   const DecodeArguments &arguments) override;
    int32_t duplicate(const RecordType &type, uint8_t *to, const uint8_t *from, AllocFn allocate,
                      void *context) override;
    void release(const RecordType &type, uint8_t *record, FreeFn release_block, void *context,
                 uint32_t flags) override;

private:
    struct Operations {
        uint32_t (*encode)(const void *, uint8_t *, uint32_t, WireSegment *, uint32_t *, uint32_t);
        int32_t (*decode)(void *, const uint8_t *, uint32_t, AllocFn, void *, uint32_t);
        int32_t (*duplicate)(void *, const void *, AllocFn, void *);
        void (*release)(void *, FreeFn, void *, uint32_t);
    };

    std::unordered_map<const RecordType *, Operations> operations_;
};

} // namespace model
