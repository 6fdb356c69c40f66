#include <gtest/gtest.h>
#include <tintvert.h>

#include <vector>

namespace {

using Bytes = std::vector<unsigned char>;

TEST(From16To32, keeps_low_bits_of_rgb16_clear)
{
    for (auto* routine :
         {tntvt_rgb16_rgba32_inplace, tntvt_rgb16_rgba32, tntvt_rgb16_rgb32_inplace, tntvt_rgb16_rgb32}) {
        // 0x8000, 0x7FFF, 0x0001, 0x0020, 0x0400
        Bytes src{0x00, 0x80, 0xFF, 0x7F, 0x01, 0x00, 0x20, 0x00, 0x00, 0x04};
        const Bytes expected{0, 0, 0, 255, 248, 248, 248, 255, 8, 0, 0, 255, 0, 8, 0, 255, 0, 0, 8, 255};
        Bytes dst(20, 0xEE);
        routine(dst.data(), 4, src.data(), 2, 1, -5);
        EXPECT_EQ(dst, expected);

        src.resize(20);
        routine(src.data(), 20, src.data(), 10, 5, 1);
        EXPECT_EQ(src, expected) << "in place";
    }
}

TEST(From16To32, slack_in_front_of_the_pixels)
{
    Bytes src{1, 2, 3, 0xFF, 0x7F}, dst(6, 0xEE);
    tntvt_rgb16_rgb32(dst.data(), 6, src.data(), 5, 1, 1);
    EXPECT_EQ(dst, (Bytes{0xEE, 0xEE, 248, 248, 248, 255}));
}

}  // namespace
