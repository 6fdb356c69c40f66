#include <gtest/gtest.h>
#include <tintvert.h>

#include <vector>

namespace {

using Bytes = std::vector<uint8_t>;

// Entry i is i, i + 1, i + 2 and, in the 32-bit table, 0x77.
Bytes palette_of(int entry_bytes)
{
    Bytes palette;
    for (int i = 0; i < 256; ++i) {
        for (int b = 0; b < 3; ++b) palette.push_back(static_cast<uint8_t>(i + b));
        if (entry_bytes == 4) palette.push_back(0x77);
    }
    return palette;
}

// `size` bytes of destination with `dst` before the byte `start`.
Bytes rgba32(Bytes stream, long height, long stride, size_t size, long start = 0)
{
    Bytes dst(size, 0xEE), palette = palette_of(4);
    tntvt_rle8_rgba32(dst.data() + start, stride, stream.data(), 5, 5, height, palette.data());
    Bytes twin(size, 0xEE);
    tntvt_rle8_rgb32(twin.data() + start, stride, stream.data(), -5, 0, height, palette.data());
    EXPECT_EQ(dst, twin);
    return dst;
}

Bytes rgb24(Bytes stream, long height, size_t size)
{
    Bytes dst(size, 0xEE), palette = palette_of(3);
    tntvt_rle8_rgb24(dst.data(), 1000, stream.data(), 5, 5, height, palette.data());
    return dst;
}

TEST(Rle8, keeps_one_pixel_more)
{
    EXPECT_EQ(rgba32({3, 5, 0, 1}, 1, 0, 13), (Bytes{5, 6, 7, 0, 5, 6, 7, 0, 5, 6, 7, 0, 0xEE}));
    EXPECT_EQ(rgb24({3, 5, 0, 1}, 1, 13), (Bytes{5, 6, 7, 5, 6, 7, 5, 6, 7, 5, 6, 7, 0xEE}));
    const Bytes longest = rgb24({255, 9, 0, 1}, 1, 769);
    EXPECT_EQ(longest[767], 11);
    EXPECT_EQ(longest[768], 0xEE);
}

TEST(Rle8, keeps_indices_as_codes)
{
    const Bytes stream = {0, 3, 1, 2, 3, 0, 0, 1};
    EXPECT_EQ(rgba32(stream, 1, 0, 13), (Bytes{1, 2, 3, 0, 2, 3, 4, 0, 3, 4, 5, 0, 0xEE}));
    EXPECT_EQ(rgb24(stream, 1, 10), (Bytes{3, 4, 5, 3, 4, 5, 3, 4, 5, 0xEE}));
    EXPECT_EQ(rgb24({0, 4, 1, 2, 0, 1}, 1, 7), (Bytes{2, 3, 4, 2, 3, 4, 0xEE}));
}

TEST(Rle8, keeps_delta_as_end)
{
    EXPECT_EQ(rgba32({1, 1, 0, 2, 1, 9, 0, 1}, 1, 0, 5), (Bytes{1, 2, 3, 0, 0xEE}));
    EXPECT_EQ(rgb24({1, 1, 0, 2, 1, 9, 0, 1}, 1, 7), (Bytes{1, 2, 3, 1, 2, 3, 0xEE}));
}

TEST(Rle8, keeps_zero_alpha)
{
    EXPECT_EQ(rgba32({1, 0, 0, 3, 4, 4, 4, 0, 0, 1}, 1, 0, 16),
              (Bytes{0, 1, 2, 0, 4, 5, 6, 0, 4, 5, 6, 0, 4, 5, 6, 0}));
}

TEST(Rle8, fills_lines_from_the_bottom_up_and_stops_after_the_last)
{
    const Bytes stream = {1, 1, 0, 0, 1, 2, 0, 0, 1, 3, 0, 1};
    EXPECT_EQ(rgba32(stream, 2, 5, 10), (Bytes{2, 3, 4, 0, 0xEE, 1, 2, 3, 0, 0xEE}));
    EXPECT_EQ(rgba32(stream, 0, 5, 4), Bytes(4, 0xEE));
}

TEST(Rle8, keeps_lines_below_the_frame)
{
    // Lines -3 and -4.
    EXPECT_EQ(rgba32({1, 1, 0, 0, 1, 2, 0, 0}, -2, 4, 20, 16),
              (Bytes{2, 3, 4, 0, 1, 2, 3, 0, 0xEE, 0xEE, 0xEE, 0xEE, 0xEE, 0xEE, 0xEE, 0xEE, 0xEE, 0xEE, 0xEE, 0xEE}));
}

TEST(Rle8, keeps_lines_end_to_end)
{
    const Bytes stream = {1, 1, 0, 0, 1, 2, 0, 0, 1, 3, 0, 1};
    EXPECT_EQ(rgb24(stream, 2, 13), (Bytes{1, 2, 3, 1, 2, 3, 2, 3, 4, 2, 3, 4, 0xEE}));
}

TEST(Rle8, keeps_count_wrap)
{
    const Bytes stream = {0, 0, 0, 0, 0, 0, 1, 7, 0, 1};
    EXPECT_EQ(rgb24(stream, 0, 7), (Bytes{7, 8, 9, 7, 8, 9, 0xEE}));
    EXPECT_EQ(rgb24(stream, -1, 7), (Bytes{7, 8, 9, 7, 8, 9, 0xEE}));
    EXPECT_EQ(rgb24(stream, 3, 7), Bytes(7, 0xEE));
}

TEST(Rle4, does_nothing)
{
    for (const auto routine : {tntvt_rle4_rgb24, tntvt_rle4_rgba32, tntvt_rle4_rgb32}) {
        Bytes dst(8, 0xEE), stream = {3, 5, 0, 1}, palette = palette_of(4);
        routine(dst.data(), 8, stream.data(), 0, 2, 1, palette.data());
        EXPECT_EQ(dst, Bytes(8, 0xEE));
        routine(nullptr, 0, nullptr, 0, 1, 1, nullptr);
    }
}

}  // namespace
