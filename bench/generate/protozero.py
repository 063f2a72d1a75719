#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
# Writes what a user of protozero writes by hand: it has readers and writers of fields, but no
# generator. The code is straight, one statement for each field, between the records of the library
# and bytes.
# Usage: protozero.py DESCRIPTOR_SET TYPES_HEADER > protozero_records.hpp
import sys

sys.dont_write_bytecode = True
import schema  # noqa: E402

HEAD = """\
// SPDX-License-Identifier: MIT
// Written by bench/generate/protozero.py.

#pragma once

#include "bench/peers/protozero_support.hpp"

namespace bench::by_hand {
"""

TAIL = """
} // namespace bench::by_hand
"""


def tag_size(field):
    return 1 if field.number < 16 else 2


def element_size(field, value, length):
    """The bytes that a value takes behind its tag."""
    return {"bool": "1", "string": f"sized(strlen({value}))", "bytes": f"sized({length})",
            "message": f"sized(size_of({value}))"}.get(field.kind, f"varint_size({value})")


def size_lines(field):
    name = f"record.{field.name}"
    if field.repeated:
        return (f"    if (record.has_{field.name})\n"
                f"        for (const auto &element : std::span({name}, {name}_count))\n"
                f"            size += {tag_size(field)} + {element_size(field, 'element', '')};\n")
    return (f"    if (record.has_{field.name})\n"
            f"        size += {tag_size(field)} + "
            f"{element_size(field, name, name + '_length')};\n")


def write_call(field, value, length):
    number = field.number
    if field.kind == "bytes":
        return f"writer.add_bytes({number}, reinterpret_cast<const char *>({value}), {length})"
    if field.kind == "message":
        return (f"write_message(writer, {number}, "
                f"[&](Writer &message) {{ write(message, {value}); }})")
    return f"writer.add_{field.kind}({number}, {value})"


def write_lines(field):
    name = f"record.{field.name}"
    if field.repeated:
        return (f"    if (record.has_{field.name})\n"
                f"        for (const auto &element : std::span({name}, {name}_count))\n"
                f"            {write_call(field, 'element', '')};\n")
    return (f"    if (record.has_{field.name})\n"
            f"        {write_call(field, name, name + '_length')};\n")


def read_statement(field, target):
    return {"string": f"{target} = memory.text(reader.get_view())",
            "bytes": f"memory.bytes({target}, {target}_length, reader.get_view())",
            "message": f"read({target}, reader.get_message(), memory)",
            }.get(field.kind, f"{target} = reader.get_{field.kind}()")


def read_lines(field):
    name = f"record.{field.name}"
    wire = "varint" if field.kind in ("uint32", "uint64", "bool") else "length_delimited"
    lines = (f"        case protozero::tag_and_type({field.number}, "
             f"protozero::pbf_wire_type::{wire}):\n")
    if field.repeated:
        lines += (f"            if (!{name})\n"
                  f"                memory.list({name}, count(reader));\n"
                  f"            {read_statement(field, f'{name}[{name}_count++]')};\n")
    else:
        lines += f"            {read_statement(field, name)};\n"
    return lines + f"            record.has_{field.name} = 1;\n            break;\n"


def release_call(field, value):
    if field.kind == "message":
        return f"release({value}, memory)"
    return f"memory.free_{'bytes' if field.kind == 'bytes' else 'block'}({value})"


def release_lines(field):
    name = f"record.{field.name}"
    owns = field.kind in ("string", "bytes", "message")
    if not field.repeated:
        return f"    {release_call(field, name)};\n" if owns else ""
    lines = f"    memory.free_block({name});\n"
    if owns:
        lines = (f"    for (auto &element : std::span({name}, {name}_count))\n"
                 f"        {release_call(field, 'element')};\n") + lines
    return lines


def functions(message):
    type = f"tarn_{message.name}"
    defaults = "".join(f"    record.{field.name} = {field.default};\n"
                       for field in message.fields if field.default)
    size = "".join(map(size_lines, message.fields))
    write = "".join(map(write_lines, message.fields))
    read = "".join(map(read_lines, message.fields))
    release = "".join(map(release_lines, message.fields))
    unused = "" if release else "[[maybe_unused]] "
    return f"""
inline uint32_t size_of(const {type} &record)
{{
    uint32_t size = 0;
{size}    return size;
}}

inline void write(Writer &writer, const {type} &record)
{{
{write}}}

template <typename Memory>
void read({type} &record, protozero::pbf_reader reader, Memory &memory)
{{
    record = {{}};
{defaults}    while (reader.next())
        switch (reader.tag_and_type()) {{
{read}        default:
            reader.skip();
        }}
}}

template <typename Memory>
void release({unused}{type} &record, {unused}Memory &memory)
{{
{release}}}
"""


def main():
    descriptor_set, header = sys.argv[1:]
    messages = schema.read(descriptor_set, schema.wanted_types(header))
    print(HEAD + "".join(map(functions, messages)) + TAIL, end="")


main()
