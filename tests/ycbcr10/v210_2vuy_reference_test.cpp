// `v210` to and from `2vuy` against their reference implementation: random frames, overlapping memory, every sample.
#include <gtest/gtest.h>
#include <tintvert.h>

#include "reference/ycbcr10/v210_encoders.h"
#include "support/arena.h"

namespace tintvert::test {
namespace {

struct Routine {
    const char* name;
    void (*routine)(uint8_t*, uint8_t*, unsigned int, unsigned int, unsigned int);
    void (*expected)(uint8_t*, const uint8_t*, uint32_t, uint32_t, uint32_t);
};

const Routine routines[] = {
    {"tntvt_2vuy_v210", tntvt_2vuy_v210, reference::bytes_to_v210},
    {"tntvt_yuv422_8_yuv422_10", tntvt_yuv422_8_yuv422_10, reference::bytes_to_v210},
    {"tntvt_v210_2vuy", tntvt_v210_2vuy, reference::v210_to_bytes},
    {"tntvt_yuv422_10_yuv422_8", tntvt_yuv422_10_yuv422_8, reference::v210_to_bytes},
};

struct Geometry {
    unsigned int width, height, stride;
};

testing::AssertionResult agree(const Routine& routine, Random& random, int64_t from, int64_t to, const Geometry& g,
                               const Geometry& expected)
{
    Arena memory(random, 512, 16000);
    routine.routine(memory.actual(to), memory.actual(from), g.width, g.height, g.stride);
    routine.expected(memory.expected(to), memory.expected(from), expected.width, expected.height, expected.stride);
    const testing::AssertionResult result = memory.agrees(to);
    if (result) return result;
    return testing::AssertionFailure() << routine.name << ", width " << g.width << ", height " << g.height
                                       << ", stride " << g.stride << ": " << result.message();
}

Geometry random_frame(Random& random)
{
    const auto width = static_cast<unsigned>(random.between(0, 90));
    const auto height = static_cast<unsigned>(random.between(width == 0 ? 0 : 1, 12));
    const unsigned strides[] = {0, (width + 5) / 6 * 16, static_cast<unsigned>(random.between(1, 400))};
    return {width, height, strides[random.between(0, 2)]};
}

TEST(V210And2vuyReference, random_frames)
{
    Random random(421);
    for (const Routine& routine : routines)
        for (int round = 0; round < 1000; ++round) {
            const Geometry g = random_frame(random);
            ASSERT_TRUE(agree(routine, random, 8000 + random.between(0, 31), random.between(0, 31), g, g));
        }
}

// A group is read whole before it is written.
TEST(V210And2vuyReference, overlapping_at_every_offset)
{
    Random random(422);
    for (const Routine& routine : routines)
        for (int64_t offset = -64; offset <= 64; ++offset)
            for (const unsigned width : {1u, 6u, 13u, 24u, 48u})
                for (const unsigned stride : {0u, 16u, width * 2, 128u}) {
                    const Geometry g{width, 4, stride};
                    ASSERT_TRUE(agree(routine, random, 0, offset, g, g)) << offset;
                }
}

TEST(V210And2vuyReference, rejects_a_wrong_form)
{
    Random random(423);
    for (const Routine& routine : routines) {
        EXPECT_TRUE(agree(routine, random, 8000, 0, {12, 4, 32}, {12, 4, 32}));
        EXPECT_FALSE(agree(routine, random, 8000, 0, {12, 4, 32}, {13, 4, 32}));
        EXPECT_FALSE(agree(routine, random, 8000, 0, {12, 4, 32}, {12, 4, 36}));
        EXPECT_FALSE(agree(routine, random, 8000, 0, {12, 4, 32}, {12, 5, 32}));
    }
}

// Each of the twelve samples at every value, beside samples of all zeroes and of all ones.
TEST(V210And2vuyExhaustive, every_sample_upwards)
{
    for (size_t place = 0; place < 12; ++place)
        for (int value = 0; value < 256; ++value)
            for (const uint8_t others : {uint8_t{0}, uint8_t{255}}) {
                uint8_t src[12], dst[16], expected[16];
                std::fill_n(src, 12, others);
                src[place] = static_cast<uint8_t>(value);
                tntvt_2vuy_v210(dst, src, 6, 1, 16);
                reference::bytes_to_v210(expected, src, 6, 1, 16);
                ASSERT_TRUE(std::equal(dst, dst + 16, expected)) << place << ' ' << value;
            }
}

// Bits 30 and 31 go with the others.
TEST(V210And2vuyExhaustive, every_sample_downwards)
{
    for (size_t place = 0; place < 12; ++place)
        for (uint32_t value = 0; value < 1024; ++value)
            for (const uint32_t others : {0u, 0xFFFFFFFFu}) {
                uint32_t src[4] = {others, others, others, others};
                const size_t shift = 10 * (place % 3);
                src[place / 3] = (others & ~(1023u << shift)) | value << shift;
                uint8_t dst[12];
                tntvt_v210_2vuy(dst, reinterpret_cast<uint8_t*>(src), 3, 1, 16);
                for (size_t n = 0; n < 12; ++n) ASSERT_EQ(dst[n], n == place ? value / 4 : others & 255) << place;
            }
}

}  // namespace
}  // namespace tintvert::test
