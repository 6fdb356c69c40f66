// RGB of 16 bits a channel: what every sentence about it says, in literal bytes.
#include <gtest/gtest.h>
#include <tintvert.h>

#include <climits>
#include <functional>
#include <vector>

#include "support/fence.h"

namespace tintvert::test {
namespace {

using Bytes = std::vector<uint8_t>;

struct Routine {
    const char* name;
    std::function<void(void*, long, void*, long, long, long)> call;  // at 16 bits and order 2
    long src_bytes, dst_bytes;
    bool signed_height = false;
};

const std::vector<Routine>& routines()
{
    const auto at_16 = [](void (*routine)(void*, long, void*, long, long, long, unsigned int)) {
        return [routine](void* d, long ds, void* s, long ss, long w, long h) { routine(d, ds, s, ss, w, h, 16); };
    };
    const auto at_order_2 = [](void (*routine)(void*, long, void*, long, long, long, unsigned int, unsigned int)) {
        return [routine](void* d, long ds, void* s, long ss, long w, long h) { routine(d, ds, s, ss, w, h, 16, 2); };
    };
    static const std::vector<Routine> all{
        {"tntvt_rgb48_rgba32", at_16(tntvt_rgb48_rgba32), 6, 4, true},
        {"tntvt_bgr48_rgba32", at_16(tntvt_bgr48_rgba32), 6, 4, true},
        {"tntvt_rgba64_rgba32", at_16(tntvt_rgba64_rgba32), 8, 4},
        {"tntvt_argb64_rgba32", at_16(tntvt_argb64_rgba32), 8, 4},
        {"tntvt_abgr64_rgba32", at_16(tntvt_abgr64_rgba32), 8, 4},
        {"tntvt_bgra64_rgba32", at_16(tntvt_bgra64_rgba32), 8, 4},
        {"tntvt_rgba32_rgb48", at_16(tntvt_rgba32_rgb48), 4, 6, true},
        {"tntvt_rgba32_bgr48", at_16(tntvt_rgba32_bgr48), 4, 6, true},
        {"tntvt_rgba32_rgba64", at_16(tntvt_rgba32_rgba64), 4, 8},
        {"tntvt_rgba32_argb64", at_16(tntvt_rgba32_argb64), 4, 8},
        {"tntvt_bgra32_rgba64", tntvt_bgra32_rgba64, 4, 8},
        {"tntvt_argb64be_rgba64", at_order_2(tntvt_argb64be_rgba64), 8, 8},
        {"tntvt_argb64be_rgb48", at_order_2(tntvt_argb64be_rgb48), 8, 6},
        {"tntvt_argb64be_rgba32", at_order_2(tntvt_argb64be_rgba32), 8, 4},
        {"tntvt_argb64be_rgb24", at_order_2(tntvt_argb64be_rgb24), 8, 3, true},
    };
    return all;
}

// 1, 2, 3, ...
Bytes counting(long count)
{
    Bytes result(static_cast<size_t>(count));
    for (size_t i = 0; i < result.size(); ++i) result[i] = static_cast<uint8_t>(i + 1);
    return result;
}

TEST(Rgb16BitEdges, no_work_touches_nothing)
{
    for (const Routine& routine : routines()) {
        SCOPED_TRACE(routine.name);
        for (const long width : {0L, -1L, LONG_MIN})
            for (const long height : {3L, -3L, 0L}) routine.call(nullptr, 64, nullptr, 64, width, height);
        routine.call(nullptr, 64, nullptr, 64, 5, 0);
        routine.call(nullptr, 64, nullptr, 64, 5, LONG_MIN);  // no magnitude
        if (routine.signed_height) continue;
        for (const long height : {-1L, -3L, LONG_MIN + 1}) routine.call(nullptr, 64, nullptr, 64, 5, height);
    }
}

// Two pixels at the end of strides five bytes longer: of each line those five keep what they held, and the
// pixels are as in a tight frame.
TEST(Rgb16BitEdges, slack_is_before_the_pixels)
{
    for (const Routine& routine : routines()) {
        const long src_line = 2 * routine.src_bytes, dst_line = 2 * routine.dst_bytes;
        const long src_stride = src_line + 5, dst_stride = dst_line + 5;
        Bytes slack = counting(3 * src_stride), tight;
        for (long line = 0; line < 3; ++line)
            tight.insert(tight.end(), slack.begin() + line * src_stride + 5, slack.begin() + (line + 1) * src_stride);
        Bytes from_slack(static_cast<size_t>(3 * dst_stride), 0xEE), from_tight(static_cast<size_t>(3 * dst_line));
        routine.call(from_slack.data(), dst_stride, slack.data(), src_stride, 2, 3);
        routine.call(from_tight.data(), dst_line, tight.data(), src_line, 2, 3);
        for (long line = 0; line < 3; ++line) {
            const auto begin = from_slack.begin() + line * dst_stride;
            EXPECT_EQ(Bytes(begin, begin + 5), Bytes(5, 0xEE)) << routine.name << ", line " << line;
            const auto pixels = from_tight.begin() + line * dst_line;
            EXPECT_EQ(Bytes(begin + 5, begin + dst_stride), Bytes(pixels, pixels + dst_line))
                << routine.name << ", line " << line;
        }
    }
}

// What lines 0, 1, 2, 3 of a destination contain after a call on three lines of one pixel each: the number of
// the source line, known by its first result byte, or -1 where nothing was written. Line 0 is before `dst`.
std::vector<int> lines_written(const Routine& routine, long height)
{
    Bytes src = counting(3 * routine.src_bytes), dst(static_cast<size_t>(4 * routine.dst_bytes), 0xEE);
    Bytes pixels[3];
    for (long line = 0; line < 3; ++line) {
        pixels[line].assign(static_cast<size_t>(routine.dst_bytes), 0xDD);
        routine.call(pixels[line].data(), routine.dst_bytes, src.data() + line * routine.src_bytes, routine.src_bytes,
                     1, 1);
    }
    routine.call(dst.data() + routine.dst_bytes, routine.dst_bytes, src.data(), routine.src_bytes, 1, height);
    std::vector<int> result;
    for (long line = 0; line < 4; ++line) {
        const Bytes got(dst.begin() + line * routine.dst_bytes, dst.begin() + (line + 1) * routine.dst_bytes);
        int found = got == Bytes(got.size(), 0xEE) ? -1 : -2;
        for (int i = 0; i < 3; ++i)
            if (got == pixels[i]) found = i;
        result.push_back(found);
    }
    return result;
}

TEST(Rgb16BitEdges, keeps_flip_one_line_off_beside_exact_flips)
{
    for (const Routine& routine : routines()) {
        SCOPED_TRACE(routine.name);
        const bool one_off = std::string_view(routine.name).find("bgr48") != std::string_view::npos;
        const std::vector<int> none{-1, -1, -1, -1}, exact{-1, 2, 1, 0}, short_by_one{2, 1, 0, -1};
        EXPECT_EQ(lines_written(routine, 3), (std::vector{-1, 0, 1, 2}));
        EXPECT_EQ(lines_written(routine, -3), !routine.signed_height ? none : one_off ? short_by_one : exact);
    }
}

// The low 32 bits of a magnitude as a signed number: no work where they are 0 or negative.
TEST(Rgb16BitEdges, keeps_signed_32_bit_count)
{
    for (auto* routine : {tntvt_bgr48_rgba32, tntvt_rgba32_bgr48}) {
        for (const long lines : {0x80000000L, 0xFFFFFFFFL, 0x180000000L, 0x1FFFFFFFFL, 0x100000000L, 0x700000000L})
            for (const long height : {lines, -lines})
                EXPECT_FALSE(faults([&] { routine(nullptr, 4096, nullptr, 4096, 1, height, 16); })) << height;
        FencedBuffer frame({-4096, 4096}, 4096, Side::above, Closed::wholly);
        for (const long lines : {0x7FFFFFFFL, 0x17FFFFFFFL})
            for (const long height : {lines, -lines})
                EXPECT_TRUE(faults([&] { routine(frame.pointer(), 4096, frame.pointer(), 4096, 1, height, 16); }))
                    << height;
    }
}

TEST(Rgb16BitEdges, expected_values)
{
    Bytes white(4, 0xFF), wide(8, 0xEE);
    const Bytes ff00{0, 0xFF, 0, 0xFF, 0, 0xFF, 0, 0xFF};
    tntvt_rgba32_rgba64(wide.data(), 8, white.data(), 4, 1, 1, 16);
    EXPECT_EQ(wide, ff00);
    wide.assign(8, 0xEE);
    tntvt_bgra32_rgba64(wide.data(), 8, white.data(), 4, 1, 1);
    EXPECT_EQ(wide, ff00);

    Bytes source{0xFF, 0x12, 0xFF, 0x0F, 0xFF, 0x12, 0xFF, 0x0F}, narrow(4, 0xEE);
    tntvt_rgba64_rgba32(narrow.data(), 4, source.data(), 8, 1, 1, 16);
    EXPECT_EQ(narrow, (Bytes{0x12, 0x0F, 0x12, 0x0F}));
    tntvt_rgba64_rgba32(narrow.data(), 4, source.data(), 8, 1, 1, 10);
    EXPECT_EQ(narrow, (Bytes{0xBF, 0xFF, 0xBF, 0xFF}));
}

TEST(Rgb16BitEdges, keeps_transparent_alpha_whatever_the_source)
{
    for (auto* routine : {tntvt_rgb48_rgba32, tntvt_bgr48_rgba32})
        for (const uint8_t fill : Bytes{0, 1, 0x80, 0xFF})
            for (const unsigned int bits : {0u, 8u, 10u, 16u}) {
                Bytes src(12, fill), dst(8, 0xEE);
                routine(dst.data(), 8, src.data(), 12, 2, 1, bits);
                EXPECT_EQ(dst[3], 0);
                EXPECT_EQ(dst[7], 0);
            }
}

TEST(Rgb16BitEdges, keeps_orders_that_write_nothing_over_a_frame)
{
    Bytes src = counting(8 * 9);
    const auto untouched = [&](auto* routine, unsigned int order, long height) {
        Bytes dst(8 * 9, 0xEE);
        routine(dst.data(), 24, src.data(), 24, 3, height, 16, order);
        return dst == Bytes(8 * 9, 0xEE);
    };
    for (unsigned int order = 0; order < 300; ++order)
        for (const long height : {3L, -3L}) {
            const bool four = order > 3, three = order != 0 && order != 2;
            EXPECT_EQ(untouched(tntvt_argb64be_rgba64, order, height), four || height < 0) << order;
            EXPECT_EQ(untouched(tntvt_argb64be_rgba32, order, height), four || height < 0) << order;
            EXPECT_EQ(untouched(tntvt_argb64be_rgb48, order, height), three || height < 0) << order;
            EXPECT_EQ(untouched(tntvt_argb64be_rgb24, order, height), three) << order;
        }
}

TEST(Rgb16BitEdges, the_seventh_argument_of_16_bit_results_is_ignored)
{
    Bytes src = counting(8);
    for (const unsigned int bits : {0u, 7u, 8u, 10u, 16u, 0xFFFFFFFFu}) {
        Bytes four(8, 0xEE), three(6, 0xEE);
        tntvt_argb64be_rgba64(four.data(), 8, src.data(), 8, 1, 1, bits, 3);
        tntvt_argb64be_rgb48(three.data(), 6, src.data(), 8, 1, 1, bits, 2);
        EXPECT_EQ(four, (Bytes{2, 1, 4, 3, 6, 5, 8, 7}));
        EXPECT_EQ(three, (Bytes{4, 3, 6, 5, 8, 7}));
    }
}

}  // namespace
}  // namespace tintvert::test
