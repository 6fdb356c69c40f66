// `v210` to RGB against its second telling, by eight bits: random frames and overlapping memory.
#include <gtest/gtest.h>
#include <tintvert.h>

#include <cstdlib>
#include <ostream>

#include "reference/v210_decoders.h"
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
    {"tntvt_v210_rgb24", 3, tntvt_v210_rgb24, reference::v210_rgb24},
    {"tntvt_v210_rgb16", 2, tntvt_v210_rgb16, reference::v210_rgb16},
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
    constexpr int64_t reach = 5000;
    const int64_t from = random.between(0, 15), to = random.between(0, 15);
    Arena src(random, reach, reach), dst(random, reach, reach);
    decoder.routine(dst.actual(to), g.dstStride, src.actual(from), g.srcStride, g.width, g.height, g.scale);
    decoder.told(dst.expected(to), g.dstStride, src.expected(from), g.srcStride, g.width, g.height, g.scale);
    EXPECT_TRUE(dst.agrees(to, g.dstStride)) << decoder.name << ", " << g;
    EXPECT_TRUE(src.agrees(from)) << decoder.name << " wrote to its source, " << g;
}

TEST(V210RgbReference, random_frames)
{
    Random random(321);
    for (const Decoder& decoder : decoders) {
        for (int round = 0; round < 1500; ++round) {
            Geometry g{};
            g.width = random.between(-2, 40);
            g.height = random.between(-4, 14);
            g.scale = random.between(1, 5);
            g.srcStride = stride_for(random, std::abs((g.width + 5) / 6 * 16));
            g.dstStride = stride_for(random, std::abs(g.width / g.scale * random.between(2, 4)));
            compare(decoder, random, g);
        }
    }
}

// A negative height over a negative scale is a positive count of lines, and the source is walked upwards.
TEST(V210RgbReference, random_frames_at_other_scales)
{
    Random random(322);
    for (const Decoder& decoder : decoders) {
        for (int round = 0; round < 400; ++round) {
            Geometry g{0, 0, random.between(-2, 40), random.between(-14, 4), random.between(-5, -1)};
            if (decoder.routine == tntvt_v210_rgb16 && random.between(0, 1) == 0) {
                g.scale = 0;
                g.height = -g.height;
            }
            g.srcStride = stride_for(random, std::abs((g.width + 5) / 6 * 16));
            g.dstStride = stride_for(random, std::abs(g.width * 4));
            compare(decoder, random, g);
        }
    }
}

// A pair is picked out whole before its pixels are written, in place and wherever the memories overlap.
TEST(V210RgbReference, overlapping_at_every_offset)
{
    Random random(323);
    for (const Decoder& decoder : decoders) {
        for (int64_t offset = -64; offset <= 64; ++offset) {
            for (const long scale : {1L, 2L, 4L}) {
                for (const long stride : {39L, 52L, 64L}) {
                    const Geometry g{stride, 48, 13, 8, scale};
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

TEST(V210RgbReference, rejects_a_wrong_form)
{
    Random random(324);
    Arena src(random, 0, 400), dst(random, 0, 900);
    tntvt_v210_rgb24(dst.actual(), 60, src.actual(), 48, 16, 8, 1);
    reference::v210_rgb24(dst.expected(), 60, src.expected(), 48, 16, 8, 1);
    EXPECT_TRUE(dst.agrees());
    reference::v210_rgb24(dst.expected(), 64, src.expected(), 48, 16, 1, 1);
    EXPECT_FALSE(dst.agrees());
}

}  // namespace
}  // namespace tintvert::test
