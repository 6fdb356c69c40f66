// One call at two levels: the scalar version and another must leave the same bytes everywhere.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

#include "catalog.h"
#include "simd/simd.h"
#include "support/random.h"

namespace tintvert::test {

// The routines whose buffers are pictures. The run-length decoders and the packet former walk streams that random bytes
// do not make.
std::vector<const catalog::Routine*> routines_of_pictures();

// The levels of this machine, but for the scalar code.
std::vector<InstructionSet> levels();

// Where the buffers of a call are.
struct Placement {
    int64_t dst = 0, src = 0;  // bytes from an address that 64 divides
    bool together = false;     // one memory: `src` counts from the destination's pointer
};

// A call of `routine` over `width` pixels and a few lines, its strides and options at random. False if a
// careful caller makes no such call.
bool random_call(Random& random, const catalog::Routine& routine, int64_t width, catalog::Arguments* call);

// Whether `routine` leaves the same bytes at `level` as in its scalar version, all that it should not touch included.
testing::AssertionResult agrees(const catalog::Routine& routine, const catalog::Arguments& call,
                                const Placement& placement, InstructionSet level, uint64_t seed);

}  // namespace tintvert::test
