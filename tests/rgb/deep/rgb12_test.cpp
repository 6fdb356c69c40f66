#include <gtest/gtest.h>
#include <tintvert.h>

#include <vector>

namespace {

using Bytes = std::vector<uint8_t>;
using Channels = std::vector<uint16_t>;

// Samples 0x123, 0x456, 0x789, 0xABC, 0xDEF, 0xFED, 0xCBA, 0x987: bits 0 to 11 first.
const Bytes packed_eight = {0x23, 0x61, 0x45, 0x89, 0xC7, 0xAB, 0xEF, 0xDD, 0xFE, 0xBA, 0x7C, 0x98};

Bytes repeated(const Bytes& bytes, size_t times)
{
    Bytes result;
    for (size_t i = 0; i < times; ++i) result.insert(result.end(), bytes.begin(), bytes.end());
    return result;
}

TEST(Rgb12Unpack, widens_in_the_order_of_the_stream)
{
    Bytes src = packed_eight;
    Channels dst(9, 0xEEEE);
    tntvt_rgb12_bgr48(dst.data(), 18, src.data(), 12, 1, -1);
    EXPECT_EQ(dst, (Channels{0x1230, 0x4560, 0x7890, 0xABC0, 0xDEF0, 0xFED0, 0xCBA0, 0x9870, 0xEEEE}));
}

TEST(Rgb12Unpack, keeps_triple_rounds)
{
    Bytes src = repeated(packed_eight, 9);
    Channels dst(73, 0xEEEE);
    tntvt_rgb12_rgb48(dst.data(), 48, src.data(), 36, 8, 1);
    const Channels first(dst.begin(), dst.begin() + 9);
    EXPECT_EQ(first, (Channels{0x7890, 0x4560, 0x1230, 0xFED0, 0xDEF0, 0xABC0, 0x1230, 0x9870, 0xCBA0}));
    for (size_t i = 24; i < 72; ++i) EXPECT_EQ(dst[i], dst[i - 24]) << i;
    EXPECT_EQ(dst[72], 0xEEEE);
}

TEST(Rgb12Unpack, keeps_red_in_one_blue_byte)
{
    Bytes src = repeated(packed_eight, 6);
    Bytes dst(65, 0xEE);
    tntvt_rgb12_rgba32(dst.data(), 64, src.data(), 72, 9, 1);
    const Bytes first(dst.begin(), dst.begin() + 16);
    EXPECT_EQ(first,
              (Bytes{0x78, 0x45, 0x12, 255, 0xFE, 0xDE, 0xAB, 255, 0x12, 0x98, 0xCB, 255, 0xAB, 0x78, 0x45, 255}));
    for (size_t i = 32; i < 64; ++i) EXPECT_EQ(dst[i], dst[i - 32]) << i;
    EXPECT_EQ(dst[64], 0xEE);

    Bytes blue(36, 0);
    blue[12] = 0xFF, blue[13] = 0x0F;  // S8
    tntvt_rgb12_rgba32(dst.data(), 32, blue.data(), 36, 8, 1);
    for (size_t i = 0; i < 32; ++i) EXPECT_EQ(dst[i], i % 4 == 3 ? 255 : 0) << i;
}

TEST(Rgb12Unpack, sse4_does_nothing) { tntvt_rgb12_rgb48_sse4(nullptr, 1, nullptr, 1, 1, 1); }

TEST(Rgb12Pack, writes_the_highest_bit_first)
{
    Channels src = {0xABCD, 0x1234, 0, 0, 0, 0, 0, 0};
    Bytes dst(13, 0xEE);
    tntvt_rgb48_rgb12(dst.data(), 13, src.data(), 16, 1, 1);
    EXPECT_EQ(dst, (Bytes{0xAB, 0xC1, 0x23, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0xEE}));
    src[0] = 0xFABC;
    tntvt_rgb48_12_rgb12(dst.data(), 13, src.data(), 16, 1, 1);
    EXPECT_EQ(dst, (Bytes{0xAB, 0xC2, 0x34, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0xEE}));
}

TEST(Rgb12Pack, keeps_bits_behind_the_limit)
{
    Channels src(16, 0xABCD);
    Bytes dst(4, 0xEE);
    tntvt_rgb48_rgb12(dst.data(), 1, src.data(), 16, 1, -2);
    EXPECT_EQ(dst, (Bytes{0xAB, 0xAB, 0xEE, 0xEE}));
    tntvt_rgb48_12_rgb12(dst.data() + 3, -1, src.data(), 16, 1, 2);
    EXPECT_EQ(dst, (Bytes{0xAB, 0xAB, 0xEE, 0xEE}));
}

TEST(Rgb12Pack, keeps_two_bit_orders)
{
    Channels wide(8);
    Bytes src = packed_eight, again(12);
    tntvt_rgb12_bgr48(wide.data(), 16, src.data(), 12, 1, 1);
    tntvt_rgb48_rgb12(again.data(), 12, wide.data(), 16, 1, 1);
    EXPECT_EQ(again, (Bytes{0x12, 0x34, 0x56, 0x78, 0x9A, 0xBC, 0xDE, 0xFF, 0xED, 0xCB, 0xA9, 0x87}));
}

TEST(Rgb12Pack, keeps_one_byte_a_line)
{
    Channels src(16, 0xFFFF);
    src[7] = 0x5126;
    src[15] = 0x0340;
    Bytes dst(8, 0xEE);
    tntvt_rgb48_12_rgba32(dst.data(), 4, src.data(), 16, 2, -2);
    EXPECT_EQ(dst, (Bytes{0x12, 0xEE, 0xEE, 0xEE, 0x34, 0xEE, 0xEE, 0xEE}));
}

}  // namespace
