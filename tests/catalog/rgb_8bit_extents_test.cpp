// The 8-bit RGB routines touch exactly the bytes that their extents rules tell, over random geometry.
#include <gtest/gtest.h>

#include "catalog.h"
#include "support/fence.h"
#include "support/random.h"

namespace tintvert::test {
namespace {

using catalog::Arg;

constexpr int rounds = 60;

// Tight frames every fourth round; otherwise strides of both signs, smaller and larger than the pixels.
catalog::Arguments geometry(Random& random, int round, long dst_bytes, long src_bytes)
{
    catalog::Arguments call;
    const long width = random.between(-1, 90);
    call[Arg::width] = width;
    call[Arg::height] = random.between(-12, 12);
    const bool tight = round % 4 == 0;
    call[Arg::dstStride] = tight ? width * dst_bytes : random.between(-400, 400);
    call[Arg::srcStride] = tight ? width * src_bytes : random.between(-400, 400);
    return call;
}

void prove(uint64_t seed, std::initializer_list<const char*> names, long dst_bytes, long src_bytes)
{
    Random random(seed);
    for (const char* name : names)
        for (int round = 0; round < rounds; ++round)
            expect_exact_extents(*catalog::find(name), geometry(random, round, dst_bytes, src_bytes));
}

TEST(Rgb8BitExtents, word_kernels)
{
    Random random(11);
    for (const char* name : {"rgba2argb", "bgra2abgr", "bgra2abgrMMX", "abgr2bgraMMX", "argb2rgba", "abgr2bgra",
                             "bgra2argb", "argb2bgra", "abgr2argb", "argb2abgr", "bgra2rgba"})
        for (int round = 0; round < rounds; ++round) {
            catalog::Arguments call;
            call[Arg::pixels] = random.between(0, 300);
            expect_exact_extents(*catalog::find(name), call);
        }
}

TEST(Rgb8BitExtents, words)
{
    prove(12,
          {"tntvt_rgba32_bgra32_inplace", "tntvt_rgb32_bgr32_inplace", "tntvt_rgba32_abgr32_inplace",
           "tntvt_rgba32_argb32", "tntvt_argb32_rgba32"},
          4, 4);
}

TEST(Rgb8BitExtents, narrowing)
{
    prove(13,
          {"tntvt_rgba32_rgb24_inplace", "tntvt_rgba32_rgb24", "tntvt_rgb32_rgb24_inplace", "tntvt_rgb32_rgb24",
           "tntvt_rgba32_bgr24_inplace", "tntvt_rgb32_bgr24_inplace", "tntvt_rgba32_rgb24_invert"},
          3, 4);
}

TEST(Rgb8BitExtents, widening_from_24)
{
    prove(14,
          {"tntvt_rgb24_rgba32_inplace", "tntvt_rgb24_rgba32", "tntvt_rgb24_rgb32_inplace", "tntvt_rgb24_rgb32",
           "tntvt_rgb24_bgra32_inplace", "tntvt_rgb24_bgr32_inplace", "tntvt_macbgr24_macargb32_inplace",
           "tntvt_rgba24_rgb32_invert"},
          4, 3);
}

TEST(Rgb8BitExtents, widening_from_16)
{
    prove(15, {"tntvt_rgb16_rgba32_inplace", "tntvt_rgb16_rgba32", "tntvt_rgb16_rgb32_inplace", "tntvt_rgb16_rgb32"}, 4,
          2);
}

}  // namespace
}  // namespace tintvert::test
