// RGB to `v210` and the two routines of 8-bit bytes against their reference implementation: random lines and frames,
// overlapping memory, every colour.
#include <gtest/gtest.h>
#include <tintvert.h>

#include <cstdlib>
#include <utility>

#include "reference/ycbcr10/v210_encoders.h"
#include "support/arena.h"

namespace tintvert::test {
namespace {

unsigned int* words(uint8_t* bytes) { return reinterpret_cast<unsigned int*>(bytes); }

struct Line {
    const char* name;
    void (*routine)(uint8_t* src, uint8_t* dst, int width);
    void (*expected)(const uint8_t* src, uint8_t* dst, int width);
};

const Line lines[] = {
    {"argb_to_v210", [](uint8_t* src, uint8_t* dst, int width) { argb_to_v210(src, words(dst), width, 2); },
     [](const uint8_t* src, uint8_t* dst, int width) { reference::argb_line_to_v210(src, dst, width, 2); }},
    {"argb_to_v210 without alpha",
     [](uint8_t* src, uint8_t* dst, int width) { argb_to_v210(src, words(dst), width, 0); },
     [](const uint8_t* src, uint8_t* dst, int width) { reference::argb_line_to_v210(src, dst, width, 0); }},
    {"bgra_to_v210", [](uint8_t* src, uint8_t* dst, int width) { bgra_to_v210(src, words(dst), width); },
     reference::bgra_line_to_v210},
    {"yuv2_to_v210", yuv2_to_v210, reference::yuv2_bytes},
    {"yuvs_to_v210", yuvs_to_v210, reference::yuvs_bytes},
};

testing::AssertionResult agree(const Line& line, const Line& expected, Random& random, int64_t from, int64_t to,
                               int width)
{
    Arena memory(random, 512, 4096);
    line.routine(memory.actual(from), memory.actual(to), width);
    expected.expected(memory.expected(from), memory.expected(to), width);
    const testing::AssertionResult result = memory.agrees(to);
    if (result) return result;
    return testing::AssertionFailure() << line.name << ", width " << width << ", src at " << from << ", dst at " << to
                                       << ": " << result.message();
}

TEST(LinesToV210Reference, every_width_anywhere)
{
    Random random(411);
    for (const Line& line : lines)
        for (int width = -2; width <= 300; ++width)
            ASSERT_TRUE(agree(line, line, random, 2000 + random.between(0, 63), random.between(0, 63), width));
}

// A group, or a pixel of two bytes, is read whole before it is written.
TEST(LinesToV210Reference, overlapping_at_every_offset)
{
    Random random(412);
    for (const Line& line : lines)
        for (int64_t offset = -64; offset <= 64; ++offset)
            for (const int width : {1, 6, 7, 12, 48, 61}) ASSERT_TRUE(agree(line, line, random, 0, offset, width));
}

TEST(LinesToV210Reference, rejects_a_wrong_form)
{
    Random random(413);
    EXPECT_TRUE(agree(lines[0], lines[0], random, 2000, 0, 12));
    EXPECT_FALSE(agree(lines[0], lines[1], random, 2000, 0, 12));
    EXPECT_FALSE(agree(lines[0], lines[2], random, 2000, 0, 12));
    EXPECT_FALSE(agree(lines[3], lines[4], random, 2000, 0, 12));
}

struct Geometry {
    long dstStride, srcStride, width, height;
};

testing::AssertionResult frames_agree(Random& random, const Geometry& g, int64_t from, int64_t to, int64_t reach,
                                      const Geometry& expected)
{
    Arena memory(random, reach, 3 * reach);
    tntvt_rgb32_v210(memory.actual(to), g.dstStride, memory.actual(from), g.srcStride, g.width, g.height);
    reference::rgb32_to_v210(memory.expected(to), expected.dstStride, memory.expected(from), expected.srcStride,
                             expected.width, expected.height);
    const testing::AssertionResult result = memory.agrees(to, g.dstStride);
    if (result) return result;
    return testing::AssertionFailure() << "width " << g.width << ", height " << g.height << ", strides " << g.dstStride
                                       << ' ' << g.srcStride << ": " << result.message();
}

TEST(Rgb32V210Reference, random_frames)
{
    Random random(414);
    for (int round = 0; round < 2500; ++round) {
        Geometry g{0, 0, random.between(-2, 70), random.between(-2, 14)};
        if (random.between(0, 2) != 0) g.dstStride = random.between(-300, 300);
        if (random.between(0, 2) != 0) g.srcStride = random.between(-300, 300);
        ASSERT_TRUE(frames_agree(random, g, 10000 + random.between(0, 15), random.between(0, 15), 5000, g));
    }
}

TEST(Rgb32V210Reference, both_sides_of_962)
{
    Random random(415);
    for (long width = 955; width <= 970; ++width)
        for (const long slack : {0L, 12L}) {
            const Geometry g{slack == 0 ? 0 : 2600, slack == 0 ? 0 : width * 4 + slack, width, 7};
            ASSERT_TRUE(frames_agree(random, g, 40003, 1, 30000, g));
        }
    const Geometry wide{0, 0, 1280, 9};
    ASSERT_TRUE(frames_agree(random, wide, 60000, 0, 50000, wide));
}

TEST(Rgb32V210Reference, two_negative_sizes)
{
    Random random(416);
    for (int round = 0; round < 300; ++round) {
        const Geometry g{random.between(1, 300), random.between(1, 300), random.between(-30, -1),
                         random.between(-12, -1)};
        ASSERT_TRUE(frames_agree(random, g, 10000, 0, 5000, g));
    }
}

TEST(Rgb32V210Reference, overlapping_at_every_offset)
{
    Random random(417);
    for (int64_t offset = -64; offset <= 64; ++offset)
        for (const long width : {6L, 7L, 12L, 17L, 30L})
            for (const long dstStride : {0L, 16L, 80L, width * 4, -48L}) {
                const Geometry g{dstStride, width * 4, width, 5};
                ASSERT_TRUE(frames_agree(random, g, 0, offset, 1000, g));
            }
}

TEST(Rgb32V210Reference, rejects_a_wrong_form)
{
    Random random(418);
    const Geometry right{50, 60, 13, 5};
    EXPECT_TRUE(frames_agree(random, right, 10000, 0, 5000, right));
    EXPECT_FALSE(frames_agree(random, right, 10000, 0, 5000, {50, 60, 12, 5}));
    EXPECT_FALSE(frames_agree(random, right, 10000, 0, 5000, {52, 60, 13, 5}));
    EXPECT_FALSE(frames_agree(random, right, 10000, 0, 5000, {50, 64, 13, 5}));
}

// All 2^24 colours, as one run of pixels for each red. One pixel more before the run puts the colours
// that were the centre of a chroma sample beside it and the others in its centre. 66048 pixels are whole
// groups, and lines of 258 and of 1032 pixels.
class EncodersExhaustive : public testing::Test {
protected:
    static constexpr size_t pixels = 66048;

    // Pixels of `step` bytes with red, green and blue at r, g and b; the rest of a pixel counts, too.
    template <class Routine, class Reference>
    void compare(size_t step, size_t r, size_t g, size_t b, Routine routine, Reference reference)
    {
        std::vector<uint8_t> src((pixels + 1) * step);
        std::vector<uint32_t> dst(pixels / 6 * 4), expected = dst;
        for (size_t red = 0; red < 256; ++red) {
            for (size_t i = 0; i <= pixels; ++i) {
                uint8_t* const pixel = &src[i * step];
                pixel[step - 1] = pixel[0] = static_cast<uint8_t>(i % 251);
                pixel[r] = static_cast<uint8_t>(red);
                pixel[g] = static_cast<uint8_t>(i / 256);
                pixel[b] = static_cast<uint8_t>(i);
            }
            for (const size_t front : {size_t{0}, step}) {
                routine(&src[front], dst.data());
                reference(&src[front], reinterpret_cast<uint8_t*>(expected.data()));
                ASSERT_TRUE(dst == expected) << "red " << red << ", from byte " << front;
            }
        }
    }
};

TEST_F(EncodersExhaustive, argb_to_v210)
{
    compare(
        4, 1, 2, 3, [](uint8_t* src, uint32_t* dst) { ::argb_to_v210(src, dst, pixels, 1); },
        [](const uint8_t* src, uint8_t* dst) { reference::argb_line_to_v210(src, dst, pixels, 1); });
}

TEST_F(EncodersExhaustive, argb_to_v210_without_alpha)
{
    compare(
        3, 0, 1, 2, [](uint8_t* src, uint32_t* dst) { ::argb_to_v210(src, dst, pixels, 0); },
        [](const uint8_t* src, uint8_t* dst) { reference::argb_line_to_v210(src, dst, pixels, 0); });
}

TEST_F(EncodersExhaustive, bgra_to_v210)
{
    compare(
        4, 2, 1, 0, [](uint8_t* src, uint32_t* dst) { ::bgra_to_v210(src, dst, pixels); },
        [](const uint8_t* src, uint8_t* dst) { reference::bgra_line_to_v210(src, dst, pixels); });
}

TEST_F(EncodersExhaustive, rgb32_v210_below_962)
{
    compare(
        4, 2, 1, 0, [](uint8_t* src, uint32_t* dst) { tntvt_rgb32_v210(dst, 688, src, 1032, 258, 256); },
        [](const uint8_t* src, uint8_t* dst) { reference::rgb32_to_v210(dst, 688, src, 1032, 258, 256); });
}

TEST_F(EncodersExhaustive, rgb32_v210_from_962)
{
    compare(
        4, 2, 1, 0, [](uint8_t* src, uint32_t* dst) { tntvt_rgb32_v210(dst, 2752, src, 4128, 1032, 64); },
        [](const uint8_t* src, uint8_t* dst) { reference::rgb32_to_v210(dst, 2752, src, 4128, 1032, 64); });
}

TEST(YuvBytesExhaustive, every_pixel)
{
    std::vector<uint8_t> src(2 * 65536), dst(src.size()), expected(src.size());
    for (size_t i = 0; i < 65536; ++i) {
        src[2 * i] = static_cast<uint8_t>(i);
        src[2 * i + 1] = static_cast<uint8_t>(i / 256);
    }
    yuv2_to_v210(src.data(), dst.data(), 65536);
    reference::yuv2_bytes(src.data(), expected.data(), 65536);
    EXPECT_TRUE(dst == expected);
    yuvs_to_v210(src.data(), dst.data(), 65536);
    reference::yuvs_bytes(src.data(), expected.data(), 65536);
    EXPECT_TRUE(dst == expected);
}

// What their namesakes to `2vuy` do, in place as well.
TEST(YuvBytesExhaustive, same_as_to_2vuy)
{
    std::vector<uint8_t> src(2 * 65536), to_v210 = src, to_2vuy = src;
    for (size_t i = 0; i < src.size(); ++i) src[i] = static_cast<uint8_t>(i % 2 == 0 ? i / 2 : i / 512);
    using Routine = void (*)(unsigned char*, unsigned char*, int);
    const std::pair<Routine, Routine> twins[] = {{yuv2_to_v210, yuv2_to_2vuy}, {yuvs_to_v210, yuvs_to_2vuy}};
    for (const auto& [v210, vuy] : twins) {
        vuy(src.data(), to_2vuy.data(), 65536);
        v210(src.data(), to_v210.data(), 65536);
        EXPECT_TRUE(to_v210 == to_2vuy);
        to_v210 = src;
        v210(to_v210.data(), to_v210.data(), 65536);
        EXPECT_TRUE(to_v210 == to_2vuy);
    }
}

}  // namespace
}  // namespace tintvert::test
