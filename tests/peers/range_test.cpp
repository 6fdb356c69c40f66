// Full range to video range and back against zimg, every code. zimg rounds; the tables truncate going down, and their
// divisors are one off.
#include <gtest/gtest.h>
#include <tintvert.h>

#ifndef TINTVERT_PEER_ZIMG
TEST(ZimgRange, all) { GTEST_SKIP() << "skipped: zimg is not installed"; }
#else

#include "peers/compare.h"
#include "peers/zimg.h"

namespace tintvert::test {
namespace {

constexpr size_t luma = 0, chroma = 1;

Bytes every_code()
{
    Bytes codes;
    for (int code = 0; code < 256; ++code) codes.push_back(static_cast<uint8_t>(code));
    return codes;
}

Planes<uint8_t> scaled_by_zimg(zimg_pixel_range_e from, zimg_pixel_range_e to)
{
    return zimg<uint8_t, uint8_t>({every_code(), every_code(), every_code()}, ycbcr(ZIMG_MATRIX_BT470_BG, from),
                                  ycbcr(ZIMG_MATRIX_BT470_BG, to), {256, 1});
}

// What each code becomes at byte `place` of a group.
Bytes scaled(unsigned int up, size_t place)
{
    Bytes codes = every_code();
    for (uint8_t& code : codes) {
        Bytes group(4, code);
        tntvt_2vuy_scale(group.data(), 4, up);
        code = group[place];
    }
    return codes;
}

TEST(ZimgRange, down)
{
    const Planes<uint8_t> theirs = scaled_by_zimg(ZIMG_RANGE_FULL, ZIMG_RANGE_LIMITED);
    EXPECT_TRUE(within(1, 0.5, scaled(0, 1), theirs[luma]));
    EXPECT_TRUE(within(1, 0.5, scaled(0, 0), theirs[chroma]));
}

// Going up chroma bytes take the luma rule and luma bytes the chroma rule.
TEST(ZimgRange, up)
{
    const Planes<uint8_t> theirs = scaled_by_zimg(ZIMG_RANGE_LIMITED, ZIMG_RANGE_FULL);
    EXPECT_TRUE(within(1, 0.1, scaled(1, 0), theirs[luma]));
    EXPECT_TRUE(within(1, 0.5, scaled(1, 1), theirs[chroma]));
}

// Signed or unsigned chroma, full range, to `2vuy`.
TEST(ZimgRange, yuvs_and_yuv2_to_2vuy)
{
    const Planes<uint8_t> theirs = scaled_by_zimg(ZIMG_RANGE_FULL, ZIMG_RANGE_LIMITED);
    Bytes yuvs, yuv2;
    for (const uint8_t code : every_code()) {
        yuvs.insert(yuvs.end(), {code, code});
        yuv2.insert(yuv2.end(), {code, static_cast<uint8_t>(code ^ 0x80)});
    }
    yuvs_to_2vuy(yuvs.data(), yuvs.data(), 256);
    yuv2_to_2vuy(yuv2.data(), yuv2.data(), 256);
    EXPECT_EQ(yuvs, yuv2);
    Bytes y, c;
    for (size_t i = 0; i < yuvs.size(); i += 2) {
        c.push_back(yuvs[i]);
        y.push_back(yuvs[i + 1]);
    }
    EXPECT_TRUE(within(1, 0.5, y, theirs[luma]));
    EXPECT_TRUE(within(1, 0.5, c, theirs[chroma]));
}

}  // namespace
}  // namespace tintvert::test

#endif
