// SPDX-License-Identifier: MIT
// Finds the four operations of each record type in the shared library.

#include "tests/model/library_codec.hpp"

#include <stdexcept>

#include <dlfcn.h>

namespace model {

namespace {

void *open_library(const std::string &path, int scope)
{
    void *library = dlopen(path.c_str(), RTLD_NOW | scope);
    if (!library)
        throw std::runtime_error(dlerror());
    return library;
}

template <typename Function>
void find(void *library, const RecordType &type, const char *operation, Function *&function)
{
    const std::string name = "tarn_" + type.name + operation;
    void *address = dlsym(library, name.c_str());
    if (!address)
        throw std::runtime_error("not exported: " + name);
    function = reinterpret_cast<Function *>(address);
}

} // namespace

LibraryCodec::LibraryCodec(const std::string &library, const std::string &sibling,
                           const Catalogue &catalogue)
{
    open_library(sibling, RTLD_GLOBAL);
    void *handle = open_library(library, RTLD_LOCAL);
    for (const auto &type : catalogue.types) {
        if (type->foreign)
            continue;
        Operations &operations = operations_[type.get()];
        find(handle, *type, "_encode_ext", operations.encode);
        find(handle, *type, "_decode_ext", operations.decode);
        find(handle, *type, "_duplicate", operations.duplicate);
        find(handle, *type, "_free_ext", operations.release);
    }
}

uint32_t LibraryCodec::encode(const RecordType &type, const uint8_t *record,
                              const EncodeArguments &arguments)
{
    return operations_.at(&type).encode(record, arguments.buffer, arguments.capacity,
                                        arguments.segments, arguments.segment_count,
                                        arguments.flags);
}

int32_t LibraryCodec::decode(const RecordType &type, uint8_t *record,
                             const DecodeArguments &arguments)
{
    return operations_.at(&type).decode(record, arguments.input, arguments.length,
                                        arguments.allocate, arguments.context, arguments.flags);
}

int32_t LibraryCodec::duplicate(const RecordType &type, uint8_t *to, const uint8_t *from,
                                AllocFn allocate, void *context)
{
    return operations_.at(&type).duplicate(to, from, allocate, context);
}

void LibraryCodec::release(const RecordType &type, uint8_t *record, FreeFn release_block,
                           void *context, uint32_t flags)
{
    operations_.at(&type).release(record, release_block, context, flags);
}

} // namespace model
