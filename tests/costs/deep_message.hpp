// SPDX-License-Identifier: MIT
// A message that leads decoding through all that it does, on every level of a record type.

#pragma once

#include "tests/costs/message.hpp"

namespace costs {

// Every member once, lists with two elements, all that is nested likewise; behind that, what nobody
// knows, and a jump backwards.
Bytes deep_message(const catalogue::RecordType &type);

} // namespace costs
