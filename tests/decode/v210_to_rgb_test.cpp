#include <gtest/gtest.h>
#include <tintvert.h>

#include <vector>

namespace {

using Bytes = std::vector<unsigned char>;
using Words = std::vector<unsigned int>;

Words flat(unsigned int cb, unsigned int y, unsigned int cr, size_t groups = 1)
{
    Words words;
    for (size_t i = 0; i < groups; ++i) {
        words.push_back(cb | y << 10 | cr << 20);
        words.push_back(y | cb << 10 | y << 20);
        words.push_back(cr | y << 10 | cb << 20);
        words.push_back(y | cr << 10 | y << 20);
    }
    return words;
}

Bytes first_pixel(Words src, int bgra)
{
    Bytes dst(24);
    _v210_to_rgb(src.data(), dst.data(), 6, 1, 24, bgra);
    dst.resize(4);
    return dst;
}

TEST(V210ToRgb, keeps_254_for_white)
{
    EXPECT_EQ(first_pixel(flat(512, 940, 512), 1), (Bytes{254, 254, 254, 255}));
    EXPECT_EQ(first_pixel(flat(512, 64, 512), 1), (Bytes{0, 0, 0, 255}));
}

// 17866 + 16492 is 34358, 536 after the shift. Codes of 0 go through the negative halves of the tables:
// green is -1192 + 3209 + 6659 = 8676, 135 after the shift.
TEST(V210ToRgb, clips_at_both_ends)
{
    EXPECT_EQ(first_pixel(flat(1023, 1023, 512), 1), (Bytes{255, 229, 255, 255}));
    EXPECT_EQ(first_pixel(flat(0, 0, 0), 1), (Bytes{0, 135, 0, 255}));
    EXPECT_EQ(first_pixel(flat(0, 0, 0), 0), (Bytes{255, 0, 135, 0}));
    EXPECT_EQ(first_pixel(flat(512, 940, 1023), 0), (Bytes{255, 255, 151, 254}));
}

// Three lines of 8 pixels are four groups. The third line would begin at 80; the output stays with the run.
TEST(V210ToRgb, keeps_stride_at_common_multiples)
{
    Words src = flat(512, 940, 512, 8);
    Bytes dst(8 * 4 * 3 + 3 * 40 + 24, 0xEE);
    _v210_to_rgb(src.data(), dst.data(), 8, 6, 40, 1);
    for (size_t i = 0; i < dst.size(); ++i) {
        const bool written = i < 96 || (i >= 120 && i < 216);
        EXPECT_EQ(dst[i] != 0xEE, written) << i;
    }
}

TEST(V210ToRgb, keeps_whole_last_group)
{
    Words src = flat(512, 940, 512, 2);
    Bytes dst(56, 0xEE);
    _v210_to_rgb(src.data(), dst.data(), 7, 1, 28, 1);
    EXPECT_EQ(dst[47], 255);
    EXPECT_EQ(dst[48], 0xEE);
}

TEST(V210ToRgb, leaves_empty_frames_alone)
{
    _v210_to_rgb(nullptr, nullptr, 0, 5, 0, 1);
    _v210_to_rgb(nullptr, nullptr, 5, 0, 0, 1);
    _v210_to_rgb(nullptr, nullptr, 5, -1, 0, 1);
}

TEST(V210Group, splits_into_twelve_samples)
{
    Words src{0xC0000000u | 1u | 2u << 10 | 3u << 20, 4u | 5u << 10 | 6u << 20, 7u | 8u << 10 | 9u << 20,
              10u | 11u << 10 | 1023u << 20};
    v210FourWords out;
    EXPECT_EQ(_v210_get_next_4words(src.data(), &out), src.data() + 4);
    EXPECT_EQ((std::vector{out.Cb0, out.Y0, out.Cr0, out.Y1, out.Cb2, out.Y2}),
              (std::vector<uint16_t>{1, 2, 3, 4, 5, 6}));
    EXPECT_EQ((std::vector{out.Cr2, out.Y3, out.Cb4, out.Y4, out.Cr4, out.Y5}),
              (std::vector<uint16_t>{7, 8, 9, 10, 11, 1023}));
}

}  // namespace
