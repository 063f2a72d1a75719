// SPDX-License-Identifier: MIT
// The record types of the .proto files, in the terms of the C interface.

#pragma once

#include <google/protobuf/descriptor.h>

#include <string>
#include <vector>

namespace generator {

struct Record;

enum class Kind {
    uint32,
    uint64,
    boolean,
    string,
    bytes,
    message,
    repeated_uint32,
    repeated_string,
    repeated_message,
};

struct Member {
    Kind kind;
    std::string name;
    std::string second_name; // <name>_length or <name>_count of a pair, else empty
    int number;
    std::string child;   // C name of the record type of a nested member, else empty
    std::string comment; // one paragraph
};

struct Record {
    std::string name; // C name
    std::string comment;
    std::vector<Member> members;
    const google::protobuf::Descriptor *descriptor;
};

// The records of one .proto file, each behind those that it embeds by value.
struct File {
    std::string path; // without .proto
    std::string comment;
    std::vector<std::string> imports; // likewise
    std::vector<Record> records;
};

// Throws std::runtime_error, in terms of the .proto file, on what the runtime does not support.
File read_file(const google::protobuf::FileDescriptor &file);

bool is_pair(Kind kind);
bool is_nested(Kind kind);

// The kind in the words of the documents ("repeated uint32") and as an enumerator of runtime/.
std::string kind_words(const Member &member);
std::string kind_enumerator(Kind kind);

// The type of the (first) member, with a blank behind it unless it is a pointer.
std::string member_type(const Member &member);

// All (directly) nested types of a record, in member order, with repetitions.
std::vector<std::string> children(const Record &record);

} // namespace generator
