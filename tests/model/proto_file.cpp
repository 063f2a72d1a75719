// SPDX-License-Identifier: MIT
// Reads the regular part of the .proto language that this project's own files use: messages of
// optional and repeated fields with numbers, defaults and comments.

#include "tests/model/catalogue.hpp"

#include <cctype>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace model {

namespace {

class Tokens {
public:
    Tokens(std::string text, std::string path) : text_(std::move(text)), path_(std::move(path)) {}

    // The next word, number, quoted text or sign; empty at the end of the file.
    std::string take()
    {
        skip_blanks();
        if (at_ >= text_.size())
            return {};
        const size_t start = at_;
        if (text_[at_] == '"') {
            at_ = text_.find('"', at_ + 1);
            if (at_ == std::string::npos)
                fail("a text without an end");
            ++at_;
        } else if (is_word(text_[at_])) {
            while (at_ < text_.size() && is_word(text_[at_]))
                ++at_;
        } else {
            ++at_;
        }
        return text_.substr(start, at_ - start);
    }

    void expect(const std::string &wanted)
    {
        const std::string found = take();
        if (found != wanted)
            fail("'" + wanted + "' expected, '" + found + "' found");
    }

    void skip_statement()
    {
        for (std::string token = take(); token != ";"; token = take())
            if (token.empty())
                fail("a statement without an end");
    }

    [[noreturn]] void fail(const std::string &what) const
    {
        size_t line = 1;
        for (size_t i = 0; i < at_ && i < text_.size(); ++i)
            line += text_[i] == '\n';
        throw std::runtime_error(path_ + ":" + std::to_string(line) + ": " + what);
    }

private:
    static bool is_word(char c)
    {
        return std::isalnum(static_cast<unsigned char>(c)) || c == '_' || c == '.' || c == '-';
    }

    void skip_blanks()
    {
        while (at_ < text_.size()) {
            if (std::isspace(static_cast<unsigned char>(text_[at_])))
                ++at_;
            else if (text_.compare(at_, 2, "//") == 0)
                skip_behind("\n");
            else if (text_.compare(at_, 2, "/*") == 0)
                skip_behind("*/");
            else
                return;
        }
    }

    void skip_behind(const std::string &end)
    {
        const size_t found = text_.find(end, at_ + 2);
        at_ = found == std::string::npos ? text_.size() : found + end.size();
    }

    std::string text_;
    std::string path_;
    size_t at_ = 0;
};

std::string without_package(const std::string &name)
{
    const size_t dot = name.rfind('.');
    return dot == std::string::npos ? name : name.substr(dot + 1);
}

void set_kind(Member &member, const std::string &type, bool repeated)
{
    if (type == "uint32")
        member.kind = repeated ? Kind::uint32s : Kind::uint32;
    else if (type == "string")
        member.kind = repeated ? Kind::strings : Kind::string;
    else if (type == "uint64" && !repeated)
        member.kind = Kind::uint64;
    else if (type == "bool" && !repeated)
        member.kind = Kind::boolean;
    else if (type == "bytes" && !repeated)
        member.kind = Kind::bytes;
    else {
        member.kind = repeated ? Kind::records : Kind::record;
        member.child_name = without_package(type);
    }
}

void read_options(Tokens &tokens, Member &member)
{
    for (std::string token = tokens.take(); token != "]"; token = tokens.take()) {
        if (token.empty())
            tokens.fail("options without an end");
        if (token != "default")
            continue;
        tokens.expect("=");
        member.initial = uint32_t(std::stoll(tokens.take(), nullptr, 0));
    }
    tokens.expect(";");
}

Member read_field(Tokens &tokens, const std::string &label)
{
    if (label != "optional" && label != "repeated")
        tokens.fail("'optional' or 'repeated' expected, '" + label + "' found");
    Member member;
    set_kind(member, tokens.take(), label == "repeated");
    member.name = tokens.take();
    tokens.expect("=");
    member.number = uint32_t(std::stoul(tokens.take()));
    const std::string end = tokens.take();
    if (end == "[")
        read_options(tokens, member);
    else if (end != ";")
        tokens.fail("';' expected, '" + end + "' found");
    return member;
}

void read_message(Tokens &tokens, RecordType &type)
{
    type.name = tokens.take();
    tokens.expect("{");
    for (std::string token = tokens.take(); token != "}"; token = tokens.take()) {
        if (token == "reserved" || token == "option")
            tokens.skip_statement();
        else
            type.members.push_back(read_field(tokens, token));
    }
}

} // namespace

void read_proto_file(Catalogue &catalogue, const std::string &path, bool foreign)
{
    std::ifstream file(path, std::ios::binary);
    if (!file)
        throw std::runtime_error("cannot read " + path);
    Tokens tokens({std::istreambuf_iterator<char>(file), {}}, path);
    for (std::string token = tokens.take(); !token.empty(); token = tokens.take()) {
        if (token != "message") {
            tokens.skip_statement();
            continue;
        }
        auto type = std::make_unique<RecordType>();
        type->foreign = foreign;
        read_message(tokens, *type);
        if (catalogue.find(type->name))
            tokens.fail("a second " + type->name);
        catalogue.types.push_back(std::move(type));
    }
}

} // namespace model
