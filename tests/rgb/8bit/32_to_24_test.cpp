#include <gtest/gtest.h>
#include <tintvert.h>

#include <vector>

namespace {

using Bytes = std::vector<unsigned char>;

constexpr long width = 3, height = 2;

Bytes frame32()
{
    Bytes frame(width * 4 * height);
    for (size_t i = 0; i < frame.size(); ++i) frame[i] = static_cast<unsigned char>(i);
    return frame;
}

TEST(From32To24, first_three_bytes)
{
    for (auto* routine :
         {tntvt_rgba32_rgb24_inplace, tntvt_rgba32_rgb24, tntvt_rgb32_rgb24_inplace, tntvt_rgb32_rgb24}) {
        Bytes src = frame32(), dst(20, 0xEE);
        routine(dst.data(), 10, src.data(), 12, width, -height);
        EXPECT_EQ(dst, (Bytes{0,  1,  2,  4,  5,  6,  8,  9,  10, 0xEE,  //
                              12, 13, 14, 16, 17, 18, 20, 21, 22, 0xEE}));
        Bytes same = frame32();
        routine(same.data(), 9, same.data(), 12, width, height);
        EXPECT_EQ(Bytes(same.begin(), same.begin() + 18),
                  (Bytes{0, 1, 2, 4, 5, 6, 8, 9, 10, 12, 13, 14, 16, 17, 18, 20, 21, 22}));
    }
}

TEST(From32To24, reversed)
{
    for (auto* routine : {tntvt_rgba32_bgr24_inplace, tntvt_rgb32_bgr24_inplace}) {
        Bytes src = frame32(), dst(18, 0xEE);
        routine(dst.data(), 9, src.data(), 12, width, -height);
        EXPECT_EQ(dst, (Bytes{2, 1, 0, 6, 5, 4, 10, 9, 8, 14, 13, 12, 18, 17, 16, 22, 21, 20}));
    }
}

TEST(From32To24, keeps_guard_of_first_pixel_only)
{
    for (auto* routine : {tntvt_rgba32_bgr24_inplace, tntvt_rgb32_bgr24_inplace}) {
        Bytes tight = frame32();
        routine(tight.data(), 9, tight.data(), 12, width, height);
        EXPECT_EQ(Bytes(tight.begin(), tight.begin() + 18),
                  (Bytes{2, 1, 0, 6, /* not 5 */ 4, 4, 10, 9, 8, 14, 13, 12, 18, 17, 16, 22, 21, 20}));

        Bytes same = frame32();
        routine(same.data(), 12, same.data(), 12, width, height);
        EXPECT_EQ(same, (Bytes{2,
                               1,
                               0,
                               6,
                               /* not 5 */ 4,
                               4,
                               10,
                               9,
                               8,
                               9,
                               10,
                               11,  //
                               /* not 14 */ 12,
                               13,
                               12,
                               18,
                               /* not 17 */ 16,
                               16,
                               22,
                               21,
                               20,
                               21,
                               22,
                               23}));
    }
}

TEST(From32To24, upside_down)
{
    Bytes src = frame32(), dst(18, 0xEE);
    tntvt_rgba32_rgb24_invert(dst.data(), 9, src.data(), 12, width, height);
    EXPECT_EQ(dst, (Bytes{12, 13, 14, 16, 17, 18, 20, 21, 22, 0, 1, 2, 4, 5, 6, 8, 9, 10}));
}

// Lines -3 and -4 at a height of -2.
TEST(From32To24, keeps_signed_height_in_addresses)
{
    Bytes src = frame32(), dst(9 * 5, 0xEE);
    tntvt_rgba32_rgb24_invert(dst.data() + 9 * 4, 9, src.data(), 12, width, -height);
    EXPECT_EQ(Bytes(dst.begin(), dst.begin() + 18),
              (Bytes{12, 13, 14, 16, 17, 18, 20, 21, 22, 0, 1, 2, 4, 5, 6, 8, 9, 10}));
    EXPECT_EQ(Bytes(dst.begin() + 18, dst.end()), Bytes(27, 0xEE));
}

}  // namespace
