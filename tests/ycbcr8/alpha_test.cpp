#include <gtest/gtest.h>
#include <tintvert.h>

#include <algorithm>
#include <vector>

#include "support/fence.h"

namespace {

using Bytes = std::vector<unsigned char>;

TEST(AlphayTo2yuv, keeps_lines_at_end_of_stride)
{
    Bytes src{0, 1, 2, 3, 4, 5, 6, 7, 8, 9}, dst(20, 0xEE), expected(20, 0xEE);
    EXPECT_EQ(tntvt_alphay_to_2yuv(dst.data(), 20, src.data(), 10, 5, 1), 0);
    const Bytes pairs{0x80, 6, 0x80, 7, 0x80, 8, 0x80, 9};
    std::copy(pairs.begin(), pairs.end(), expected.begin() + 12);
    EXPECT_EQ(dst, expected);
}

TEST(AlphayTo2yuv, grows_in_place)
{
    Bytes frame{1, 2, 3, 4, 0, 0, 0, 0};
    tntvt_alphay_to_2yuv(frame.data(), 4, frame.data(), 2, 2, 2);
    EXPECT_EQ(frame, (Bytes{0x80, 1, 0x80, 2, 0x80, 3, 0x80, 4}));
    tntvt_alphay_to_2yuv(frame.data(), 8, frame.data(), 8, 1, 1);
    EXPECT_EQ(frame, (Bytes{0x80, 1, 0x80, 2, 0x80, 3, 0x80, 4}));
}

TEST(Alphay, keeps_one_line_more)
{
    Bytes src{10, 1, 20, 2, 30, 3, 40, 4, 50, 5, 60, 6}, dst(8, 0xEE);
    EXPECT_EQ(tntvt_2yuv_to_alphay(dst.data(), 2, src.data(), 4, 3, 2), 0);
    EXPECT_EQ(dst, (Bytes{1, 2, 3, 4, 5, 6, 0xEE, 0xEE}));
    dst.assign(8, 0xEE);
    tntvt_2yuv_to_alphay(dst.data(), 2, src.data(), 4, 2, -1);
    EXPECT_EQ(dst, Bytes(8, 0xEE));
    tntvt_2yuv_to_alphay(dst.data(), 2, src.data(), 4, 2, 0);
    EXPECT_EQ(dst, (Bytes{1, 2, 0xEE, 0xEE, 0xEE, 0xEE, 0xEE, 0xEE}));
}

TEST(StripChroma, keeps_one_line_more)
{
    Bytes frame{12, 34, 56, 78, 1, 2, 3, 4, 5, 6, 7, 8};
    EXPECT_EQ(tntvt_2yuv_strip_chroma(frame.data(), 4, frame.data(), 4, 2, 1), 0);
    EXPECT_EQ(frame, (Bytes{0x80, 34, 0x80, 78, 0x80, 2, 0x80, 4, 5, 6, 7, 8}));
}

TEST(RgbaAlpha, fills_all_four_bytes)
{
    Bytes src{9, 8, 7, 6}, dst(20, 0xEE);
    EXPECT_EQ(tntvt_alpha_to_rgba(dst.data(), 99, src.data(), 10, 2, 2), 0);
    EXPECT_EQ(dst, (Bytes{9, 9, 9, 9, 8, 8, 8, 8, 0xEE, 0xEE, 7, 7, 7, 7, 6, 6, 6, 6, 0xEE, 0xEE}));
}

TEST(RgbaAlpha, keeps_first_byte_as_alpha)
{
    Bytes src{1, 2, 3, 4, 5, 6, 7, 8, 0, 11, 12, 13, 14, 15, 16, 17, 18, 0}, dst(5, 0xEE);
    EXPECT_EQ(tntvt_rgba_to_alpha(dst.data(), 99, src.data(), 9, 2, 2), 0);
    EXPECT_EQ(dst, (Bytes{1, 5, 11, 15, 0xEE}));
}

TEST(RgbaAlpha, set_stores_the_low_byte)
{
    Bytes frame(20, 1);
    EXPECT_EQ(tntvt_rgba_setalpha(frame.data(), 10, 0x1FF, 2, 2), 0);
    EXPECT_EQ(frame, (Bytes{1, 1, 1, 255, 1, 1, 1, 255, 1, 1, 1, 1, 1, 255, 1, 1, 1, 255, 1, 1}));
}

TEST(RgbaAlpha, add_takes_the_source_first)
{
    Bytes src{1, 2, 3, 4, 5, 6, 0, 7, 8, 9, 10, 11, 12, 0}, dst(18, 0xEE);
    EXPECT_EQ(tntvt_rgba_addalpha(src.data(), dst.data(), 7, 9, 0x1AB, 2, 2), 0);
    EXPECT_EQ(dst, (Bytes{1, 2, 3, 0xAB, 4, 5, 6, 0xAB, 0xEE, 7, 8, 9, 0xAB, 10, 11, 12, 0xAB, 0xEE}));
    dst.assign(18, 0xEE);
    tntvt_rgba_addalpha(src.data(), dst.data(), 7, 9, 1, 0, 2);
    tntvt_rgba_addalpha(src.data(), dst.data(), 7, 9, 1, 2, 0);
    EXPECT_EQ(dst, Bytes(18, 0xEE));
}

// 2^32 - 1 pixels end at the fence, with everything before it converted.
TEST(RgbaAlpha, keeps_negative_width_as_unsigned)
{
    tintvert::test::FencedBuffer dst({0, 4096}, 4096, tintvert::test::Side::above, tintvert::test::Closed::wholly);
    Bytes src(5000, 3);
    EXPECT_TRUE(tintvert::test::faults([&] { tntvt_rgba_addalpha(src.data(), dst.pointer(), 0, 0, 7, -1, 1); }));
    EXPECT_EQ(Bytes(dst.pointer(), dst.pointer() + 8), (Bytes{3, 3, 3, 7, 3, 3, 3, 7}));
    EXPECT_EQ(tntvt_rgba_setalpha(dst.pointer(), 4, 9, -1, 1), 0);
    EXPECT_EQ(dst.pointer()[3], 7);
}

unsigned char second_luma(int mode, int prev, int t, int cur)
{
    Bytes line{0, static_cast<unsigned char>(prev), 0, static_cast<unsigned char>(t),
               0, static_cast<unsigned char>(cur)};
    EXPECT_EQ(tntvt_2yuv_average_2y(line.data(), 4, mode), 0);
    return line[3];
}

TEST(Average2y, expected_values)
{
    EXPECT_EQ(second_luma(3, 100, 120, 104), 100);
    EXPECT_EQ(second_luma(3, 100, 110, 104), 110);
    EXPECT_EQ(second_luma(3, 100, 111, 107), 100);
    EXPECT_EQ(second_luma(3, 100, 120, 108), 120);
    EXPECT_EQ(second_luma(2, 127, 160, 127), 127);
    EXPECT_EQ(second_luma(2, 128, 160, 128), 160);
    EXPECT_EQ(second_luma(3, 128, 160, 128), 128);
    EXPECT_EQ(second_luma(4, 128, 161, 128), 161);
    EXPECT_EQ(second_luma(5, 128, 161, 128), 144);
    EXPECT_EQ(second_luma(6, 100, 120, 104), 102);
    EXPECT_EQ(second_luma(1, 100, 103, 0), 101);
    for (const int mode : {-1, 0, 7}) EXPECT_EQ(second_luma(mode, 100, 120, 100), 120);
}

// Two bytes are one round at index 5; 5 bytes as well, and 6 bytes are two.
TEST(Average2y, keeps_round_past_the_end)
{
    const Bytes line{0, 100, 0, 120, 0, 100, 0, 120, 0, 100};
    for (const unsigned int bytes : {0u, 1u, 2u, 5u, 6u}) {
        Bytes now = line;
        tntvt_2yuv_average_2y(now.data(), bytes, 3);
        EXPECT_EQ(now[3], bytes < 2 ? 120 : 100) << bytes;
        EXPECT_EQ(now[7], bytes < 6 ? 120 : 100) << bytes;
    }
    Bytes now = line;
    tntvt_2yuv_average_2y(now.data(), 2, 1);
    EXPECT_EQ(now, (Bytes{0, 100, 0, 110, 0, 100, 0, 120, 0, 100}));
}

}  // namespace
