#include <gtest/gtest.h>
#include <tintvert.h>

#include <array>
#include <vector>

namespace {

using Bytes = std::vector<unsigned char>;

// Groups with neutral chroma and the lumas 940, 64, 505, 941, 67, 506 ..., whose top eight bits are 235, 16,
// 126. Red, green and blue alike are 254, 0 and 128.
std::vector<unsigned int> line(size_t groups)
{
    std::vector<unsigned int> words;
    for (size_t i = 0; i < groups; ++i) {
        words.push_back(0xC0000000u | 512u | 940u << 10 | 512u << 20);
        words.push_back(64u | 513u << 10 | 505u << 20);
        words.push_back(512u | 941u << 10 | 515u << 20);
        words.push_back(67u | 512u << 10 | 506u << 20);
    }
    return words;
}

Bytes greys(std::initializer_list<int> values, bool alpha)
{
    Bytes result;
    for (const int value : values) {
        for (int i = 0; i < 3; ++i) result.push_back(static_cast<unsigned char>(value));
        if (alpha) result.push_back(255);
    }
    return result;
}

Bytes decoded(long width, long scale, long dst_stride, size_t written)
{
    std::vector<unsigned int> src = line(4);
    Bytes dst(written + 2, 0xEE);
    tntvt_v210_rgb24(dst.data(), dst_stride, src.data(), 0, width, scale, scale);
    EXPECT_EQ(dst[written], 0xEE);
    dst.resize(written);
    return dst;
}

TEST(V210Rgb24, cuts_samples_to_eight_bits)
{
    EXPECT_EQ(decoded(6, 1, 18, 18), greys({254, 0, 128, 254, 0, 128}, false));
    EXPECT_EQ(decoded(7, 1, 28, 32), greys({254, 0, 128, 254, 0, 128, 254, 0}, true));
}

TEST(V210Rgb24, reduces_by_dropping)
{
    EXPECT_EQ(decoded(6, 2, 12, 12), greys({254, 128, 0}, true));  // Y0, Y2, Y4
    EXPECT_EQ(decoded(12, 4, 9, 9), greys({254, 0, 128}, false));  // Y0, Y4, Y8
    EXPECT_EQ(decoded(13, 4, 12, 16), greys({254, 0, 128, 254}, true));
}

TEST(V210Rgb24, keeps_form_by_stride)
{
    EXPECT_EQ(decoded(2, 1, 7, 6), greys({254, 0}, false));
    EXPECT_EQ(decoded(2, 1, 8, 8), greys({254, 0}, true));
}

TEST(V210Rgb16, keeps_first_luma_of_v210_pairs)
{
    std::vector<unsigned int> src = line(1);
    std::array<unsigned short, 7> dst{};
    dst[6] = 0xEEEE;
    tntvt_v210_rgb16(dst.data(), 12, src.data(), 16, 6, 1, 0);
    EXPECT_EQ(dst, (std::array<unsigned short, 7>{0x7FFF, 0x7FFF, 0x4210, 0x4210, 0, 0, 0xEEEE}));
}

TEST(V210Rgb16, keeps_line_order)
{
    std::vector<unsigned int> src = line(2);
    src[4] = 512u | 64u << 10 | 512u << 20;
    std::array<unsigned short, 4> dst{};
    tntvt_v210_rgb16(dst.data(), 4, src.data(), 16, 2, 2, 1);
    EXPECT_EQ(dst, (std::array<unsigned short, 4>{0x7FFF, 0x7FFF, 0, 0}));
}

}  // namespace
