#include <gtest/gtest.h>
#include <tintvert.h>

#include <vector>

namespace {

TEST(RgbEmpty, keeps_empty_entries)
{
    for (auto* routine :
         {tntvt_rgb8_rgb32, tntvt_rgb8_rgba32, tntvt_rgb16_rgb24, tntvt_rgb32_rgb16, tntvt_rgb32_rgb16_565,
          tntvt_rgb32_rgb16_dithered, tntvt_rgb32_rgb16_565_dithered, tntvt_rgb32_rgb32, tntvt_rgba32_rgb16}) {
        routine(nullptr, 0, nullptr, 0, 4, 4);
        std::vector<unsigned char> src(64, 1), dst(64, 0xEE);
        routine(dst.data(), 16, src.data(), 16, 4, 4);
        EXPECT_EQ(dst, std::vector<unsigned char>(64, 0xEE));
    }
}

}  // namespace
