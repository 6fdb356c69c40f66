// RGB to `2vuy`: how many pixels a call converts, and in what memory.
#include <gtest/gtest.h>

#include <climits>
#include <utility>

#include "rgb_runs.h"

namespace tintvert::test {
namespace {

TEST(RgbTo2vuy, every_run_starts_anew)
{
    EXPECT_EQ(bgra_run({blue, blue}), (Memory{211, 40, 114, 40}));
    EXPECT_EQ(bgra_run({blue, blue}), (Memory{211, 40, 114, 40}));
    EXPECT_EQ(hd_run({blue, blue}), (Memory{224, 18, 119, 18}));
    EXPECT_EQ(hd_run({blue, blue}), (Memory{224, 18, 119, 18}));
}

TEST(RgbTo2vuy, no_pixels_touch_no_memory)
{
    for (const int pixels : {0, -1, -2, INT_MIN}) {
        argb_to_2vuy(nullptr, nullptr, pixels);
        bgra_to_2vuy(nullptr, nullptr, pixels);
        hd_rgb_to_2vuy(nullptr, nullptr, pixels, 0);
        hd_rgb_to_2vuy(nullptr, nullptr, pixels, 1);

        Memory src = bgrx({white, white}), dst(8, 0xEE);
        argb_to_2vuy(src.data(), dst.data() + 4, pixels);
        bgra_to_2vuy(src.data(), dst.data() + 4, pixels);
        hd_rgb_to_2vuy(src.data(), dst.data() + 4, pixels, 1);
        EXPECT_EQ(dst, Memory(8, 0xEE)) << pixels;
    }
    for (const auto& [width, height] : {std::pair{0L, 5L}, {5L, 0L}, {-1L, 1L}, {2L, -3L}, {-2L, 3L}})
        tntvt_rgb32_2vuy(nullptr, 8, nullptr, 16, width, height);
}

// Three pixels: the fourth is read, and eight bytes are written.
TEST(RgbTo2vuy, odd_run_goes_on_to_a_whole_pair)
{
    const Memory canary(8, 0xEE);
    const auto check = [&](const Memory& four_pixels, const Memory& groups, const auto& convert) {
        Memory src = four_pixels, dst(24, 0xEE);
        convert(dst.data() + 8, src.data());
        EXPECT_EQ(Memory(dst.begin(), dst.begin() + 8), canary);
        EXPECT_EQ(Memory(dst.begin() + 8, dst.begin() + 16), groups);
        EXPECT_EQ(Memory(dst.begin() + 16, dst.end()), canary);
    };
    const std::vector<Rgb> run{blue, red, green, red};
    const Memory video{174, 40, 146, 81, 72, 144, 137, 81}, full{184, 18, 154, 54, 64, 182, 134, 54};
    check(xrgb(run), video, [](uint8_t* dst, uint8_t* src) { argb_to_2vuy(src, dst, 3); });
    check(bgrx(run), video, [](uint8_t* dst, uint8_t* src) { bgra_to_2vuy(src, dst, 3); });
    check(bgrx(run), full, [](uint8_t* dst, uint8_t* src) { hd_rgb_to_2vuy(src, dst, 3, 1); });
    check(xrgb(run), full, [](uint8_t* dst, uint8_t* src) { hd_rgb_to_2vuy(src, dst, 3, 0); });
    check(bgrx(run), video, [](uint8_t* dst, uint8_t* src) { tntvt_rgb32_2vuy(dst, 6, src, 12, 3, 1); });
    check(bgrx(run), video, [](uint8_t* dst, uint8_t* src) { tntvt_rgb32_2vuy(dst, 2, src, 4, 1, 3); });
}

TEST(RgbTo2vuy, one_pixel_is_a_pair)
{
    Memory src = bgrx({blue, blue, red}), dst(8, 0xEE);
    bgra_to_2vuy(src.data(), dst.data(), 1);
    EXPECT_EQ(dst, (Memory{211, 40, 114, 40, 0xEE, 0xEE, 0xEE, 0xEE}));
}

TEST(RgbTo2vuy, count_of_a_frame_is_a_32_bit_product)
{
    const Memory untouched(16, 0xEE), two{211, 40, 114, 40};
    const auto convert = [&](long width, long height) {
        Memory src = bgrx({blue, blue, blue, blue, blue, blue, blue, blue}), dst = untouched;
        tntvt_rgb32_2vuy(dst.data(), 0, src.data(), 0, width, height);
        return dst;
    };
    const auto groups = [&](size_t pairs) {
        Memory dst = untouched;
        for (size_t i = 0; i < 4 * pairs; ++i)
            dst[i] = Memory{211, 40, 114, 40, 239, 40, 109, 40}[i < 4 ? i : 4 + i % 4];
        return dst;
    };
    EXPECT_EQ(convert(0x10000, 0x10000), untouched);  // 2^32: nothing left
    EXPECT_EQ(convert(0x8000, 0x10000), untouched);   // 2^31: negative
    EXPECT_EQ(convert(46341, 46341), untouched);      // just above 2^31
    EXPECT_EQ(convert(0x80000001, 2), groups(1));     // 2^32 + 2
    EXPECT_EQ(convert(0x100000003, 2), groups(3));    // 2^33 + 6
    EXPECT_EQ(convert(-2, -3), groups(3));            // neither sign is looked at on its own
}

TEST(RgbTo2vuy, in_place)
{
    const Memory of_blue{211, 40, 114, 40, 239, 40, 109, 40, 239, 40, 109, 40};
    const auto check = [](Memory memory, const Memory& groups, const auto& convert) {
        const Memory tail(memory.begin() + 12, memory.end());
        convert(memory.data());
        EXPECT_EQ(Memory(memory.begin(), memory.begin() + 12), groups);
        EXPECT_EQ(Memory(memory.begin() + 12, memory.end()), tail);
    };
    check(xrgb(six(blue)), of_blue, [](uint8_t* memory) { argb_to_2vuy(memory, memory, 6); });
    check(bgrx(six(blue)), of_blue, [](uint8_t* memory) { bgra_to_2vuy(memory, memory, 6); });
    check(bgrx(six(blue)), of_blue, [](uint8_t* memory) { tntvt_rgb32_2vuy(memory, 4, memory, 8, 2, 3); });
    check(bgrx(six(red)), {106, 54, 224, 54, 99, 54, 0, 54, 99, 54, 0, 54},
          [](uint8_t* memory) { hd_rgb_to_2vuy(memory, memory, 6, 1); });
}

TEST(RgbTo2vuy, open_changes_nothing)
{
    const Memory before = bgra_run(six(blue)), full_before = hd_run(six(blue));
    EXPECT_EQ(tnvtt_open(1, 2, 3, 4), 0);
    EXPECT_EQ(bgra_run(six(blue)), before);
    EXPECT_EQ(hd_run(six(blue)), full_before);
}

TEST(Quirks, keeps_one_run_whatever_the_strides)
{
    // Each line anew would give 99, 81, 211, 81 for the second.
    const Memory two_lines{211, 40, 114, 40, 127, 81, 207, 81};
    // The second pair is the last blue pixel and the first red one.
    const Memory odd_lines{211, 40, 114, 40, 202, 40, 142, 81, 90, 81, 239, 81};
    for (const long stride : {0L, 1L, 4L, 8L, 12L, 64L, -8L, -12L, LONG_MAX, LONG_MIN}) {
        EXPECT_EQ(frame_run({blue, blue, red, red}, 2, 2, stride, stride), two_lines) << stride;
        EXPECT_EQ(frame_run({blue, blue, blue, red, red, red}, 3, 2, stride, -(stride / 2)), odd_lines) << stride;
    }
}

}  // namespace
}  // namespace tintvert::test
