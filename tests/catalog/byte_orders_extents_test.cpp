// The routines between 8-bit byte orders touch exactly the bytes that their rules tell.
#include <gtest/gtest.h>

#include "catalog.h"
#include "support/fence.h"
#include "support/random.h"

namespace tintvert::test {
namespace {

using catalog::Arg;

constexpr int rounds = 200;

TEST(Extents, byte_orders)
{
    Random random(20);
    for (const char* name : {"yuv2_to_2vuy", "yuvs_to_2vuy", "tntvt_yuv2_2vuy", "tntvt_yuvu_2vuy", "tntvt_yuvs_2vuy"}) {
        for (int round = 0; round < rounds; ++round) {
            catalog::Arguments call;
            call[Arg::pixels] = random.between(-2, 5000);
            call[Arg::width] = random.between(-1, 90);
            call[Arg::height] = random.between(0, 40);
            expect_exact_extents(*catalog::find(name), call);
        }
    }
}

TEST(Extents, yuv444)
{
    Random random(21);
    for (const char* name : {"tntvt_yuv444_yuv422_8", "tntvt_yuv422_yuv444_8"}) {
        for (int round = 0; round < rounds; ++round) {
            catalog::Arguments call;
            call[Arg::width] = random.between(0, 70);
            call[Arg::height] = random.between(0, 40);
            expect_exact_extents(*catalog::find(name), call);
        }
    }
}

}  // namespace
}  // namespace tintvert::test
