#include <gtest/gtest.h>

#include "catalog.h"
#include "support/fence.h"
#include "support/random.h"

namespace tintvert::test {
namespace {

using catalog::Arg;

TEST(Extents, decode_entries)
{
    Random random(21);
    for (const char* name : {"tntvt_yuv422_10_rgb24", "tntvt_yuv422_10_rgb32", "tntvt_yuv422_8_rgb24",
                             "tntvt_yuv422_8_rgb32", "tntvt_yuvijg_rgb32"}) {
        for (int round = 0; round < 300; ++round) {
            catalog::Arguments call;
            call[Arg::width] = random.between(1, 110);
            call[Arg::height] = random.between(-6, 12);
            call[Arg::scale] = random.between(1, 4);
            call[Arg::dstStride] = random.between(0, 1) * random.between(0, 500);
            call[Arg::srcStride] = random.between(0, 1) * random.between(0, 400);
            expect_exact_extents(*catalog::find(name), call);
        }
    }
}

TEST(Extents, decode_entries_420)
{
    Random random(22);
    for (const char* name : {"tntvt_i420_rgb32", "tntvt_yv12_rgb32"}) {
        for (int round = 0; round < 300; ++round) {
            catalog::Arguments call;
            call[Arg::width] = random.between(0, 70);
            call[Arg::height] = random.between(0, 12);
            call[Arg::srcStride] = call[Arg::width] + random.between(0, 20);
            expect_exact_extents(*catalog::find(name), call);
        }
    }
}

}  // namespace
}  // namespace tintvert::test
