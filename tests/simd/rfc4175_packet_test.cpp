// The packet former at every level beside its scalar version. Lines that start below a payload's end are read as
// earlier packets left them, so that only the scalar code fills those payloads.
#include <gtest/gtest.h>

#include <algorithm>

#include "simd/agreement.h"
#include "support/fence.h"

namespace tintvert::test {
namespace {

using namespace catalog;

class Rfc4175PacketSimd : public testing::Test {
protected:
    ~Rfc4175PacketSimd() override { highest_instruction_set = InstructionSet::avx512; }

    static Arguments frame_of(int64_t width, int64_t height)
    {
        Arguments call;
        call[Arg::width] = width;
        call[Arg::height] = height;
        return call;
    }

    void expect_agreement(int64_t width, int64_t height)
    {
        for (const InstructionSet level : levels())
            ASSERT_TRUE(agrees(routine, frame_of(width, height), {width % 64, 0}, level, random.next()));
    }

    // The pgroups that are not left to the scalar code, in a frame at the highest level.
    long units_of(int64_t width, int64_t height)
    {
        simd_units = 0;
        EXPECT_TRUE(agrees(routine, frame_of(width, height), {}, levels().back(), random.next()));
        return simd_units;
    }

    const Routine& routine = *find("tntvt_v210_frame_to_rtp_4175");
    Random random{4175};
};

TEST_F(Rfc4175PacketSimd, equals_scalar_at_every_width)
{
    for (int64_t width = 0; width <= 1200; width += 2)
        for (int64_t height = 1; height <= 3; ++height) expect_agreement(width, height);
}

TEST_F(Rfc4175PacketSimd, touches_nothing_outside_the_extents)
{
    for (const InstructionSet level : levels()) {
        highest_instruction_set = level;
        for (int64_t width = 2; width <= 600; width += 2) expect_within_extents(routine, frame_of(width, 3));
    }
}

TEST_F(Rfc4175PacketSimd, fills_payloads_that_no_line_starts_in)
{
    if (levels().empty()) GTEST_SKIP() << "no SIMD version on this machine";
    EXPECT_EQ(units_of(2, 5), 5);
    EXPECT_EQ(units_of(1920, 7), 275 * 7);
    EXPECT_EQ(units_of(550, 2), 275 * 2);
}

// Of 48 pixels a line has 128 bytes and a payload is bytes 20 to 139: line 1 starts in it.
TEST_F(Rfc4175PacketSimd, leaves_payloads_that_their_line_starts_in)
{
    if (levels().empty()) GTEST_SKIP() << "no SIMD version on this machine";
    EXPECT_EQ(units_of(48, 1), 24);
    EXPECT_EQ(units_of(48, 2), 24);
    EXPECT_EQ(units_of(48, 3), 24 * 2);
}

}  // namespace
}  // namespace tintvert::test
