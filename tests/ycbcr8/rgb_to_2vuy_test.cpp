// RGB to `2vuy`: bytes in, bytes out.
#include <gtest/gtest.h>

#include <climits>

#include "rgb_runs.h"

namespace tintvert::test {
namespace {

TEST(RgbTo2vuy, video_range_primaries)
{
    const Memory of_red{99, 81, 211, 81, 90, 81, 239, 81, 90, 81, 239, 81};
    const Memory of_green{72, 144, 57, 144, 53, 144, 34, 144, 53, 144, 34, 144};
    const Memory of_blue{211, 40, 114, 40, 239, 40, 109, 40, 239, 40, 109, 40};
    EXPECT_EQ(bgra_run(six(red)), of_red);
    EXPECT_EQ(bgra_run(six(green)), of_green);
    EXPECT_EQ(bgra_run(six(blue)), of_blue);
    EXPECT_EQ(argb_run(six(red)), of_red);
    EXPECT_EQ(argb_run(six(green)), of_green);
    EXPECT_EQ(argb_run(six(blue)), of_blue);
    EXPECT_EQ(frame_run(six(blue), 3, 2, 6, 12), of_blue);
}

TEST(RgbTo2vuy, full_range_primaries)
{
    EXPECT_EQ(hd_run(six(red)), (Memory{106, 54, 224, 54, 99, 54, 0, 54, 99, 54, 0, 54}));
    EXPECT_EQ(hd_run(six(green)), (Memory{54, 182, 41, 182, 30, 182, 12, 182, 30, 182, 12, 182}));
    EXPECT_EQ(hd_run(six(blue)), (Memory{224, 18, 119, 18, 0, 18, 116, 18, 0, 18, 116, 18}));
}

TEST(RgbTo2vuy, black_and_white)
{
    const Memory video_black{128, 16, 128, 16, 128, 16, 128, 16, 128, 16, 128, 16};
    const Memory video_white{128, 235, 128, 235, 128, 235, 128, 235, 128, 235, 128, 235};
    EXPECT_EQ(bgra_run(six(black)), video_black);
    EXPECT_EQ(bgra_run(six(white)), video_white);
    EXPECT_EQ(argb_run(six(black)), video_black);
    EXPECT_EQ(argb_run(six(white)), video_white);
    EXPECT_EQ(hd_run(six(black)), (Memory{128, 0, 128, 0, 128, 0, 128, 0, 128, 0, 128, 0}));
    EXPECT_EQ(hd_run(six(white)), (Memory{128, 255, 128, 255, 128, 255, 128, 255, 128, 255, 128, 255}));
}

TEST(RgbTo2vuy, full_range_grey_keeps_its_level)
{
    for (int level = 0; level < 256; ++level) {
        const auto y = static_cast<uint8_t>(level);
        EXPECT_EQ(hd_run({grey(level), grey(level), grey(level), grey(level)}),
                  (Memory{128, y, 128, y, 128, y, 128, y}));
    }
}

TEST(RgbTo2vuy, bgra_argument_picks_the_order_of_bytes)
{
    const Memory first = bgrx(six(red)), second = xrgb(six(red));
    const Memory of_red{106, 54, 224, 54, 99, 54, 0, 54, 99, 54, 0, 54};
    for (const int bgra : {1, 2, -1, 0x100, INT_MIN}) {
        Memory src = first, dst(12, 0xEE);
        hd_rgb_to_2vuy(src.data(), dst.data(), 6, bgra);
        EXPECT_EQ(dst, of_red) << bgra;
    }
    Memory src = second, dst(12, 0xEE);
    hd_rgb_to_2vuy(src.data(), dst.data(), 6, 0);
    EXPECT_EQ(dst, of_red);
}

TEST(RgbTo2vuy, alpha_is_never_read)
{
    const std::vector<Rgb> run{{12, 34, 56}, {78, 90, 123}, {145, 167, 189}, {210, 232, 254}};
    for (const int alpha : {0, 1, 127, 128, 255}) {
        Memory forward = bgrx(run, static_cast<uint8_t>(alpha)), backward = xrgb(run, static_cast<uint8_t>(alpha));
        Memory dst(8);
        bgra_to_2vuy(forward.data(), dst.data(), 4);
        EXPECT_EQ(dst, bgra_run(run));
        argb_to_2vuy(backward.data(), dst.data(), 4);
        EXPECT_EQ(dst, bgra_run(run));
        hd_rgb_to_2vuy(forward.data(), dst.data(), 4, 1);
        EXPECT_EQ(dst, hd_run(run));
        hd_rgb_to_2vuy(backward.data(), dst.data(), 4, 0);
        EXPECT_EQ(dst, hd_run(run));
        tntvt_rgb32_2vuy(dst.data(), 0, forward.data(), 0, 2, 2);
        EXPECT_EQ(dst, bgra_run(run));
    }
}

TEST(RgbTo2vuy, even_pixel_weighs_two_and_odd_pixel_one_on_either_side)
{
    EXPECT_EQ(bgra_run({black, blue, black, black, black, black}),
              (Memory{155, 16, 123, 40, 155, 16, 123, 16, 128, 16, 128, 16}));
    EXPECT_EQ(bgra_run({black, black, blue, black, black, black}),
              (Memory{128, 16, 128, 16, 183, 40, 118, 16, 128, 16, 128, 16}));
    EXPECT_EQ(hd_run({black, red, black, black, black, black}),
              (Memory{121, 0, 160, 54, 121, 0, 160, 0, 128, 0, 128, 0}));
    EXPECT_EQ(hd_run({black, black, red, black, black, black}),
              (Memory{128, 0, 128, 0, 113, 54, 192, 0, 128, 0, 128, 0}));
}

// With the carried chroma cut or rounded to a whole number the fifth and the seventh byte are one less.
TEST(RgbTo2vuy, chroma_is_carried_unrounded)
{
    EXPECT_EQ(bgra_run({{174, 176, 12}, {56, 30, 99}, {112, 191, 113}, {30, 151, 80}}),
              (Memory{98, 150, 135, 55, 120, 152, 103, 107}));
    EXPECT_EQ(hd_run({{45, 96, 16}, {102, 115, 62}, {210, 74, 175}, {56, 193, 188}}),
              (Memory{105, 79, 116, 108, 143, 110, 142, 163}));
}

// The double sum of a grey falls a hair under 128 in these levels, in one chroma or the other.
TEST(Quirks, keeps_truncation_of_grey)
{
    EXPECT_EQ(bgra_run({grey(235), grey(235), grey(235), grey(235), grey(235), grey(235)}),
              (Memory{128, 217, 128, 217, 127, 217, 128, 217, 127, 217, 128, 217}));

    const std::vector<int> low_cb{114, 146, 153, 158, 160, 162, 163, 165, 172, 175, 177, 181, 182, 184, 186,
                                  187, 189, 196, 199, 201, 204, 205, 206, 208, 211, 216, 220, 222, 223, 225,
                                  228, 229, 230, 234, 235, 237, 240, 243, 244, 245, 247, 249, 252, 253, 254};
    const std::vector<int> low_cr{114, 146, 153, 165, 170, 175, 189, 191, 194, 196,
                                  199, 215, 216, 218, 223, 228, 242, 244, 245, 247};
    for (const auto& run_through : {argb_run, bgra_run}) {
        std::vector<int> cb_at_127, cr_at_127;
        int either = 0;
        for (int level = 0; level < 256; ++level) {
            const Memory groups = run_through({grey(level), grey(level), grey(level), grey(level)});
            const int cb = groups[4], cr = groups[6];
            EXPECT_TRUE(cb == 127 || cb == 128) << level;
            EXPECT_TRUE(cr == 127 || cr == 128) << level;
            if (cb == 127) cb_at_127.push_back(level);
            if (cr == 127) cr_at_127.push_back(level);
            either += cb == 127 || cr == 127;
        }
        EXPECT_EQ(either, 51);
        EXPECT_EQ(cb_at_127, low_cb);
        EXPECT_EQ(cr_at_127, low_cr);
    }
}

TEST(Quirks, keeps_wrap_of_pure_blue_and_red)
{
    EXPECT_EQ(hd_run(six(blue)), (Memory{224, 18, 119, 18, 0, 18, 116, 18, 0, 18, 116, 18}));
    EXPECT_EQ(hd_run(six(red)), (Memory{106, 54, 224, 54, 99, 54, 0, 54, 99, 54, 0, 54}));
}

// From a start of 128.5 the first group would be 174, 74, 93, 74.
TEST(Quirks, keeps_chroma_start_without_half)
{
    EXPECT_EQ(hd_run({{0, 85, 187}, {0, 85, 187}}), (Memory{173, 74, 92, 74}));
}

}  // namespace
}  // namespace tintvert::test
