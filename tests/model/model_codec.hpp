// SPDX-License-Identifier: MIT
// The model: every rule of the records told as plainly as possible, over the tables of the
// catalogue. It is never fast and shares nothing with the library.

#pragma once

#include "tests/model/codec.hpp"

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

    // What was seen on the way of one decode.
    struct Sightings {
        // A skip led back to where the reading had been before.
        bool went_back = false;
        // The field loop would never have ended and was given up.
        bool endless = false;
    };

    const Sightings &last_decode() const { return sightings_; }

private:
    Sightings sightings_;
};

void initialise(const RecordType &type, uint8_t *record);

} // namespace model
