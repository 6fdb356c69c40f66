// 32-bit orders, narrowing and widening: sizes, lines and single values, in literal bytes.
#include <gtest/gtest.h>

#include <climits>

#include "rgb_8bit_calls.h"
#include "support/fence.h"

namespace tintvert::test {
namespace {

TEST(Rgb8BitEdges, no_work_touches_nothing)
{
    for (const Routine& routine :
         together(reorder, cut, cut_reversed, widen_24, widen_24_reversed, widen_16, alpha_first, inverts)) {
        SCOPED_TRACE(routine.name);
        for (const long nothing : {0L, -1L, LONG_MIN}) routine.call(nullptr, 64, nullptr, 64, nothing, 5);
        routine.call(nullptr, 64, nullptr, 64, -7, -5);
        routine.call(nullptr, 64, nullptr, 64, 5, 0);
        routine.call(nullptr, 64, nullptr, 64, 5, LONG_MIN);  // no magnitude
    }
    for (const long height : {-1L, -5L, LONG_MIN + 1})
        tntvt_macbgr24_macargb32_inplace(nullptr, 64, nullptr, 64, 5, height);
}

TEST(Rgb8BitEdges, no_pixels_leave_both_runs)
{
    for (auto* kernel : {rgba2argb, bgra2abgr, bgra2abgrMMX, abgr2bgraMMX, argb2rgba, abgr2bgra, bgra2argb, argb2bgra,
                         abgr2argb, argb2abgr, bgra2rgba}) {
        Bytes dst = counting(8), src = counting(8);
        kernel(dst.data() + 4, src.data() + 4, 0);
        EXPECT_EQ(dst, counting(8));
        EXPECT_EQ(src, counting(8));
        kernel(nullptr, nullptr, 0);
    }
}

// 2^31 pixels are pixels, and the first of them are beyond the fence.
TEST(Rgb8BitEdges, counts_of_2_to_the_31_are_no_negative_numbers)
{
    FencedBuffer run({0, 4096}, 4096, Side::above, Closed::wholly);
    for (auto* kernel : {rgba2argb, bgra2abgr, bgra2abgrMMX, abgr2bgraMMX, argb2rgba, abgr2bgra, bgra2argb, argb2bgra,
                         abgr2argb, argb2abgr, bgra2rgba}) {
        EXPECT_FALSE(faults([&] { kernel(run.pointer(), run.pointer(), 1024); }));
        EXPECT_TRUE(faults([&] { kernel(run.pointer(), run.pointer(), 0x80000000u); }));
    }
}

TEST(Rgb8BitEdges, sign_of_height_says_nothing)
{
    for (const Routine& routine : together(reorder, cut, cut_reversed, widen_24, widen_24_reversed, widen_16)) {
        Bytes src = counting(200), up(200, 0xEE), down(200, 0xEE);
        routine.call(up.data(), 45, src.data(), 41, 9, 4);
        routine.call(down.data(), 45, src.data(), 41, 9, -4);
        EXPECT_EQ(up, down) << routine.name;
        EXPECT_NE(up, Bytes(200, 0xEE)) << routine.name;
    }
}

TEST(Rgb8BitEdges, alpha_is_counted_below_8_only)
{
    struct Row {
        Bytes src, dst;
    };
    const Row rows[] = {
        {{0, 0, 0, 0}, {1, 0, 0, 0}},
        {{7, 0, 0, 0}, {1, 0, 0, 0}},
        {{8, 0, 0, 0}, {0, 0, 0, 0}},
        {{0xFF, 0, 0, 0}, {0, 0, 0, 0}},
        {{0, 1, 0, 0}, {0, 0, 0, 0}},
        {{0, 0, 1, 0}, {0, 0, 0, 0}},
        {{7, 0, 0, 0xFE}, {0xFF, 0, 0, 0}},
        {{0, 0, 0, 0xFF}, {0, 1, 0, 0}},
        {{7, 0, 0, 0xFF}, {0, 1, 0, 0}},
        {{8, 0, 0, 0xFF}, {0xFF, 0, 0, 0}},
        {{7, 1, 0, 0xFF}, {0xFF, 0, 0, 0}},
        {{7, 0, 1, 0xFF}, {0xFF, 0, 0, 0}},
        {{0x78, 0x56, 0x34, 0x12}, {0x12, 0, 0, 0}},
    };
    for (Row row : rows) {
        Bytes dst(4, 0xEE);
        tntvt_argb32_rgba32(dst.data(), 4, row.src.data(), 4, 1, 1);
        EXPECT_EQ(dst, row.dst) << testing::PrintToString(row.src);
    }
}

// The rotation that undoes tntvt_rgba32_argb32 is argb2rgba.
TEST(Rgb8BitEdges, argb2rgba_undoes_the_rotation)
{
    Bytes frame = counting(48);
    tntvt_rgba32_argb32(frame.data(), 24, frame.data(), 24, 6, 2);
    EXPECT_NE(frame, counting(48));
    argb2rgba(frame.data(), frame.data(), 12);
    EXPECT_EQ(frame, counting(48));
}

// The last pixels before the next line, on both sides.
TEST(Rgb8BitEdges, widened_lines_are_right_aligned_in_their_strides)
{
    const auto of = [](Strided* routine, long src_stride) {
        Bytes src{0x80, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15}, dst(18, 0xEE);
        routine(dst.data(), 9, src.data(), src_stride, 2, 2);
        return dst;
    };
    constexpr uint8_t none = 0xEE, A = 255;
    for (const Routine& routine : widen_24)
        EXPECT_EQ(of(routine.call, 8), (Bytes{none, 2, 3, 4, A, 5, 6, 7, A,  //
                                              none, 10, 11, 12, A, 13, 14, 15, A}));
    for (const Routine& routine : widen_24_reversed)
        EXPECT_EQ(of(routine.call, 8), (Bytes{none, 4, 3, 2, A, 7, 6, 5, A,  //
                                              none, 12, 11, 10, A, 15, 14, 13, A}));
    for (const Routine& routine : alpha_first)
        EXPECT_EQ(of(routine.call, 8), (Bytes{none, A, 2, 3, 4, A, 5, 6, 7,  //
                                              none, A, 10, 11, 12, A, 13, 14, 15}));
    // Words 0x0403 and 0x0605, then 0x0B0A and 0x0D0C: bits 4 to 0, 9 to 5 and 14 to 10, each times 8.
    for (const Routine& routine : widen_16)
        EXPECT_EQ(of(routine.call, 7), (Bytes{none, 24, 0, 8, A, 40, 128, 8, A,  //
                                              none, 80, 192, 16, A, 96, 64, 24, A}));
}

TEST(Rgb8BitEdges, bit_15_of_rgb16_and_the_brightest_word)
{
    for (const Routine& routine : widen_16) {
        Bytes src{0, 0, 0, 0x80, 0xFF, 0x7F, 0xFF, 0xFF}, dst(16, 0xEE);
        routine.call(dst.data(), 16, src.data(), 8, 4, 1);
        EXPECT_EQ(dst, (Bytes{0, 0, 0, 255, 0, 0, 0, 255, 248, 248, 248, 255, 248, 248, 248, 255})) << routine.name;
    }
}

// A whole frame: each pointer is one stride past its first byte.
TEST(Rgb8BitEdges, keeps_crossed_pointers_over_a_whole_frame)
{
    constexpr uint8_t none = 0xEE, A = 255;
    Bytes src = counting(21), dst(27, none);
    tntvt_rgba24_rgb32_invert(src.data() + 7, 9, dst.data() + 9, 7, 2, 3);
    EXPECT_EQ(dst, (Bytes{none, 15, 16, 17, A, 18, 19, 20, A,  //
                          none, 8,  9,  10, A, 11, 12, 13, A,  //
                          none, 1,  2,  3,  A, 4,  5,  6,  A}));
    EXPECT_EQ(src, counting(21));
}

// Line `height` - 1 - i, whichever sign it has; before `dst` at -1 is line -2.
TEST(Rgb8BitEdges, keeps_signed_height_in_addresses_of_one_line)
{
    Bytes src = counting(8), dst(20, 0xEE);
    tntvt_rgba32_rgb24_invert(dst.data() + 14, 7, src.data(), 8, 2, -1);
    EXPECT_EQ(dst, (Bytes{0,    1,    2,    4,    5,    6,    0xEE, 0xEE, 0xEE, 0xEE,
                          0xEE, 0xEE, 0xEE, 0xEE, 0xEE, 0xEE, 0xEE, 0xEE, 0xEE, 0xEE}));
    tntvt_rgba32_rgb24_invert(dst.data() + 14, 7, src.data(), 8, 2, 1);
    EXPECT_EQ(dst, (Bytes{0, 1, 2, 4, 5, 6, 0xEE, 0xEE, 0xEE, 0xEE, 0xEE, 0xEE, 0xEE, 0xEE, 0, 1, 2, 4, 5, 6}));
}

// The kernels know nothing of the open call.
TEST(Rgb8BitEdges, open_changes_no_kernel)
{
    for (auto* kernel : {bgra2abgr, bgra2abgrMMX, abgr2bgra, abgr2bgraMMX}) {
        Bytes src = counting(24), before(24), after(24);
        kernel(before.data(), src.data(), 6);
        EXPECT_EQ(tnvtt_open(1, 2, 3, 4), 0);
        kernel(after.data(), src.data(), 6);
        EXPECT_EQ(before, after);
    }
}

// Whatever the numbers say, memory stays as it was, the pointers null among them.
TEST(Rgb8BitEdges, keeps_empty_entries_with_any_numbers)
{
    Strided* const entries[] = {tntvt_rgb8_rgb32,
                                tntvt_rgb8_rgba32,
                                tntvt_rgb16_rgb24,
                                tntvt_rgb32_rgb16,
                                tntvt_rgb32_rgb16_565,
                                tntvt_rgb32_rgb16_dithered,
                                tntvt_rgb32_rgb16_565_dithered,
                                tntvt_rgb32_rgb32,
                                tntvt_rgba32_rgb16};
    for (Strided* entry : entries)
        for (const long number : {0L, 1L, 4L, -1L, LONG_MAX, LONG_MIN}) {
            Bytes src = counting(64), dst = counting(64);
            entry(dst.data(), number, src.data(), number, number, number);
            entry(dst.data(), 16, src.data(), 16, 4, number);
            entry(src.data(), 16, src.data(), 16, 4, 4);
            EXPECT_EQ(src, counting(64));
            EXPECT_EQ(dst, counting(64));
            entry(nullptr, number, nullptr, number, number, number);
            entry(nullptr, 16, src.data(), 16, 4, 4);
            entry(dst.data(), 16, nullptr, 16, 4, 4);
            EXPECT_EQ(dst, counting(64));
        }
}

}  // namespace
}  // namespace tintvert::test
