// SPDX-License-Identifier: MIT
// What is written from the catalogue. Each function returns the whole text of a file.

#pragma once

#include "generator/catalogue.hpp"
#include "generator/layout.hpp"

#include <string>
#include <vector>

namespace generator {

// Of one .proto file.
std::string c_header(const File &file);    // the structures, for C and C++ callers
std::string field_lists(const File &file); // the fields, for the compiler
std::string operations(const File &file);  // the exported functions

// Of one .proto file, too: the operations by the type, for C++ callers.
std::string operations_header_path(const File &file);
std::string operations_header(const File &file);

// Of all of them.
std::string umbrella_header(const std::vector<File> &files);
std::string exported_names(const std::vector<File> &files);
std::string test_tables(const std::vector<File> &files);
std::string operations_umbrella(const std::vector<File> &files);
std::string operations_test_rows(const std::vector<File> &files);

// Of these and of the records that others define.
std::string inspector_tables(const std::vector<File> &files, const File &foreign);
std::string abi_table(const std::vector<const Record *> &records, const Target &target);

// What is embedded before what embeds it.
std::vector<const Record *> every_record(const std::vector<File> &files, const File &foreign);

// The structure of a record, with its comment.
std::string structure(const Record &record);

// What a generated file says of itself, and the first lines of one in C++.
std::string generated_from(const std::string &source);
std::string generated_banner(const std::string &source);

// Comment lines of at most 100 columns, each beginning with `prefix`.
std::string wrapped(const std::string &text, const std::string &prefix);

} // namespace generator
