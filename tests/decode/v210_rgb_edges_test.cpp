// `v210` to RGB by the 8-bit tables: bytes in, bytes out.
#include <gtest/gtest.h>
#include <tintvert.h>

#include <climits>
#include <csignal>

#include "support/sanitized.h"
#include "support/v210.h"

namespace tintvert::test {
namespace {

struct Geometry {
    long dstStride, srcStride, width, height, scale;
};

using Decoder = void (*)(void*, long, void*, long, long, long, long);

Memory decode(Decoder decoder, Memory src, size_t bytes, const Geometry& g)
{
    Memory dst(bytes, 0xEE);
    decoder(dst.data(), g.dstStride, src.data(), g.srcStride, g.width, g.height, g.scale);
    return dst;
}

Memory rgb24(const Memory& src, size_t bytes, const Geometry& g) { return decode(tntvt_v210_rgb24, src, bytes, g); }
Memory rgb16(const Memory& src, size_t bytes, const Geometry& g) { return decode(tntvt_v210_rgb16, src, bytes, g); }

// Red, green and blue as the first pixels of three pairs, each at another place in the words. The second
// lumas are 16, 255 and 235.
const Memory primaries = v210({360, 324, 960, 67, 216, 580, 136, 1023, 960, 164, 440, 940});

TEST(V210Rgb24Edges, each_pair_of_a_group_has_its_own_chroma)
{
    EXPECT_EQ(rgb24(primaries, 20, {18, 16, 6, 1, 1}),
              (Memory{0, 0, 254, 0, 0, 178, 0, 255, 0, 129, 255, 128, 254, 0, 0, 255, 225, 226, 0xEE, 0xEE}));
    EXPECT_EQ(rgb24(primaries, 10, {9, 16, 6, 2, 2}), (Memory{0, 0, 254, 0, 255, 0, 254, 0, 0, 0xEE}));
    EXPECT_EQ(rgb24(primaries, 16, {12, 16, 6, 2, 2}),
              (Memory{0, 0, 254, 255, 0, 255, 0, 255, 254, 0, 0, 255, 0xEE, 0xEE, 0xEE, 0xEE}));
}

TEST(V210Rgb24Edges, two_low_bits_are_dropped)
{
    const Memory plain = rgb24(primaries, 18, {18, 16, 6, 1, 1});
    for (const uint32_t low : {1u, 2u, 3u})
        EXPECT_EQ(rgb24(v210({360 + low, 324 + low, 960 + low, 64 + low, 216 + low, 580 + low, 136 + low, 1020 + low,
                              960 + low, 164 + low, 440 + low, 940 + low}),
                        18, {18, 16, 6, 1, 1}),
                  plain);
    EXPECT_NE(rgb24(v210({360, 328, 960, 64, 216, 580, 136, 1020, 960, 164, 440, 940}), 18, {18, 16, 6, 1, 1}), plain);
}

TEST(V210Rgb24Edges, bits_30_and_31_are_not_read)
{
    Memory marked = primaries;
    for (size_t word = 0; word < 4; ++word) marked[4 * word + 3] |= 0xC0;
    for (const long scale : {1L, 2L, 4L}) {
        const Geometry g{18, 16, 6, scale, scale};
        EXPECT_EQ(rgb24(marked, 24, g), rgb24(primaries, 24, g));
        EXPECT_EQ(rgb16(marked, 24, g), rgb16(primaries, 24, g));
    }
}

const Memory white = v210({512, 940, 512, 940, 512, 940, 512, 940, 512, 940, 512, 940});
const Memory black = v210({512, 64, 512, 64, 512, 64, 512, 64, 512, 64, 512, 64});
const Memory grey = v210({512, 512, 512, 512, 512, 512, 512, 512, 512, 512, 512, 512});

TEST(V210Rgb24Edges, neutral_chroma)
{
    EXPECT_EQ(rgb24(white, 3, {6, 16, 1, 1, 2}), Memory(3, 0xEE));  // one line of two: none
    EXPECT_EQ(rgb24(white, 6, {6, 16, 2, 1, 1}), Memory(6, 254));
    EXPECT_EQ(rgb24(black, 6, {6, 16, 2, 1, 1}), Memory(6, 0));
    EXPECT_EQ(rgb24(grey, 6, {6, 16, 2, 1, 1}), Memory(6, 130));
}

// Three pairs of a group, then the first of the next.
TEST(V210Rgb24Edges, width_7_writes_8_pixels)
{
    EXPECT_EQ(rgb24(white + black, 26, {21, 32, 7, 1, 1}), Memory(18, 254) + Memory(6, 0) + Memory(2, 0xEE));
    EXPECT_EQ(rgb24(white + black, 18, {18, 32, 5, 1, 1}), Memory(18, 254));
}

// Pairs 0, 2, 4 and 6: the pointer steps over one pair each time, which may end a group.
TEST(V210Rgb24Edges, scale_4_stays_in_step_with_the_groups)
{
    const Memory src = v210({512, 64, 512, 940, 512, 940, 512, 940, 512, 512, 512, 940}) +
                       v210({512, 940, 512, 940, 512, 940, 512, 0, 512, 940, 512, 0}) + black;
    EXPECT_EQ(rgb24(src, 10, {9, 0, 12, 4, 4}), (Memory{0, 0, 0, 130, 130, 130, 254, 254, 254, 0xEE}));
    EXPECT_EQ(rgb24(src, 13, {9, 0, 13, 4, 4}), (Memory{0, 0, 0, 130, 130, 130, 254, 254, 254, 0, 0, 0, 0xEE}));
}

// The limit is the width itself; tntvt_yuv422_rgb24 halves it at this scale.
TEST(V210Rgb24Edges, pixels_a_line)
{
    const size_t at_1[] = {0, 2, 2, 4, 4, 6, 6, 8, 8, 10, 10, 12, 12, 14};
    const size_t at_2[] = {0, 1, 1, 2, 2, 3, 3, 4, 4, 5, 5, 6, 6, 7};
    const size_t at_4[] = {0, 1, 1, 1, 1, 2, 2, 2, 2, 3, 3, 3, 3, 4};
    const Memory src = 4 * grey;
    for (size_t width = 0; width < 14; ++width) {
        for (const long scale : {1L, 2L, 3L, 4L, 5L}) {
            const size_t pixels = scale == 2 ? at_2[width] : scale == 4 ? at_4[width] : at_1[width];
            const Geometry wide{1000, 0, static_cast<long>(width), scale, scale};
            Geometry narrow = wide;
            narrow.dstStride = -1;
            const auto pixels_of = [&](const Memory& pixel) {
                return pixels * pixel + Memory(60 - pixels * pixel.size(), 0xEE);
            };
            EXPECT_EQ(rgb24(src, 60, wide), pixels_of({130, 130, 130, 255}));
            EXPECT_EQ(rgb24(src, 60, narrow), pixels_of(Memory(3, 130)));
            EXPECT_EQ(rgb16(src, 60, wide), pixels_of({0x10, 0x42}));
        }
    }
}

TEST(V210Rgb24Edges, form_by_the_reduced_width)
{
    const auto fourth_byte = [](long dstStride, long width, long scale) {
        return rgb24(2 * grey, 60, {dstStride, 0, width, scale, scale})[3];
    };
    EXPECT_EQ(fourth_byte(18, 6, 1), 130);
    EXPECT_EQ(fourth_byte(23, 6, 1), 130);
    EXPECT_EQ(fourth_byte(24, 6, 1), 255);
    EXPECT_EQ(fourth_byte(11, 7, 2), 130);
    EXPECT_EQ(fourth_byte(12, 7, 2), 255);
    EXPECT_EQ(fourth_byte(7, 11, 4), 130);
    EXPECT_EQ(fourth_byte(8, 11, 4), 255);
    EXPECT_EQ(fourth_byte(7, 8, 3), 130);
    EXPECT_EQ(fourth_byte(8, 8, 3), 255);
}

// Every second, third or fourth line; a group of lines that is not whole yields none.
TEST(V210Rgb24Edges, lines_by_scale)
{
    const Memory src = white + grey + black + white + grey + black + white + grey;
    const auto lines = [&](long height, long scale) {
        const Memory dst = rgb24(src, 180, {20, 16, 2, height, scale});
        Memory first;
        for (size_t line = 0; dst[20 * line] != 0xEE; ++line) first.push_back(dst[20 * line]);
        return first;
    };
    EXPECT_EQ(lines(3, 1), (Memory{254, 130, 0}));
    EXPECT_EQ(lines(3, 2), Memory{254});
    EXPECT_EQ(lines(8, 2), (Memory{254, 0, 130, 254}));
    EXPECT_EQ(lines(3, 4), Memory{});
    EXPECT_EQ(lines(8, 4), (Memory{254, 130}));
    EXPECT_EQ(lines(8, 3), (Memory{254, 254}));
    EXPECT_EQ(lines(-3, 1), Memory{});
}

TEST(V210Rgb24Edges, strides_of_either_sign)
{
    Memory src = white + grey + black, dst(21, 0xEE);
    tntvt_v210_rgb24(dst.data() + 14, -7, src.data() + 32, -16, 2, 3, 1);
    EXPECT_EQ(dst, 6 * Memory{254} + Memory{0xEE} + 6 * Memory{130} + Memory{0xEE} + 6 * Memory{0} + Memory{0xEE});
}

TEST(V210Rgb24Edges, no_work_touches_no_memory)
{
    for (const Decoder decoder : {tntvt_v210_rgb24, tntvt_v210_rgb16}) {
        for (const long scale : {1L, 2L, 3L, 4L, LONG_MAX}) {
            for (const long height : {0L, -1L, -8L, scale - 1, LONG_MIN})
                decoder(nullptr, 16, nullptr, 16, 4, height, scale);
            for (const long width : {0L, -1L, -8L}) decoder(nullptr, 16, nullptr, 16, width, 8, scale);
        }
    }
}

TEST(V210Rgb24EdgesDeathTest, scale_0_divides_by_zero)
{
    if (sanitized) GTEST_SKIP() << "sanitizers report the division in their own way";
    Memory src = white, dst(16);
    const auto decode_at_0 = [&](long width, long height) {
        tntvt_v210_rgb24(dst.data(), 16, src.data(), 16, width, height, 0);
    };
    EXPECT_EXIT(decode_at_0(2, 1), testing::KilledBySignal(SIGFPE), "");
    EXPECT_EXIT(decode_at_0(2, 0), testing::KilledBySignal(SIGFPE), "");
    EXPECT_EXIT(decode_at_0(0, 0), testing::KilledBySignal(SIGFPE), "");
}

// Red in bits 14 to 10, green in 9 to 5, blue in 4 to 0, the low byte first; Y1 changes nothing.
TEST(V210Rgb16Edges, words_of_the_primaries)
{
    EXPECT_EQ(rgb16(primaries, 14, {12, 16, 6, 1, 1}),
              (Memory{0x00, 0x7C, 0x00, 0x7C, 0xE0, 0x03, 0xE0, 0x03, 0x1F, 0x00, 0x1F, 0x00, 0xEE, 0xEE}));
    EXPECT_EQ(rgb16(primaries, 8, {12, 16, 6, 2, 2}), (Memory{0x00, 0x7C, 0xE0, 0x03, 0x1F, 0x00, 0xEE, 0xEE}));
    EXPECT_EQ(rgb16(primaries, 6, {12, 16, 6, 4, 4}), (Memory{0x00, 0x7C, 0x1F, 0x00, 0xEE, 0xEE}));
    EXPECT_EQ(rgb16(white, 6, {12, 16, 1, 1, 1}), (Memory{0xFF, 0x7F, 0xFF, 0x7F, 0xEE, 0xEE}));
}

TEST(V210Rgb16Edges, scale_0_counts_as_1)
{
    const Memory src = white + black + grey;
    for (const long scale : {0L, 1L})
        EXPECT_EQ(rgb16(src, 13, {4, 16, 2, 3, scale}),
                  (Memory{0xFF, 0x7F, 0xFF, 0x7F, 0, 0, 0, 0, 0x10, 0x42, 0x10, 0x42, 0xEE}));
    EXPECT_EQ(rgb16(src, 4, {4, 16, 2, 0, 0}), Memory(4, 0xEE));
}

TEST(V210Rgb16Edges, lines_by_scale_in_their_order)
{
    const Memory src = white + grey + black + grey + grey + white;
    EXPECT_EQ(rgb16(src, 7, {2, 16, 2, 6, 2}), (Memory{0xFF, 0x7F, 0, 0, 0x10, 0x42, 0xEE}));
    EXPECT_EQ(rgb16(src, 9, {4, 16, 2, 6, 3}), (Memory{0xFF, 0x7F, 0xFF, 0x7F, 0x10, 0x42, 0x10, 0x42, 0xEE}));
    EXPECT_EQ(rgb16(src, 3, {2, 16, 2, 5, 4}), (Memory{0xFF, 0x7F, 0xEE}));
}

}  // namespace
}  // namespace tintvert::test
