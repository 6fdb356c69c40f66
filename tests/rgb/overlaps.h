// A strided routine against its reference in one memory: apart, in place, and at every distance of -64 to 64
// bytes from source to destination.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <string>

#include "reference/strided_frame.h"
#include "support/arena.h"

namespace tintvert::test::overlaps {

using reference::PixelBytes;
using reference::StridedFrame;

using Work = std::function<void(const StridedFrame&)>;

struct Twins {
    std::string name;
    PixelBytes bytes;
    Work routine, reference;
};

using Routine = void(void*, long, void*, long, long, long);

inline Work calling(Routine* routine)
{
    return [routine](const StridedFrame& f) {
        routine(f.dst, f.dst_stride, const_cast<uint8_t*>(f.src), f.src_stride, f.width, f.height);
    };
}

// No byte of a frame lies further from its pointer: lines are placed up to twice their number away, and one.
inline long reach(const StridedFrame& g)
{
    return (2 * std::labs(g.height) + 2) * std::max(std::labs(g.dst_stride), std::labs(g.src_stride)) +
           8 * std::max(g.width, 0L) + 16;
}

// A distance at which the two frames share no byte.
inline long apart(const StridedFrame& g) { return 2 * reach(g); }

inline testing::AssertionResult agree(Random& random, const Twins& twins, StridedFrame g, long distance)
{
    const long below = reach(g) + std::max(-distance, 0L), above = reach(g) + std::max(distance, 0L);
    Arena arena(random, below, above);
    if (random.between(0, 3) == 0)  // many zeros and small bytes
        for (long i = -below; i < above; ++i) {
            const uint64_t kind = random.next() % 4;
            if (kind != 0) *arena.actual(i) = static_cast<uint8_t>(kind == 1 ? *arena.actual(i) % 16 : 0);
            *arena.expected(i) = *arena.actual(i);
        }

    g.src = arena.actual();
    g.dst = arena.actual(distance);
    twins.routine(g);
    g.src = arena.expected();
    g.dst = arena.expected(distance);
    twins.reference(g);
    testing::AssertionResult result = arena.agrees(distance, g.dst_stride);
    if (!result)
        result << "; " << twins.name << ", " << g.width << " x " << g.height << ", strides " << g.dst_stride << " and "
               << g.src_stride << ", destination at source + " << distance;
    return result;
}

// Tight, slack, smaller than the line, none, and downward.
inline long random_stride(Random& random, long line)
{
    switch (random.between(0, 7)) {
        case 0:
            return 0;
        case 1:
            return random.between(0, line);
        case 2:
            return -line - random.between(0, 19);
        case 3:
        case 4:
            return line + random.between(1, 19);
        default:
            return line;
    }
}

inline StridedFrame random_geometry(Random& random, PixelBytes bytes)
{
    StridedFrame g{};
    g.width = random.between(0, 9) == 0 ? random.between(-1, 150) : random.between(1, 24);
    g.height = random.between(-4, 4);
    g.dst_stride = random_stride(random, bytes.dst * std::max(g.width, 0L));
    g.src_stride = random.between(0, 3) == 0 ? g.dst_stride : random_stride(random, bytes.src * std::max(g.width, 0L));
    return g;
}

// The first disagreement of `each` frames at every distance of -64 to 64 and of more apart, in place and at
// any distance at which the frames may still meet, or success.
inline testing::AssertionResult agree_everywhere(const Twins& twins, int each = 4)
{
    uint64_t seed = 0;
    for (const char letter : twins.name) seed = seed * 31 + static_cast<uint64_t>(letter);
    Random random(seed);
    const auto one = [&](const StridedFrame& g, long distance) { return agree(random, twins, g, distance); };
    for (int i = 0; i < 30 * each; ++i) {
        const StridedFrame g = random_geometry(random, twins.bytes);
        if (auto result = one(g, apart(g)); !result) return result;
        if (auto result = one(g, -apart(g)); !result) return result;
        if (auto result = one(g, 0); !result) return result;
        if (auto result = one(g, random.between(-reach(g), reach(g))); !result) return result;
    }
    for (long distance = -64; distance <= 64; ++distance)
        for (int i = 0; i < each; ++i)
            if (auto result = one(random_geometry(random, twins.bytes), distance); !result) return result;
    return testing::AssertionSuccess();
}

}  // namespace tintvert::test::overlaps
