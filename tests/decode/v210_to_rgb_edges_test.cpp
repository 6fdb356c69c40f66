// `v210` to RGB by ten bits: bytes in, bytes out.
#include <gtest/gtest.h>
#include <tintvert.h>

#include "support/v210.h"

namespace tintvert::test {
namespace {

// One row of pixels of a call that has `bytes` bytes of 0xEE to write to.
Memory decode(Memory src, size_t bytes, int width, int height, int dstStride, int bgraOrder)
{
    Memory dst(bytes, 0xEE);
    _v210_to_rgb(src.data(), dst.data(), width, height, dstStride, bgraOrder);
    return dst;
}

Memory flat(uint32_t cb, uint32_t y, uint32_t cr) { return v210({cb, y, cr, y, cb, y, cr, y, cb, y, cr, y}); }

Memory pixel_of(uint32_t cb, uint32_t y, uint32_t cr)
{
    Memory dst = decode(flat(cb, y, cr), 24, 6, 1, 24, 1);
    dst.resize(4);
    return dst;
}

TEST(V210ToRgbEdges, neutral_chroma)
{
    EXPECT_EQ(pixel_of(512, 0, 512), (Memory{0, 0, 0, 255}));
    EXPECT_EQ(pixel_of(512, 64, 512), (Memory{0, 0, 0, 255}));
    EXPECT_EQ(pixel_of(512, 512, 512), (Memory{130, 130, 130, 255}));
    EXPECT_EQ(pixel_of(512, 940, 512), (Memory{254, 254, 254, 255}));
    EXPECT_EQ(pixel_of(512, 941, 512), (Memory{255, 255, 255, 255}));
    EXPECT_EQ(pixel_of(512, 1023, 512), (Memory{255, 255, 255, 255}));
}

// A step that the 8-bit tables would not see.
TEST(V210ToRgbEdges, low_bits_count)
{
    EXPECT_EQ(pixel_of(512, 512, 515), (Memory{130, 129, 131, 255}));
    EXPECT_NE(pixel_of(512, 940, 512), pixel_of(512, 943, 512));
}

TEST(V210ToRgbEdges, ends_of_the_tables)
{
    EXPECT_EQ(pixel_of(1023, 1023, 1023), (Memory{255, 125, 255, 255}));
    EXPECT_EQ(pixel_of(1023, 1023, 512), (Memory{255, 229, 255, 255}));
    EXPECT_EQ(pixel_of(0, 0, 0), (Memory{0, 135, 0, 255}));
    EXPECT_EQ(pixel_of(960, 164, 440), (Memory{255, 0, 0, 255}));
}

// Three pairs, whose pixels share their chroma with no interpolation.
const Memory primaries = v210({360, 324, 960, 67, 216, 580, 136, 1023, 960, 164, 440, 940});

TEST(V210ToRgbEdges, each_pair_has_its_own_chroma)
{
    EXPECT_EQ(decode(primaries, 26, 6, 1, 24, 1),
              (Memory{0,   0,   254, 255, 0, 0, 179, 255, 0,   255, 0,   255,  129,
                      255, 129, 255, 255, 0, 0, 255, 255, 225, 226, 255, 0xEE, 0xEE}));
    EXPECT_EQ(decode(primaries, 24, 6, 1, 24, 0), (Memory{255, 254, 0,   0,   255, 179, 0, 0,   255, 0,   255, 0,
                                                          255, 129, 255, 129, 255, 0,   0, 255, 255, 226, 225, 255}));
}

TEST(V210ToRgbEdges, any_order_but_0_is_bgra)
{
    const Memory bgra = decode(primaries, 24, 6, 1, 24, 1);
    for (const int order : {-1, 2, 256, INT32_MIN}) EXPECT_EQ(decode(primaries, 24, 6, 1, 24, order), bgra);
}

TEST(V210ToRgbEdges, bits_30_and_31_change_nothing)
{
    Memory marked = primaries;
    for (size_t word = 0; word < 4; ++word) marked[4 * word + 3] |= 0xC0;
    EXPECT_EQ(decode(marked, 24, 6, 1, 24, 1), decode(primaries, 24, 6, 1, 24, 1));
    v210FourWords out;
    Memory all = Memory(16, 0xFF);
    _v210_get_next_4words(reinterpret_cast<unsigned int*>(all.data()), &out);
    EXPECT_EQ(out.Cr0, 1023);
    EXPECT_EQ(out.Y2, 1023);
    EXPECT_EQ(out.Cb4, 1023);
    EXPECT_EQ(out.Y5, 1023);
}

const Memory white = flat(512, 940, 512), black = flat(512, 64, 512), grey = flat(512, 512, 512);
const Memory of_white = 6 * Memory{254, 254, 254, 255}, of_black = 6 * Memory{0, 0, 0, 255},
             of_grey = 6 * Memory{130, 130, 130, 255};

TEST(V210ToRgbEdges, lines_of_whole_groups_begin_at_their_stride)
{
    const Memory gap(3, 0xEE);
    EXPECT_EQ(decode(white + black + grey, 81, 6, 3, 27, 1), of_white + gap + of_black + gap + of_grey + gap);
    const Memory halves = 3 * Memory{254, 254, 254, 255} + 3 * Memory{0, 0, 0, 255} + of_grey;
    EXPECT_EQ(decode(white + black + grey, 48, 6, 3, 12, 1), halves);
}

// A stride of 0 is no default: every line goes over the one before.
TEST(V210ToRgbEdges, stride_is_used_as_given)
{
    EXPECT_EQ(decode(white + black + grey, 25, 6, 3, 0, 1), of_grey + Memory{0xEE});
    Memory src = white + black, dst(48);
    _v210_to_rgb(src.data(), dst.data() + 24, 6, 2, -24, 1);
    EXPECT_EQ(dst, of_black + of_white);
}

// 1280 x 3 are 640 groups. Lines 1 and 2 follow line 0 with no gap; line 3 begins with a group and is at
// three strides.
TEST(V210ToRgbEdges, width_1280_starts_afresh_every_third_line)
{
    constexpr size_t stride = 6000, line = 1280 * 4;
    const Memory src = 640 * white + 214 * black;
    const Memory dst = decode(src, 3 * stride + 1284 * 4 + 1, 1280, 4, stride, 1);
    EXPECT_EQ(dst, 640 * of_white + Memory(3 * stride - 3 * line, 0xEE) + 214 * of_black + Memory{0xEE});
}

TEST(V210ToRgbEdges, stride_of_the_width_gives_a_correct_frame_at_any_width)
{
    for (size_t width = 1; width <= 14; ++width) {
        const size_t pixels = width * 7, groups = (pixels + 5) / 6;
        const Memory src = groups * (white + black);
        const Memory dst = decode(src, groups * 24 + 1, static_cast<int>(width), 7, static_cast<int>(width * 4), 1);
        Memory expected = groups * (of_white + of_black);
        expected.resize(groups * 24);
        EXPECT_EQ(dst, expected + Memory{0xEE}) << width;
    }
}

// One pixel is a group of six, and so are 13 three.
TEST(V210ToRgbEdges, last_group_is_written_whole)
{
    EXPECT_EQ(decode(white, 25, 1, 1, 4, 1), of_white + Memory{0xEE});
    EXPECT_EQ(decode(white + black + grey, 73, 13, 1, 52, 1), of_white + of_black + of_grey + Memory{0xEE});
}

// The product has 32 bits: 65537 x 65536 leaves 65536, and 65536 x 32768 is negative.
TEST(V210ToRgbEdges, size_of_the_frame_wraps)
{
    const Memory dst = decode(10923 * grey, 10923 * 24 + 1, 65537, 65536, 0, 1);
    EXPECT_EQ(dst, 10923 * of_grey + Memory{0xEE});
    _v210_to_rgb(nullptr, nullptr, 65536, 65536, 0, 1);
    _v210_to_rgb(nullptr, nullptr, 65536, 32768, 0, 1);
    _v210_to_rgb(nullptr, nullptr, -6, 1, 0, 1);
}

// -6 x -2 are two groups; the second is at the line that 6 / -6 gives.
TEST(V210ToRgbEdges, two_negative_sizes_are_a_frame)
{
    Memory src = white + black, dst(50, 0xEE);
    _v210_to_rgb(src.data(), dst.data() + 25, -6, -2, 25, 1);
    EXPECT_EQ(dst, of_black + Memory{0xEE} + of_white + Memory{0xEE});
}

}  // namespace
}  // namespace tintvert::test
