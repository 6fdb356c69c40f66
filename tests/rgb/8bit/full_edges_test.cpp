#include <gtest/gtest.h>
#include <tintvert.h>

#include <csignal>
#include <numeric>
#include <vector>

#include "support/sanitized.h"

namespace {

using Bytes = std::vector<uint8_t>;

Bytes counting(size_t size)
{
    Bytes bytes(size);
    std::iota(bytes.begin(), bytes.end(), uint8_t{1});
    return bytes;
}

// `size` bytes of 0xEE after a copy of the bytes 1, 2, 3 ...
Bytes full(long dst_stride, long src_stride, long width, long height, size_t size)
{
    Bytes dst(size, 0xEE), src = counting(96);
    tntvt_rgba_full(dst.data(), dst_stride, src.data(), src_stride, width, height);
    return dst;
}

TEST(RgbaFullEdges, four_to_three_drops_the_fourth_byte)
{
    EXPECT_EQ(full(6, 8, 2, 2, 13), (Bytes{1, 2, 3, 5, 6, 7, 9, 10, 11, 13, 14, 15, 0xEE}));
}

TEST(RgbaFullEdges, three_to_four_keeps_the_fourth_byte)
{
    EXPECT_EQ(full(8, 6, 2, 2, 17), (Bytes{1, 2, 3, 0xEE, 4, 5, 6, 0xEE, 7, 8, 9, 0xEE, 10, 11, 12, 0xEE, 0xEE}));
}

// 3 x 2 + 1 is still 3 bytes a pixel, and 3 x 2 + 2 is 4.
TEST(RgbaFullEdges, the_quotient_truncates)
{
    EXPECT_EQ(full(8, 7, 2, 2, 16), (Bytes{1, 2, 3, 0xEE, 4, 5, 6, 0xEE, 8, 9, 10, 0xEE, 11, 12, 13, 0xEE}));
    EXPECT_EQ(full(6, 7, 2, 2, 12), (Bytes{1, 2, 3, 4, 5, 6, 8, 9, 10, 11, 12, 13}));
    EXPECT_EQ(full(9, 8, 2, 1, 9), (Bytes{1, 2, 3, 4, 5, 6, 7, 8, 0xEE}));
}

// Strides of 2^32 + 4 and 2^32 + 3 bytes for one pixel are no sizes of 4 and 3: whole words are moved.
TEST(RgbaFullEdges, the_quotient_has_64_bits)
{
    EXPECT_EQ(full(3, (1l << 32) + 4, 1, 1, 5), (Bytes{1, 2, 3, 4, 0xEE}));
    EXPECT_EQ(full(4, (1l << 32) + 3, 1, 1, 5), (Bytes{1, 2, 3, 4, 0xEE}));
    EXPECT_EQ(full((1l << 32) + 4, 3, 1, 1, 5), (Bytes{1, 2, 3, 4, 0xEE}));
    EXPECT_EQ(full((1l << 32) + 3, 4, 1, 1, 5), (Bytes{1, 2, 3, 4, 0xEE}));
}

TEST(RgbaFullEdges, keeps_block_of_pixels_with_slack)
{
    // 2 x 2 pixels of 3, 4, 2, 2, 3 and 4 bytes from the start, whatever the stride.
    for (const auto& [stride, copied] : {std::pair{7l, 12u}, {9l, 16u}, {5l, 8u}, {4l, 8u}, {6l, 12u}, {8l, 16u}}) {
        Bytes expected = counting(24);
        std::fill(expected.begin() + copied, expected.end(), uint8_t{0xEE});
        EXPECT_EQ(full(stride, stride, 2, 2, 24), expected) << stride;
    }
}

TEST(RgbaFullEdges, keeps_words_for_other_sizes)
{
    // 2 to 3 bytes a pixel, 8 to 4, 4 to 8, 4 to 4 with slack, 3 to 2, 0 to 3, 5 to 4: two words a line.
    EXPECT_EQ(full(6, 4, 2, 1, 9), (Bytes{1, 2, 3, 4, 5, 6, 7, 8, 0xEE}));
    EXPECT_EQ(full(8, 16, 2, 2, 17), (Bytes{1, 2, 3, 4, 5, 6, 7, 8, 17, 18, 19, 20, 21, 22, 23, 24, 0xEE}));
    EXPECT_EQ(full(16, 8, 2, 1, 9), (Bytes{1, 2, 3, 4, 5, 6, 7, 8, 0xEE}));
    EXPECT_EQ(full(9, 8, 2, 2, 18), (Bytes{1, 2, 3, 4, 5, 6, 7, 8, 0xEE, 9, 10, 11, 12, 13, 14, 15, 16, 0xEE}));
    EXPECT_EQ(full(4, 6, 2, 1, 9), (Bytes{1, 2, 3, 4, 5, 6, 7, 8, 0xEE}));
    EXPECT_EQ(full(6, 1, 2, 1, 9), (Bytes{1, 2, 3, 4, 5, 6, 7, 8, 0xEE}));
    EXPECT_EQ(full(8, 10, 2, 1, 9), (Bytes{1, 2, 3, 4, 5, 6, 7, 8, 0xEE}));
}

// Line 0 comes last, so where lines are on each other it is the one that shows.
TEST(RgbaFullEdges, copies_the_last_line_first)
{
    EXPECT_EQ(full(0, 4, 2, 2, 9), (Bytes{1, 2, 3, 4, 5, 6, 7, 8, 0xEE}));
    EXPECT_EQ(full(3, 4, 1, 3, 10), (Bytes{1, 2, 3, 5, 6, 7, 9, 10, 11, 0xEE}));
    EXPECT_EQ(full(2, 8, 2, 2, 11), (Bytes{1, 2, 3, 4, 5, 6, 7, 8, 15, 16, 0xEE}));
}

TEST(RgbaFullEdges, in_place_with_different_strides_does_not_return_early)
{
    Bytes frame = counting(16);
    tntvt_rgba_full(frame.data(), 6, frame.data(), 8, 2, 2);
    // Line 1 from 8 to 6 first, over the end of line 0: 9, 10, 11, 13, 14, 15.
    EXPECT_EQ(frame, (Bytes{1, 2, 3, 5, 6, 9, 9, 10, 11, 13, 14, 15, 13, 14, 15, 16}));
    frame = counting(8);
    tntvt_rgba_full(frame.data(), 8, frame.data(), 8, 2, 1);
    EXPECT_EQ(frame, counting(8));
}

TEST(RgbaFullEdges, a_width_above_the_stride_has_0_bytes_a_pixel)
{
    EXPECT_EQ(full(3, 3, 4, 2, 8), Bytes(8, 0xEE));
    EXPECT_EQ(full(3, 2, 4, 1, 17), (Bytes{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 0xEE}));
}

TEST(RgbaFullEdges, no_line_and_no_pixel_line_by_line_is_no_work)
{
    for (const auto& [to, from] : {std::pair{6l, 8l}, {8l, 6l}, {6l, 7l}, {9l, 8l}, {4l, 8l}})
        for (const auto& [width, height] : {std::pair{2l, 0l}, {2l, -1l}, {2l, -2l}, {-2l, 2l}, {-2l, -2l}})
            EXPECT_EQ(full(to, from, width, height, 32), Bytes(32, 0xEE)) << to << ' ' << from << ' ' << width;
}

TEST(RgbaFullEdges, keeps_division_first_behind_the_quiet_returns)
{
    Bytes frame(16, 0xEE);
    for (const long width : {0l, 1l, -1l})
        for (const long stride : {0l, 4l, 8l}) {
            tntvt_rgba_full(nullptr, 4, frame.data(), stride, width, 1);
            tntvt_rgba_full(frame.data(), 4, nullptr, stride, width, 1);
            tntvt_rgba_full(nullptr, stride, nullptr, 4, width, 1);
            tntvt_rgba_full(frame.data(), stride, frame.data(), stride, width, 1);
        }
    EXPECT_EQ(frame, Bytes(16, 0xEE));
}

TEST(RgbaFullEdges, keeps_division_first_as_a_fault)
{
#ifdef TINTVERT_TEST_SANITIZED
    GTEST_SKIP() << "the sanitizers report the division in their own way";
#endif
    Bytes frame(16), other(16);
    for (const long height : {0l, 1l, -1l}) {
        EXPECT_EXIT(tntvt_rgba_full(frame.data(), 4, other.data(), 4, 0, height), testing::KilledBySignal(SIGFPE), "");
        EXPECT_EXIT(tntvt_rgba_full(frame.data(), 3, other.data(), 4, 0, height), testing::KilledBySignal(SIGFPE), "");
        EXPECT_EXIT(tntvt_rgba_full(frame.data(), 3, frame.data(), 4, 0, height), testing::KilledBySignal(SIGFPE), "");
        EXPECT_EXIT(tntvt_rgba_full(frame.data(), 0, other.data(), 0, 0, height), testing::KilledBySignal(SIGFPE), "");
    }
}

}  // namespace
