// SPDX-License-Identifier: MIT
// Duplication and release told plainly, member by member in member order.

#include "tests/model/model_codec.hpp"
#include "tests/model/record_memory.hpp"

namespace model {

namespace {

class Copier {
public:
    Copier(AllocFn allocate, void *context) : allocate_(allocate), context_(context) {}

    int32_t copy(const RecordType &type, uint8_t *to, const uint8_t *from)
    {
        int32_t result = kOk;
        for (size_t i = 0; i < type.members.size(); ++i) {
            const Member &member = type.members[i];
            bool complete = true;
            const int32_t error =
                copy_member(member, to + member.offset, from + member.offset, &complete);
            set_flag(type, to, i, complete && flag(type, from, i));
            // A nested error is kept only when it is the first; a block not given always counts.
            if (member.kind == Kind::record || (member.kind == Kind::records && complete))
                result = result ? result : error;
            else if (error)
                result = error;
        }
        return result;
    }

private:
    // Not `complete`: there was no block for the member itself.
    int32_t copy_member(const Member &member, uint8_t *to, const uint8_t *from, bool *complete)
    {
        switch (member.kind) {
        case Kind::uint32:
            store<uint32_t>(to, load<uint32_t>(from));
            return kOk;
        case Kind::uint64:
            store<uint64_t>(to, load<uint64_t>(from));
            return kOk;
        case Kind::boolean:
            *to = *from;
            return kOk;
        case Kind::record:
            return copy(*member.child, to, from);
        case Kind::string:
            return copy_text(to, from, complete);
        case Kind::bytes:
            return copy_bytes(to, from, complete);
        default:
            return copy_array(member, to, from, complete);
        }
    }

    uint8_t *block(uint64_t size)
    {
        if (!allocate_ || size > UINT32_MAX)
            return nullptr;
        return static_cast<uint8_t *>(allocate_(uint32_t(size), context_));
    }

    int32_t copy_text(uint8_t *to, const uint8_t *from, bool *complete)
    {
        const uint8_t *text = load_pointer(from);
        if (!text) {
            store_pointer(to, nullptr);
            return kOk;
        }
        const uint64_t size = uint64_t(std::strlen(reinterpret_cast<const char *>(text))) + 1;
        uint8_t *copy = block(size);
        store_pointer(to, copy);
        if (!copy) {
            *complete = false;
            return kNoMemory;
        }
        std::memcpy(copy, text, size_t(size));
        return kOk;
    }

    int32_t copy_bytes(uint8_t *to, const uint8_t *from, bool *complete)
    {
        const uint32_t length = load_count(from);
        uint8_t *copy = length ? block(length) : nullptr;
        store_pointer(to, copy);
        store_count(to, copy ? length : 0);
        if (length == 0)
            return kOk;
        if (!copy) {
            *complete = false;
            return kNoMemory;
        }
        std::memcpy(copy, load_pointer(from), length);
        return kOk;
    }

    int32_t copy_array(const Member &member, uint8_t *to, const uint8_t *from, bool *complete)
    {
        const uint32_t count = load_count(from);
        const uint32_t stride = element_size(member);
        uint8_t *copy = count ? block(uint64_t(count) * stride) : nullptr;
        store_pointer(to, copy);
        store_count(to, copy ? count : 0);
        if (count == 0)
            return kOk;
        if (!copy) {
            *complete = false;
            return kNoMemory;
        }
        // Arrays are copied as they are, with the gaps between the members of their elements.
        std::memcpy(copy, load_pointer(from), size_t(count) * stride);
        int32_t result = kOk;
        for (uint32_t i = 0; i < count; ++i) {
            const size_t at = size_t(i) * stride;
            const int32_t error = copy_element(member, copy + at, load_pointer(from) + at);
            result = result ? result : error;
        }
        return result;
    }

    int32_t copy_element(const Member &member, uint8_t *to, const uint8_t *from)
    {
        bool complete = true;
        if (member.kind == Kind::records)
            return copy(*member.child, to, from);
        if (member.kind == Kind::strings)
            return copy_text(to, from, &complete);
        store<uint32_t>(to, load<uint32_t>(from));
        return kOk;
    }

    AllocFn allocate_;
    void *context_;
};

class Releaser {
public:
    Releaser(FreeFn release_block, void *context, uint32_t flags)
        : release_block_(release_block), context_(context), flags_(flags)
    {}

    void release(const RecordType &type, uint8_t *record)
    {
        for (const Member &member : type.members)
            release_member(member, record + member.offset);
    }

private:
    void release_member(const Member &member, uint8_t *at)
    {
        switch (member.kind) {
        case Kind::string:
            release_pointer(at);
            break;
        case Kind::bytes:
            if (!(flags_ & kBytesInPlace))
                release_pointer(at);
            break;
        case Kind::record:
            release(*member.child, at);
            break;
        // The count of numbers stays as it was.
        case Kind::uint32s:
            release_pointer(at);
            break;
        case Kind::strings:
        case Kind::records:
            release_array(member, at);
            break;
        default:
            break;
        }
    }

    void release_array(const Member &member, uint8_t *at)
    {
        uint8_t *elements = load_pointer(at);
        if (!elements)
            return;
        const uint32_t count = load_count(at);
        for (uint32_t i = 0; i < count; ++i) {
            uint8_t *element = elements + size_t(i) * element_size(member);
            if (member.kind == Kind::records)
                release(*member.child, element);
            else if (load_pointer(element))
                release_block_(load_pointer(element), context_);
        }
        release_pointer(at);
        store_count(at, 0);
    }

    void release_pointer(uint8_t *at)
    {
        if (!load_pointer(at))
            return;
        release_block_(load_pointer(at), context_);
        store_pointer(at, nullptr);
    }

    FreeFn release_block_;
    void *context_;
    uint32_t flags_;
};

} // namespace

int32_t ModelCodec::duplicate(const RecordType &type, uint8_t *to, const uint8_t *from,
                              AllocFn allocate, void *context)
{
    return Copier(allocate, context).copy(type, to, from);
}

void ModelCodec::release(const RecordType &type, uint8_t *record, FreeFn release_block,
                         void *context, uint32_t flags)
{
    Releaser(release_block, context, flags).release(type, record);
}

} // namespace model
