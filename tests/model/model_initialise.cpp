// SPDX-License-Identifier: MIT
// The state that decoding starts from: every member at its default, every flag clear, and nothing
// else in the record touched.

#include "tests/model/model_codec.hpp"
#include "tests/model/record_memory.hpp"

namespace model {

void initialise(const RecordType &type, uint8_t *record)
{
    for (size_t i = 0; i < type.members.size(); ++i) {
        const Member &member = type.members[i];
        uint8_t *at = record + member.offset;
        switch (member.kind) {
        case Kind::uint32:
            store<uint32_t>(at, member.initial);
            break;
        case Kind::uint64:
            store<uint64_t>(at, 0);
            break;
        case Kind::boolean:
            *at = 0;
            break;
        case Kind::string:
            store_pointer(at, nullptr);
            break;
        case Kind::record:
            initialise(*member.child, at);
            break;
        default:
            store_pointer(at, nullptr);
            store_count(at, 0);
            break;
        }
        set_flag(type, record, i, false);
    }
}

} // namespace model
