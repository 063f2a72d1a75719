// SPDX-License-Identifier: MIT
#include "tests/catalogue/catalogue.hpp"

#include <map>
#include <stdexcept>
#include <string>

namespace catalogue {

namespace {

std::map<std::string_view, const RecordType *> types_by_name()
{
    std::map<std::string_view, const RecordType *> types;
    for (const RecordType &type : record_types())
        types.emplace(type.name, &type);
    for (const RecordType &type : foreign_types())
        types.emplace(type.name, &type);
    return types;
}

} // namespace

const RecordType &find_type(std::string_view name)
{
    static const std::map<std::string_view, const RecordType *> types = types_by_name();
    const auto found = types.find(name);
    if (found == types.end())
        throw std::out_of_range("no record type " + std::string(name));
    return *found->second;
}

} // namespace catalogue
