// The alpha that no one gives: the widening routines of 16 and 24 bits take it from `a`, all others have their own.
#include <gtest/gtest.h>
#include <tintvert.h>

#include <vector>

#include "frame/state.h"

namespace tintvert::test {
namespace {

using Bytes = std::vector<uint8_t>;

// Puts 255 back.
class AlphaOfTheLibrary : public testing::TestWithParam<long> {
protected:
    ~AlphaOfTheLibrary() override { a = 255; }

    // The alphas of `width` pixels, the byte at `place` of each four, after a call.
    template <class Call>
    static Bytes alphas(size_t place, Call call)
    {
        const long width = GetParam();
        Bytes src(static_cast<size_t>(width * 8 + 64), 0x21), dst(static_cast<size_t>(width * 8 + 64), 0xEE), result;
        call(dst.data(), src.data(), width);
        for (size_t x = 0; x < static_cast<size_t>(width); ++x) result.push_back(dst[4 * x + place]);
        return result;
    }
    static Bytes all(uint8_t alpha) { return Bytes(static_cast<size_t>(GetParam()), alpha); }
};

TEST_P(AlphaOfTheLibrary, is_read_by_every_widening_routine)
{
    for (const uint8_t alpha : Bytes{255, 0, 0x5A}) {
        a = alpha;
        for (auto* routine : {tntvt_rgb24_rgba32_inplace, tntvt_rgb24_rgba32, tntvt_rgb24_rgb32_inplace,
                              tntvt_rgb24_rgb32, tntvt_rgb24_bgra32_inplace, tntvt_rgb24_bgr32_inplace})
            EXPECT_EQ(alphas(3, [&](auto* dst, auto* src, long w) { routine(dst, 4 * w, src, 3 * w, w, 1); }),
                      all(alpha));
        for (auto* routine :
             {tntvt_rgb16_rgba32_inplace, tntvt_rgb16_rgba32, tntvt_rgb16_rgb32_inplace, tntvt_rgb16_rgb32})
            EXPECT_EQ(alphas(3, [&](auto* dst, auto* src, long w) { routine(dst, 4 * w, src, 2 * w, w, 1); }),
                      all(alpha));
        EXPECT_EQ(alphas(0, [](auto* dst, auto* src,
                               long w) { tntvt_macbgr24_macargb32_inplace(dst, 4 * w, src, 3 * w, w, 1); }),
                  all(alpha));
        EXPECT_EQ(alphas(3, [](auto* dst, auto* src,
                               long w) { tntvt_rgba24_rgb32_invert(src + 3 * w, 4 * w, dst + 4 * w, 3 * w, w, 1); }),
                  all(alpha));
    }
}

TEST_P(AlphaOfTheLibrary, is_not_read_by_routines_with_an_alpha_of_their_own)
{
    a = 0x5A;
    for (auto* routine : {tntvt_rgb48_rgba32, tntvt_bgr48_rgba32})
        EXPECT_EQ(alphas(3, [&](auto* dst, auto* src, long w) { routine(dst, 4 * w, src, 6 * w, w, 1, 16); }), all(0));
    EXPECT_EQ(alphas(3, [](auto* dst, auto* src, long w) { tntvt_rgb10_rgba32(dst, 4 * w, src, 4 * w, w, 1, 0, 1); }),
              all(255));
    EXPECT_EQ(alphas(3,
                     [](auto* dst, auto* src, long w) {
                         if (w % 8 == 0) tntvt_rgb12_rgba32(dst, 4 * w, src, 9 * w / 2, w, 1);
                     }),
              GetParam() % 8 == 0 ? all(255) : all(0xEE));
    for (auto* routine : {tntvt_rle8_rgba32, tntvt_rle8_rgb32})
        EXPECT_EQ(alphas(3,
                         [&](auto* dst, auto*, long w) {
                             Bytes stream{static_cast<uint8_t>(w), 0, 0, 1}, palette(1024, 0x77);
                             routine(dst, 4 * w, stream.data(), 0, w, 1, palette.data());
                         }),
                  all(0));
    // 3 bytes a pixel to 4: the fourth stays.
    EXPECT_EQ(alphas(3, [](auto* dst, auto* src, long w) { tntvt_rgba_full(dst, 4 * w, src, 3 * w, w, 1); }),
              all(0xEE));
    // 64 bits a pixel: the alpha of `rgb10` is 0xFFFF.
    EXPECT_EQ(alphas(3,
                     [](auto* dst, auto* src, long w) {
                         Bytes deep(static_cast<size_t>(8 * w));
                         tntvt_rgb10_rgba64(deep.data(), 8 * w, src, 4 * w, w, 1, 0, 1);
                         for (size_t x = 0; x < static_cast<size_t>(w); ++x) dst[4 * x + 3] = deep[8 * x + 6];
                     }),
              all(255));
}

// One pixel, and lines long enough for SIMD versions.
INSTANTIATE_TEST_SUITE_P(Widths, AlphaOfTheLibrary, testing::Values(1, 40, 128));

}  // namespace
}  // namespace tintvert::test
