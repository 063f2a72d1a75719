// SPDX-License-Identifier: MIT
#include "tests/costs/exported.hpp"

#include <stdexcept>
#include <string>

#include <dlfcn.h>

namespace costs {

namespace {

// A pointer to a record is passed like one to anything.
template <typename Function>
void find(Function &function, const std::string &name)
{
    function = reinterpret_cast<Function>(dlsym(RTLD_DEFAULT, name.c_str()));
    if (!function)
        throw std::logic_error(name + " is not exported");
}

} // namespace

Operations operations_of(const catalogue::RecordType &type)
{
    const std::string name = type.name;
    Operations operations;
    find(operations.encode, name + "_encode_ext");
    find(operations.decode, name + "_decode_ext");
    find(operations.duplicate, name + "_duplicate");
    find(operations.release, name + "_free_ext");
    return operations;
}

} // namespace costs
