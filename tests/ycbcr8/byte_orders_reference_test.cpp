#include <tintvert.h>

#include "meeting.h"
#include "reference/ycbcr8/byte_orders.h"

namespace tintvert::test {
namespace {

const struct {
    decltype(&yuv2_to_2vuy) routine, reference;
} runs[] = {
    {yuv2_to_2vuy, reference::yuv2_to_2vuy},
    {yuvs_to_2vuy, reference::yuvs_to_2vuy},
};

const struct {
    decltype(&tntvt_yuv2_2vuy) routine, reference;
} frames[] = {
    {tntvt_yuv2_2vuy, reference::tntvt_yuv2_2vuy},
    {tntvt_yuvu_2vuy, reference::tntvt_yuv2_2vuy},
    {tntvt_yuvs_2vuy, reference::tntvt_yuvs_2vuy},
};

const struct {
    decltype(&tntvt_yuv444_yuv422_8) routine, reference;
} frames_of_444[] = {
    {tntvt_yuv444_yuv422_8, reference::tntvt_yuv444_yuv422_8},
    {tntvt_yuv422_yuv444_8, reference::tntvt_yuv422_yuv444_8},
};

// The chroma of a pixel follows its luma, so one run has all pairs of luma and chroma.
TEST(ByteOrdersExhaustive, every_luma_with_every_chroma)
{
    for (const auto& [routine, reference] : runs) {
        Random random{1};
        Arena arena{random, 64, 4 * 65536 + 64};
        for (int pixel = 0; pixel < 65536; ++pixel) {
            for (uint8_t* const memory : {arena.actual(), arena.expected()}) {
                memory[2 * pixel] = static_cast<uint8_t>(pixel >> 8);
                memory[2 * pixel + 1] = static_cast<uint8_t>(pixel);
            }
        }
        EXPECT_TRUE(meet(routine, reference, arena, At{0}, At{2 * 65536}, 65536));
    }
}

TEST(ByteOrdersReference, runs_apart_at_any_address)
{
    Random random{2};
    for (int pixels = -2; pixels <= 300; ++pixels) {
        for (const auto& [routine, reference] : runs) {
            Arena arena{random, 64, 2000};
            ASSERT_TRUE(
                meet(routine, reference, arena, At{random.between(0, 7)}, At{1000 + random.between(0, 7)}, pixels));
        }
    }
}

TEST(ByteOrdersReference, runs_overlapping)
{
    Random random{3};
    for (int offset = -64; offset <= 64; ++offset) {
        for (const auto& [routine, reference] : runs) {
            for (const int pixels : {1, 33, static_cast<int>(random.between(2, 150))}) {
                Arena arena{random, 128, 512};
                ASSERT_TRUE(meet(routine, reference, arena, At{0}, At{offset}, pixels));
            }
        }
    }
}

// Of the signs, only that of the product counts.
TEST(ByteOrdersReference, frames)
{
    Random random{4};
    for (int round = 0; round < 600; ++round) {
        const int width = static_cast<int>(random.between(-6, 20)), height = static_cast<int>(random.between(-6, 8));
        const int64_t dst = round % 3 == 0 ? random.between(-64, 64) : 600;
        for (const auto& [routine, reference] : frames) {
            Arena arena{random, 128, 1100};
            ASSERT_TRUE(meet(routine, reference, arena, At{dst}, At{0}, width, height));
        }
    }
}

TEST(ByteOrdersReference, frames_of_444)
{
    Random random{5};
    for (int round = 0; round < 1000; ++round) {
        const auto number = [&](long low, long high) { return static_cast<unsigned int>(random.between(low, high)); };
        const unsigned int width = number(0, 20), height = number(0, 8), stride = number(0, 0xFFFFFFFF);
        for (const auto& [routine, reference] : frames_of_444) {
            Arena arena{random, 64, 1500};
            ASSERT_TRUE(meet(routine, reference, arena, At{random.between(0, 7)}, At{700 + random.between(0, 7)}, width,
                             height, stride));
        }
    }
}

// Each byte is stored before the next one is read, and stores ascend.
TEST(ByteOrdersReference, frames_of_444_overlapping)
{
    Random random{6};
    for (int offset = -64; offset <= 64; ++offset) {
        for (const unsigned int width : {1u, 2u, 3u, 16u, 37u}) {
            for (const auto& [routine, reference] : frames_of_444) {
                Arena arena{random, 128, 700};
                ASSERT_TRUE(meet(routine, reference, arena, At{offset}, At{0}, width, 3u, 0u));
            }
        }
    }
}

TEST(ByteOrdersReference, a_wrong_reference_is_rejected)
{
    Random random{7};
    Arena arena{random, 64, 256};
    EXPECT_FALSE(meet(yuv2_to_2vuy, reference::yuvs_to_2vuy, arena, At{0}, At{100}, 20));
    Arena touched{random, 64, 256};
    touched.expected()[255] ^= 1;
    EXPECT_FALSE(meet(yuv2_to_2vuy, reference::yuv2_to_2vuy, touched, At{0}, At{100}, 20));
}

}  // namespace
}  // namespace tintvert::test
