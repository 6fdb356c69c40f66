#include <tintvert.h>

#include "meeting.h"
#include "reference/ycbcr8/planes.h"

namespace tintvert::test {
namespace {

using Frame420 = decltype(&tntvt_i420_2vuy);

struct Numbers {
    unsigned int width, height, stride;
};

// Tight, default, slack and narrow lines.
Numbers geometry(Random& random)
{
    const auto number = [&](long low, long high) { return static_cast<unsigned int>(random.between(low, high)); };
    const unsigned int width = number(0, 24), height = number(0, 9);
    const unsigned int strides[] = {0, 0xFFFFFFFF, 2 * width, 2 * width + number(1, 12), number(1, 64)};
    return {width, height, strides[number(0, 4)]};
}

unsigned int ignored(Random& random) { return static_cast<unsigned int>(random.next()); }

TEST(PlanesReference, planes_422)
{
    Random random{1};
    for (unsigned int count = 0; count < 300; ++count) {
        const auto at = [&](int64_t place) { return At{place + random.between(0, 7)}; };
        const auto none = [&] { return ignored(random); };
        Arena joined{random, 64, 2000};
        ASSERT_TRUE(meet(tntvt_planar_2vuy, reference::tntvt_planar_2vuy, joined, at(0), at(700), at(1100), at(1400),
                         none(), none(), none(), count));
        Arena parted{random, 64, 2000};
        ASSERT_TRUE(meet(tntvt_2vuy_planar, reference::tntvt_2vuy_planar, parted, at(700), at(1100), at(1400), none(),
                         none(), none(), at(0), count));
    }
}

TEST(PlanesReference, fields)
{
    Random random{2};
    for (int round = 0; round < 600; ++round) {
        const auto at = [&](int64_t place) { return At{place + random.between(0, 7)}; };
        const auto none = [&] { return ignored(random); };
        const auto groups = static_cast<unsigned int>(random.between(1, 12));
        const auto total = static_cast<unsigned int>(random.between(0, 130));
        Arena arena{random, 64, 1700};
        ASSERT_TRUE(meet(tntvt_planarfields_2vuy, reference::tntvt_planarfields_2vuy, arena, at(0), at(700), at(900),
                         at(1000), at(1100), at(1300), at(1400), none(), none(), none(), groups, total));
    }
}

// A line is written a group at a time, each after all of its samples are read, so that overlapping memory
// has one result too.
TEST(PlanesReference, from_420_apart_and_overlapping)
{
    Random random{3};
    for (int round = 0; round < 2000; ++round) {
        const auto [width, height, stride] = geometry(random);
        const int64_t dst = round % 2 == 0 ? 1000 + random.between(0, 7) : random.between(-64, 64);
        Arena arena{random, 128, 2000};
        ASSERT_TRUE(meet(tntvt_i420_2vuy, reference::tntvt_i420_2vuy, arena, At{dst}, At{0}, width, height, stride));
        for (const int interlaced : {0, 1, 2, 128, 255}) {
            Arena memory{random, 128, 2000};
            ASSERT_TRUE(meet(tntvt_yv12_2vuy, reference::tntvt_yv12_2vuy, memory, At{dst}, At{0}, width, height, stride,
                             interlaced));
        }
    }
}

// `width` is on its own here: planes are where it puts them, lines are as long as `stride`, and where one
// plane runs into another the stores of a group follow each other as luma, byte 0, byte 2.
TEST(PlanesReference, to_420)
{
    Random random{4};
    for (int round = 0; round < 3000; ++round) {
        const auto [width, height, stride] = geometry(random);
        const At dst{1000 + random.between(0, 7)}, src{random.between(0, 7)};
        Arena i420{random, 128, 2000};
        ASSERT_TRUE(meet(tntvt_2vuy_i420, reference::tntvt_2vuy_i420, i420, dst, src, width, height, stride));
        Arena yv12{random, 128, 2000};
        ASSERT_TRUE(meet(tntvt_2vuy_yv12, reference::tntvt_2vuy_yv12, yv12, dst, src, width, height, stride));
    }
}

// Pitches of both signs, and so narrow that lines overlap: within a pair, groups follow each other.
TEST(PlanesReference, yuy2)
{
    Random random{5};
    for (int round = 0; round < 3000; ++round) {
        const auto number = [&](long low, long high) { return static_cast<int>(random.between(low, high)); };
        const int width = number(-1, 20), height = number(-1, 8);
        const int src_pitch = round % 3 == 0 ? width : number(-24, 24);
        const int dst_pitch = round % 4 == 0 ? width : number(-24, 24);
        Arena arena{random, 64, 4000};
        ASSERT_TRUE(meet(YUY2toYV12, reference::YUY2toYV12, arena, At{600 + random.between(0, 7)},
                         At{1900 + random.between(0, 7)}, At{2700 + random.between(0, 7)},
                         At{3400 + random.between(0, 7)}, width, height, src_pitch, dst_pitch));
    }
}

TEST(PlanesExhaustive, every_pair_of_chroma_samples_averaged)
{
    Random random{6};
    Arena arena{random, 64, 9000};
    for (int upper = 0; upper < 256; ++upper) {
        for (int lower = 0; lower < 256; ++lower) {
            for (uint8_t* const memory : {arena.actual(), arena.expected()}) {
                memory[4 * lower + 1] = memory[4 * (255 - lower) + 3] = static_cast<uint8_t>(upper);
                memory[1024 + 4 * lower + 1] = memory[1024 + 4 * (255 - lower) + 3] = static_cast<uint8_t>(lower);
            }
        }
        ASSERT_TRUE(
            meet(YUY2toYV12, reference::YUY2toYV12, arena, At{0}, At{3000}, At{5000}, At{7000}, 512, 2, 512, 512));
    }
}

TEST(PlanesReference, a_wrong_reference_is_rejected)
{
    Random random{7};
    const Frame420 pairs[][2] = {{tntvt_i420_2vuy, reference::tntvt_2vuy_i420},
                                 {tntvt_2vuy_i420, reference::tntvt_2vuy_yv12},
                                 {tntvt_2vuy_yv12, reference::tntvt_2vuy_i420}};
    for (const auto& [routine, wrong] : pairs) {
        Arena arena{random, 64, 1000};
        EXPECT_FALSE(meet(routine, wrong, arena, At{500}, At{0}, 8u, 4u, 0u));
    }
    Arena arena{random, 64, 1000};
    const auto progressive = [](unsigned char* dst, unsigned char* src, unsigned int width, unsigned int height,
                                unsigned int stride,
                                unsigned char) { reference::tntvt_yv12_2vuy(dst, src, width, height, stride, 0); };
    EXPECT_FALSE(meet(tntvt_yv12_2vuy, +progressive, arena, At{500}, At{0}, 8u, 4u, 0u, 1));
}

}  // namespace
}  // namespace tintvert::test
