// SPDX-License-Identifier: MIT
// The two record types of the sibling library as rows like those of record_types.cpp, and the
// defaults, which are theirs alone.
#include "tests/catalogue/catalogue.hpp"

#include "foreign/foreign.h"

#include <stddef.h>

namespace catalogue {

namespace {

#define TARN_TEST_MEMBER(T, kind, n)                                                               \
    {                                                                                              \
        "field_" #n, kind, n, offsetof(T, field_##n), n - 1, nullptr,                              \
            [](void *record) { static_cast<T *>(record)->has_field_##n = 1; }                      \
    }

constexpr Member members_of_identity[] = {
    TARN_TEST_MEMBER(tarn_calv_eid_st, Kind::uint32, 1),
    TARN_TEST_MEMBER(tarn_calv_eid_st, Kind::uint32, 2),
    TARN_TEST_MEMBER(tarn_calv_eid_st, Kind::uint32, 3),
    TARN_TEST_MEMBER(tarn_calv_eid_st, Kind::uint32, 4),
    TARN_TEST_MEMBER(tarn_calv_eid_st, Kind::uint32, 5),
    TARN_TEST_MEMBER(tarn_calv_eid_st, Kind::repeated_uint32, 6),
};

constexpr Member members_of_location[] = {
    TARN_TEST_MEMBER(tarn_esd_location_info, Kind::uint32, 1),
    TARN_TEST_MEMBER(tarn_esd_location_info, Kind::uint32, 2),
    TARN_TEST_MEMBER(tarn_esd_location_info, Kind::uint32, 3),
    TARN_TEST_MEMBER(tarn_esd_location_info, Kind::uint32, 4),
    TARN_TEST_MEMBER(tarn_esd_location_info, Kind::uint32, 5),
    TARN_TEST_MEMBER(tarn_esd_location_info, Kind::uint32, 6),
    TARN_TEST_MEMBER(tarn_esd_location_info, Kind::uint32, 7),
    TARN_TEST_MEMBER(tarn_esd_location_info, Kind::uint32, 8),
};

constexpr uint32_t kLocationDefaults[] = {7, 1, UINT32_MAX, 1, UINT32_MAX, 1, UINT32_MAX, 0};

const RecordType kForeignTypes[] = {
    record_type<tarn_calv_eid_st_encode_ext, tarn_calv_eid_st_decode_ext,
                tarn_calv_eid_st_duplicate, tarn_calv_eid_st_free_ext>(
        "tarn_calv_eid_st", sizeof(tarn_calv_eid_st), members_of_identity),
    record_type<tarn_esd_location_info_encode_ext, tarn_esd_location_info_decode_ext,
                tarn_esd_location_info_duplicate, tarn_esd_location_info_free_ext>(
        "tarn_esd_location_info", sizeof(tarn_esd_location_info), members_of_location),
};

} // namespace

std::span<const RecordType> foreign_types()
{
    return kForeignTypes;
}

uint32_t default_of(const RecordType &type, size_t member)
{
    return type.members.data() == members_of_location ? kLocationDefaults[member] : 0;
}

} // namespace catalogue
