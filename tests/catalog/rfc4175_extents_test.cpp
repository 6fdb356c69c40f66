#include <gtest/gtest.h>

#include "catalog.h"
#include "support/fence.h"
#include "support/random.h"

namespace tintvert::test {
namespace {

using catalog::Arg;

TEST(Extents, rfc4175_payload)
{
    Random random(11);
    for (int round = 0; round < 600; ++round) {
        catalog::Arguments call;
        call[Arg::payloadSize] = random.between(0, 120);
        call[Arg::pgroupCount] = random.between(-1, 20);
        call[Arg::startPhase] = random.between(-1, 6);
        expect_exact_extents(*catalog::find("tntvt_4175_to_v210"), call);
    }
}

TEST(Extents, packed10_to_v210)
{
    Random random(12);
    for (int round = 0; round < 400; ++round) {
        catalog::Arguments call;
        call[Arg::width] = random.between(0, 130);
        call[Arg::height] = random.between(0, 8);
        expect_exact_extents(*catalog::find("tntvt_YCbCr10Packed_to_v210"), call);
    }
}

TEST(Extents, rfc4175_packet)
{
    Random random(13);
    for (int round = 0; round < 400; ++round) {
        catalog::Arguments call;
        call[Arg::width] = random.between(0, 700) * 2;
        call[Arg::height] = random.between(0, 8);
        call[Arg::packetSize] = random.between(-10, 10);
        expect_exact_extents(*catalog::find("tntvt_v210_frame_to_rtp_4175"), call);
    }
}

}  // namespace
}  // namespace tintvert::test
