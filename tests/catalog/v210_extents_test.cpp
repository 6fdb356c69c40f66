// The routines from and to `v210` touch exactly the bytes that their extents rules tell.
#include <gtest/gtest.h>

#include "catalog.h"
#include "support/fence.h"
#include "support/random.h"

namespace tintvert::test {
namespace {

using catalog::Arg;

constexpr int rounds = 200;

TEST(Extents, v210_rgb)
{
    Random random(3);
    for (const char* name : {"tntvt_v210_rgb24", "tntvt_v210_rgb16"}) {
        for (int round = 0; round < rounds; ++round) {
            catalog::Arguments call;
            call[Arg::width] = random.between(-1, 90);
            call[Arg::height] = random.between(-1, 20);
            call[Arg::scale] = random.between(1, 5);
            if (round % 8 == 0) call[Arg::scale] = -call[Arg::scale], call[Arg::height] = -call[Arg::height];
            call[Arg::dstStride] = random.between(-400, 400);
            call[Arg::srcStride] = random.between(-300, 300);
            expect_exact_extents(*catalog::find(name), call);
        }
    }
}

// A frame of two negative sizes has a positive number of pixels and is walked like any other.
TEST(Extents, _v210_to_rgb)
{
    Random random(4);
    expect_exact_extents(*catalog::find("_v210_get_next_4words"), {});
    for (int round = 0; round < rounds; ++round) {
        catalog::Arguments call;
        const long sign = round % 8 == 0 ? -1 : 1;
        call[Arg::width] = sign * random.between(0, 70);
        call[Arg::height] = sign * random.between(round % 8 == 1 ? -1 : 0, 20);
        call[Arg::dstStride] = random.between(-400, 400);
        call[Arg::bgraOrder] = random.between(0, 1);
        expect_exact_extents(*catalog::find("_v210_to_rgb"), call);
    }
}

TEST(Extents, rgb32_v210)
{
    Random random(5);
    for (int round = 0; round < rounds; ++round) {
        catalog::Arguments call;
        const long sign = round % 8 == 0 ? -1 : 1;
        call[Arg::width] = sign * (round % 16 == 1 ? random.between(955, 970) : random.between(0, 70));
        call[Arg::height] = sign * random.between(round % 8 == 1 ? -1 : 0, 20);
        call[Arg::dstStride] = round % 3 == 0 ? 0 : random.between(-400, 400);
        call[Arg::srcStride] = round % 5 == 0 ? 0 : random.between(-400, 400);
        expect_exact_extents(*catalog::find("tntvt_rgb32_v210"), call);
    }
}

TEST(Extents, lines_to_v210)
{
    Random random(6);
    for (const char* name : {"argb_to_v210", "bgra_to_v210", "yuv2_to_v210", "yuvs_to_v210"}) {
        for (int round = 0; round < rounds; ++round) {
            catalog::Arguments call;
            call[Arg::width] = random.between(-2, 3000);
            call[Arg::hasAlpha] = random.between(0, 1);
            expect_exact_extents(*catalog::find(name), call);
        }
    }
}

TEST(Extents, v210_2vuy)
{
    Random random(7);
    for (const char* name :
         {"tntvt_2vuy_v210", "tntvt_yuv422_8_yuv422_10", "tntvt_v210_2vuy", "tntvt_yuv422_10_yuv422_8"}) {
        const bool refuses_no_lines = std::string_view{name}.find("10_yuv422_8") != std::string_view::npos ||
                                      std::string_view{name} == "tntvt_v210_2vuy";
        for (int round = 0; round < rounds; ++round) {
            catalog::Arguments call;
            call[Arg::width] = random.between(0, 90);
            call[Arg::height] = random.between(refuses_no_lines ? 0 : 1, 20);
            call[Arg::dstStride] = round % 3 == 0 ? 0 : random.between(1, 400);
            call[Arg::srcStride] = round % 3 == 0 ? 0 : random.between(1, 400);
            expect_exact_extents(*catalog::find(name), call);
        }
    }
}

}  // namespace
}  // namespace tintvert::test
