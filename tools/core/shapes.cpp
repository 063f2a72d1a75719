// SPDX-License-Identifier: MIT
#include "tools/core/guess.hpp"

#include <algorithm>
#include <fmt/format.h>
#include <map>
#include <string>

namespace inspect {

namespace {

// Two types have the same text if, and only if, no bytes can tell them apart.
std::string shape_of(const RecordType &type)
{
    std::string shape = "{";
    for (const Member &member : type.members) {
        shape += fmt::format("{}:{}", member.number, static_cast<int>(member.kind));
        shape += member.child ? shape_of(*member.child) : ",";
    }
    return shape + "}";
}

} // namespace

const std::vector<ShapeClass> &shape_classes()
{
    static const std::vector<ShapeClass> classes = [] {
        std::map<std::string, ShapeClass> by_shape;
        for (const RecordType *type : own_types())
            by_shape[shape_of(*type)].push_back(type);
        std::vector<ShapeClass> found;
        for (auto &[shape, types] : by_shape)
            found.push_back(std::move(types));
        std::ranges::sort(found, {}, [](const ShapeClass &types) { return types[0]->name; });
        return found;
    }();
    return classes;
}

} // namespace inspect
