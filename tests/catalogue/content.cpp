// SPDX-License-Identifier: MIT
#include "tests/catalogue/content.hpp"

namespace catalogue {

Content empty_content(const RecordType &type)
{
    return {&type, std::vector<std::optional<Value>>(type.members.size())};
}

Value number_value(uint64_t number)
{
    Value value;
    value.number = number;
    return value;
}

bool is_on_wire(const Member &member, const std::optional<Value> &value)
{
    if (!value)
        return false;
    switch (member.kind) {
    case Kind::repeated_uint32:
        return !value->numbers.empty();
    case Kind::repeated_string:
        return !value->texts.empty();
    case Kind::repeated_message:
        return !value->records.empty();
    default:
        return true;
    }
}

bool writes_something(const Content &content)
{
    for (size_t i = 0; i < content.values.size(); i++)
        if (is_on_wire(content.type->members[i], content.values[i]))
            return true;
    return false;
}

} // namespace catalogue
