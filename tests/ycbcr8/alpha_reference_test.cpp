#include <tintvert.h>

#include <algorithm>

#include "meeting.h"
#include "reference/ycbcr8/alpha.h"

namespace tintvert::test {
namespace {

using Strided = int (*)(void*, long, void*, long, long, long);

const struct {
    Strided routine, reference;
} strided[] = {
    {tntvt_alphay_to_2yuv, reference::tntvt_alphay_to_2yuv},
    {tntvt_2yuv_to_alphay, reference::tntvt_2yuv_to_alphay},
    {tntvt_2yuv_strip_chroma, reference::tntvt_2yuv_strip_chroma},
};

// The fourth argument is the stride, whichever side has it.
const struct {
    Strided routine, reference;
} of_planes[] = {
    {tntvt_alpha_to_rgba, reference::tntvt_alpha_to_rgba},
    {tntvt_rgba_to_alpha, reference::tntvt_rgba_to_alpha},
};

// Tight, slack, narrow, zero and negative: up to 9 lines of it stay within 900 bytes on either side.
long stride_for(Random& random, long tight)
{
    const long strides[] = {tight,  tight + random.between(1, 12), random.between(0, tight), 0,
                            -tight, random.between(-90, 90)};
    return strides[random.between(0, 5)];
}

TEST(AlphaReference, strided_frames_apart)
{
    Random random{1};
    for (int round = 0; round < 1500; ++round) {
        const long width = random.between(-3, 20), height = random.between(-3, 8);
        for (const auto& [routine, reference] : strided) {
            Arena arena{random, 1100, 4200};
            ASSERT_TRUE(meet(routine, reference, arena, At{2600 + random.between(0, 7)},
                             stride_for(random, 2 * (width + 3)), At{random.between(0, 7)},
                             stride_for(random, 2 * (width + 3)), width, height));
        }
    }
}

// Whole words are read and written, the last line and word first in the one, the first in the other.
TEST(AlphaReference, words_overlapping)
{
    Random random{2};
    for (int offset = -64; offset <= 64; ++offset) {
        for (int round = 0; round < 8; ++round) {
            const long width = random.between(2, 20), height = random.between(0, 6);
            for (const auto& [routine, reference] : {strided[0], strided[2]}) {
                Arena arena{random, 1100, 1100};
                ASSERT_TRUE(meet(routine, reference, arena, At{offset}, stride_for(random, 2 * width), At{0},
                                 stride_for(random, width), width, height));
            }
        }
    }
}

// Narrowing lines that start no later than what they are made from never store over a byte to be read.
TEST(AlphaReference, narrowing_in_place)
{
    Random random{3};
    for (int round = 0; round < 500; ++round) {
        const long width = random.between(0, 20), height = random.between(0, 6);
        const long src_stride = 2 * width + random.between(0, 12), dst_stride = src_stride - random.between(0, width);
        const At dst{-random.between(0, 64)};
        Arena luma{random, 128, 600};
        ASSERT_TRUE(meet(tntvt_2yuv_to_alphay, reference::tntvt_2yuv_to_alphay, luma, dst, dst_stride, At{0},
                         src_stride, width, height));
        Arena alpha{random, 128, 600};
        ASSERT_TRUE(meet(tntvt_rgba_to_alpha, reference::tntvt_rgba_to_alpha, alpha, dst, 7l, At{0},
                         4 * width + random.between(0, 12), width, height));
    }
}

TEST(AlphaReference, planes_apart)
{
    Random random{4};
    for (int round = 0; round < 1500; ++round) {
        const long width = random.between(-2, 20), height = random.between(-2, 8);
        for (const auto& [routine, reference] : of_planes) {
            Arena arena{random, 1100, 4200};
            ASSERT_TRUE(meet(routine, reference, arena, At{2600 + random.between(0, 7)}, random.between(-100, 100),
                             At{random.between(0, 7)}, stride_for(random, 4 * (width + 2)), width, height));
        }
    }
}

// One byte is read, one (or four of the same) written, pixel after pixel and line after line.
TEST(AlphaReference, planes_overlapping)
{
    Random random{5};
    for (int offset = -64; offset <= 64; ++offset) {
        for (int round = 0; round < 4; ++round) {
            const long width = random.between(1, 20), height = random.between(1, 6);
            for (const auto& [routine, reference] : of_planes) {
                Arena arena{random, 1100, 1100};
                ASSERT_TRUE(meet(routine, reference, arena, At{offset}, 0l, At{0}, stride_for(random, 4 * width), width,
                                 height));
            }
        }
    }
}

TEST(AlphaReference, set_and_add)
{
    Random random{6};
    for (int round = 0; round < 2000; ++round) {
        const int width = static_cast<int>(random.between(0, 20)), height = static_cast<int>(random.between(-2, 8));
        const auto alpha = static_cast<unsigned int>(random.next());
        Arena set{random, 1100, 1100};
        ASSERT_TRUE(meet(tntvt_rgba_setalpha, reference::tntvt_rgba_setalpha, set, At{random.between(0, 7)},
                         stride_for(random, 4 * width), alpha, long{width} - 2, long{height}));
        Arena add{random, 1100, 4200};
        ASSERT_TRUE(meet(tntvt_rgba_addalpha, reference::tntvt_rgba_addalpha, add, At{random.between(0, 7)},
                         At{2600 + random.between(0, 7)}, stride_for(random, 3 * width), stride_for(random, 4 * width),
                         alpha, width, height));
    }
}

// Samples close enough to each other that every gate opens and shuts often.
TEST(AlphaReference, average_of_lines)
{
    Random random{7};
    for (int round = 0; round < 4000; ++round) {
        const auto bytes = static_cast<unsigned int>(random.between(0, 70));
        const int mode = static_cast<int>(random.between(-1, 8));
        const long middle = random.between(20, 235), spread = random.between(1, 20);
        Arena arena{random, 32, 128};
        for (int i = 0; i < 100; ++i)
            arena.actual()[i] = arena.expected()[i] = static_cast<uint8_t>(middle + random.between(-spread, spread));
        ASSERT_TRUE(meet(tntvt_2yuv_average_2y, reference::tntvt_2yuv_average_2y, arena, At{random.between(0, 7)},
                         bytes, mode));
    }
}

// A line of two bytes is one round: first luma, second luma, next first luma.
TEST(AverageExhaustive, every_triple_of_samples_in_every_mode)
{
    for (int mode = 2; mode <= 6; ++mode) {
        int64_t differing = 0;
        for (int triple = 0; triple < 1 << 24; ++triple) {
            const auto prev = static_cast<uint8_t>(triple >> 16), t = static_cast<uint8_t>(triple >> 8);
            const auto cur = static_cast<uint8_t>(triple);
            uint8_t actual[6] = {1, prev, 2, t, 3, cur}, expected[6] = {1, prev, 2, t, 3, cur};
            tntvt_2yuv_average_2y(actual, 2, mode);
            reference::tntvt_2yuv_average_2y(expected, 2, mode);
            differing += !std::equal(actual, actual + 6, expected);
        }
        EXPECT_EQ(differing, 0) << "mode " << mode;
    }
}

TEST(AverageExhaustive, every_pair_of_samples_in_mode_1)
{
    for (int pair = 0; pair < 1 << 16; ++pair) {
        const auto first = static_cast<uint8_t>(pair >> 8), second = static_cast<uint8_t>(pair);
        uint8_t line[4] = {1, first, 2, second};
        tntvt_2yuv_average_2y(line, 2, 1);
        ASSERT_EQ(line[3], (first + second) / 2) << +first << ' ' << +second;
        ASSERT_EQ(line[1], first);
    }
}

TEST(AlphaReference, a_wrong_reference_is_rejected)
{
    Random random{8};
    Arena arena{random, 64, 1000};
    EXPECT_FALSE(meet(tntvt_2yuv_to_alphay, Strided{reference::tntvt_2yuv_strip_chroma}, arena, At{500}, 20l, At{0},
                      20l, 8l, 4l));
    const Strided wrong_answer = [](void* dst, long dstStride, void* src, long srcStride, long width, long height) {
        return 1 + reference::tntvt_2yuv_to_alphay(dst, dstStride, src, srcStride, width, height);
    };
    Arena memory{random, 64, 1000};
    EXPECT_FALSE(meet(tntvt_2yuv_to_alphay, wrong_answer, memory, At{500}, 20l, At{0}, 20l, 8l, 4l));
}

}  // namespace
}  // namespace tintvert::test
