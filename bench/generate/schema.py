# SPDX-License-Identifier: MIT
# The part of the schema that is measured, from a descriptor set that protoc has written.
import re
from pathlib import Path

from google.protobuf import descriptor_pb2

PREFIX = "ethsw_mgmt_"
FIELD = descriptor_pb2.FieldDescriptorProto
KINDS = {FIELD.TYPE_UINT32: "uint32", FIELD.TYPE_UINT64: "uint64", FIELD.TYPE_BOOL: "bool",
         FIELD.TYPE_STRING: "string", FIELD.TYPE_BYTES: "bytes", FIELD.TYPE_MESSAGE: "message"}


class Field:
    def __init__(self, descriptor):
        self.name = descriptor.name
        self.number = descriptor.number
        self.kind = KINDS[descriptor.type]
        self.repeated = descriptor.label == FIELD.LABEL_REPEATED
        self.default = descriptor.default_value
        # The name of the message, if it is one, else the kind.
        self.type = descriptor.type_name.rpartition(".")[2] or self.kind


class Message:
    def __init__(self, descriptor):
        self.name = descriptor.name
        self.fields = [Field(field) for field in descriptor.field]


def wanted_types(header):
    """The record types that the header lists, by the names that they have in the schema."""
    listed = re.findall(r"^ +BENCH_TYPE\((\w+)\)", Path(header).read_text(), re.MULTILINE)
    return [PREFIX + name for name in listed]


def read(descriptor_set, wanted):
    """The messages wanted and all that they embed, each behind those that it embeds."""
    files = descriptor_pb2.FileDescriptorSet.FromString(Path(descriptor_set).read_bytes())
    known = {message.name: Message(message) for file in files.file
             for message in file.message_type}
    found = {}

    def visit(name):
        if name in found:
            return
        for field in known[name].fields:
            if field.kind == "message":
                visit(field.type)
        found[name] = known[name]

    for name in wanted:
        visit(name)
    return list(found.values())
