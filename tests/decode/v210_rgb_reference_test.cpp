// `v210` to RGB against its reference implementation, by eight bits: random frames and overlapping memory.
#include "decoders.h"

namespace tintvert::test {
namespace {

TEST(V210RgbReference, random_frames)
{
    Random random(321);
    for (const Decoder& decoder : decoders_of_v210)
        for (long scale = 1; scale <= 5; ++scale) expect_equal_frames(decoder, random, 300, scale);
}

TEST(V210RgbReference, random_frames_at_other_scales)
{
    Random random(322);
    for (const Decoder& decoder : decoders_of_v210)
        for (long scale = -5; scale <= -1; ++scale) expect_equal_frames(decoder, random, 80, scale);
    expect_equal_frames(decoders_of_v210[1], random, 200, 0);
}

// A pair is picked out whole before its pixels are written, in place and wherever the memories overlap.
TEST(V210RgbReference, overlapping_at_every_offset)
{
    Random random(323);
    for (const Decoder& decoder : decoders_of_v210) expect_equal_overlapping(decoder, random);
}

TEST(V210RgbReference, rejects_a_wrong_form)
{
    Random random(324);
    Twins twins = decoders_of_v210[0].at_scale(1);
    const StridedFrame frame{nullptr, 60, nullptr, 48, 16, 8};
    EXPECT_TRUE(agree(random, twins, frame, 1000));
    twins.reference = [right = twins.reference](StridedFrame f) {
        right(f);
        f.dst_stride = 64;
        f.height = 1;
        right(f);
    };
    EXPECT_FALSE(agree(random, twins, frame, 1000));
}

}  // namespace
}  // namespace tintvert::test
