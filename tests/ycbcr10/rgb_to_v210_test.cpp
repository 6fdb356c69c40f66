#include <gtest/gtest.h>
#include <tintvert.h>

#include <array>
#include <cstddef>
#include <vector>

namespace {

using Words = std::vector<unsigned int>;

unsigned int word(unsigned int low, unsigned int middle, unsigned int top) { return low | middle << 10 | top << 20; }

// Pixels of B, G, R, alpha.
std::vector<unsigned char> pixels(size_t count, std::array<unsigned char, 3> bgr)
{
    std::vector<unsigned char> result;
    for (size_t i = 0; i < count; ++i) result.insert(result.end(), {bgr[0], bgr[1], bgr[2], 0xA5});
    return result;
}

// One group of one colour with the same chroma in all three places.
Words flat(unsigned int cb, unsigned int y, unsigned int cr)
{
    return {word(cb, y, cr), word(y, cb, y), word(cr, y, cb), word(y, cr, y)};
}

TEST(BgraToV210, keeps_8_bit_excursion)
{
    Words dst(4);
    bgra_to_v210(pixels(6, {255, 255, 255}).data(), dst.data(), 6);
    EXPECT_EQ(dst, flat(512, 283, 512));
    bgra_to_v210(pixels(6, {0, 0, 0}).data(), dst.data(), 6);
    EXPECT_EQ(dst, flat(512, 64, 512));
    bgra_to_v210(pixels(6, {255, 0, 0}).data(), dst.data(), 6);
    EXPECT_EQ(dst[1] >> 10 & 1023, 623u);  // Cb2
    bgra_to_v210(pixels(6, {0, 0, 255}).data(), dst.data(), 6);
    EXPECT_EQ(dst[2] & 1023, 623u);  // Cr2
}

TEST(BgraToV210, writes_a_whole_group_for_one_pixel)
{
    Words dst(5, 0xEEEEEEEE);
    bgra_to_v210(pixels(6, {0, 0, 0}).data(), dst.data(), 1);
    Words expected = flat(512, 64, 512);
    expected.push_back(0xEEEEEEEE);
    EXPECT_EQ(dst, expected);
    bgra_to_v210(nullptr, dst.data(), 0);
    EXPECT_EQ(dst, expected);
}

TEST(ArgbToV210, keeps_chroma_start_of_512)
{
    std::vector<unsigned char> src(24, 255), black(24, 0);
    Words dst(4);
    argb_to_v210(src.data(), dst.data(), 6, 1);
    EXPECT_EQ(dst, (Words{word(896, 940, 896), word(940, 512, 940), word(512, 940, 512), word(940, 512, 940)}));
    argb_to_v210(black.data(), dst.data(), 6, 0);
    EXPECT_EQ(dst, (Words{word(896, 64, 896), word(64, 512, 64), word(512, 64, 512), word(64, 512, 64)}));
}

// Bit 10 of Cb is or-ed into bit 0 of the Y0 field. Pure blue, Cb 1232, has luma 163 and that bit already;
// B 251, Cb 1227, has luma 162 and reads 163.
TEST(ArgbToV210, keeps_overflow_into_next_field)
{
    for (const auto& [blue, cb, y0] : {std::array{255u, 1232u, 163u}, {251u, 1227u, 163u}}) {
        std::vector<unsigned char> argb(24, 0), rgb(18, 0);
        for (size_t i = 0; i < 6; ++i) argb[4 * i + 3] = rgb[3 * i + 2] = static_cast<unsigned char>(blue);
        Words dst(4), without_alpha(4);
        argb_to_v210(argb.data(), dst.data(), 6, 1);
        argb_to_v210(rgb.data(), without_alpha.data(), 6, 0);
        EXPECT_EQ(dst, without_alpha);
        EXPECT_EQ(dst[0] & 1023, cb - 1024);
        EXPECT_EQ(dst[0] >> 10 & 1023, y0);
    }
}

// The Cb of blue is 959.9993 in the one matrix and 623.9998 in the other.
TEST(ArgbToV210, keeps_half_before_truncation)
{
    std::vector<unsigned char> rgb(18, 0);
    for (size_t i = 2; i < rgb.size(); i += 3) rgb[i] = 255;
    Words video(4), narrow(4);
    argb_to_v210(rgb.data(), video.data(), 6, 0);
    bgra_to_v210(pixels(6, {255, 0, 0}).data(), narrow.data(), 6);
    EXPECT_EQ(video[1] >> 10 & 1023, 960u);
    EXPECT_EQ(narrow[1] >> 10 & 1023, 623u);
}

TEST(Rgb32V210, keeps_matrix_change_at_962)
{
    const auto luma_of_white = [](long width) {
        std::vector<unsigned char> src = pixels(972, {255, 255, 255});
        Words dst(1024);
        tntvt_rgb32_v210(dst.data(), 0, src.data(), 0, width, 1);
        return dst[1] & 1023;
    };
    EXPECT_EQ(luma_of_white(961), 283u);
    EXPECT_EQ(luma_of_white(962), 318u);
    Words dst(1024);
    tntvt_rgb32_v210(dst.data(), 0, pixels(972, {255, 0, 0}).data(), 0, 962, 1);
    EXPECT_EQ(dst[1] >> 10 & 1023, 639u);
}

// Line 0 is blue and line 1 black: the first sample of line 1 takes blue for its previous pixel.
TEST(Rgb32V210, keeps_chroma_across_lines)
{
    std::vector<unsigned char> src = pixels(6, {255, 0, 0}), black = pixels(6, {0, 0, 0});
    src.insert(src.end(), black.begin(), black.end());
    Words dst(64);
    tntvt_rgb32_v210(dst.data(), 0, src.data(), 0, 6, 2);
    EXPECT_EQ(dst[0] & 1023, 595u);   // 512, then 623.998 three times
    EXPECT_EQ(dst[32] & 1023, 539u);  // 623.998, then 512 three times
    EXPECT_EQ(dst[33] >> 10 & 1023, 512u);
}

// 1280 is 213 groups and 2 pixels: lines of three get 214, 213 and 213 groups.
TEST(Rgb32V210, keeps_groups_across_lines)
{
    constexpr size_t width = 1280, lines = 4, line_words = 3456 / 4;
    std::vector<unsigned char> src = pixels(width * lines + 6, {0, 0, 0});
    for (size_t line = 0; line < lines; ++line) src[line * width * 4] = src[line * width * 4 + 1] = 255;
    Words dst(line_words * lines, 0xEEEEEEEE);
    tntvt_rgb32_v210(dst.data(), 0, src.data(), 0, width, lines);
    const size_t groups[] = {214, 213, 213, 214};
    for (size_t line = 0; line < lines; ++line) {
        const unsigned int* words = dst.data() + line * line_words;
        EXPECT_GT(words[0] >> 10 & 1023, 64u) << line;  // the line's own first pixel is first
        EXPECT_NE(words[groups[line] * 4 - 1], 0xEEEEEEEE) << line;
        EXPECT_EQ(words[groups[line] * 4], 0xEEEEEEEE) << line;
    }
}

// Counters 0, 6 and 12 are in lines 0, 1 and 3 of a `width` of 4; line 2 is skipped.
TEST(Rgb32V210, skips_lines_below_a_width_of_6)
{
    Words dst(16, 0xEEEEEEEE);
    tntvt_rgb32_v210(dst.data(), 16, pixels(24, {0, 0, 0}).data(), 0, 4, 4);
    Words expected;
    for (const bool written : {true, true, false, true}) {
        const Words line = written ? flat(512, 64, 512) : Words(4, 0xEEEEEEEE);
        expected.insert(expected.end(), line.begin(), line.end());
    }
    EXPECT_EQ(dst, expected);
}

TEST(Rgb32V210, leaves_empty_frames_alone)
{
    tntvt_rgb32_v210(nullptr, 0, nullptr, 0, 0, 5);
    tntvt_rgb32_v210(nullptr, 0, nullptr, 0, 5, 0);
    tntvt_rgb32_v210(nullptr, 0, nullptr, 0, 5, -1);
    tntvt_rgb32_v210(nullptr, 0, nullptr, 0, 65536, 65536);
}

}  // namespace
