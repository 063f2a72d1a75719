# SPDX-License-Identifier: MIT
# Reads a message that the library has written.

import sys

from ethsw_mgmt import switch_pb2

info = switch_pb2.ethsw_mgmt_switch_info.FromString(sys.stdin.buffer.read())
print(f"{info.name}: {len(info.ports)} ports")
if info.HasField("field_3"):  # like has_field_3 in C
    print(f"field 3 is {info.field_3}")
