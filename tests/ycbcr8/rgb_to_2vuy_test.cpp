// RGB to `2vuy`: bytes in, bytes out.
#include <gtest/gtest.h>
#include <tintvert.h>

#include <climits>
#include <cstdint>
#include <utility>
#include <vector>

namespace {

using Memory = std::vector<uint8_t>;

struct Rgb {
    uint8_t r, g, b;
};
constexpr Rgb black{0, 0, 0}, white{255, 255, 255}, red{255, 0, 0}, green{0, 255, 0}, blue{0, 0, 255};

Rgb grey(int level) { return {static_cast<uint8_t>(level), static_cast<uint8_t>(level), static_cast<uint8_t>(level)}; }

Memory bgrx(const std::vector<Rgb>& run, uint8_t x = 0xA5)
{
    Memory bytes;
    for (const Rgb& pixel : run) bytes.insert(bytes.end(), {pixel.b, pixel.g, pixel.r, x});
    return bytes;
}

Memory xrgb(const std::vector<Rgb>& run, uint8_t x = 0xA5)
{
    Memory bytes;
    for (const Rgb& pixel : run) bytes.insert(bytes.end(), {x, pixel.r, pixel.g, pixel.b});
    return bytes;
}

// A run through each routine, into exactly the bytes that its pairs fill.
size_t bytes_for(size_t pixels) { return (pixels + 1) / 2 * 4; }

Memory argb_run(const std::vector<Rgb>& run)
{
    Memory src = xrgb(run), dst(bytes_for(run.size()), 0xEE);
    argb_to_2vuy(src.data(), dst.data(), static_cast<int>(run.size()));
    return dst;
}

Memory bgra_run(const std::vector<Rgb>& run)
{
    Memory src = bgrx(run), dst(bytes_for(run.size()), 0xEE);
    bgra_to_2vuy(src.data(), dst.data(), static_cast<int>(run.size()));
    return dst;
}

Memory hd_run(const std::vector<Rgb>& run)
{
    Memory src = bgrx(run), dst(bytes_for(run.size()), 0xEE);
    hd_rgb_to_2vuy(src.data(), dst.data(), static_cast<int>(run.size()), 1);
    return dst;
}

Memory frame_run(const std::vector<Rgb>& frame, long width, long height, long dstStride, long srcStride)
{
    Memory src = bgrx(frame), dst(bytes_for(frame.size()), 0xEE);
    tntvt_rgb32_2vuy(dst.data(), dstStride, src.data(), srcStride, width, height);
    return dst;
}

std::vector<Rgb> six(Rgb colour) { return std::vector<Rgb>(6, colour); }

TEST(RgbTo2vuy, video_range_primaries)
{
    const Memory of_red{99, 81, 211, 81, 90, 81, 239, 81, 90, 81, 239, 81};
    const Memory of_green{72, 144, 57, 144, 53, 144, 34, 144, 53, 144, 34, 144};
    const Memory of_blue{211, 40, 114, 40, 239, 40, 109, 40, 239, 40, 109, 40};
    EXPECT_EQ(bgra_run(six(red)), of_red);
    EXPECT_EQ(bgra_run(six(green)), of_green);
    EXPECT_EQ(bgra_run(six(blue)), of_blue);
    EXPECT_EQ(argb_run(six(red)), of_red);
    EXPECT_EQ(argb_run(six(green)), of_green);
    EXPECT_EQ(argb_run(six(blue)), of_blue);
    EXPECT_EQ(frame_run(six(blue), 3, 2, 6, 12), of_blue);
}

TEST(RgbTo2vuy, full_range_primaries)
{
    EXPECT_EQ(hd_run(six(red)), (Memory{106, 54, 224, 54, 99, 54, 0, 54, 99, 54, 0, 54}));
    EXPECT_EQ(hd_run(six(green)), (Memory{54, 182, 41, 182, 30, 182, 12, 182, 30, 182, 12, 182}));
    EXPECT_EQ(hd_run(six(blue)), (Memory{224, 18, 119, 18, 0, 18, 116, 18, 0, 18, 116, 18}));
}

TEST(RgbTo2vuy, black_and_white)
{
    const Memory video_black{128, 16, 128, 16, 128, 16, 128, 16, 128, 16, 128, 16};
    const Memory video_white{128, 235, 128, 235, 128, 235, 128, 235, 128, 235, 128, 235};
    EXPECT_EQ(bgra_run(six(black)), video_black);
    EXPECT_EQ(bgra_run(six(white)), video_white);
    EXPECT_EQ(argb_run(six(black)), video_black);
    EXPECT_EQ(argb_run(six(white)), video_white);
    EXPECT_EQ(hd_run(six(black)), (Memory{128, 0, 128, 0, 128, 0, 128, 0, 128, 0, 128, 0}));
    EXPECT_EQ(hd_run(six(white)), (Memory{128, 255, 128, 255, 128, 255, 128, 255, 128, 255, 128, 255}));
}

TEST(RgbTo2vuy, full_range_grey_keeps_its_level)
{
    for (int level = 0; level < 256; ++level) {
        const auto y = static_cast<uint8_t>(level);
        EXPECT_EQ(hd_run({grey(level), grey(level), grey(level), grey(level)}),
                  (Memory{128, y, 128, y, 128, y, 128, y}));
    }
}

TEST(RgbTo2vuy, bgra_argument_picks_the_order_of_bytes)
{
    const Memory first = bgrx(six(red)), second = xrgb(six(red));
    const Memory of_red{106, 54, 224, 54, 99, 54, 0, 54, 99, 54, 0, 54};
    for (const int bgra : {1, 2, -1, 0x100, INT_MIN}) {
        Memory src = first, dst(12, 0xEE);
        hd_rgb_to_2vuy(src.data(), dst.data(), 6, bgra);
        EXPECT_EQ(dst, of_red) << bgra;
    }
    Memory src = second, dst(12, 0xEE);
    hd_rgb_to_2vuy(src.data(), dst.data(), 6, 0);
    EXPECT_EQ(dst, of_red);
}

TEST(RgbTo2vuy, alpha_is_never_read)
{
    const std::vector<Rgb> run{{12, 34, 56}, {78, 90, 123}, {145, 167, 189}, {210, 232, 254}};
    for (const int alpha : {0, 1, 127, 128, 255}) {
        Memory forward = bgrx(run, static_cast<uint8_t>(alpha)), backward = xrgb(run, static_cast<uint8_t>(alpha));
        Memory dst(8);
        bgra_to_2vuy(forward.data(), dst.data(), 4);
        EXPECT_EQ(dst, bgra_run(run));
        argb_to_2vuy(backward.data(), dst.data(), 4);
        EXPECT_EQ(dst, bgra_run(run));
        hd_rgb_to_2vuy(forward.data(), dst.data(), 4, 1);
        EXPECT_EQ(dst, hd_run(run));
        hd_rgb_to_2vuy(backward.data(), dst.data(), 4, 0);
        EXPECT_EQ(dst, hd_run(run));
        tntvt_rgb32_2vuy(dst.data(), 0, forward.data(), 0, 2, 2);
        EXPECT_EQ(dst, bgra_run(run));
    }
}

TEST(RgbTo2vuy, even_pixel_weighs_two_and_odd_pixel_one_on_either_side)
{
    EXPECT_EQ(bgra_run({black, blue, black, black, black, black}),
              (Memory{155, 16, 123, 40, 155, 16, 123, 16, 128, 16, 128, 16}));
    EXPECT_EQ(bgra_run({black, black, blue, black, black, black}),
              (Memory{128, 16, 128, 16, 183, 40, 118, 16, 128, 16, 128, 16}));
    EXPECT_EQ(hd_run({black, red, black, black, black, black}),
              (Memory{121, 0, 160, 54, 121, 0, 160, 0, 128, 0, 128, 0}));
    EXPECT_EQ(hd_run({black, black, red, black, black, black}),
              (Memory{128, 0, 128, 0, 113, 54, 192, 0, 128, 0, 128, 0}));
}

// With the carried chroma cut or rounded to a whole number the fifth and the seventh byte are one less.
TEST(RgbTo2vuy, chroma_is_carried_unrounded)
{
    EXPECT_EQ(bgra_run({{174, 176, 12}, {56, 30, 99}, {112, 191, 113}, {30, 151, 80}}),
              (Memory{98, 150, 135, 55, 120, 152, 103, 107}));
    EXPECT_EQ(hd_run({{45, 96, 16}, {102, 115, 62}, {210, 74, 175}, {56, 193, 188}}),
              (Memory{105, 79, 116, 108, 143, 110, 142, 163}));
}

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

// The double sum of a grey falls a hair under 128 in these levels, in one chroma or the other.
TEST(Quirks, keeps_truncation_of_grey)
{
    EXPECT_EQ(bgra_run({grey(235), grey(235), grey(235), grey(235), grey(235), grey(235)}),
              (Memory{128, 217, 128, 217, 127, 217, 128, 217, 127, 217, 128, 217}));

    const std::vector<int> low_cb{114, 146, 153, 158, 160, 162, 163, 165, 172, 175, 177, 181, 182, 184, 186,
                                  187, 189, 196, 199, 201, 204, 205, 206, 208, 211, 216, 220, 222, 223, 225,
                                  228, 229, 230, 234, 235, 237, 240, 243, 244, 245, 247, 249, 252, 253, 254};
    const std::vector<int> low_cr{114, 146, 153, 165, 170, 175, 189, 191, 194, 196,
                                  199, 215, 216, 218, 223, 228, 242, 244, 245, 247};
    for (const auto& run_through : {argb_run, bgra_run}) {
        std::vector<int> cb_at_127, cr_at_127;
        int either = 0;
        for (int level = 0; level < 256; ++level) {
            const Memory groups = run_through({grey(level), grey(level), grey(level), grey(level)});
            const int cb = groups[4], cr = groups[6];
            EXPECT_TRUE(cb == 127 || cb == 128) << level;
            EXPECT_TRUE(cr == 127 || cr == 128) << level;
            if (cb == 127) cb_at_127.push_back(level);
            if (cr == 127) cr_at_127.push_back(level);
            either += cb == 127 || cr == 127;
        }
        EXPECT_EQ(either, 51);
        EXPECT_EQ(cb_at_127, low_cb);
        EXPECT_EQ(cr_at_127, low_cr);
    }
}

TEST(Quirks, keeps_wrap_of_pure_blue_and_red)
{
    EXPECT_EQ(hd_run(six(blue)), (Memory{224, 18, 119, 18, 0, 18, 116, 18, 0, 18, 116, 18}));
    EXPECT_EQ(hd_run(six(red)), (Memory{106, 54, 224, 54, 99, 54, 0, 54, 99, 54, 0, 54}));
}

// From a start of 128.5 the first group would be 174, 74, 93, 74.
TEST(Quirks, keeps_chroma_start_without_half)
{
    EXPECT_EQ(hd_run({{0, 85, 187}, {0, 85, 187}}), (Memory{173, 74, 92, 74}));
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
