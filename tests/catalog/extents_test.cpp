// Every routine touches exactly the bytes that its extents function computes, over random geometry.
#include <gtest/gtest.h>

#include "catalog.h"
#include "support/fence.h"
#include "support/random.h"

namespace tintvert::test {
namespace {

using catalog::Arg;

constexpr int rounds = 200;

TEST(Extents, rgb_to_2vuy)
{
    Random random(1);
    for (const char* name : {"argb_to_2vuy", "bgra_to_2vuy", "hd_rgb_to_2vuy", "tntvt_rgb32_2vuy"}) {
        for (int round = 0; round < rounds; ++round) {
            catalog::Arguments call;
            call[Arg::pixels] = random.between(-2, 3000);
            call[Arg::bgra] = random.between(0, 1);
            call[Arg::width] = random.between(0, 90);
            call[Arg::height] = random.between(-1, 40);
            call[Arg::dstStride] = random.between(-100, 100);
            call[Arg::srcStride] = random.between(-100, 100);
            expect_exact_extents(*catalog::find(name), call);
        }
    }
}

TEST(Extents, yuv422_rgb)
{
    Random random(2);
    for (const char* name : {"tntvt_yuv422_rgb24", "tntvt_yuv422_rgb16"}) {
        for (int round = 0; round < rounds; ++round) {
            catalog::Arguments call;
            call[Arg::width] = random.between(-1, 90);
            call[Arg::height] = random.between(-1, 20);
            call[Arg::scale] = random.between(1, 5);
            if (round % 8 == 0) call[Arg::scale] = -call[Arg::scale], call[Arg::height] = -call[Arg::height];
            call[Arg::dstStride] = random.between(-400, 400);
            call[Arg::srcStride] = random.between(-200, 200);
            expect_exact_extents(*catalog::find(name), call);
        }
    }
}

// Where no row is left, numbers of any size touch nothing. An overflowing product shows under the sanitizers.
TEST(Extents, reduction_to_no_row_touches_nothing)
{
    for (const char* name : {"tntvt_yuv422_rgb24", "tntvt_yuv422_rgb16", "tntvt_v210_rgb24", "tntvt_v210_rgb16"}) {
        catalog::Arguments call;
        call[Arg::width] = 64;
        call[Arg::height] = 8;
        call[Arg::scale] = -INT32_MAX;
        call[Arg::dstStride] = call[Arg::srcStride] = UINT32_MAX * int64_t{2};
        for (const catalog::Touch& touch : catalog::find(name)->extents(call))
            EXPECT_TRUE(touch.read.empty() && touch.written.empty()) << name;
    }
}

}  // namespace
}  // namespace tintvert::test
