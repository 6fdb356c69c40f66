#include <gtest/gtest.h>

#include "catalog.h"
#include "support/fence.h"
#include "support/random.h"

namespace tintvert::test {
namespace {

using catalog::Arg;

TEST(Extents, st2084)
{
    Random random(7);
    for (const char* name : {"tntvt_rgb_to_st2084", "tntvt_st2084_to_rgb", "tntvt_yuv2_to_st2084",
                             "tntvt_st2084_to_yuv2", "tntvt_v210_to_st2084", "tntvt_st2084_to_v210"}) {
        for (int round = 0; round < 200; ++round) {
            catalog::Arguments call;
            call[Arg::height] = random.between(0, 12);
            call[Arg::dstStride] = random.between(0, round % 2 == 0 ? 20 : 400);
            call[Arg::srcStride] = random.between(0, 400);
            expect_exact_extents(*catalog::find(name), call);
        }
    }
}

}  // namespace
}  // namespace tintvert::test
