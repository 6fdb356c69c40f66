#include <gtest/gtest.h>
#include <tintvert.h>

#include <vector>

namespace {

using Bytes = std::vector<unsigned char>;
using Words = std::vector<uint16_t>;

Words of(decltype(tntvt_rgba32_rgba64)* routine, size_t channels, unsigned int bits)
{
    Bytes src{0x12, 0x34, 0x56, 0xFF};
    Words dst(channels, 0xEEEE);
    routine(dst.data(), static_cast<long>(channels * 2), src.data(), 4, 1, 1, bits);
    return dst;
}

TEST(From8ToDeep, orders)
{
    EXPECT_EQ(of(tntvt_rgba32_rgb48, 3, 8), (Words{0x12, 0x34, 0x56}));
    EXPECT_EQ(of(tntvt_rgba32_bgr48, 3, 8), (Words{0x56, 0x34, 0x12}));
    EXPECT_EQ(of(tntvt_rgba32_rgba64, 4, 8), (Words{0x12, 0x34, 0x56, 0xFF}));
    EXPECT_EQ(of(tntvt_rgba32_argb64, 4, 8), (Words{0xFF, 0x12, 0x34, 0x56}));
}

TEST(From8ToDeep, keeps_low_bits_of_deep_channels_clear)
{
    EXPECT_EQ(of(tntvt_rgba32_rgba64, 4, 16), (Words{0x1200, 0x3400, 0x5600, 0xFF00}));
    EXPECT_EQ(of(tntvt_rgba32_rgba64, 4, 12), (Words{0x120, 0x340, 0x560, 0xFF0}));
    EXPECT_EQ(of(tntvt_rgba32_rgba64, 4, 10), (Words{0x48, 0xD0, 0x158, 0x3FC}));

    Bytes src{0x12, 0x34, 0x56, 0xFF};
    Words dst(4, 0xEEEE);
    tntvt_bgra32_rgba64(dst.data(), 8, src.data(), 4, 1, 1);
    EXPECT_EQ(dst, (Words{0x5600, 0x3400, 0x1200, 0xFF00}));
}

TEST(From8ToDeep, shift_modulo_32)
{
    EXPECT_EQ(of(tntvt_rgba32_rgba64, 4, 20), (Words{0x2000, 0x4000, 0x6000, 0xF000}));
    EXPECT_EQ(of(tntvt_rgba32_rgba64, 4, 24), (Words{0, 0, 0, 0}));
    EXPECT_EQ(of(tntvt_rgba32_rgba64, 4, 7), (Words{0, 0, 0, 0}));
    EXPECT_EQ(of(tntvt_rgba32_rgba64, 4, 48), (Words{0x1200, 0x3400, 0x5600, 0xFF00}));
}

TEST(From8ToDeep, exact_flip)
{
    Bytes src{1, 2, 3, 4, 5, 6, 7, 8};
    Words dst(6, 0xEEEE);
    tntvt_rgba32_rgb48(dst.data(), 6, src.data(), 4, 1, -2, 8);
    EXPECT_EQ(dst, (Words{5, 6, 7, 1, 2, 3}));
}

TEST(From8ToDeep, flip_one_line_off)
{
    Bytes src{1, 2, 3, 4, 5, 6, 7, 8};
    Words dst(9, 0xEEEE);
    tntvt_rgba32_bgr48(dst.data() + 3, 6, src.data(), 4, 1, -2, 8);
    EXPECT_EQ(dst, (Words{7, 6, 5, 3, 2, 1, 0xEEEE, 0xEEEE, 0xEEEE}));
}

TEST(From8ToDeep, in_place)
{
    Bytes frame{1, 2, 3, 4, 5, 6, 7, 8};
    frame.resize(16);
    tntvt_rgba32_argb64(frame.data(), 16, frame.data(), 8, 2, 1, 8);
    EXPECT_EQ(frame, (Bytes{4, 0, 1, 0, 2, 0, 3, 0, 8, 0, 5, 0, 6, 0, 7, 0}));
}

}  // namespace
