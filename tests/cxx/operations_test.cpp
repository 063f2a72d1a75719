// SPDX-License-Identifier: MIT
// What belongs to a record type.
#include "cxx/operations.hpp"

#include "cxx/encode.hpp"
#include "cxx/foreign.hpp"
#include "cxx/owner.hpp"
#include "tests/cxx/samples.hpp"

#include <gtest/gtest.h>

#include <vector>

// A record type of somebody else's: one byte, as it is.
struct own_record {
    uint8_t byte;
};

extern "C" {

static uint32_t own_record_encode_ext(const own_record *record, uint8_t *buffer, uint32_t capacity,
                                      WireSegment *, uint32_t *, uint32_t)
{
    if (capacity > 0)
        buffer[0] = record->byte;
    return 1;
}

static int32_t own_record_decode_ext(own_record *record, const uint8_t *buf, uint32_t len,
                                     wire_alloc_fn, void *, uint32_t)
{
    if (len != 1)
        return WIRE_ERR_MALFORMED;
    record->byte = buf[0];
    return WIRE_OK;
}

static int32_t own_record_duplicate(own_record *dst, const own_record *src, wire_alloc_fn, void *)
{
    *dst = *src;
    return WIRE_OK;
}

static void own_record_free_ext(own_record *, wire_free_fn, void *, uint32_t) {}
}

namespace tarn {

TARN_OPERATIONS(own_record, flat);

} // namespace tarn

namespace {

TEST(operations, are_those_of_the_type)
{
    using Operations = tarn::Operations<samples::Text>;
    EXPECT_EQ(Operations::encode_ext, tarn_ethsw_mgmt_bcm_shell_cmd_encode_ext);
    EXPECT_EQ(Operations::decode_ext, tarn_ethsw_mgmt_bcm_shell_cmd_decode_ext);
    EXPECT_EQ(Operations::duplicate, tarn_ethsw_mgmt_bcm_shell_cmd_duplicate);
    EXPECT_EQ(Operations::free_ext, tarn_ethsw_mgmt_bcm_shell_cmd_free_ext);
}

TEST(operations, tell_the_shape_of_the_type)
{
    static_assert(tarn::Operations<samples::Details>::shape == tarn::Shape::flat);
    static_assert(tarn::Operations<samples::Summary>::shape == tarn::Shape::nesting);
    static_assert(tarn::Operations<tarn_ethsw_mgmt_switch_info>::shape == tarn::Shape::nesting);
    static_assert(tarn::Operations<samples::Fieldless>::shape == tarn::Shape::fieldless);
    static_assert(tarn::has_fields<samples::Details>);
    static_assert(!tarn::has_fields<samples::Fieldless>);
}

TEST(operations, are_there_for_the_types_of_the_sibling_library)
{
    tarn::Owner<tarn_calv_eid_st> identity;
    const samples::Bytes input = {0x08, 1, 0x30, 7, 0x30, 8};
    ASSERT_EQ(identity.decode(input), WIRE_OK);
    EXPECT_EQ(identity->field_6_count, 2u);
    EXPECT_EQ(tarn::encode(identity), input);
    tarn::Owner<tarn_esd_location_info> location;
    EXPECT_EQ(location.decode({}), WIRE_OK);
    EXPECT_EQ(location->field_1, 7u);
}

TEST(operations, can_be_added_for_a_type_of_somebody_else)
{
    tarn::Owner<own_record> owner;
    ASSERT_EQ(owner.decode(samples::Bytes{0x2A}), WIRE_OK);
    EXPECT_EQ(owner->byte, 0x2A);
    EXPECT_EQ(tarn::encode(owner), std::vector<uint8_t>{0x2A});
    tarn::Owner<own_record> copy;
    ASSERT_EQ(copy.duplicate(owner), WIRE_OK);
    EXPECT_EQ(copy->byte, 0x2A);
    EXPECT_EQ(owner.decode({}), WIRE_ERR_MALFORMED);
}

} // namespace
