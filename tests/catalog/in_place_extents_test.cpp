// The routines with one 8-bit buffer touch exactly the bytes that their rules tell.
#include <gtest/gtest.h>

#include "catalog.h"
#include "support/fence.h"
#include "support/random.h"

namespace tintvert::test {
namespace {

using catalog::Arg;

constexpr int rounds = 200;

// Every second luma stands out, so that all that may be replaced is: luma 100, 120, 100, 120 ...
void fill_with_errors(Arg, uint8_t* pointer, catalog::Range hull)
{
    for (int64_t i = hull.begin; i < hull.end; ++i) pointer[i] = i % 4 == 3 ? 120 : 100;
}

TEST(Extents, average_2y)
{
    Random random(22);
    for (int round = 0; round < 3 * rounds; ++round) {
        catalog::Arguments call;
        call[Arg::bytes] = round < rounds ? round : random.between(0, 9000);
        call[Arg::mode] = random.between(0, 7);
        expect_exact_extents(*catalog::find("tntvt_2yuv_average_2y"), call, fill_with_errors);
    }
}

TEST(Extents, scale)
{
    Random random(23);
    for (int round = 0; round < rounds; ++round) {
        catalog::Arguments call;
        call[Arg::bytes] = random.between(0, 9000);
        call[Arg::up] = random.between(0, 1);
        expect_exact_extents(*catalog::find("tntvt_2vuy_scale"), call);
    }
}

}  // namespace
}  // namespace tintvert::test
