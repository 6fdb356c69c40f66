// `2vuy` to RGB against its second telling: random frames, overlapping memory, every group.
#include <gtest/gtest.h>
#include <tintvert.h>

#include <algorithm>
#include <climits>
#include <cstdlib>
#include <ostream>
#include <vector>

#include "reference/2vuy_rgb.h"
#include "support/arena.h"

namespace tintvert::test {
namespace {

struct Decoder {
    const char* name;
    int bytes_a_pixel;
    void (*routine)(void*, long, void*, long, long, long, long);
    void (*told)(uint8_t*, int64_t, const uint8_t*, int64_t, int64_t, int64_t, int64_t);
};

const Decoder decoders[] = {
    {"tntvt_yuv422_rgb24", 3, tntvt_yuv422_rgb24, reference::yuv422_rgb24},
    {"tntvt_yuv422_rgb16", 2, tntvt_yuv422_rgb16, reference::yuv422_rgb16},
};

struct Geometry {
    long dstStride, srcStride, width, height, scale;
};

std::ostream& operator<<(std::ostream& out, const Geometry& g)
{
    return out << "width " << g.width << ", height " << g.height << ", scale " << g.scale << ", strides " << g.dstStride
               << ' ' << g.srcStride;
}

// Tight, slack, smaller than a line, or any at all.
long stride_for(Random& random, long tight)
{
    switch (random.between(0, 3)) {
        case 0:
            return tight;
        case 1:
            return tight + random.between(1, 50);
        case 2:
            return random.between(-tight, tight);
        default:
            return random.between(-200, 200);
    }
}

void compare(const Decoder& decoder, Random& random, const Geometry& g)
{
    constexpr int64_t reach = 6000;
    const int64_t from = random.between(0, 15), to = random.between(0, 15);
    Arena src(random, reach, reach), dst(random, reach, reach);
    decoder.routine(dst.actual(to), g.dstStride, src.actual(from), g.srcStride, g.width, g.height, g.scale);
    decoder.told(dst.expected(to), g.dstStride, src.expected(from), g.srcStride, g.width, g.height, g.scale);
    EXPECT_TRUE(dst.agrees(to, g.dstStride)) << decoder.name << ", " << g;
    EXPECT_TRUE(src.agrees(from)) << decoder.name << " wrote to its source, " << g;
}

TEST(Yuv422RgbReference, random_frames)
{
    Random random(31);
    for (const Decoder& decoder : decoders) {
        for (int round = 0; round < 1500; ++round) {
            Geometry g{};
            g.width = random.between(-2, 40);
            g.height = random.between(-4, 14);
            g.scale = random.between(1, 5);
            g.srcStride = stride_for(random, std::abs(g.width * 2));
            g.dstStride = stride_for(random, std::abs(g.width / g.scale * random.between(2, 4)));
            compare(decoder, random, g);
        }
    }
}

TEST(Yuv422RgbReference, random_frames_at_scale_0)
{
    Random random(32);
    for (int round = 0; round < 300; ++round) {
        Geometry g{0, 0, random.between(-2, 40), random.between(-4, 14), 0};
        g.srcStride = stride_for(random, std::abs(g.width * 2));
        g.dstStride = stride_for(random, std::abs(g.width * 2));
        compare(decoders[1], random, g);
    }
}

// A negative height over a negative scale is a positive count of lines, and the source is walked upwards.
TEST(Yuv422RgbReference, random_frames_at_negative_scales)
{
    Random random(33);
    for (const Decoder& decoder : decoders) {
        for (int round = 0; round < 300; ++round) {
            Geometry g{0, 0, random.between(-2, 40), random.between(-14, 4), random.between(-5, -1)};
            g.srcStride = stride_for(random, std::abs(g.width * 2));
            g.dstStride = stride_for(random, std::abs(g.width * 4));
            compare(decoder, random, g);
        }
    }
}

// A group is read whole before its pixels are written, in place and wherever the memories overlap.
TEST(Yuv422RgbReference, overlapping_at_every_offset)
{
    Random random(34);
    for (const Decoder& decoder : decoders) {
        for (int64_t offset = -64; offset <= 64; ++offset) {
            for (const long scale : {1L, 2L, 4L}) {
                for (const long stride : {39L, 52L, 64L}) {
                    const Geometry g{stride, 26, 13, 8, scale};
                    Arena memory(random, 128, 1024);
                    decoder.routine(memory.actual(offset), g.dstStride, memory.actual(), g.srcStride, g.width, g.height,
                                    g.scale);
                    decoder.told(memory.expected(offset), g.dstStride, memory.expected(), g.srcStride, g.width,
                                 g.height, g.scale);
                    EXPECT_TRUE(memory.agrees(offset, stride)) << decoder.name << ", dst at " << offset << ", " << g;
                }
            }
        }
    }
}

TEST(Yuv422RgbReference, rejects_a_wrong_form)
{
    Random random(35);
    const auto agree = [&](const Geometry& actual, const Geometry& told) {
        Arena src(random, 0, 400), dst(random, 0, 900);
        tntvt_yuv422_rgb24(dst.actual(), actual.dstStride, src.actual(), actual.srcStride, actual.width, actual.height,
                           actual.scale);
        reference::yuv422_rgb24(dst.expected(), told.dstStride, src.expected(), told.srcStride, told.width, told.height,
                                told.scale);
        return dst.agrees();
    };
    const Geometry right{60, 34, 16, 8, 1};
    EXPECT_TRUE(agree(right, right));
    EXPECT_FALSE(agree(right, {60, 34, 15, 8, 2}));
    EXPECT_FALSE(agree(right, {60, 34, 16, 7, 1}));
    EXPECT_FALSE(agree(right, {60, 35, 16, 8, 1}));
    EXPECT_FALSE(agree({63, 34, 16, 1, 1}, {64, 34, 16, 1, 1}));
}

// The second telling itself, by the telling entries of the tables.
TEST(Yuv422RgbReference, terms)
{
    using namespace reference;
    EXPECT_EQ(luma_term(0), -298);
    EXPECT_EQ(luma_term(16), 0);
    EXPECT_EQ(luma_term(235), 4079);
    EXPECT_EQ(luma_term(255), 4452);

    const int bytes[] = {0, 127, 128, 129, 255};
    const int green_of_cb[] = {802, 6, 0, -6, -796}, blue_of_cb[] = {-4131, -32, 0, 32, 4099};
    const int red_of_cr[] = {-3268, -25, 0, 25, 3243}, green_of_cr[] = {1664, 13, 0, -13, -1651};
    for (int i = 0; i < 5; ++i) {
        EXPECT_EQ(green_term_of_cb(bytes[i]), green_of_cb[i]);
        EXPECT_EQ(blue_term(bytes[i]), blue_of_cb[i]);
        EXPECT_EQ(red_term(bytes[i]), red_of_cr[i]);
        EXPECT_EQ(green_term_of_cr(bytes[i]), green_of_cr[i]);
    }
}

// A sum of terms lies between -4429 and 8551, so that its whole part is at most 534 of 1023.
TEST(Yuv422RgbReference, bounds_of_the_sums)
{
    int low = INT_MAX, high = INT_MIN;
    for (const int cb : {0, 128, 255}) {
        for (const int cr : {0, 128, 255}) {
            for (const int y : {0, 255}) {
                const reference::Sums sums = reference::sums_of(cb, y, cr);
                low = std::min({low, sums.blue, sums.green, sums.red});
                high = std::max({high, sums.blue, sums.green, sums.red});
            }
        }
    }
    EXPECT_EQ(low, -4429);
    EXPECT_EQ(high, 8551);
    EXPECT_EQ(high >> 4, 534);
}

// Each of the 2^24 groups Cb, Y, Cr, as the first and (in 8-bit RGB) as the second pixel. A picture has one
// Cb, a line of it one Cr, and its groups run through luma, upwards in Y0 and downwards in Y1.
class Yuv422RgbExhaustive : public testing::Test {
protected:
    static constexpr size_t lines = 256, groups = 256, src_bytes = lines * groups * 4;

    template <class Check>
    void each_picture(Check check)
    {
        std::vector<uint8_t> src(src_bytes);
        for (int cb = 0; cb < 256; ++cb) {
            for (size_t i = 0; i < src_bytes / 4; ++i) {
                src[4 * i] = static_cast<uint8_t>(cb);
                src[4 * i + 1] = static_cast<uint8_t>(i % groups);
                src[4 * i + 2] = static_cast<uint8_t>(i / groups);
                src[4 * i + 3] = static_cast<uint8_t>(255 - i % groups);
            }
            check(src, cb);
            if (testing::Test::HasFatalFailure()) return;
        }
    }
};

TEST_F(Yuv422RgbExhaustive, rgb24)
{
    std::vector<uint8_t> dst(lines * groups * 6), told = dst;
    each_picture([&](std::vector<uint8_t>& src, int cb) {
        tntvt_yuv422_rgb24(dst.data(), groups * 6, src.data(), groups * 4, groups * 2, lines, 1);
        reference::yuv422_rgb24(told.data(), groups * 6, src.data(), groups * 4, groups * 2, lines, 1);
        ASSERT_EQ(dst, told) << "Cb " << cb;
    });
}

TEST_F(Yuv422RgbExhaustive, rgb32)
{
    std::vector<uint8_t> dst(lines * groups * 8), told = dst;
    each_picture([&](std::vector<uint8_t>& src, int cb) {
        tntvt_yuv422_rgb24(dst.data(), groups * 8, src.data(), groups * 4, groups * 2, lines, 1);
        reference::yuv422_rgb24(told.data(), groups * 8, src.data(), groups * 4, groups * 2, lines, 1);
        ASSERT_EQ(dst, told) << "Cb " << cb;
        for (size_t i = 3; i < dst.size(); i += 4) ASSERT_EQ(dst[i], 255);
    });
}

TEST_F(Yuv422RgbExhaustive, rgb16)
{
    std::vector<uint8_t> dst(lines * groups * 4), told = dst;
    each_picture([&](std::vector<uint8_t>& src, int cb) {
        tntvt_yuv422_rgb16(dst.data(), groups * 4, src.data(), groups * 4, groups * 2, lines, 1);
        reference::yuv422_rgb16(told.data(), groups * 4, src.data(), groups * 4, groups * 2, lines, 1);
        ASSERT_EQ(dst, told) << "Cb " << cb;
        for (size_t i = 1; i < dst.size(); i += 2) ASSERT_EQ(dst[i] & 0x80, 0);
    });
}

}  // namespace
}  // namespace tintvert::test
