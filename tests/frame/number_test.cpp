#include "frame/number.h"

#include <gtest/gtest.h>

#include <climits>

namespace tintvert::test {
namespace {

TEST(Number, truncates_toward_zero)
{
    EXPECT_EQ(truncate(2.999), 2);
    EXPECT_EQ(truncate(-2.999), -2);
    EXPECT_EQ(truncate(-0.999), 0);
}

TEST(Number, keeps_the_low_byte)
{
    EXPECT_EQ(low_byte(255.999), 255);
    EXPECT_EQ(low_byte(256.0), 0);
    EXPECT_EQ(low_byte(300.5), 44);
    EXPECT_EQ(low_byte(-0.5), 0);
    EXPECT_EQ(low_byte(-1.0), 255);
}

TEST(Number, wraps_products_at_32_bits)
{
    EXPECT_EQ(wrapping_product(1920, 1080), 2073600);
    EXPECT_EQ(wrapping_product(-3, 7), -21);
    EXPECT_EQ(wrapping_product(65536, 32768), INT_MIN);
    EXPECT_EQ(wrapping_product(65536, 65536), 0);
    EXPECT_EQ(wrapping_product(0x100000003, 5), 15);
}

TEST(Number, takes_the_magnitude)
{
    EXPECT_EQ(magnitude(7), 7);
    EXPECT_EQ(magnitude(-7), 7);
    EXPECT_EQ(magnitude(0), 0);
    EXPECT_EQ(magnitude(LONG_MIN), LONG_MIN);
}

TEST(Number, wraps_line_offsets_at_the_width_of_long)
{
    EXPECT_EQ(line_offset(3, -100), -300);
    EXPECT_EQ(line_offset(3, 0x4000000000), 0xC000000000);
    EXPECT_EQ(line_offset(2, LONG_MAX), -2);
}

}  // namespace
}  // namespace tintvert::test
