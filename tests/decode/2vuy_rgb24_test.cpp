// `2vuy` to RGB of 24 and 32 bits by tables: bytes in, bytes out.
#include <climits>
#include <csignal>

#include "2vuy_calls.h"
#include "support/sanitized.h"

namespace tintvert::test {
namespace {

TEST(Yuv422Rgb24, neutral_chroma)
{
    const Memory src = greys({16, 128, 235, 255});
    EXPECT_EQ(rgb24(src, 12, {12, 8, 4, 1, 1}), (Memory{0, 0, 0, 130, 130, 130, 254, 254, 254, 255, 255, 255}));
    EXPECT_EQ(rgb24(src, 16, {16, 8, 4, 1, 1}),
              (Memory{0, 0, 0, 255, 130, 130, 130, 255, 254, 254, 254, 255, 255, 255, 255, 255}));
}

TEST(Yuv422Rgb24, clamps_below_and_above)
{
    EXPECT_EQ(rgb24(greys({0, 15, 17, 254}), 12, {12, 8, 4, 1, 1}), (Memory{0, 0, 0, 0, 0, 0, 1, 1, 1, 255, 255, 255}));
    EXPECT_EQ(rgb24({0, 0, 0, 255}, 6, {6, 4, 2, 1, 1}), (Memory{0, 135, 0, 20, 255, 74}));
    EXPECT_EQ(rgb24({255, 0, 255, 255}, 6, {6, 4, 2, 1, 1}), (Memory{237, 0, 184, 255, 125, 255}));
}

TEST(Yuv422Rgb24, primaries_of_video_range)
{
    EXPECT_EQ(rgb24({90, 81, 240, 81}, 6, {6, 4, 2, 1, 1}), (Memory{0, 0, 254, 0, 0, 254}));
    EXPECT_EQ(rgb24({54, 145, 34, 145}, 6, {6, 4, 2, 1, 1}), (Memory{0, 255, 0, 0, 255, 0}));
    EXPECT_EQ(rgb24({240, 41, 110, 41}, 6, {6, 4, 2, 1, 1}), (Memory{254, 0, 0, 254, 0, 0}));
}

// The pair shares its chroma; each pixel has its own luma.
TEST(Yuv422Rgb24, both_lumas_at_scale_1)
{
    EXPECT_EQ(rgb24({128, 128, 128, 16, 90, 81, 240, 16}, 12, {12, 8, 4, 1, 1}),
              (Memory{130, 130, 130, 0, 0, 0, 0, 0, 254, 0, 0, 178}));
}

// Pixels of one line: twice the pairs, the pairs, and half the pairs of a halved width.
TEST(Yuv422Rgb24, pixels_a_line)
{
    constexpr size_t widths = 13, room = 100;
    const size_t at_1[widths] = {0, 2, 2, 4, 4, 6, 6, 8, 8, 10, 10, 12, 12};
    const size_t at_2[widths] = {0, 1, 1, 2, 2, 3, 3, 4, 4, 5, 5, 6, 6};
    const size_t at_4[widths] = {0, 0, 1, 1, 1, 1, 2, 2, 2, 2, 3, 3, 3};
    const Memory src(80, 128);
    for (size_t width = 0; width < widths; ++width) {
        for (const long scale : {1L, 2L, 3L, 4L, 5L}) {
            const size_t pixels = scale == 2 ? at_2[width] : scale == 4 ? at_4[width] : at_1[width];
            Memory of_32(room, 0xEE), of_24(room, 0xEE), of_16(room, 0xEE);
            for (size_t i = 0; i < pixels; ++i) {
                std::memcpy(&of_32[4 * i], "\x82\x82\x82\xFF", 4);
                std::memcpy(&of_24[3 * i], "\x82\x82\x82", 3);
                std::memcpy(&of_16[2 * i], "\x10\x42", 2);
            }
            const auto across = static_cast<long>(width);
            EXPECT_EQ(rgb24(src, room, {1000, 0, across, scale, scale}), of_32) << width << " at " << scale;
            EXPECT_EQ(rgb24(src, room, {-1, 0, across, scale, scale}), of_24) << width << " at " << scale;
            EXPECT_EQ(decode(tntvt_yuv422_rgb16, src, room, {1000, 0, across, scale, scale}), of_16)
                << width << " at " << scale;
        }
    }
}

// Three pixels: the fourth is read and written, four bytes past the end of the line.
TEST(Yuv422Rgb24, odd_width_runs_its_last_group_whole)
{
    const Memory src = greys({16, 128, 235, 255});
    EXPECT_EQ(rgb24(src, 14, {9, 6, 3, 1, 1}),
              (Memory{0, 0, 0, 130, 130, 130, 254, 254, 254, 255, 255, 255, 0xEE, 0xEE}));
    EXPECT_EQ(rgb24(src, 18, {12, 6, 3, 1, 1}),
              (Memory{0, 0, 0, 255, 130, 130, 130, 255, 254, 254, 254, 255, 255, 255, 255, 255, 0xEE, 0xEE}));
}

// The surplus of a line is where the next line begins, and the next line is written later.
TEST(Yuv422Rgb24, odd_width_in_tight_lines)
{
    EXPECT_EQ(rgb24(greys({16, 255, 128, 255}), 12, {3, 4, 1, 2, 1}),
              (Memory{0, 0, 0, 130, 130, 130, 255, 255, 255, 0xEE, 0xEE, 0xEE}));
}

TEST(Yuv422Rgb24, scale_2_takes_first_pixels_and_every_second_line)
{
    const Memory skipped = greys({255, 255, 255, 255});
    const Memory src = lines_of({greys({16, 255, 128, 255}), skipped, greys({235, 0, 16, 0}), skipped});
    EXPECT_EQ(rgb24(src, 12, {6, 8, 4, 4, 2}), (Memory{0, 0, 0, 130, 130, 130, 254, 254, 254, 0, 0, 0}));
    EXPECT_EQ(rgb24(src, 16, {8, 8, 4, 4, 2}),
              (Memory{0, 0, 0, 255, 130, 130, 130, 255, 254, 254, 254, 255, 0, 0, 0, 255}));
}

// Eight pixels a line: groups 0 and 2 are taken, groups 1 and 3 are stepped over.
TEST(Yuv422Rgb24, scale_4_takes_every_second_group_and_every_fourth_line)
{
    const Memory skipped(16, 77);
    const Memory src = lines_of({greys({128, 255, 255, 255, 235, 255, 255, 255}), skipped, skipped, skipped,
                                 greys({16, 255, 255, 255, 255, 0, 0, 0}), skipped, skipped, skipped});
    EXPECT_EQ(rgb24(src, 12, {6, 16, 8, 8, 4}), (Memory{130, 130, 130, 254, 254, 254, 0, 0, 0, 255, 255, 255}));
}

// Every third line, every pixel of it; the form goes by a third of the width.
TEST(Yuv422Rgb24, scale_3_takes_every_third_line_and_both_pixels)
{
    const Memory skipped(12, 77);
    const Memory src = lines_of(
        {greys({16, 128, 235, 255, 16, 128}), skipped, skipped, greys({235, 235, 235, 16, 16, 16}), skipped, skipped});
    EXPECT_EQ(rgb24(src, 18, {7, 12, 6, 3, 3}),
              (Memory{0, 0, 0, 130, 130, 130, 254, 254, 254, 255, 255, 255, 0, 0, 0, 130, 130, 130}));
    EXPECT_EQ(rgb24(src, 24, {8, 12, 6, 3, 3}), (Memory{0,   0,   0,   255, 130, 130, 130, 255, 254, 254, 254, 255,
                                                        255, 255, 255, 255, 0,   0,   0,   255, 130, 130, 130, 255}));
    EXPECT_EQ(rgb24(src, 48, {24, 12, 6, 6, 3}),
              (Memory{0,   0,   0,   255, 130, 130, 130, 255, 254, 254, 254, 255, 255, 255, 255, 255,
                      0,   0,   0,   255, 130, 130, 130, 255, 254, 254, 254, 255, 254, 254, 254, 255,
                      254, 254, 254, 255, 0,   0,   0,   255, 0,   0,   0,   255, 0,   0,   0,   255}));
}

TEST(Yuv422Rgb24, only_whole_groups_of_lines_yield_a_line)
{
    const Memory src(64, 128);
    const auto lines = [&](long height, long scale) {
        const Memory dst = rgb24(src, 64, {8, 8, 2, height, scale});
        size_t count = 0;
        while (count < 8 && dst[8 * count] == 130) ++count;
        EXPECT_EQ(Memory(dst.begin() + static_cast<ptrdiff_t>(8 * count), dst.end()), Memory(64 - 8 * count, 0xEE));
        return count;
    };
    EXPECT_EQ(lines(3, 1), 3);
    EXPECT_EQ(lines(1, 2), 0);
    EXPECT_EQ(lines(3, 2), 1);
    EXPECT_EQ(lines(4, 2), 2);
    EXPECT_EQ(lines(3, 4), 0);
    EXPECT_EQ(lines(4, 4), 1);
    EXPECT_EQ(lines(7, 4), 1);
    EXPECT_EQ(lines(2, 3), 0);
    EXPECT_EQ(lines(8, 3), 2);
    EXPECT_EQ(lines(5, 0x100000002), 0);
}

TEST(Yuv422Rgb24, strides_of_either_sign)
{
    Memory src = greys({16, 16, 128, 128, 235, 235}), dst(18, 0xEE);
    tntvt_yuv422_rgb24(dst.data(), 6, src.data() + 8, -4, 2, 3, 1);
    EXPECT_EQ(dst, (Memory{254, 254, 254, 254, 254, 254, 130, 130, 130, 130, 130, 130, 0, 0, 0, 0, 0, 0}));
    tntvt_yuv422_rgb24(dst.data() + 12, -6, src.data() + 8, -4, 2, 3, 1);
    EXPECT_EQ(dst, (Memory{0, 0, 0, 0, 0, 0, 130, 130, 130, 130, 130, 130, 254, 254, 254, 254, 254, 254}));
}

TEST(Yuv422Rgb24, no_work_touches_no_memory)
{
    for (const Decoder decoder : {tntvt_yuv422_rgb24, tntvt_yuv422_rgb16}) {
        for (const long scale : {1L, 2L, 3L, 4L, LONG_MAX}) {
            for (const long height : {0L, -1L, -8L, scale - 1, LONG_MIN})
                decoder(nullptr, 16, nullptr, 16, 4, height, scale);
            for (const long width : {0L, -1L, -8L}) decoder(nullptr, 16, nullptr, 16, width, 8, scale);
        }
        decoder(nullptr, 16, nullptr, 16, 1, 8, 4);
        decoder(nullptr, 16, nullptr, 16, 4, 8, -1);
    }
}

// What is written as `rgb32` is the byte order that the encoders call BGRA: red stays red.
TEST(Yuv422Rgb24, rgb32_goes_back_through_bgra_to_2vuy)
{
    Memory red = rgb24({90, 81, 240, 81, 90, 81, 240, 81}, 16, {16, 8, 4, 1, 1}), back(8);
    EXPECT_EQ(red, (Memory{0, 0, 254, 255, 0, 0, 254, 255, 0, 0, 254, 255, 0, 0, 254, 255}));
    bgra_to_2vuy(red.data(), back.data(), 4);
    EXPECT_EQ(back, (Memory{99, 81, 211, 81, 90, 81, 239, 81}));
    tntvt_rgb32_2vuy(back.data(), 8, red.data(), 16, 4, 1);
    EXPECT_EQ(back, (Memory{99, 81, 211, 81, 90, 81, 239, 81}));
}

TEST(Yuv422Rgb24, first_call_and_later_calls_give_the_same)
{
    const Memory src{90, 200, 240, 16}, pair{137, 138, 255, 0, 0, 178};
    EXPECT_EQ(rgb24(src, 6, {6, 4, 2, 1, 1}), pair);
    EXPECT_EQ(rgb24(src, 6, {6, 4, 2, 1, 1}), pair);
    EXPECT_EQ(tnvtt_open(0, 0, 0, 0), 0);
    EXPECT_EQ(rgb24(src, 6, {6, 4, 2, 1, 1}), pair);
}

#ifndef TINTVERT_TEST_SANITIZED  // sanitizers report the division in their own way
TEST(Yuv422Rgb24DeathTest, scale_0_divides_by_zero)
{
    Memory src(16, 128), dst(16);
    const auto decode_at_0 = [&](long width, long height) {
        tntvt_yuv422_rgb24(dst.data(), 16, src.data(), 16, width, height, 0);
    };
    EXPECT_EXIT(decode_at_0(2, 1), testing::KilledBySignal(SIGFPE), "");
    EXPECT_EXIT(decode_at_0(2, 0), testing::KilledBySignal(SIGFPE), "");
    EXPECT_EXIT(decode_at_0(0, 1), testing::KilledBySignal(SIGFPE), "");
    EXPECT_EXIT(decode_at_0(0, 0), testing::KilledBySignal(SIGFPE), "");
}
#endif

TEST(Quirks, keeps_form_by_stride)
{
    const Memory src(64, 128);
    const auto bytes_a_pixel = [&](long dstStride, long width, long scale) {
        const Memory dst = rgb24(src, 100, {dstStride, 0, width, scale, scale});
        EXPECT_EQ(dst[2], 130);
        return dst[3] == 255 ? 4 : 3;
    };
    // Four pixels: 24-bit lines with up to three bytes of slack; with four they come out as 32-bit.
    EXPECT_EQ(bytes_a_pixel(12, 4, 1), 3);
    EXPECT_EQ(bytes_a_pixel(15, 4, 1), 3);
    EXPECT_EQ(bytes_a_pixel(16, 4, 1), 4);
    EXPECT_EQ(bytes_a_pixel(17, 4, 1), 4);
    EXPECT_EQ(bytes_a_pixel(0x200000000, 4, 1), 4);
    EXPECT_EQ(bytes_a_pixel(0, 4, 1), 3);
    EXPECT_EQ(bytes_a_pixel(-16, 4, 1), 3);
    // The scaled width decides, truncated.
    EXPECT_EQ(bytes_a_pixel(6, 4, 2), 3);
    EXPECT_EQ(bytes_a_pixel(7, 4, 2), 3);
    EXPECT_EQ(bytes_a_pixel(8, 4, 2), 4);
    EXPECT_EQ(bytes_a_pixel(8, 5, 2), 4);
    EXPECT_EQ(bytes_a_pixel(7, 8, 4), 3);
    EXPECT_EQ(bytes_a_pixel(8, 8, 4), 4);
    EXPECT_EQ(bytes_a_pixel(7, 6, 3), 3);
    EXPECT_EQ(bytes_a_pixel(8, 6, 3), 4);
    // A width below the scale counts as no pixels, so any stride but a negative one has room.
    EXPECT_EQ(bytes_a_pixel(0, 1, 2), 4);
    EXPECT_EQ(bytes_a_pixel(-1, 1, 2), 3);
    EXPECT_EQ(bytes_a_pixel(0, 3, 4), 4);
    EXPECT_EQ(bytes_a_pixel(-1, 3, 4), 3);
    // An odd width goes by itself, not by the pixels written.
    EXPECT_EQ(bytes_a_pixel(11, 3, 1), 3);
    EXPECT_EQ(bytes_a_pixel(12, 3, 1), 4);
}

}  // namespace
}  // namespace tintvert::test
