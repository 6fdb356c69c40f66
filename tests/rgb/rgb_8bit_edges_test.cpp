// 32-bit orders, narrowing and widening: what every sentence about them says, in literal bytes.
#include <gtest/gtest.h>
#include <tintvert.h>

#include <algorithm>
#include <climits>
#include <vector>

#include "support/fence.h"

namespace tintvert::test {
namespace {

using Bytes = std::vector<uint8_t>;
using Strided = void(void*, long, void*, long, long, long);

struct Routine {
    const char* name;
    Strided* call;
    long src_bytes, dst_bytes;
};

const Routine reorder[] = {{"tntvt_rgba32_bgra32_inplace", tntvt_rgba32_bgra32_inplace, 4, 4},
                           {"tntvt_rgb32_bgr32_inplace", tntvt_rgb32_bgr32_inplace, 4, 4},
                           {"tntvt_rgba32_abgr32_inplace", tntvt_rgba32_abgr32_inplace, 4, 4},
                           {"tntvt_rgba32_argb32", tntvt_rgba32_argb32, 4, 4},
                           {"tntvt_argb32_rgba32", tntvt_argb32_rgba32, 4, 4}};
const Routine cut[] = {{"tntvt_rgba32_rgb24_inplace", tntvt_rgba32_rgb24_inplace, 4, 3},
                       {"tntvt_rgba32_rgb24", tntvt_rgba32_rgb24, 4, 3},
                       {"tntvt_rgb32_rgb24_inplace", tntvt_rgb32_rgb24_inplace, 4, 3},
                       {"tntvt_rgb32_rgb24", tntvt_rgb32_rgb24, 4, 3}};
const Routine cut_reversed[] = {{"tntvt_rgba32_bgr24_inplace", tntvt_rgba32_bgr24_inplace, 4, 3},
                                {"tntvt_rgb32_bgr24_inplace", tntvt_rgb32_bgr24_inplace, 4, 3}};
const Routine widen_24[] = {{"tntvt_rgb24_rgba32_inplace", tntvt_rgb24_rgba32_inplace, 3, 4},
                            {"tntvt_rgb24_rgba32", tntvt_rgb24_rgba32, 3, 4},
                            {"tntvt_rgb24_rgb32_inplace", tntvt_rgb24_rgb32_inplace, 3, 4},
                            {"tntvt_rgb24_rgb32", tntvt_rgb24_rgb32, 3, 4}};
const Routine widen_24_reversed[] = {{"tntvt_rgb24_bgra32_inplace", tntvt_rgb24_bgra32_inplace, 3, 4},
                                     {"tntvt_rgb24_bgr32_inplace", tntvt_rgb24_bgr32_inplace, 3, 4}};
const Routine widen_16[] = {{"tntvt_rgb16_rgba32_inplace", tntvt_rgb16_rgba32_inplace, 2, 4},
                            {"tntvt_rgb16_rgba32", tntvt_rgb16_rgba32, 2, 4},
                            {"tntvt_rgb16_rgb32_inplace", tntvt_rgb16_rgb32_inplace, 2, 4},
                            {"tntvt_rgb16_rgb32", tntvt_rgb16_rgb32, 2, 4}};
const Routine alpha_first[] = {{"tntvt_macbgr24_macargb32_inplace", tntvt_macbgr24_macargb32_inplace, 3, 4}};
const Routine inverts[] = {{"tntvt_rgba32_rgb24_invert", tntvt_rgba32_rgb24_invert, 4, 3},
                           {"tntvt_rgba24_rgb32_invert", tntvt_rgba24_rgb32_invert, 3, 4}};

template <size_t... n>
std::vector<Routine> together(const Routine (&... groups)[n])
{
    std::vector<Routine> all;
    (all.insert(all.end(), std::begin(groups), std::end(groups)), ...);
    return all;
}

// 0, 1, 2, ... 250, 0, 1, ...: bytes near each other differ, and none is 255.
Bytes counting(long count)
{
    Bytes result(static_cast<size_t>(count));
    for (size_t i = 0; i < result.size(); ++i) result[i] = static_cast<uint8_t>(i % 251);
    return result;
}

// A frame converted in place, and with a source apart; all else in the two memories is the same.
struct Conversion {
    Bytes in_place, separate;
};

Conversion convert(const Routine& routine, long dst_stride, long src_stride, long width, long height)
{
    const long size = std::max(dst_stride, src_stride) * (height - 1) + std::max({dst_stride, src_stride, 4 * width});
    Bytes src = counting(size);
    Conversion result{src, src};
    routine.call(result.in_place.data(), dst_stride, result.in_place.data(), src_stride, width, height);
    routine.call(result.separate.data(), dst_stride, src.data(), src_stride, width, height);
    return result;
}

struct Wrong {
    long offset;
    int value;
    bool operator==(const Wrong&) const = default;
};

// The bytes that come out otherwise in place, with what they are there.
std::vector<Wrong> wrong_bytes(const Conversion& conversion)
{
    std::vector<Wrong> result;
    for (size_t i = 0; i < conversion.in_place.size(); ++i)
        if (conversion.in_place[i] != conversion.separate[i])
            result.push_back({static_cast<long>(i), conversion.in_place[i]});
    return result;
}

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

TEST(Rgb8BitEdges, words_are_the_same_in_place)
{
    for (const Routine& routine : reorder)
        for (long width = 1; width <= 40; ++width)
            for (const long slack : {0, 7})
                EXPECT_TRUE(wrong_bytes(convert(routine, 4 * width + slack, 4 * width + slack, width, 3)).empty())
                    << routine.name << ", width " << width;
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

TEST(Rgb8BitEdges, cut_is_safe_in_place_up_to_equal_strides)
{
    for (const Routine& routine : cut)
        for (const long width : {1, 2, 3, 16, 33})
            for (const long src_stride : {4 * width, 4 * width + 5})
                for (long dst_stride = 0; dst_stride <= src_stride; ++dst_stride)
                    EXPECT_TRUE(wrong_bytes(convert(routine, dst_stride, src_stride, width, 4)).empty())
                        << routine.name << ", width " << width << ", strides " << dst_stride << ", " << src_stride;
}

// Tight, one byte: position 1 of the second pixel in memory is that pixel's b0, byte 4.
TEST(Rgb8BitEdges, keeps_guard_of_first_pixel_only_when_tight)
{
    for (const Routine& routine : cut_reversed)
        for (long width = 1; width <= 40; ++width)
            for (long height = 1; height <= 4; ++height) {
                std::vector<Wrong> expected;
                if (width * height > 1) expected.push_back({4, 4});
                EXPECT_EQ(wrong_bytes(convert(routine, 3 * width, 4 * width, width, height)), expected)
                    << routine.name << ", " << width << " x " << height;
            }
}

// With both strides the same, pixel 1 of each line so, and pixel 0 of each line but the first shows b0 in
// front.
TEST(Rgb8BitEdges, keeps_guard_of_first_pixel_only_with_equal_strides)
{
    for (const Routine& routine : cut_reversed)
        for (long width = 1; width <= 20; ++width)
            for (const long stride : {4 * width, 4 * width + 5}) {
                std::vector<Wrong> expected;
                for (long line = 0; line < 3; ++line) {
                    const long at = line * stride;
                    if (line > 0) expected.push_back({at, static_cast<int>(at % 251)});
                    if (width > 1) expected.push_back({at + 4, static_cast<int>((at + 4) % 251)});
                }
                EXPECT_EQ(wrong_bytes(convert(routine, stride, stride, width, 3)), expected)
                    << routine.name << ", width " << width << ", stride " << stride;
            }
}

// Bytes 1 and 2 of pixel 1 and byte 2 of pixel 2, counted through memory, show b0 of their pixels: bytes 3
// and 6 of the source. At a width of 2 the third of them is in line 1.
TEST(Rgb8BitEdges, keeps_ascending_writes_in_place_at_every_width)
{
    for (const Routine& routine : widen_24)
        for (long width = 1; width <= 40; ++width)
            for (long height = 1; height <= 4; ++height) {
                std::vector<Wrong> expected;
                if (width * height > 1) expected = {{5, 3}, {6, 3}};
                if (width * height > 2) expected.push_back({10, 6});
                EXPECT_EQ(wrong_bytes(convert(routine, 4 * width, 3 * width, width, height)), expected)
                    << routine.name << ", " << width << " x " << height;
            }
}

// Byte 0 of pixels 0 and 1 in memory: s0 of the one, s1 of the other.
TEST(Rgb8BitEdges, keeps_descending_writes_in_place_at_every_width)
{
    for (const Routine& routine : widen_24_reversed)
        for (long width = 1; width <= 40; ++width)
            for (long height = 1; height <= 4; ++height) {
                std::vector<Wrong> expected{{0, 0}};
                if (width * height > 1) expected.push_back({4, 4});
                EXPECT_EQ(wrong_bytes(convert(routine, 4 * width, 3 * width, width, height)), expected)
                    << routine.name << ", " << width << " x " << height;
            }
}

TEST(Rgb8BitEdges, sixteen_bits_and_alpha_first_are_the_same_in_place)
{
    for (const Routine& routine : together(widen_16, alpha_first))
        for (long width = 1; width <= 40; ++width)
            for (long height = 1; height <= 4; ++height)
                EXPECT_TRUE(wrong_bytes(convert(routine, 4 * width, routine.src_bytes * width, width, height)).empty())
                    << routine.name << ", " << width << " x " << height;
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
