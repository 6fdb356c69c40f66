// The routines with one 8-bit buffer access exactly the bytes of their rules.
#include <gtest/gtest.h>

#include "catalog.h"
#include "support/fence.h"
#include "support/random.h"

namespace tintvert::test {
namespace {

using catalog::Arg;

constexpr int rounds = 200;

TEST(Extents, average_2y)
{
    Random random(22);
    for (int round = 0; round < 3 * rounds; ++round) {
        catalog::Arguments call;
        call[Arg::bytes] = round < rounds ? round : random.between(0, 9000);
        call[Arg::mode] = random.between(0, 7);
        expect_exact_extents(*catalog::find("tntvt_2yuv_average_2y"), call,
                             [](Arg, uint8_t* line, catalog::Range hull) { fill_with_errors(line, hull); });
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
