// The range-scaling tables themselves, and when they are filled.
#include "ycbcr8/scale_tables.h"

#include <gtest/gtest.h>
#include <tintvert/ycbcr8.h>

#include <algorithm>
#include <iterator>

#include "reference/ycbcr8/scale.h"

namespace tintvert::test {
namespace {

void spoil(uint8_t flag)
{
    for (uint8_t* const table : {gsbScaleLumaDown, gsbScaleChromaDown, gsbScaleLumaUp, gsbScaleChromaUp})
        std::fill(table, table + 256, uint8_t{77});
    gsfScaleTablesReady = flag;
}

class ScaleTables : public testing::Test {
protected:
    void TearDown() override
    {
        gsfScaleTablesReady = 0;
        tntvt_2vuy_scale(nullptr, 0, 0);
    }
};

// An empty buffer fills the tables as any other does.
TEST_F(ScaleTables, every_entry)
{
    spoil(0);
    tntvt_2vuy_scale(nullptr, 0, 0);
    for (int i = 0; i < 256; ++i) {
        EXPECT_EQ(gsbScaleLumaDown[i], reference::luma_down(i)) << i;
        EXPECT_EQ(gsbScaleChromaDown[i], reference::chroma_down(i)) << i;
        EXPECT_EQ(gsbScaleLumaUp[i], reference::luma_up(i)) << i;
        EXPECT_EQ(gsbScaleChromaUp[i], reference::chroma_up(i)) << i;
    }
    EXPECT_EQ(gsfScaleTablesReady, 1);
}

// The other bits of the flag say nothing, and go when it is stored.
TEST_F(ScaleTables, filled_while_bit_0_is_clear)
{
    for (const int flag : {0, 2, 0x80, 0xFE}) {
        spoil(static_cast<uint8_t>(flag));
        uint8_t group[4] = {0, 0, 0, 0};
        tntvt_2vuy_scale(group, 4, 0);
        EXPECT_EQ(group[0], 16) << flag;
        EXPECT_EQ(gsfScaleTablesReady, 1) << flag;
    }
}

TEST_F(ScaleTables, left_alone_while_bit_0_is_set)
{
    for (const int flag : {1, 3, 0xFF}) {
        spoil(static_cast<uint8_t>(flag));
        uint8_t group[4] = {0, 0, 0, 0};
        tntvt_2vuy_scale(group, 4, 0);
        EXPECT_EQ(group[0], 77) << flag;
        EXPECT_EQ(gsfScaleTablesReady, flag);
    }
}

// Which table each byte of a group goes through.
TEST_F(ScaleTables, keeps_exchanged_tables_going_up)
{
    spoil(1);
    gsbScaleChromaDown[9] = 1;
    gsbScaleLumaDown[9] = 2;
    gsbScaleLumaUp[9] = 3;
    gsbScaleChromaUp[9] = 4;
    uint8_t down[4] = {9, 9, 9, 9}, up[4] = {9, 9, 9, 9};
    tntvt_2vuy_scale(down, 4, 0);
    tntvt_2vuy_scale(up, 4, 1);
    constexpr uint8_t expected_down[] = {1, 2, 1, 2}, expected_up[] = {3, 4, 3, 4};
    EXPECT_TRUE(std::equal(std::begin(down), std::end(down), expected_down));
    EXPECT_TRUE(std::equal(std::begin(up), std::end(up), expected_up));
}

}  // namespace
}  // namespace tintvert::test
