// The planar routines touch exactly the bytes that their rules tell.
#include <gtest/gtest.h>

#include "catalog.h"
#include "support/fence.h"
#include "support/random.h"

namespace tintvert::test {
namespace {

using catalog::Arg;

constexpr int rounds = 200;

TEST(Extents, planar)
{
    Random random(30);
    for (const char* name : {"tntvt_planar_2vuy", "tntvt_2vuy_planar"}) {
        for (int round = 0; round < rounds; ++round) {
            catalog::Arguments call;
            call[Arg::count] = random.between(0, 9000);
            expect_exact_extents(*catalog::find(name), call);
        }
    }
}

TEST(Extents, planar_fields)
{
    Random random(31);
    for (int round = 0; round < rounds; ++round) {
        catalog::Arguments call;
        call[Arg::groups] = random.between(1, 90);
        call[Arg::total] = random.between(0, 3000);
        expect_exact_extents(*catalog::find("tntvt_planarfields_2vuy"), call);
    }
}

TEST(Extents, planes_420)
{
    Random random(32);
    for (const char* name : {"tntvt_i420_2vuy", "tntvt_yv12_2vuy", "tntvt_2vuy_i420", "tntvt_2vuy_yv12"}) {
        for (int round = 0; round < rounds; ++round) {
            catalog::Arguments call;
            call[Arg::width] = random.between(0, 70);
            call[Arg::height] = random.between(0, 24);
            call[Arg::stride] = round % 4 == 0 ? 0 : round % 4 == 1 ? 0xFFFFFFFF : random.between(1, 300);
            if (name == std::string_view{"tntvt_yv12_2vuy"}) call[Arg::interlaced] = random.between(0, 3);
            expect_exact_extents(*catalog::find(name), call);
        }
    }
}

// An offset of 0x1'8000'0000 is one of 0x8000'0000.
TEST(Extents, planes_420_keep_line_offsets_to_32_bits)
{
    catalog::Arguments call;
    call[Arg::width] = 6;
    call[Arg::height] = 4;
    for (const int64_t stride : {0x40000000, 0x7FFFFF00, 0x50000001}) {
        call[Arg::stride] = stride;
        expect_exact_extents(*catalog::find("tntvt_i420_2vuy"), call);
        expect_exact_extents(*catalog::find("tntvt_yv12_2vuy"), call);
    }
}

TEST(Extents, yuy2_to_planes)
{
    Random random(33);
    for (int round = 0; round < 3 * rounds; ++round) {
        catalog::Arguments call;
        call[Arg::width] = random.between(-1, 70);
        call[Arg::height] = random.between(-1, 24);
        call[Arg::srcPitch] = random.between(-100, 100);
        call[Arg::dstPitch] = random.between(-100, 100);
        expect_exact_extents(*catalog::find("YUY2toYV12"), call);
    }
}

}  // namespace
}  // namespace tintvert::test
