#include <gtest/gtest.h>
#include <tintvert.h>

#include <numeric>
#include <vector>

namespace {

using Bytes = std::vector<uint8_t>;

Bytes counting(size_t size)
{
    Bytes bytes(size);
    std::iota(bytes.begin(), bytes.end(), uint8_t{1});
    return bytes;
}

Bytes full(long dst_stride, size_t dst_size, long src_stride, Bytes src, long width, long height)
{
    Bytes dst(dst_size, 0xEE);
    tntvt_rgba_full(dst.data(), dst_stride, src.data(), src_stride, width, height);
    return dst;
}

TEST(RgbaFull, drops_or_leaves_the_fourth_byte)
{
    EXPECT_EQ(full(7, 14, 8, counting(16), 2, 2), (Bytes{1, 2, 3, 5, 6, 7, 0xEE, 9, 10, 11, 13, 14, 15, 0xEE}));
    EXPECT_EQ(full(8, 8, 7, counting(7), 2, 1), (Bytes{1, 2, 3, 0xEE, 4, 5, 6, 0xEE}));
    EXPECT_EQ(full(7, 14, 6, counting(12), 2, 2), (Bytes{1, 2, 3, 4, 5, 6, 0xEE, 7, 8, 9, 10, 11, 12, 0xEE}));
}

TEST(RgbaFull, keeps_block_of_pixels)
{
    // 12 of the 14 bytes of two lines, the slack of the first one among them.
    EXPECT_EQ(full(7, 14, 7, counting(14), 2, 2), (Bytes{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 0xEE, 0xEE}));
    // 4 x 2^30 x 1 is 0 in 32 bits, and so is any product with 0 bytes a pixel.
    EXPECT_EQ(full(1l << 32, 4, 1l << 32, counting(4), 1l << 30, 1), Bytes(4, 0xEE));
    EXPECT_EQ(full(3, 4, 3, counting(4), 4, 1), Bytes(4, 0xEE));
    // -3 x -1 x 2 is 6.
    EXPECT_EQ(full(3, 8, 3, counting(8), -1, 2), (Bytes{1, 2, 3, 4, 5, 6, 0xEE, 0xEE}));
}

TEST(RgbaFull, keeps_words_for_other_sizes)
{
    // Two words a line, 4 bytes apart: line 0 comes last and covers half of line 1.
    EXPECT_EQ(full(4, 12, 5, counting(13), 2, 2), (Bytes{1, 2, 3, 4, 5, 6, 7, 8, 10, 11, 12, 13}));
    EXPECT_EQ(full(8, 9, 16, counting(16), 2, 1), (Bytes{1, 2, 3, 4, 5, 6, 7, 8, 0xEE}));
}

TEST(RgbaFull, keeps_division_first)
{
    Bytes frame(4), other(4);
    tntvt_rgba_full(nullptr, 4, frame.data(), 8, 0, 1);
    tntvt_rgba_full(frame.data(), 4, nullptr, 8, 0, 1);
    tntvt_rgba_full(frame.data(), 4, frame.data(), 4, 0, 1);
    EXPECT_DEATH(tntvt_rgba_full(frame.data(), 4, other.data(), 4, 0, 0), "");
    EXPECT_DEATH(tntvt_rgba_full(frame.data(), 4, other.data(), 8, 0, 0), "");
}

TEST(RgbaFull, copies_in_place_with_different_strides)
{
    Bytes frame = counting(8);
    tntvt_rgba_full(frame.data(), 3, frame.data(), 4, 1, 2);
    // Line 1 first: bytes 5, 6, 7 to offset 3; then line 0 onto itself.
    EXPECT_EQ(frame, (Bytes{1, 2, 3, 5, 6, 7, 7, 8}));
}

TEST(RgbaFull, does_nothing_with_a_negative_height_line_by_line)
{
    EXPECT_EQ(full(6, 6, 8, counting(8), 2, -1), Bytes(6, 0xEE));
    EXPECT_EQ(full(9, 9, 8, counting(8), 2, -1), Bytes(9, 0xEE));
}

}  // namespace
