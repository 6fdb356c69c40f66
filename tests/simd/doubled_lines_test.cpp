// `v210` to `2vuy` runs every line on to twice its length. The SIMD version leaves out what the next line overwrites,
// which must not show at any width, stride or distance of the two frames.
#include <gtest/gtest.h>

#include "simd/agreement.h"

namespace tintvert::test {
namespace {

using namespace catalog;

TEST(DoubledLines, equal_plain_at_every_distance_of_the_frames)
{
    const Routine& routine = *find("tntvt_v210_2vuy");
    Random random(11);
    for (int64_t width = 1; width <= 30; ++width) {
        for (int64_t distance = -700; distance <= 700; distance += random.between(1, 9)) {
            Arguments call;
            call[Arg::width] = width;
            call[Arg::height] = random.between(1, 7);
            call[Arg::srcStride] = random.between(1, 100);
            for (const InstructionSet level : {InstructionSet::sse2, InstructionSet::avx2, InstructionSet::avx512})
                ASSERT_TRUE(agrees(routine, call, {0, distance, true}, level, random.next()));
        }
    }
    highest_instruction_set = InstructionSet::avx512;
}

}  // namespace
}  // namespace tintvert::test
