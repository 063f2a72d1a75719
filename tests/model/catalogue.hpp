// SPDX-License-Identifier: MIT
// The record types as the .proto files tell them, read at run time, and where each member lies in
// memory on the target that this is compiled for.

#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace model {

enum class Kind { uint32, uint64, boolean, string, bytes, record, uint32s, strings, records };

struct RecordType;

struct Member {
    std::string name;
    uint32_t number = 0;
    Kind kind = Kind::uint32;
    std::string child_name;
    const RecordType *child = nullptr;
    uint32_t initial = 0;
    uint32_t offset = 0;
};

struct RecordType {
    std::string name;
    bool foreign = false;
    std::vector<Member> members;
    uint32_t size = 0;
    uint32_t alignment = 1;
    uint32_t flags_offset = 0;
    bool laid_out = false;
};

struct Catalogue {
    std::vector<std::unique_ptr<RecordType>> types;

    RecordType *find(const std::string &name) const;
};

// Adds the record types of one file. Throws std::runtime_error on what it does not understand.
void read_proto_file(Catalogue &catalogue, const std::string &path, bool foreign);

// Finds the nested types and gives every member its offset.
void lay_out(Catalogue &catalogue);

bool is_repeated(Kind kind);

// Whether the member begins with a pointer.
bool has_pointer(Kind kind);

// The bytes of one element of a repeated member.
uint32_t element_size(const Member &member);

} // namespace model
