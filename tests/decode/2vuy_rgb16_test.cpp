// `2vuy` to RGB of 16 bits by tables: bytes in, words out.
#include "2vuy_calls.h"

namespace tintvert::test {
namespace {

TEST(Yuv422Rgb16, neutral_chroma)
{
    EXPECT_EQ(rgb16(greys({235, 0, 16, 0, 128, 0, 255, 0, 33, 0}), 10, {20, 0, 10, 1, 1}),
              (Words{0x7FFF, 0x7FFF, 0, 0, 0x4210, 0x4210, 0x7FFF, 0x7FFF, 0x0842, 0x0842}));
}

// Red in bits 14 to 10, green in 9 to 5, blue in 4 to 0.
TEST(Yuv422Rgb16, fields_of_the_word)
{
    EXPECT_EQ(rgb16({90, 81, 240, 0, 54, 145, 34, 0, 240, 41, 110, 0, 90, 200, 240, 0}, 8, {16, 0, 8, 1, 1}),
              (Words{0x7C00, 0x7C00, 0x03E0, 0x03E0, 0x001F, 0x001F, 0x7E31, 0x7E31}));
}

TEST(Yuv422Rgb16, pixels_at_every_scale)
{
    const Memory src = greys({16, 255, 128, 255, 235, 255, 33, 255});
    EXPECT_EQ(rgb16(src, 9, {16, 0, 8, 1, 1}), (Words{0, 0, 0x4210, 0x4210, 0x7FFF, 0x7FFF, 0x0842, 0x0842, 0xEEEE}));
    EXPECT_EQ(rgb16(src, 5, {16, 0, 8, 2, 2}), (Words{0, 0x4210, 0x7FFF, 0x0842, 0xEEEE}));
    EXPECT_EQ(rgb16(src, 9, {16, 0, 8, 3, 3}), (Words{0, 0, 0x4210, 0x4210, 0x7FFF, 0x7FFF, 0x0842, 0x0842, 0xEEEE}));
    EXPECT_EQ(rgb16(src, 3, {16, 0, 8, 4, 4}), (Words{0, 0x7FFF, 0xEEEE}));
}

TEST(Yuv422Rgb16, odd_width_runs_its_last_group_whole)
{
    EXPECT_EQ(rgb16(greys({16, 0, 235, 0}), 5, {6, 0, 3, 1, 1}), (Words{0, 0, 0x7FFF, 0x7FFF, 0xEEEE}));
}

// The stride has no say in the form: two bytes a pixel with room for any.
TEST(Yuv422Rgb16, stride_only_moves_lines)
{
    const Memory src = lines_of({greys({16, 0}), greys({128, 0})});
    EXPECT_EQ(rgb16(src, 8, {8, 4, 2, 2, 1}), (Words{0x4210, 0x4210, 0xEEEE, 0xEEEE, 0, 0, 0xEEEE, 0xEEEE}));
    EXPECT_EQ(rgb16(src, 3, {2, 4, 2, 2, 1}), (Words{0x4210, 0, 0}));
}

TEST(Yuv422Rgb16, scale_0_counts_as_1)
{
    const Memory src = lines_of({greys({16, 0, 128, 0}), greys({235, 0, 33, 0})});
    const Words exchanged{0x7FFF, 0x7FFF, 0x0842, 0x0842, 0, 0, 0x4210, 0x4210};
    EXPECT_EQ(rgb16(src, 8, {8, 8, 4, 2, 1}), exchanged);
    EXPECT_EQ(rgb16(src, 8, {8, 8, 4, 2, 0}), exchanged);
}

// Source lines 1, 0 at scale 3 are lines 3 and 0 of the picture.
TEST(Yuv422Rgb16, scale_3_takes_every_third_line_exchanged)
{
    const Memory skipped = greys({255, 255});
    const Memory src = lines_of({greys({16, 0}), skipped, skipped, greys({128, 0}), skipped, skipped});
    EXPECT_EQ(rgb16(src, 4, {4, 4, 2, 6, 3}), (Words{0x4210, 0x4210, 0, 0}));
}

TEST(Quirks, keeps_first_luma_for_both)
{
    for (int luma = 0; luma < 256; ++luma) {
        const auto second = static_cast<uint8_t>(luma);
        EXPECT_EQ(rgb16({128, 128, 128, second}, 2, {4, 0, 2, 1, 1}), (Words{0x4210, 0x4210}));
        EXPECT_EQ(rgb16({90, 81, 240, second}, 2, {4, 0, 2, 1, 1}), (Words{0x7C00, 0x7C00}));
    }
}

TEST(Quirks, keeps_swapped_line_pairs)
{
    const Memory four = lines_of({greys({16, 0}), greys({33, 0}), greys({128, 0}), greys({235, 0})});
    EXPECT_EQ(rgb16(four, 8, {4, 4, 2, 4, 1}), (Words{0x0842, 0x0842, 0, 0, 0x7FFF, 0x7FFF, 0x4210, 0x4210}));
    // One or three lines: the last shows the line after the last.
    EXPECT_EQ(rgb16(four, 3, {4, 4, 2, 1, 1}), (Words{0x0842, 0x0842, 0xEEEE}));
    EXPECT_EQ(rgb16(four, 7, {4, 4, 2, 3, 1}), (Words{0x0842, 0x0842, 0, 0, 0x7FFF, 0x7FFF, 0xEEEE}));
    // At scale 2 the lines are exchanged after the dropping: lines 2 and 0, then 6 for 4.
    const Memory skipped = greys({255, 255});
    const Memory seven =
        lines_of({greys({16, 0}), skipped, greys({33, 0}), skipped, greys({128, 0}), skipped, greys({235, 0})});
    EXPECT_EQ(rgb16(seven, 3, {2, 4, 2, 6, 2}), (Words{0x0842, 0, 0x7FFF}));
}

}  // namespace
}  // namespace tintvert::test
