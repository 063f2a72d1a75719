// SPDX-License-Identifier: MIT
#include "tests/catalogue/operations.hpp"

#include "tests/support/undefined.hpp"

#include <string.h>

namespace catalogue {

Bytes encode(const RecordType &type, const void *record)
{
    const uint32_t length = type.encode(record, nullptr, 0, nullptr, nullptr, 0);
    Bytes buffer(length);
    test::make_undefined(buffer.data(), length);
    EXPECT_EQ(type.encode(record, buffer.data(), length, nullptr, nullptr, 0), length);
    return buffer;
}

OwnedRecord::OwnedRecord(const RecordType &type) : type_(type), storage_(new uint8_t[type.size])
{
    memset(storage_.get(), 0xA5, type.size);
    test::make_undefined(storage_.get(), type.size);
}

int32_t OwnedRecord::decode(const Bytes &input, uint32_t flags)
{
    flags_ = flags;
    filled_ = true;
    return type_.decode(storage(), input.data(), static_cast<uint32_t>(input.size()),
                        Blocks::allocate, &blocks_, flags);
}

Bytes OwnedRecord::image() const
{
    Bytes image(storage_.get(), storage_.get() + type_.size);
    test::make_defined(image.data(), image.size());
    return image;
}

int32_t OwnedRecord::copy(const void *original)
{
    filled_ = true;
    return type_.duplicate(storage(), original, Blocks::allocate, &blocks_);
}

void OwnedRecord::release()
{
    if (filled_)
        type_.release(storage(), Blocks::release, &blocks_, flags_);
}

} // namespace catalogue
