# SPDX-License-Identifier: MIT
# Writes a message that the library reads.

import sys

from ethsw_mgmt import switch_pb2

request = switch_pb2.ethsw_mgmt_port_enable(port=3)
request.enable = True  # a member that is set is present: no flag to remember here
sys.stdout.buffer.write(request.SerializeToString())
