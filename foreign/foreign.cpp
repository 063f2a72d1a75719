// SPDX-License-Identifier: MIT
#include "foreign/foreign.hpp"

#include "runtime/member.hpp"
#include "runtime/presence.hpp"

namespace tarn {

namespace {

// Five numbers, a list, six flags.
constexpr uint32_t kEidNumbers = 5;
constexpr uint32_t kEidList =
    (kEidNumbers * sizeof(uint32_t) + alignof(void *) - 1) / alignof(void *) * alignof(void *);
constexpr uint32_t kEidFlags = kEidList + sizeof(void *) + sizeof(uint32_t);
static_assert(sizeof(tarn_calv_eid_st) ==
                  (kEidFlags + 1 + alignof(void *) - 1) / alignof(void *) * alignof(void *),
              "this library embeds tarn_calv_eid_st with another layout");

// Eight numbers, eight flags.
constexpr uint32_t kLocationFlags = 8 * sizeof(uint32_t);
static_assert(sizeof(tarn_esd_location_info) == kLocationFlags + sizeof(uint32_t),
              "this library embeds tarn_esd_location_info with another layout");

} // namespace

void initialise_eid(void *record)
{
    uint8_t *bytes = static_cast<uint8_t *>(record);
    memset(bytes, 0, kEidNumbers * sizeof(uint32_t));
    store_block(bytes + kEidList, nullptr, 0);
    clear_flags<6>(bytes + kEidFlags);
}

void initialise_location(void *record)
{
    uint8_t *bytes = static_cast<uint8_t *>(record);
    uint32_t *members = static_cast<uint32_t *>(record);
    members[0] = 7;
    members[1] = 1;
    members[2] = UINT32_MAX;
    members[3] = 1;
    members[4] = UINT32_MAX;
    members[5] = 1;
    members[6] = UINT32_MAX;
    members[7] = 0;
    clear_flags<8>(bytes + kLocationFlags);
}

} // namespace tarn
