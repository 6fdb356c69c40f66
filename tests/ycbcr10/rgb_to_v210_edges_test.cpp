// RGB to `v210`: bytes in, bytes out.
#include <gtest/gtest.h>
#include <tintvert.h>

#include <array>
#include <climits>

#include "support/v210.h"

namespace tintvert::test {
namespace {

using Pixel = std::array<uint8_t, 3>;  // R, G, B
constexpr Pixel black{0, 0, 0}, white{255, 255, 255}, red{255, 0, 0}, green{0, 255, 0}, blue{0, 0, 255},
    grey{128, 128, 128}, mixed{10, 200, 30};

// Bytes that are not to be read are 0x5A.
Memory bgra(size_t count, Pixel p) { return count * Memory{p[2], p[1], p[0], 0x5A}; }
Memory argb(size_t count, Pixel p) { return count * Memory{0x5A, p[0], p[1], p[2]}; }
Memory rgb(size_t count, Pixel p) { return count * Memory{p[0], p[1], p[2]}; }

Memory bytes_of(const std::vector<uint32_t>& words)
{
    const auto* const bytes = reinterpret_cast<const uint8_t*>(words.data());
    return {bytes, bytes + 4 * words.size()};
}

Memory from_bgra(Memory src, size_t words, int width)
{
    std::vector<uint32_t> dst(words, 0xEEEEEEEE);
    bgra_to_v210(src.data(), dst.data(), width);
    return bytes_of(dst);
}

Memory from_argb(Memory src, size_t words, int width, int hasAlpha)
{
    std::vector<uint32_t> dst(words, 0xEEEEEEEE);
    argb_to_v210(src.data(), dst.data(), width, hasAlpha);
    return bytes_of(dst);
}

// Four words of one colour that has gone before, but for the first Cb and Cr.
Memory group(uint32_t first_cb, uint32_t first_cr, uint32_t cb, uint32_t y, uint32_t cr)
{
    return v210({first_cb, y, first_cr, y, cb, y, cr, y, cb, y, cr, y});
}
Memory group(uint32_t cb, uint32_t y, uint32_t cr) { return group(cb, cr, cb, y, cr); }

// The first Cb of blue is (512 + 3 x 623.998) / 4, that of red (512 + 3 x 474.203) / 4.
TEST(BgraToV210Edges, flat_colours)
{
    EXPECT_EQ(from_bgra(bgra(6, white), 4, 6), group(512, 283, 512));
    EXPECT_EQ(from_bgra(bgra(6, black), 4, 6), group(512, 64, 512));
    EXPECT_EQ(from_bgra(bgra(6, grey), 4, 6), group(512, 173, 512));
    EXPECT_EQ(from_bgra(bgra(6, blue), 4, 6), group(595, 498, 623, 88, 493));
    EXPECT_EQ(from_bgra(bgra(6, red), 4, 6), group(483, 595, 474, 129, 623));
    EXPECT_EQ(from_bgra(bgra(6, green), 4, 6), group(456, 441, 437, 192, 418));
    EXPECT_EQ(from_bgra(bgra(6, mixed), 4, 6), group(477, 458, 465, 170, 440));
}

Memory flat_argb(Pixel pixel)
{
    const Memory with_alpha = from_argb(argb(12, pixel), 8, 12, 1);
    EXPECT_EQ(from_argb(rgb(12, pixel), 8, 12, 0), with_alpha);
    for (const int any : {-1, 2, 256, INT_MIN}) EXPECT_EQ(from_argb(argb(12, pixel), 8, 12, any), with_alpha);
    return with_alpha;
}

TEST(ArgbToV210Edges, flat_colours)
{
    EXPECT_EQ(flat_argb(white), group(896, 896, 512, 940, 512) + group(512, 940, 512));
    EXPECT_EQ(flat_argb(black), group(896, 896, 512, 64, 512) + group(512, 64, 512));
    EXPECT_EQ(flat_argb(grey), group(896, 896, 512, 503, 512) + group(512, 503, 512));
    EXPECT_EQ(flat_argb(green), group(673, 615, 215, 578, 137) + group(215, 578, 137));
    EXPECT_EQ(flat_argb(mixed), group(756, 682, 326, 489, 227) + group(326, 489, 227));
}

// Cb 1232 has bit 10, which is bit 0 of Y0: luma 163 has it already, and luma 162 of a blue of 251 has not.
// Cr 1232 has it at bit 30 of the word.
TEST(ArgbToV210Edges, first_sample_overflows)
{
    EXPECT_EQ(flat_argb(blue), group(1232 - 1024, 841, 960, 163, 439) + group(960, 163, 439));
    Memory first = group(1227 - 1024, 842, 953, 162, 440);
    first[1] |= 4;
    EXPECT_EQ(flat_argb({0, 0, 251}), first + group(953, 162, 440));
    first = group(783, 1232 - 1024, 361, 325, 960);
    first[3] |= 0x40;
    EXPECT_EQ(flat_argb(red), first + group(361, 325, 960));
}

// One blue pixel of Cb 623.998 and Cr 493.786 among black ones: half of it where it is the centre, a quarter in
// the samples beside it, the one of the next group included.
TEST(BgraToV210Edges, filter_spans_three_pixels)
{
    constexpr uint32_t quarter_cb = 539, half_cb = 567, quarter_cr = 507, half_cr = 502;
    for (size_t place = 0; place < 12; ++place) {
        const Memory src = bgra(place, black) + bgra(1, blue) + bgra(11 - place, black);
        std::array<uint32_t, 28> n{};
        for (size_t i = 0; i < 24; ++i) n[i] = i % 2 == 1 ? 64 : 512;
        n[2 * place + 1] = 88;
        if (place % 2 == 0) {
            n[2 * place] = half_cb;
            n[2 * place + 2] = half_cr;
        } else {
            n[2 * place - 2] = n[2 * place + 2] = quarter_cb;
            n[2 * place] = n[2 * place + 4] = quarter_cr;
        }
        Memory expected;
        for (size_t i = 0; i < 24; i += 3) expected = expected + v210({n[i], n[i + 1], n[i + 2]});
        EXPECT_EQ(from_bgra(src, 8, 12), expected) << place;
    }
}

TEST(LinesToV210Edges, run_whole_groups)
{
    const Memory untouched(4, 0xEE), of_black = group(512, 64, 512);
    for (int width = 1; width <= 18; ++width) {
        const auto groups = static_cast<size_t>((width + 5) / 6);
        EXPECT_EQ(from_bgra(bgra(18, black), groups * 4 + 1, width), groups * of_black + untouched) << width;
        const Memory later = (groups - 1) * of_black;
        for (const int alpha : {0, 1})
            EXPECT_EQ(from_argb(argb(18, black), groups * 4 + 1, width, alpha).size(), groups * 16 + 4);
        EXPECT_EQ(from_argb(rgb(18, black), groups * 4 + 1, width, 0),
                  group(896, 896, 512, 64, 512) + later + untouched);
    }
    for (const int width : {0, -1, -6, INT_MIN}) {
        bgra_to_v210(nullptr, nullptr, width);
        argb_to_v210(nullptr, nullptr, width, 0);
        argb_to_v210(nullptr, nullptr, width, 1);
    }
}

struct Strides {
    long dst, src;
};

Memory from_frame(Memory src, size_t bytes, Strides strides, long width, long height)
{
    Memory dst(bytes, 0xEE);
    tntvt_rgb32_v210(dst.data(), strides.dst, src.data(), strides.src, width, height);
    return dst;
}

const Memory gap(1, 0xEE);

TEST(Rgb32V210Edges, narrow_frames_are_encoded_as_lines)
{
    for (const Pixel pixel : {white, black, grey, red, green, blue, mixed})
        EXPECT_EQ(from_frame(bgra(6, pixel), 17, {16, 24}, 6, 1), from_bgra(bgra(6, pixel), 4, 6) + gap);
}

// 962 pixels are 161 groups. White is 318, and blue has Cb 639.5.
TEST(Rgb32V210Edges, simd_frames_have_the_other_weights)
{
    const auto wide = [](Pixel pixel) { return from_frame(bgra(966, pixel), 161 * 16 + 1, {1, 1}, 962, 1); };
    const auto line = [](uint32_t first_cb, uint32_t first_cr, uint32_t cb, uint32_t y, uint32_t cr) {
        return group(first_cb, first_cr, cb, y, cr) + 160 * group(cb, y, cr) + gap;
    };
    EXPECT_EQ(wide(white), line(512, 512, 512, 318, 512));
    EXPECT_EQ(wide(black), line(512, 512, 512, 64, 512));
    EXPECT_EQ(wide(grey), line(512, 512, 512, 191, 512));
    EXPECT_EQ(wide(blue), line(607, 503, 639, 82, 500));
    EXPECT_EQ(wide(red), line(490, 607, 482, 118, 639));
    EXPECT_EQ(wide(green), line(438, 425, 413, 246, 396));
    EXPECT_EQ(wide(mixed), line(464, 446, 448, 211, 424));
}

TEST(Rgb32V210Edges, one_colour_has_one_chroma_but_for_the_first_sample)
{
    const Memory dst = from_frame(bgra(24, mixed), 64, {16, 24}, 6, 4);
    EXPECT_EQ(dst, group(477, 458, 465, 170, 440) + 3 * group(465, 170, 440));
}

TEST(Rgb32V210Edges, default_strides)
{
    for (const auto& [width, line] : {std::pair{6l, 128u}, {48l, 128u}, {54l, 256u}, {96l, 256u}, {102l, 384u}}) {
        const auto pixels = static_cast<size_t>(width), groups = pixels / 6;
        const Memory dst = from_frame(bgra(pixels, white) + bgra(pixels, grey), line + groups * 16, {0, 0}, width, 2);
        EXPECT_EQ(dst, groups * group(512, 283, 512) + Memory(line - groups * 16, 0xEE) + groups * group(512, 173, 512))
            << width;
    }
    // Only 0 has a default.
    const Memory of_1 = from_frame(bgra(6, white) + bgra(6, grey), 20, {1, 24}, 6, 2);
    Memory expected = group(512, 283, 512) + Memory(4, 0xEE);
    const Memory later = group(512, 173, 512);
    std::copy(later.begin(), later.end(), expected.begin() + 1);
    EXPECT_EQ(of_1, expected);
}

TEST(Rgb32V210Edges, strides_of_either_sign)
{
    Memory src = bgra(6, white) + bgra(6, grey) + bgra(6, black), dst(60, 0xEE);
    tntvt_rgb32_v210(dst.data() + 40, -20, src.data() + 48, -24, 6, 3);
    const Memory slack(4, 0xEE);
    EXPECT_EQ(dst, group(512, 283, 512) + slack + group(512, 173, 512) + slack + group(512, 64, 512) + slack);
}

// Four lines of 8 pixels, marked by their luma. The counters 0, 6, 12, 18, 24 and 30 are at the pixels 0 and 6
// of line 0, 4 of line 1, 2 of line 2, and 0 and 6 of line 3. The first of a line is taken from its start.
TEST(Rgb32V210Edges, lines_of_8_pixels)
{
    Memory src;
    for (uint8_t line = 0; line < 4; ++line)
        for (uint8_t pixel = 0; pixel < 16; ++pixel) {
            const auto value = static_cast<uint8_t>(line * 64 + pixel * 4);
            src = src + Memory{value, value, value, 0};
        }
    const auto lumas = [&](size_t from) {  // of six pixels from the pixel at byte `from`
        std::array<uint32_t, 6> y;
        for (size_t i = 0; i < 6; ++i) y[i] = static_cast<uint32_t>(src[from + 4 * i] * 879.436 / 1024 + 64);
        return v210({512, y[0], 512, y[1], 512, y[2], 512, y[3], 512, y[4], 512, y[5]});
    };
    const Memory dst = from_frame(src, 4 * 40, {40, 64}, 8, 4);
    const Memory slack(8, 0xEE), rest(16, 0xEE);
    EXPECT_EQ(dst, lumas(0) + lumas(24) + slack + lumas(64) + rest + slack + lumas(128) + rest + slack + lumas(192) +
                       lumas(216) + slack);
}

// At 1280 the first of three lines reads four pixels past its end; the other two leave their last two out.
TEST(Rgb32V210Edges, lines_of_1280_pixels)
{
    constexpr size_t source_line = 1286 * 4, line = 3500;
    Memory src;
    for (const Pixel pixel : {white, black, grey, white}) src = src + bgra(1280, pixel) + bgra(6, mixed);
    ASSERT_EQ(src.size(), 4 * source_line);
    const Memory dst = from_frame(src, 4 * line, {line, source_line}, 1280, 4);
    for (size_t row = 0; row < 4; ++row) {
        const size_t groups = row % 3 == 0 ? 214 : 213, begin = row * line;
        EXPECT_EQ(
            Memory(dst.begin() + static_cast<long>(begin + groups * 16), dst.begin() + static_cast<long>(begin + line)),
            Memory(line - groups * 16, 0xEE))
            << row;
        const uint32_t y = (std::array{318u, 64u, 191u, 318u})[row];
        const auto luma = [&](size_t pixel) {  // 1023.0 / 1024 of white, and the surplus of line 0
            const size_t sample = pixel * 2 + 1, at = begin + sample / 3 * 4 + sample % 3;
            return (dst[at] + 256u * dst[at + 1]) >> (2 * (sample % 3)) & 1023u;
        };
        EXPECT_EQ(luma(0), y) << row;
        EXPECT_EQ(luma(1277), y) << row;
        if (groups == 214) {
            EXPECT_EQ(luma(1279), y) << row;
            EXPECT_EQ(luma(1280), 211u) << row;
            EXPECT_EQ(luma(1283), 211u) << row;
        }
    }
}

// Below a width of 6 every group starts at its own line: at 5 the counters 0, 6, 12, 18 and 24 are in lines 0
// to 4 and the next is past the end of the frame of 25; at 1 they are in every sixth line.
TEST(Rgb32V210Edges, lines_of_less_than_a_group)
{
    const Memory of_white = group(512, 283, 512), none(16, 0xEE);
    EXPECT_EQ(from_frame(bgra(30, white), 96, {16, 20}, 5, 5), 5 * of_white + none);
    EXPECT_EQ(from_frame(bgra(42, white), 18 * 16, {16, 4}, 1, 18),
              of_white + 5 * none + of_white + 5 * none + of_white + 5 * none);
    EXPECT_EQ(from_frame(bgra(20, white), 48, {16, 8}, 2, 3), of_white + none + none);
}

// The product has 32 bits, and the width itself picks the weights.
TEST(Rgb32V210Edges, size_of_the_frame_wraps)
{
    EXPECT_EQ(from_frame(bgra(6, white), 17, {16, 24}, 0x100000006, 1), group(512, 318, 512) + gap);
    EXPECT_EQ(from_frame(bgra(6, white), 17, {16, 24}, 6, 0x100000001), group(512, 283, 512) + gap);
    for (const auto& [width, height] : {std::pair{0L, 5L},
                                        {5L, 0L},
                                        {5L, -1L},
                                        {-5L, 1L},
                                        {65536L, 65536L},
                                        {65536L, 32768L},
                                        {0L, 0L},
                                        {LONG_MIN, 1L}})
        tntvt_rgb32_v210(nullptr, 0, nullptr, 0, width, height);
}

// -6 x -2 are two groups; the second is at the line that 6 / -6 gives.
TEST(Rgb32V210Edges, two_negative_sizes_are_a_frame)
{
    Memory src = bgra(6, grey) + bgra(6, white), dst(33, 0xEE);
    tntvt_rgb32_v210(dst.data() + 16, 16, src.data() + 24, 24, -6, -2);
    EXPECT_EQ(dst, group(512, 173, 512) + group(512, 283, 512) + gap);
}

}  // namespace
}  // namespace tintvert::test
