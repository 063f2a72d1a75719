// SPDX-License-Identifier: MIT
#include "tools/core/verdict.hpp"

#include <fmt/format.h>

namespace inspect {

std::string path_text(const std::vector<Step> &steps)
{
    std::string text;
    for (const Step &step : steps) {
        text.append(text.empty() ? "" : ".").append(step.member->name);
        if (is_list(step.member->kind))
            text += fmt::format("[{}]", step.index);
    }
    return text;
}

std::string result_name(int32_t result)
{
    switch (result) {
    case WIRE_OK:
        return "WIRE_OK";
    case WIRE_ERR_MALFORMED:
        return "WIRE_ERR_MALFORMED";
    case WIRE_ERR_WIRE_TYPE:
        return "WIRE_ERR_WIRE_TYPE";
    case WIRE_ERR_TYPE_MISMATCH:
        return "WIRE_ERR_TYPE_MISMATCH";
    case WIRE_ERR_NO_MEMORY:
        return "WIRE_ERR_NO_MEMORY";
    default:
        return fmt::format("result {}", result);
    }
}

std::string Verdict::text() const
{
    if (result == WIRE_OK)
        return "WIRE_OK";
    std::string where = fmt::format("at offset {0:#x} ({0})", offset);
    if (!path.empty())
        where += ", in " + path_text(path);
    return fmt::format("{}: {}: {}", where, result_name(result), reason);
}

} // namespace inspect
