// RGB to `2vuy` against its reference implementation: random runs, overlapping memory, every colour.
#include <gtest/gtest.h>
#include <tintvert.h>

#include <algorithm>
#include <vector>

#include "reference/ycbcr8/rgb_to_2vuy.h"
#include "support/arena.h"

namespace tintvert::test {
namespace {

using reference::Bytes;
using reference::Matrix;

struct Line {
    const char* name;
    Bytes bytes;
    Matrix matrix;
    void (*convert)(uint8_t* src, uint8_t* dst, int pixels);
};

const Line lines[] = {
    {"argb_to_2vuy", Bytes::xrgb, Matrix::video_601, argb_to_2vuy},
    {"bgra_to_2vuy", Bytes::bgrx, Matrix::video_601, bgra_to_2vuy},
    {"hd_rgb_to_2vuy, bgra 0", Bytes::xrgb, Matrix::full_709,
     [](uint8_t* src, uint8_t* dst, int pixels) { hd_rgb_to_2vuy(src, dst, pixels, 0); }},
    {"hd_rgb_to_2vuy, bgra 1", Bytes::bgrx, Matrix::full_709,
     [](uint8_t* src, uint8_t* dst, int pixels) { hd_rgb_to_2vuy(src, dst, pixels, 1); }},
    {"tntvt_rgb32_2vuy", Bytes::bgrx, Matrix::video_601,
     [](uint8_t* src, uint8_t* dst, int pixels) { tntvt_rgb32_2vuy(dst, 0, src, 0, pixels, 1); }},
};

TEST(RgbTo2vuyReference, random_lines)
{
    Random random(21);
    for (const Line& line : lines) {
        for (int round = 0; round < 2000; ++round) {
            const int pixels = static_cast<int>(random.between(-3, 150));
            const int64_t from = random.between(0, 15), to = random.between(0, 15);
            Arena src(random, 32, 700), dst(random, 32, 400);
            line.convert(src.actual(from), dst.actual(to), pixels);
            reference::rgb_run_to_2vuy(src.expected(from), dst.expected(to), pixels, line.bytes, line.matrix);
            EXPECT_TRUE(dst.agrees(to)) << line.name << ", pixels " << pixels;
            EXPECT_TRUE(src.agrees(from)) << line.name << " wrote to its source";
        }
    }
}

TEST(RgbTo2vuyReference, random_frames)
{
    Random random(22);
    for (int round = 0; round < 4000; ++round) {
        const long width = random.between(-2, 20), height = random.between(-3, 12);
        const long strides[] = {width * 4, width * 2, width * 4 + random.between(1, 40), random.between(-100, 100)};
        const long dstStride = strides[random.between(0, 3)], srcStride = strides[random.between(0, 3)];
        // What is above the low 32 bits has no part in the product.
        const long wide = width + random.between(-1, 1) * 0x100000000,
                   high = height + random.between(-1, 1) * 0x100000000;
        const int64_t from = random.between(0, 15), to = random.between(0, 15);
        Arena src(random, 32, 1100), dst(random, 32, 600);
        tntvt_rgb32_2vuy(dst.actual(to), dstStride, src.actual(from), srcStride, wide, high);
        reference::rgb32_frame_to_2vuy(dst.expected(to), src.expected(from), wide, high);
        EXPECT_TRUE(dst.agrees(to)) << wide << " x " << high << ", strides " << dstStride << ' ' << srcStride;
        EXPECT_TRUE(src.agrees(from)) << "wrote to its source";
    }
}

// A reference that rounds, or forgets its carry, differs in a single random line.
TEST(RgbTo2vuyReference, rejects_a_wrong_form)
{
    Random random(23);
    const auto agrees_with = [&](const auto& wrong) {
        Arena src(random, 0, 408), dst(random, 8, 208);
        bgra_to_2vuy(src.actual(), dst.actual(), 100);
        wrong(src.expected(), dst.expected());
        return dst.agrees();
    };
    const auto line = [](const uint8_t* src, uint8_t* dst, int64_t pixels) {
        reference::rgb_run_to_2vuy(src, dst, pixels, Bytes::bgrx, Matrix::video_601);
    };
    EXPECT_TRUE(agrees_with([&](const uint8_t* src, uint8_t* dst) { line(src, dst, 100); }));
    EXPECT_FALSE(agrees_with([&](const uint8_t* src, uint8_t* dst) { line(src, dst, 98); }));
    EXPECT_FALSE(agrees_with([&](const uint8_t* src, uint8_t* dst) { line(src, dst, 101); }));
    EXPECT_FALSE(agrees_with([&](const uint8_t* src, uint8_t* dst) {
        for (int i = 0; i < 100; i += 2) line(src + 4 * i, dst + 2 * i, 2);
    }));
    EXPECT_FALSE(agrees_with([&](const uint8_t* src, uint8_t* dst) {
        reference::rgb_run_to_2vuy(src, dst, 100, Bytes::xrgb, Matrix::video_601);
    }));
    EXPECT_FALSE(agrees_with([&](const uint8_t* src, uint8_t* dst) {
        reference::rgb_run_to_2vuy(src, dst, 100, Bytes::bgrx, Matrix::full_709);
    }));
}

TEST(RgbTo2vuyReference, in_place_equals_apart)
{
    Random random(24);
    for (const Line& line : lines) {
        for (int pixels = 0; pixels <= 150; ++pixels) {
            const int64_t written = (pixels + 1) / 2 * 4;
            Arena memory(random, 16, 640);
            std::vector<uint8_t> apart(static_cast<size_t>(written));
            line.convert(memory.expected(), apart.data(), pixels);
            std::copy(apart.begin(), apart.end(), memory.expected());
            line.convert(memory.actual(), memory.actual(), pixels);
            EXPECT_TRUE(memory.agrees()) << line.name << ", pixels " << pixels;
        }
    }
}

// The reference reads a pair whole and then writes four bytes, so it is its own walk over any overlap.
TEST(RgbTo2vuyReference, overlapping_at_every_offset)
{
    Random random(25);
    for (const Line& line : lines) {
        for (int64_t offset = -64; offset <= 64; ++offset) {
            for (const int pixels : {1, 2, 3, 7, 16, 33, 64, 127}) {
                Arena memory(random, 80, 640);
                line.convert(memory.actual(), memory.actual(offset), pixels);
                reference::rgb_run_to_2vuy(memory.expected(), memory.expected(offset), pixels, line.bytes, line.matrix);
                EXPECT_TRUE(memory.agrees()) << line.name << ", dst at " << offset << ", pixels " << pixels;
            }
        }
    }
}

// Each of the 2^24 colours, as the even and as the odd pixel of a pair, beside neighbours that are near,
// far and equal to it.
class RgbTo2vuyExhaustive : public testing::TestWithParam<int> {
protected:
    static constexpr uint32_t colours = 1u << 24;
    static constexpr uint32_t run = 1u << 16;

    // Colours colour_at(0) to colour_at(count - 1) in runs; every run begins one pixel before the last ended.
    template <class ColourAt>
    void compare(uint64_t count, ColourAt colour_at)
    {
        const Line& line = lines[GetParam()];
        const bool xrgb = line.bytes == Bytes::xrgb;
        const int x = xrgb ? 0 : 3, red = xrgb ? 1 : 2, green = xrgb ? 2 : 1, blue = xrgb ? 3 : 0;
        std::vector<uint8_t> src((run + 2) * 4), actual((run + 2) * 2), expected((run + 2) * 2);
        uint8_t low_y = 255, high_y = 0, low_c = 255, high_c = 0;
        for (uint64_t first = 0; first < count; first += run) {
            for (uint64_t i = 0; i < run + 2; ++i) {
                const auto colour = static_cast<uint32_t>(colour_at((first + i) % count));
                uint8_t* const pixel = &src[i * 4];
                pixel[red] = static_cast<uint8_t>(colour >> 16);
                pixel[green] = static_cast<uint8_t>(colour >> 8);
                pixel[blue] = static_cast<uint8_t>(colour);
                pixel[x] = static_cast<uint8_t>(i);
            }
            line.convert(src.data(), actual.data(), run + 2);
            reference::rgb_run_to_2vuy(src.data(), expected.data(), run + 2, line.bytes, line.matrix);
            ASSERT_EQ(actual, expected) << line.name << ", run from " << first;
            for (size_t i = 0; i < actual.size(); i += 2) {
                low_c = std::min(low_c, actual[i]), high_c = std::max(high_c, actual[i]);
                low_y = std::min(low_y, actual[i + 1]), high_y = std::max(high_y, actual[i + 1]);
            }
        }
        const bool full = line.matrix == Matrix::full_709;
        EXPECT_EQ(low_y, full ? 0 : 16);
        EXPECT_EQ(high_y, full ? 255 : 235);
        EXPECT_GE(low_c, full ? 0 : 16);
        EXPECT_LE(high_c, full ? 255 : 240);
    }
};

TEST_P(RgbTo2vuyExhaustive, ascending)
{
    compare(colours, [](uint64_t i) { return i; });
}

TEST_P(RgbTo2vuyExhaustive, ascending_from_odd)
{
    compare(colours, [](uint64_t i) { return i + 1; });
}

TEST_P(RgbTo2vuyExhaustive, scattered)
{
    compare(colours, [](uint64_t i) { return (i * 0x9E3779B1u + 12345) & (colours - 1); });
}

TEST_P(RgbTo2vuyExhaustive, scattered_from_odd)
{
    compare(colours, [](uint64_t i) { return ((i + 1) * 0x9E3779B1u + 12345) & (colours - 1); });
}

// Three of each, so that every colour fills a pair and is on either side of one.
TEST_P(RgbTo2vuyExhaustive, in_threes)
{
    compare(3 * uint64_t{colours}, [](uint64_t i) { return i / 3; });
}

INSTANTIATE_TEST_SUITE_P(Lines, RgbTo2vuyExhaustive, testing::Range(0, 4));

}  // namespace
}  // namespace tintvert::test
