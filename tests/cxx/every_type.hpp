// SPDX-License-Identifier: MIT
// The C++ headers with every record type, for tests that know types at run time only. The rows are
// in record_types.cpp, which is generated.

#pragma once

#include "cxx/encode.hpp"
#include "cxx/owner.hpp"

#include <memory>
#include <span>
#include <stdint.h>
#include <vector>

namespace every_type {

using Bytes = std::vector<uint8_t>;

// An Owner<T> behind an interface.
class AnyOwner {
public:
    AnyOwner() = default;
    AnyOwner(const AnyOwner &) = delete;
    AnyOwner &operator=(const AnyOwner &) = delete;
    virtual ~AnyOwner() = default;

    virtual int32_t decode(const Bytes &input, uint32_t flags) = 0;
    virtual int32_t duplicate(const AnyOwner &original) = 0;
    virtual std::unique_ptr<AnyOwner> moved() = 0;
    virtual void clear() = 0;
    virtual const void *record() const = 0;
    virtual Bytes encoding() const = 0;
    virtual uint32_t encode_into(tarn::ByteBuffer buffer) const = 0;
};

template <typename T>
class OwnerOf : public AnyOwner {
public:
    explicit OwnerOf(const tarn::BlockSource &source) : owner_(source) {}
    explicit OwnerOf(tarn::Owner<T> &&owner) : owner_(std::move(owner)) {}

    int32_t decode(const Bytes &input, uint32_t flags) override
    {
        return owner_.decode(input, flags);
    }

    int32_t duplicate(const AnyOwner &original) override
    {
        return owner_.duplicate(static_cast<const OwnerOf &>(original).owner_);
    }

    std::unique_ptr<AnyOwner> moved() override
    {
        return std::make_unique<OwnerOf>(std::move(owner_));
    }

    void clear() override { owner_.clear(); }
    const void *record() const override { return owner_.get(); }
    Bytes encoding() const override { return tarn::encode(owner_); }

    uint32_t encode_into(tarn::ByteBuffer buffer) const override
    {
        return tarn::encode_into(buffer, owner_);
    }

private:
    tarn::Owner<T> owner_;
};

struct Row {
    const char *name;
    tarn::Shape shape;
    std::unique_ptr<AnyOwner> (*owner)(const tarn::BlockSource &source);
    // The encoding of a record that was filled by hand; null where the type has no fields.
    Bytes (*encode)(const void *record);
};

template <typename T>
constexpr Row row(const char *name)
{
    return {
        name,
        tarn::Operations<T>::shape,
        [](const tarn::BlockSource &source) -> std::unique_ptr<AnyOwner> {
            return std::make_unique<OwnerOf<T>>(source);
        },
        []([[maybe_unused]] const void *record) {
            if constexpr (tarn::has_fields<T>)
                return tarn::encode(*static_cast<const T *>(record));
            else
                return tarn::encode<T>();
        },
    };
}

// All record types of the library.
std::span<const Row> rows();

} // namespace every_type
