#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
# Writes a .proto of what is measured for each peer, since each needs a package of its own, for all
# of them are in one program.
# Usage: protos.py DESCRIPTOR_SET TYPES_HEADER FOLDER
import sys
from pathlib import Path

sys.dont_write_bytecode = True
import schema  # noqa: E402

# Package and options.
PEERS = {"full": "option optimize_for = SPEED;", "lite": "option optimize_for = LITE_RUNTIME;",
         "protobuf_c": "", "nano": ""}


def field_line(field):
    label = "repeated" if field.repeated else "optional"
    default = f" [default = {field.default}]" if field.default else ""
    return f"  {label} {field.type} {field.name} = {field.number}{default};\n"


def proto(package, options, messages):
    text = f'syntax = "proto2";\n\npackage {package};\n\n{options}\n'
    for message in messages:
        lines = "".join(map(field_line, message.fields))
        text += f"\nmessage {message.name} {{\n{lines}}}\n"
    return text


def main():
    descriptor_set, header, folder = sys.argv[1:]
    messages = schema.read(descriptor_set, schema.wanted_types(header))
    for package, options in PEERS.items():
        (Path(folder) / f"{package}.proto").write_text(proto(package, options, messages))


main()
