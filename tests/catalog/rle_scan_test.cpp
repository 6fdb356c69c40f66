// How far streams take the two run-length decoders.
#include "rle_scan.h"

#include <gtest/gtest.h>

#include <vector>

namespace tintvert::catalog {
namespace {

using Bytes = std::vector<uint8_t>;

TEST(RleScan, tells_what_a_run_touches)
{
    const Bytes stream = {3, 5, 0, 1};
    const RleScan rgb32 = scan_rle8_rgb32(stream, 100, 2);
    EXPECT_TRUE(rgb32.ends);
    EXPECT_EQ(rgb32.stream, (Range{0, 4}));
    EXPECT_EQ(rgb32.written, (Range{100, 112}));
    EXPECT_EQ(rgb32.palette, (Range{20, 23}));

    const RleScan rgb24 = scan_rle8_rgb24(stream, 2);
    EXPECT_TRUE(rgb24.ends);
    EXPECT_EQ(rgb24.stream, (Range{0, 4}));
    EXPECT_EQ(rgb24.written, (Range{0, 12}));
    EXPECT_EQ(rgb24.palette, (Range{15, 18}));
}

TEST(RleScan, stops_when_all_lines_are_done)
{
    const Bytes stream = {1, 0, 0, 0, 1, 0, 0, 0, 9};
    EXPECT_TRUE(scan_rle8_rgb32(stream, -8, 2).ends);
    EXPECT_EQ(scan_rle8_rgb32(stream, -8, 2).stream, (Range{0, 8}));
    EXPECT_EQ(scan_rle8_rgb32(stream, -8, 2).written, (Range{-8, 4}));
    EXPECT_EQ(scan_rle8_rgb32(stream, 8, -2).written, (Range{-32, -20}));
    EXPECT_TRUE(scan_rle8_rgb24(stream, 2).ends);
    EXPECT_FALSE(scan_rle8_rgb24(stream, -2).ends);
}

TEST(RleScan, touches_nothing_without_lines)
{
    EXPECT_TRUE(scan_rle8_rgb32({}, 8, 0).ends);
    EXPECT_TRUE(scan_rle8_rgb32({}, 8, 0).stream.empty());
    EXPECT_FALSE(scan_rle8_rgb24({}, 0).ends);
    EXPECT_TRUE(scan_rle8_rgb24(Bytes{0, 2}, 0).ends);
}

TEST(RleScan, tells_the_first_byte_that_is_wanting)
{
    EXPECT_EQ(scan_rle8_rgb32({}, 0, 1).wanted, 0u);
    EXPECT_EQ(scan_rle8_rgb32(Bytes{7}, 0, 1).wanted, 1u);
    EXPECT_EQ(scan_rle8_rgb32(Bytes{0, 3, 1, 1}, 0, 1).wanted, 4u);
    EXPECT_EQ(scan_rle8_rgb32(Bytes{0, 3, 1, 1}, 0, 1).written, (Range{0, 8}));
    // The pad byte is stepped over without a look; it is the code behind it that is wanting.
    EXPECT_EQ(scan_rle8_rgb32(Bytes{0, 3, 1, 1, 1}, 0, 1).wanted, 6u);
    EXPECT_EQ(scan_rle8_rgb32(Bytes{0, 3, 1, 1, 1}, 0, 1).stream, (Range{0, 5}));
    EXPECT_EQ(scan_rle8_rgb24(Bytes{0, 3}, 1).wanted, 3u);
    EXPECT_EQ(scan_rle8_rgb24(Bytes{0, 4}, 1).wanted, 2u);
}

}  // namespace
}  // namespace tintvert::catalog
