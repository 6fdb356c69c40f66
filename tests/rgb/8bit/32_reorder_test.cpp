#include <gtest/gtest.h>
#include <tintvert.h>

#include <vector>

namespace {

using Bytes = std::vector<unsigned char>;

TEST(Reorder32, one_order_a_routine)
{
    Bytes src{0, 1, 2, 3};
    const auto of = [&](auto* routine) {
        Bytes dst(4, 0xEE);
        routine(dst.data(), 4, src.data(), 4, 1, 1);
        return dst;
    };
    EXPECT_EQ(of(tntvt_rgba32_bgra32_inplace), (Bytes{2, 1, 0, 3}));
    EXPECT_EQ(of(tntvt_rgb32_bgr32_inplace), (Bytes{2, 1, 0, 3}));
    EXPECT_EQ(of(tntvt_rgba32_abgr32_inplace), (Bytes{3, 2, 1, 0}));
    EXPECT_EQ(of(tntvt_rgba32_argb32), (Bytes{1, 2, 3, 0}));
}

TEST(Reorder32, slack_after_the_pixels_and_a_negative_height)
{
    Bytes src{0, 1, 2, 3, 4, 5, 6, 7, 8, 9};
    Bytes dst(12, 0xEE);
    tntvt_rgba32_argb32(dst.data(), 6, src.data(), 5, 1, -2);
    EXPECT_EQ(dst, (Bytes{1, 2, 3, 0, 0xEE, 0xEE, 6, 7, 8, 5, 0xEE, 0xEE}));
}

TEST(Reorder32, no_work)
{
    Bytes src(4, 1), dst(4, 0xEE);
    tntvt_rgba32_argb32(dst.data(), 0, src.data(), 0, 0, 0x7FFFFFFFFFFFFFFF);
    tntvt_rgba32_argb32(dst.data(), 4, src.data(), 4, 1, 0);
    tntvt_rgba32_argb32(dst.data(), 4, src.data(), 4, 1, -0x7FFFFFFFFFFFFFFF - 1);
    EXPECT_EQ(dst, Bytes(4, 0xEE));
}

TEST(Reorder32, keeps_counted_alpha)
{
    Bytes frame{0xFF, 0, 0, 0, 7, 0, 0, 0, 0x78, 0x56, 0x34, 0x12, 7, 0, 0, 0xFF};
    tntvt_argb32_rgba32(frame.data(), 16, frame.data(), 16, 4, 1);
    EXPECT_EQ(frame, (Bytes{0, 0, 0, 0, 1, 0, 0, 0, 0x12, 0, 0, 0, 0, 1, 0, 0}));
}

}  // namespace
