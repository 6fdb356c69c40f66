#include <gtest/gtest.h>
#include <tintvert.h>

#include <vector>

namespace {

using Bytes = std::vector<unsigned char>;
using Words = std::vector<uint16_t>;

Bytes of(decltype(tntvt_rgba64_rgba32)* routine, Words src, unsigned int bits)
{
    Bytes dst(4, 0xEE);
    routine(dst.data(), 4, src.data(), static_cast<long>(src.size() * 2), 1, 1, bits);
    return dst;
}

TEST(DeepTo8, orders)
{
    const Words src{0x1011, 0x2022, 0x3033, 0x4044};
    EXPECT_EQ(of(tntvt_rgba64_rgba32, src, 16), (Bytes{0x10, 0x20, 0x30, 0x40}));
    EXPECT_EQ(of(tntvt_argb64_rgba32, src, 16), (Bytes{0x20, 0x30, 0x40, 0x10}));
    EXPECT_EQ(of(tntvt_abgr64_rgba32, src, 16), (Bytes{0x40, 0x30, 0x20, 0x10}));
    EXPECT_EQ(of(tntvt_bgra64_rgba32, src, 16), (Bytes{0x30, 0x20, 0x10, 0x40}));
}

TEST(DeepTo8, keeps_transparent_alpha)
{
    const Words src{0xFFFF, 0xEEEE, 0xDDDD};
    EXPECT_EQ(of(tntvt_rgb48_rgba32, src, 16), (Bytes{0xFF, 0xEE, 0xDD, 0}));
    EXPECT_EQ(of(tntvt_bgr48_rgba32, src, 16), (Bytes{0xDD, 0xEE, 0xFF, 0}));
}

TEST(DeepTo8, keeps_wrap_of_wide_values)
{
    EXPECT_EQ(of(tntvt_rgba64_rgba32, {0x12FF, 0x1280, 0x00FF, 0xFFFF}, 16), (Bytes{0x12, 0x12, 0, 0xFF}));
    EXPECT_EQ(of(tntvt_rgba64_rgba32, {0x1234, 0x0FFF, 0x1000, 0x0010}, 12), (Bytes{0x23, 0xFF, 0, 1}));
    EXPECT_EQ(of(tntvt_rgba64_rgba32, {0x0FFF, 0x03FC, 0x0400, 0x0403}, 10), (Bytes{0xFF, 0xFF, 0, 0}));
    EXPECT_EQ(of(tntvt_rgba64_rgba32, {0x1234, 0x01FF, 0x0100, 0x0001}, 8), (Bytes{0x34, 0xFF, 0, 1}));
    EXPECT_EQ(of(tntvt_rgba64_rgba32, {0x1FFF, 0x2000, 0x0020, 0x0000}, 13), (Bytes{0xFF, 0, 1, 0}));
}

TEST(DeepTo8, keeps_shift_modulo_32)
{
    const Words src{0xFFFF, 0xFFFF, 0xFFFF, 0xFFFE};
    EXPECT_EQ(of(tntvt_rgba64_rgba32, src, 7), Bytes(4, 0));
    EXPECT_EQ(of(tntvt_rgba64_rgba32, src, 0), Bytes(4, 0));
    EXPECT_EQ(of(tntvt_rgba64_rgba32, src, 23), (Bytes{1, 1, 1, 1}));
    EXPECT_EQ(of(tntvt_rgba64_rgba32, src, 40), (Bytes{255, 255, 255, 254}));
}

TEST(DeepTo8, slack_in_front_of_the_pixels_and_heights_below_1)
{
    Words src{0, 0x1100, 0x2200, 0x3300, 0x4400};
    Bytes dst(6, 0xEE);
    tntvt_rgba64_rgba32(dst.data(), 6, src.data(), 10, 1, -1, 16);
    tntvt_rgba64_rgba32(dst.data(), 6, src.data(), 10, 1, 0, 16);
    EXPECT_EQ(dst, Bytes(6, 0xEE));
    tntvt_rgba64_rgba32(dst.data(), 6, src.data(), 10, 1, 1, 16);
    EXPECT_EQ(dst, (Bytes{0xEE, 0xEE, 0x11, 0x22, 0x33, 0x44}));
}

TEST(DeepTo8, exact_flip)
{
    Words src{0x1100, 0x2200, 0x3300, 0x4400, 0x5500, 0x6600};
    Bytes dst(8, 0xEE);
    tntvt_rgb48_rgba32(dst.data(), 4, src.data(), 6, 1, -2, 16);
    EXPECT_EQ(dst, (Bytes{0x44, 0x55, 0x66, 0, 0x11, 0x22, 0x33, 0}));
}

TEST(DeepTo8, keeps_flip_one_line_off)
{
    Words src{0x1100, 0x2200, 0x3300, 0x4400, 0x5500, 0x6600};
    Bytes dst(12, 0xEE);
    tntvt_bgr48_rgba32(dst.data() + 4, 4, src.data(), 6, 1, -2, 16);
    EXPECT_EQ(dst, (Bytes{0x66, 0x55, 0x44, 0, 0x33, 0x22, 0x11, 0, 0xEE, 0xEE, 0xEE, 0xEE}));

    tntvt_bgr48_rgba32(dst.data() + 4, 4, src.data(), 6, 1, 2, 16);
    EXPECT_EQ(dst, (Bytes{0x66, 0x55, 0x44, 0, 0x33, 0x22, 0x11, 0, 0x66, 0x55, 0x44, 0}));
}

// The lines are counted in 32 bits: 2^32 + 1 of them are one.
TEST(DeepTo8, keeps_flip_one_line_off_of_lines_counted_in_32_bits)
{
    Words src{0x1100, 0x2200, 0x3300};
    Bytes dst(8, 0xEE);
    tntvt_bgr48_rgba32(dst.data() + 4, 4, src.data(), 6, 1, -0x100000001, 16);
    EXPECT_EQ(dst, (Bytes{0x33, 0x22, 0x11, 0, 0xEE, 0xEE, 0xEE, 0xEE}));
    tntvt_bgr48_rgba32(dst.data() + 4, 4, src.data(), 6, 1, 0x100000000, 16);
    EXPECT_EQ(dst, (Bytes{0x33, 0x22, 0x11, 0, 0xEE, 0xEE, 0xEE, 0xEE}));
}

}  // namespace
