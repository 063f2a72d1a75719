// SPDX-License-Identifier: MIT
#include "output.hpp"

#include <sstream>

namespace generator {

std::string generated_banner(const std::string &source)
{
    return "// SPDX-License-Identifier: MIT\n"
           "// Generated from " +
           source + " by generator/regenerate. Do not edit: change the schema and run it.\n";
}

std::string wrapped(const std::string &text, const std::string &prefix)
{
    constexpr size_t kColumns = 100;
    std::istringstream words(text);
    std::string out;
    std::string line;
    for (std::string word; words >> word;) {
        if (!line.empty() && prefix.size() + line.size() + 1 + word.size() > kColumns) {
            out += prefix + line + "\n";
            line.clear();
        }
        line += (line.empty() ? "" : " ") + word;
    }
    return out + prefix + line + "\n";
}

} // namespace generator
