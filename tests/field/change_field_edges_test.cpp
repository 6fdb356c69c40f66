// The corners of the field change: guards and their order, what is moved with a line, what is not averaged.
#include <gtest/gtest.h>
#include <tintvert/field.h>

#include <algorithm>
#include <vector>

#include "support/fence.h"

namespace tintvert::test {
namespace {

using Bytes = std::vector<unsigned char>;
using Change = int (*)(unsigned char*, unsigned int, unsigned int, unsigned int, unsigned int, unsigned char*,
                       unsigned int);

const Change both[] = {tntvt_change_field_rgb, tntvt_change_field_yuv};

Bytes counted(size_t bytes, unsigned char first)
{
    Bytes result;
    for (size_t i = 0; i < bytes; ++i) result.push_back(static_cast<unsigned char>(first + i));
    return result;
}

TEST(ChangeFieldEdges, unknown_modes_touch_nothing)
{
    for (const Change change : both)
        for (const unsigned int mode : {0u, 15u, 16u, 0x80000001u, 0xFFFFFFFFu})
            EXPECT_EQ(change(nullptr, mode, 9, 9, 9, nullptr, 9), 0) << mode;
}

// Frames of fewer than two lines: every mode that has a guard, and the status it answers with.
TEST(ChangeFieldEdges, no_lines_and_one)
{
    for (const unsigned int height : {0u, 1u}) {
        for (const unsigned int mode : {1u, 2u, 9u, 10u, 13u, 14u}) {
            for (const Change change : both)
                EXPECT_EQ(change(nullptr, mode, 4, height, 4, nullptr, 4), 0) << mode << ", height " << height;
        }
        EXPECT_EQ(tntvt_change_field_rgb(nullptr, 4, 4, height, 4, nullptr, 4), -1);
        EXPECT_EQ(tntvt_change_field_rgb(nullptr, 4, 0, height, 4, nullptr, 4), -1);
        EXPECT_EQ(tntvt_change_field_yuv(nullptr, 4, 4, height, 4, nullptr, 4), 0);
        EXPECT_EQ(tntvt_change_field_rgb(nullptr, 11, 4, height, 4, nullptr, 4), -2);
        EXPECT_EQ(tntvt_change_field_rgb(nullptr, 12, 4, height, 4, nullptr, 4), -2);
        EXPECT_EQ(tntvt_change_field_yuv(nullptr, 11, 4, height, 4, nullptr, 4), 0);
        EXPECT_EQ(tntvt_change_field_yuv(nullptr, 12, 4, height, 4, nullptr, 4), 0);
        Bytes dst = counted(16, 1), src = counted(16, 101);
        EXPECT_EQ(tntvt_change_field_rgb(dst.data(), 11, 4, height, 4, src.data(), 4), 0);
        EXPECT_EQ(dst, counted(16, 1));
    }
}

// In modes 5 to 8 a null source is reported before the empty frame.
TEST(ChangeFieldEdges, null_source_comes_before_no_lines)
{
    for (const Change change : both) {
        for (const unsigned int mode : {5u, 6u, 7u, 8u}) {
            EXPECT_EQ(change(nullptr, mode, 0, 0, 4, nullptr, 0), -2) << mode;
            EXPECT_EQ(change(nullptr, mode, 0, 7, 4, nullptr, 0), -2) << mode;
            unsigned char one = 9;
            EXPECT_EQ(change(nullptr, mode, 0, 0, 4, &one, 0), 0) << mode;
        }
    }
}

// 0x40000000 pixels are 2^32 bytes, which is 0; 0x40000001 are four.
TEST(ChangeFieldEdges, blend_counts_bytes_in_32_bits)
{
    EXPECT_EQ(tntvt_change_field_rgb(nullptr, 4, 0x40000000, 5, 8, nullptr, 4), 0);
    EXPECT_EQ(tntvt_change_field_rgb(nullptr, 4, 0, 5, 8, nullptr, 4), 0);
    Bytes frame{10, 20, 30, 40, 0, 0, 0, 0, 20, 40, 60, 80, 0, 0, 0, 0};
    EXPECT_EQ(tntvt_change_field_rgb(frame.data(), 4, 0x40000001, 2, 8, nullptr, 4), 0);
    EXPECT_EQ(frame, (Bytes{10, 20, 30, 40, 0, 0, 0, 0, 10, 20, 30, 40, 0, 0, 0, 0}));
}

// An odd last line takes part in the blend, and sums above 255 keep their ninth bit: 255 and 254 give 254.
TEST(ChangeFieldEdges, blend_of_an_odd_last_line)
{
    Bytes frame(36, 0);
    const auto fill = [&](size_t from, unsigned char value) {
        std::fill_n(frame.begin() + static_cast<long>(from), 4, value);
    };
    fill(0, 255), fill(8, 255), fill(16, 254), fill(32, 7);
    EXPECT_EQ(tntvt_change_field_rgb(frame.data(), 4, 1, 3, 8, nullptr, 16), 0);
    // Line 1 meets the bytes at 16, and line 2, which are these, those at 32: (254 + 7) / 2.
    Bytes expected(36, 0);
    frame.swap(expected);
    fill(0, 255), fill(8, 254), fill(16, 130), fill(32, 7);
    EXPECT_EQ(expected, frame);
}

// The blend that changes nothing still stores to every line.
TEST(ChangeFieldEdges, blend_with_itself_walks_all_lines)
{
    for (const auto closed : {Closed::wholly, Closed::to_writes}) {
        const FencedBuffer frame({0, 24}, 16, Side::above, closed);
        const auto blend = [&](unsigned int height) {
            return faults([&] { tntvt_change_field_rgb(frame.pointer(), 4, 2, height, 8, nullptr, 0); });
        };
        EXPECT_FALSE(blend(2));
        EXPECT_TRUE(blend(3));
    }
}

// Whole lines move, slack included, as long as the source pitch; `width` is not read.
TEST(ChangeFieldEdges, slack_travels_with_the_line)
{
    for (const unsigned int width : {0u, 1u, 0xFFFFFFFFu}) {
        Bytes dst(16, 0xEE), src = counted(12, 1);
        EXPECT_EQ(tntvt_change_field_rgb(dst.data(), 8, width, 4, 4, src.data(), 3), 0);
        EXPECT_EQ(dst, (Bytes{1, 2, 3, 0xEE, 0xEE, 0xEE, 0xEE, 0xEE, 7, 8, 9, 0xEE, 0xEE, 0xEE, 0xEE, 0xEE}));
        // A source pitch above the destination's: each copy runs into the next line.
        dst.assign(16, 0xEE), src = counted(20, 1);
        EXPECT_EQ(tntvt_change_field_rgb(dst.data(), 9, width, 4, 3, src.data(), 5), 0);
        EXPECT_EQ(dst, (Bytes{1, 2, 3, 1, 2, 3, 11, 12, 13, 11, 12, 13, 14, 15, 0xEE, 0xEE}));
    }
}

// Lines of 7 bytes are one pixel and 3 bytes over. The line copied takes all 7, the averaged one 4.
TEST(ChangeFieldEdges, bytes_over_are_not_averaged)
{
    for (const unsigned int width : {0u, 1u, 5u}) {
        Bytes src(28, 10), dst(28, 0xEE);
        for (size_t i = 14; i < 21; ++i) src[i] = 20;  // line 2
        EXPECT_EQ(tntvt_change_field_rgb(dst.data(), 11, width, 4, 7, src.data(), 0), 0);
        EXPECT_EQ(dst, (Bytes{10, 10, 10, 10, 10, 10, 10, 15, 15, 15, 15, 0xEE, 0xEE, 0xEE,  //
                              20, 20, 20, 20, 20, 20, 20, 20, 20, 20, 20, 0xEE, 0xEE, 0xEE}));
    }
}

// The last odd line of mode 11 is a mean of a line with itself: bit 0 of each lowest byte is lost.
TEST(ChangeFieldEdges, last_line_with_itself_loses_a_bit)
{
    Bytes src{0xFF, 0xFF, 0xFF, 0xFF, 0, 0, 0, 0}, dst(8, 0xEE);
    EXPECT_EQ(tntvt_change_field_rgb(dst.data(), 11, 1, 2, 4, src.data(), 4), 0);
    EXPECT_EQ(dst, (Bytes{0xFF, 0xFF, 0xFF, 0xFF, 0xFE, 0xFF, 0xFF, 0xFF}));
    // Two lines of mode 12: line 0 is a copy of line 1, and no line is averaged.
    src = {1, 2, 3, 4, 0xFF, 0xFF, 0xFF, 0xFF}, dst.assign(8, 0xEE);
    EXPECT_EQ(tntvt_change_field_rgb(dst.data(), 12, 1, 2, 4, src.data(), 4), 0);
    EXPECT_EQ(dst, Bytes(8, 0xFF));
}

// In place row 0 keeps its old content; with unequal pitches the two lines 1 are not the same and it does not.
TEST(ChangeFieldEdges, entry_copy_in_place)
{
    for (const unsigned int height : {0u, 1u}) {
        Bytes frame = counted(16, 1);
        EXPECT_EQ(tntvt_change_field_rgb(frame.data(), 12, 0, height, 8, frame.data(), 0), 0);
        EXPECT_EQ(frame, counted(16, 1));
        EXPECT_EQ(tntvt_change_field_rgb(frame.data(), 12, 0, height, 8, frame.data(), 4), 0);
        EXPECT_EQ(frame, (Bytes{5, 6, 7, 8, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16}));
    }
    // A source whose line 1 is the destination's line 1 though the bases differ.
    Bytes frame = counted(16, 1);
    EXPECT_EQ(tntvt_change_field_rgb(frame.data(), 12, 0, 1, 8, &frame[4], 4), 0);
    EXPECT_EQ(frame, counted(16, 1));
}

// Mode 3 with a source pitch of its own: the odd lines begin at it, the even ones at the destination's.
TEST(ChangeFieldEdges, exchange_at_two_pitches)
{
    Bytes frame = counted(16, 1);
    EXPECT_EQ(tntvt_change_field_rgb(frame.data(), 3, 0, 4, 4, nullptr, 2), 0);
    // Bytes 2 and 3 with 0 and 1; then bytes 6 and 7 with 8 and 9.
    EXPECT_EQ(frame, (Bytes{3, 4, 1, 2, 5, 6, 9, 10, 7, 8, 11, 12, 13, 14, 15, 16}));
}

// Five lines: three to the one field and two to the other would be uneven, so the last is ignored.
TEST(ChangeFieldEdges, split_ignores_an_odd_last_line)
{
    for (const Change change : both) {
        Bytes dst(10, 0xEE), src = counted(10, 1);
        EXPECT_EQ(change(dst.data(), 13, 0, 5, 2, src.data(), 0), 0);
        EXPECT_EQ(dst, (Bytes{1, 2, 5, 6, 3, 4, 7, 8, 0xEE, 0xEE}));
        dst.assign(10, 0xEE);
        EXPECT_EQ(change(dst.data(), 14, 0, 5, 2, src.data(), 0), 0);
        EXPECT_EQ(dst, (Bytes{3, 4, 7, 8, 1, 2, 5, 6, 0xEE, 0xEE}));
    }
}

// Every mode that the YCbCr entry does not replace is the RGB one, statuses included.
TEST(ChangeFieldEdges, keeps_samples_uncomputed)
{
    for (unsigned int mode = 0; mode <= 15; ++mode) {
        const unsigned int run = mode == 4 ? 1 : mode == 11 ? 9 : mode == 12 ? 10 : mode;
        for (const unsigned int src_stride : {0u, 5u}) {
            Bytes yuv(64, 0xEE), src = counted(64, 1);
            for (size_t i = 0; i < yuv.size(); ++i) yuv[i] = static_cast<unsigned char>(i * 37);
            Bytes rgb = yuv;
            EXPECT_EQ(tntvt_change_field_yuv(yuv.data(), mode, 1, 6, 8, src.data(), src_stride),
                      tntvt_change_field_rgb(rgb.data(), run, 1, 6, 8, src.data(), src_stride));
            EXPECT_EQ(yuv, rgb) << mode;
        }
    }
    // Lines 0, 0, 2, 2 of the source, all their odd bytes as they were.
    Bytes dst(16, 0xEE), src = counted(16, 1);
    EXPECT_EQ(tntvt_change_field_yuv(dst.data(), 11, 1, 4, 4, src.data(), 4), 0);
    EXPECT_EQ(dst, (Bytes{1, 2, 3, 4, 1, 2, 3, 4, 9, 10, 11, 12, 9, 10, 11, 12}));
}

}  // namespace
}  // namespace tintvert::test
