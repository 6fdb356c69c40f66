// The two routines that write 8-bit bytes under the name of `v210`: bytes in, bytes out.
#include <gtest/gtest.h>
#include <tintvert.h>

#include <climits>

#include "support/v210.h"

namespace tintvert::test {
namespace {

Memory yuvs(Memory pixels)
{
    yuvs_to_v210(pixels.data(), pixels.data(), static_cast<int>(pixels.size() / 2));
    return pixels;
}

Memory yuv2(Memory pixels)
{
    yuv2_to_v210(pixels.data(), pixels.data(), static_cast<int>(pixels.size() / 2));
    return pixels;
}

// c of 1 and of 2 give 16, 3 gives 17, 128 gives 128 and 255 gives 240.
TEST(YuvBytesEdges, chroma_comes_first)
{
    EXPECT_EQ(yuvs({0, 0, 0, 1, 0, 2, 0, 3}), (Memory{16, 16, 16, 16, 16, 16, 17, 16}));
    EXPECT_EQ(yuvs({0, 127, 0, 128, 0, 129, 0, 255}), (Memory{127, 16, 128, 16, 128, 16, 240, 16}));
}

TEST(YuvBytesEdges, luma_goes_to_video_range)
{
    EXPECT_EQ(yuvs({0, 128, 1, 128, 2, 128, 128, 128}), (Memory{128, 16, 128, 16, 128, 17, 128, 125}));
    EXPECT_EQ(yuvs({254, 128, 255, 128}), (Memory{128, 234, 128, 235}));
}

// 0x80 and 0x81 are the lowest values, 0 is neutral and 0x7F the highest.
TEST(YuvBytesEdges, signed_chroma)
{
    EXPECT_EQ(yuv2({0, 0x80, 0, 0x81, 0, 0x82, 0, 0x83}), (Memory{16, 16, 16, 16, 16, 16, 17, 16}));
    EXPECT_EQ(yuv2({0, 0xFF, 0, 0, 0, 1, 0, 0x7F}), (Memory{127, 16, 128, 16, 128, 16, 240, 16}));
}

TEST(YuvBytesEdges, writes_width_pixels)
{
    Memory src(6, 128), dst(8, 0xEE);
    yuvs_to_v210(src.data(), dst.data(), 3);
    EXPECT_EQ(dst, (Memory{128, 125, 128, 125, 128, 125, 0xEE, 0xEE}));
    for (const int width : {0, -1, INT_MIN}) {
        yuvs_to_v210(nullptr, nullptr, width);
        yuv2_to_v210(nullptr, nullptr, width);
    }
}

}  // namespace
}  // namespace tintvert::test
