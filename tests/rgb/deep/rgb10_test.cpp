#include <gtest/gtest.h>
#include <tintvert.h>

#include <vector>

namespace {

using Words = std::vector<uint32_t>;
using Channels = std::vector<uint16_t>;
using Bytes = std::vector<uint8_t>;

enum Flag : unsigned char { off = 0, on = 1, other_bit = 0x80 };

Channels rgba64(Words src, long width, long height, unsigned char swap, unsigned char flip)
{
    Channels dst(static_cast<size_t>(4 * width * height), 0xEEEE);
    tntvt_rgb10_rgba64(dst.data(), -1, src.data(), 7, width, height, swap, flip);
    return dst;
}

Channels rgb48(Words src, long width, long height, unsigned char swap, unsigned char flip)
{
    Channels dst(static_cast<size_t>(3 * width * height), 0xEEEE);
    tntvt_rgb10_rgb48(dst.data(), 0, src.data(), 0, width, height, swap, flip);
    return dst;
}

Bytes rgba32(Words src, long width, long height, unsigned char swap, unsigned char flip)
{
    Bytes dst(static_cast<size_t>(4 * width * height), 0xEE);
    tntvt_rgb10_rgba32(dst.data(), 0, src.data(), 0, width, height, swap, flip);
    return dst;
}

TEST(Rgb10, keeps_mask_and_shifts)
{
    const Words words = {0xFFFFFFFC, 0x00000FFC, 0x003FF000, 0xFFC00000};
    EXPECT_EQ(rgb48(words, 4, 1, off, on),
              (Channels{0xFF30, 0xFF30, 0xFF30, 0, 0x30, 0x30, 0x30, 0xFF00, 0xFF00, 0xFF00, 0, 0}));
    EXPECT_EQ(rgba32(words, 4, 1, off, on),
              (Bytes{255, 255, 255, 255, 255, 0, 0, 255, 0, 255, 0, 255, 0, 0, 255, 255}));
}

TEST(Rgb10, keeps_opposite_channel_orders)
{
    EXPECT_EQ(rgb48({0xFFC00FFC}, 1, 1, off, on), (Channels{0xFF00, 0x30, 0x30}));
    EXPECT_EQ(rgba64({0xFFC00FFC}, 1, 1, off, on), (Channels{0x30, 0x30, 0xFF00, 0xFFFF}));
}

TEST(Rgb10, keeps_flip_sense_by_byte_order)
{
    const Words little = {0x01000000, 0x02000000}, big = {0x01, 0x02};
    const Bytes down = {0, 0, 1, 255, 0, 0, 2, 255}, up = {0, 0, 2, 255, 0, 0, 1, 255};
    EXPECT_EQ(rgba32(little, 1, 2, off, on), down);
    EXPECT_EQ(rgba32(little, 1, 2, off, other_bit), down);
    EXPECT_EQ(rgba32(little, 1, 2, off, off), up);
    EXPECT_EQ(rgba32(big, 1, 2, on, off), down);
    EXPECT_EQ(rgba32(big, 1, 2, other_bit, off), down);
    EXPECT_EQ(rgba32(big, 1, 2, other_bit, other_bit), up);
}

TEST(Rgb10, keeps_start_one_line_below)
{
    const Words little = {0x01000000, 0x02000000, 0x03000000}, big = {0x01, 0x02, 0x03};
    EXPECT_EQ(rgb48(little, 1, 2, off, off), (Channels{0x0300, 0, 0, 0x0200, 0, 0}));
    EXPECT_EQ(rgba64(big, 1, 2, on, on), (Channels{0, 0, 0x0300, 0xFFFF, 0, 0, 0x0200, 0xFFFF}));
}

TEST(Rgb10, does_nothing_with_a_negative_height)
{
    Words src(8), dst(8, 0xEEEEEEEE);
    tntvt_rgb10_rgba32(dst.data() + 4, 4, src.data() + 4, 4, 1, -2, off, off);
    tntvt_rgb10_rgba64(dst.data() + 4, 8, src.data() + 4, 4, 1, -2, on, on);
    EXPECT_EQ(dst, Words(8, 0xEEEEEEEE));
}

}  // namespace
