// SPDX-License-Identifier: MIT
#include "tools/core/json.hpp"

#include "tools/core/error.hpp"
#include "tools/core/json_filler.hpp"
#include "tools/core/json_text.hpp"

#include <algorithm>
#include <fmt/format.h>
#include <nlohmann/json.hpp>

namespace inspect {

namespace {

using Parser = nlohmann::json;

// What the parser tells, handed on. The names are the parser's.
class Events {
public:
    Events(std::string_view text, JsonFiller &filler) : text_(text), filler_(filler) {}

    bool null()
    {
        filler_.null();
        return true;
    }
    bool boolean(bool value)
    {
        filler_.boolean(value);
        return true;
    }
    bool number_integer(Parser::number_integer_t value)
    {
        filler_.number(fmt::format_int(value).c_str());
        return true;
    }
    bool number_unsigned(Parser::number_unsigned_t value)
    {
        filler_.number(fmt::format_int(value).c_str());
        return true;
    }
    // Exact only as a text, in which the point is as the locale has it.
    bool number_float(Parser::number_float_t, std::string digits)
    {
        const auto is_point = [](char c) {
            return std::string_view("0123456789+-eE").find(c) == std::string_view::npos;
        };
        std::ranges::replace_if(digits, is_point, '.');
        filler_.number(digits);
        return true;
    }
    bool string(const std::string &value)
    {
        filler_.string(value);
        return true;
    }
    bool binary(const Parser::binary_t &) { return false; } // not in JSON
    bool start_object(size_t)
    {
        filler_.open_object();
        return true;
    }
    bool key(const std::string &name)
    {
        filler_.key(name);
        return true;
    }
    bool end_object()
    {
        filler_.close_object();
        return true;
    }
    bool start_array(size_t)
    {
        filler_.open_list();
        return true;
    }
    bool end_array()
    {
        filler_.close_list();
        return true;
    }
    bool parse_error(size_t characters_read, const std::string &token,
                     const Parser::exception &exception)
    {
        constexpr int kNumberOverflow = 406;
        if (exception.id == kNumberOverflow)
            filler_.number(token); // finds it too large, and knows for what
        throw Error(filler_.is_complete() ? json_surplus(text_, characters_read)
                                          : json_fault(text_, characters_read));
    }

private:
    std::string_view text_;
    JsonFiller &filler_;
};

} // namespace

void read_json(std::string_view text, const JsonOptions &options, Record &record)
{
    if (const size_t offset = text.find('\0'); offset != std::string_view::npos)
        throw Error(json_zero_byte(text, offset));
    JsonFiller filler(options, record);
    Events events(text, filler);
    Parser::sax_parse(JsonCharacters(text), JsonCharacters(text.substr(text.size())), &events);
}

} // namespace inspect
