#include <gtest/gtest.h>
#include <tintvert.h>

#include <vector>

namespace {

using Bytes = std::vector<unsigned char>;
using Words = std::vector<uint16_t>;

// Channels 0x0102, 0x0304, 0x0506, 0x0708.
Bytes pixel() { return {1, 2, 3, 4, 5, 6, 7, 8}; }

Words words(decltype(tntvt_argb64be_rgba64)* routine, size_t channels, unsigned int order)
{
    Bytes src = pixel();
    Words dst(channels, 0xEEEE);
    routine(dst.data(), static_cast<long>(channels * 2), src.data(), 8, 1, 1, 999, order);
    return dst;
}

Bytes reduced(decltype(tntvt_argb64be_rgba32)* routine, size_t channels, unsigned int bits, unsigned int order)
{
    Bytes src = pixel(), dst(channels, 0xEE);
    routine(dst.data(), static_cast<long>(channels), src.data(), 8, 1, 1, bits, order);
    return dst;
}

TEST(Argb64be, four_channels)
{
    EXPECT_EQ(words(tntvt_argb64be_rgba64, 4, 0), (Words{0x0708, 0x0506, 0x0304, 0x0102}));
    EXPECT_EQ(words(tntvt_argb64be_rgba64, 4, 1), (Words{0x0102, 0x0708, 0x0506, 0x0304}));
    EXPECT_EQ(words(tntvt_argb64be_rgba64, 4, 2), (Words{0x0304, 0x0506, 0x0708, 0x0102}));
    EXPECT_EQ(words(tntvt_argb64be_rgba64, 4, 3), (Words{0x0102, 0x0304, 0x0506, 0x0708}));
    EXPECT_EQ(reduced(tntvt_argb64be_rgba32, 4, 16, 0), (Bytes{7, 5, 3, 1}));
    EXPECT_EQ(reduced(tntvt_argb64be_rgba32, 4, 16, 1), (Bytes{1, 7, 5, 3}));
    EXPECT_EQ(reduced(tntvt_argb64be_rgba32, 4, 8, 2), (Bytes{4, 6, 8, 2}));
    EXPECT_EQ(reduced(tntvt_argb64be_rgba32, 4, 12, 3), (Bytes{0x10, 0x30, 0x50, 0x70}));
}

TEST(Argb64be, three_channels)
{
    EXPECT_EQ(words(tntvt_argb64be_rgb48, 3, 0), (Words{0x0708, 0x0506, 0x0304}));
    EXPECT_EQ(words(tntvt_argb64be_rgb48, 3, 2), (Words{0x0304, 0x0506, 0x0708}));
    EXPECT_EQ(reduced(tntvt_argb64be_rgb24, 3, 16, 0), (Bytes{7, 5, 3}));
    EXPECT_EQ(reduced(tntvt_argb64be_rgb24, 3, 10, 2), (Bytes{0xC1, 0x41, 0xC2}));
}

TEST(Argb64be, keeps_orders_that_write_nothing)
{
    for (unsigned int order : {1u, 3u, 4u, 0xFFFFFFFFu}) {
        EXPECT_EQ(words(tntvt_argb64be_rgb48, 3, order), Words(3, 0xEEEE));
        EXPECT_EQ(reduced(tntvt_argb64be_rgb24, 3, 16, order), Bytes(3, 0xEE));
    }
    for (unsigned int order : {4u, 0xFFFFFFFFu}) {
        EXPECT_EQ(words(tntvt_argb64be_rgba64, 4, order), Words(4, 0xEEEE));
        EXPECT_EQ(reduced(tntvt_argb64be_rgba32, 4, 16, order), Bytes(4, 0xEE));
    }
}

TEST(Argb64be, sign_of_height)
{
    Bytes src = pixel(), more = pixel();
    for (unsigned char byte : more) src.push_back(static_cast<unsigned char>(byte + 8));
    Bytes dst(6, 0xEE);
    tntvt_argb64be_rgb24(dst.data(), 3, src.data(), 8, 1, -2, 8, 2);
    EXPECT_EQ(dst, (Bytes{12, 14, 16, 4, 6, 8}));

    Bytes untouched(16, 0xEE);
    tntvt_argb64be_rgba32(untouched.data(), 4, src.data(), 8, 1, -2, 8, 2);
    tntvt_argb64be_rgba64(untouched.data(), 8, src.data(), 8, 1, -2, 0, 2);
    tntvt_argb64be_rgb48(untouched.data(), 6, src.data(), 8, 1, -2, 0, 2);
    EXPECT_EQ(untouched, Bytes(16, 0xEE));
}

}  // namespace
