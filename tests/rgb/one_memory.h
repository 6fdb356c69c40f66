// Routines of the strided frame shape and their references, both on one memory that holds source and
// destination: apart, in place and overlapping.
#pragma once

#include <cstdint>
#include <cstdlib>
#include <functional>
#include <sstream>

#include "support/arena.h"

namespace tintvert::test {

struct Geometry {
    long dst_stride, src_stride, width, height;
};

// Small frames of every kind: tight, slack, shorter than a line, 0, negative and arbitrary strides.
inline Geometry any_geometry(Random& random, long dst_bits, long src_bits)
{
    const long width = random.between(0, 9) == 0 ? random.between(-2, 0) : random.between(1, 17);
    const auto stride = [&](long bits) {
        const long tight = (std::labs(width) * bits + 7) / 8;
        switch (random.between(0, 5)) {
            case 0:
                return tight + random.between(1, 30);
            case 1:
                return random.between(0, tight);
            case 2:
                return -tight - random.between(0, 20);
            case 3:
                return random.between(-160, 160);
            default:
                return tight;
        }
    };
    const long dst_stride = stride(dst_bits), src_stride = stride(src_bits);
    return {dst_stride, src_stride, width, random.between(-3, 4)};
}

// Calls the routine and its reference alike, `distance` bytes from the source to the destination, and
// compares all that lies within reach of either.
template <class Routine, class Reference, class... More>
testing::AssertionResult agree(Random& random, const Geometry& g, long distance, Routine routine, Reference reference,
                               More... more)
{
    constexpr long reach = 2200;
    const long src = random.between(-7, 7), dst = src + distance;
    Arena arena(random, reach + std::labs(distance), reach + std::labs(distance));
    reference(arena.expected(dst), g.dst_stride, arena.expected(src), g.src_stride, g.width, g.height, more...);
    routine(arena.actual(dst), g.dst_stride, arena.actual(src), g.src_stride, g.width, g.height, more...);
    testing::AssertionResult result = arena.agrees(dst, g.dst_stride);
    if (!result)
        result << "; distance " << distance << ", strides " << g.dst_stride << " and " << g.src_stride << ", "
               << g.width << " x " << g.height;
    return result;
}

// Every distance from -64 to 64, and as many frames apart; `check` is given a distance.
inline void at_every_distance(Random& random, int rounds, const std::function<void(long)>& check)
{
    for (int round = 0; round < rounds; ++round)
        for (long overlap = -64; overlap <= 64; ++overlap) {
            check(overlap);
            check(random.between(0, 1) == 0 ? -2100 + overlap : 2100 + overlap);
        }
}

}  // namespace tintvert::test
