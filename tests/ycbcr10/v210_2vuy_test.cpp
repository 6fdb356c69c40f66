#include <gtest/gtest.h>
#include <tintvert.h>

#include <vector>

#include "frame/memory.h"
#include "support/random.h"

namespace {

using tintvert::load;
using tintvert::store;
using Bytes = std::vector<unsigned char>;

TEST(V210From2vuy, shifts_up_and_keeps_the_order)
{
    Bytes src{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 255}, dst(16);
    tntvt_2vuy_v210(dst.data(), src.data(), 6, 1, 16);
    EXPECT_EQ(load<uint32_t>(&dst[0]), 4u | 8u << 10 | 12u << 20);
    EXPECT_EQ(load<uint32_t>(&dst[4]), 16u | 20u << 10 | 24u << 20);
    EXPECT_EQ(load<uint32_t>(&dst[8]), 28u | 32u << 10 | 36u << 20);
    EXPECT_EQ(load<uint32_t>(&dst[12]), 40u | 44u << 10 | 1020u << 20);
}

// Lines of 8 pixels at a stride of one group: a line's second group is over the next line's first, and the
// line that is written later wins. That is the upper one.
TEST(V210From2vuy, keeps_last_line_first_without_guard)
{
    Bytes src(16 * 2 + 8, 0), dst(48, 0xEE);
    for (size_t i = 0; i < 16; ++i) src[i] = 1;
    for (size_t i = 16; i < src.size(); ++i) src[i] = 2;
    tntvt_2vuy_v210(dst.data(), src.data(), 8, 2, 16);
    EXPECT_EQ(load<uint32_t>(&dst[16]), 4u | 4u << 10 | 4u << 20);
    EXPECT_EQ(load<uint32_t>(&dst[20]), 4u | 8u << 10 | 8u << 20);  // one pair of line 0, the rest from line 1
    EXPECT_EQ(load<uint32_t>(&dst[32]), 8u | 8u << 10 | 8u << 20);
}

TEST(V210From2vuy, keeps_lines_of_64_bytes)
{
    for (const auto& [width, stride] : {std::pair{1280u, 3456u}, {100u, 320u}, {6u, 64u}}) {
        tintvert::test::Random random(width);
        Bytes src = random.bytes(width * 4 + 12);
        Bytes defaulted(stride * 2 + 16, 0xEE), given = defaulted;
        tntvt_2vuy_v210(defaulted.data(), src.data(), width, 2, 0);
        tntvt_yuv422_8_yuv422_10(given.data(), src.data(), width, 2, stride);
        EXPECT_EQ(defaulted, given) << width;
    }
}

TEST(V210From2vuy, leaves_a_width_of_0_alone) { tntvt_2vuy_v210(nullptr, nullptr, 0, 0, 0); }

// 266 for 100 pixels, where the opposite direction has 320.
TEST(V210To2vuy, keeps_unrounded_lines)
{
    tintvert::test::Random random(1);
    Bytes src = random.bytes(2000), defaulted(1000, 0xEE), given = defaulted;
    tntvt_v210_2vuy(defaulted.data(), src.data(), 100, 2, 0);
    tntvt_yuv422_10_yuv422_8(given.data(), src.data(), 100, 2, 266);
    EXPECT_EQ(defaulted, given);
}

TEST(V210To2vuy, drops_the_low_bits)
{
    Bytes src(32, 0), dst(24, 0xEE);
    store<uint32_t>(&src[0], 0xC0000000u | 3u | 1023u << 10 | 512u << 20);
    tntvt_v210_2vuy(dst.data(), src.data(), 6, 1, 16);
    EXPECT_EQ((Bytes{dst[0], dst[1], dst[2]}), (Bytes{0, 255, 128}));
}

// One line of 6 pixels makes two steps, 24 bytes; two lines end 12 bytes past the end of the frame's 24.
TEST(V210To2vuy, keeps_double_length_lines)
{
    Bytes src(48, 0xFF), dst(40, 0xEE);
    tntvt_v210_2vuy(dst.data(), src.data(), 6, 2, 16);
    Bytes expected(40, 0xEE);
    for (size_t i = 0; i < 36; ++i) expected[i] = 255;
    EXPECT_EQ(dst, expected);
}

TEST(V210To2vuy, makes_one_step_at_least)
{
    Bytes src(16, 0xFF), dst(13, 0xEE);
    tntvt_v210_2vuy(dst.data(), src.data(), 1, 1, 16);
    Bytes expected(13, 0xFF);
    expected[12] = 0xEE;
    EXPECT_EQ(dst, expected);
    tntvt_v210_2vuy(nullptr, nullptr, 0, 1, 0);
    tntvt_v210_2vuy(nullptr, nullptr, 1, 0, 0);
}

TEST(V210To2vuy, gives_back_what_went_up)
{
    tintvert::test::Random random(2);
    const unsigned width = 48, height = 5;
    const Bytes picture = random.bytes(width * height * 2);
    Bytes src = picture, up(128 * (height + 1)), down(width * (height + 1) * 2);
    tntvt_2vuy_v210(up.data(), src.data(), width, height, 128);
    tntvt_v210_2vuy(down.data(), up.data(), width, height, 128);
    down.resize(picture.size());
    EXPECT_EQ(down, picture);
}

}  // namespace
