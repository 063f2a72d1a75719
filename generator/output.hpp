// SPDX-License-Identifier: MIT
// What is written from the catalogue. Each function returns the whole text of a file.

#pragma once

#include "generator/catalogue.hpp"

#include <string>
#include <vector>

namespace generator {

// Of one .proto file.
std::string c_header(const File &file);    // the structures, for C and C++ callers
std::string field_lists(const File &file); // the fields, for the compiler
std::string operations(const File &file);  // the exported functions

// Of all of them.
std::string umbrella_header(const std::vector<File> &files);
std::string exported_names(const std::vector<File> &files);
std::string test_tables(const std::vector<File> &files);

// Sizes and offsets on one target. `foreign` are the records that others define.
struct Target {
    std::string name;
    unsigned pointer_size;
};

std::string abi_table(const std::vector<File> &files, const File &foreign, const Target &target);

// What a generated file says of itself, and the first lines of one in C++.
std::string generated_from(const std::string &source);
std::string generated_banner(const std::string &source);

// Comment lines of at most 100 columns, each beginning with `prefix`.
std::string wrapped(const std::string &text, const std::string &prefix);

} // namespace generator
