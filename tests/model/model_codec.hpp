// SPDX-License-Identifier: MIT
// The model: every rule of the records told as plainly as possible, over the tables of the
// catalogue. It is never fast and shares nothing with the library.

#pragma once

#include "tests/model/codec.hpp"
#include "tests/model/course.hpp"

namespace model {

class ModelCodec : public Codec {
public:
    uint32_t encode(const RecordType &type, const uint8_t *record,
                    const EncodeArguments &arguments) override;
    int32_t decode(const RecordType &type, uint8_t *record,
                   const DecodeArguments &arguments) override;
    int32_t duplicate(const RecordType &type, uint8_t *to, const uint8_t *from, AllocFn allocate,
                      void *context) override;
    void release(const RecordType &type, uint8_t *record, FreeFn release_block, void *context,
                 uint32_t flags) override;

    // How long the next decodes put up with a loop that never ends.
    void set_patience(const Patience &patience) { patience_ = patience; }

    const Sightings &last_decode() const { return sightings_; }

private:
    Patience patience_;
    Sightings sightings_;
};

void initialise(const RecordType &type, uint8_t *record);

} // namespace model
