#include "support/strided.h"

#include <algorithm>
#include <cstdlib>

#include "support/arena.h"

namespace tintvert::test {
namespace {

// No byte of a frame is further from its pointer: lines are placed up to twice their number away, and one; for some
// routines a stride of 0 is a line of up to 64 pixels more.
long reach(const StridedFrame& g)
{
    const long line = 8 * std::max(g.width, 0L) + 512;
    return (2 * std::labs(g.height) + 2) * std::max({std::labs(g.dst_stride), std::labs(g.src_stride), line});
}

// Many zeros and small bytes.
void make_small(Random& random, Arena& arena, long below, long above)
{
    for (long i = -below; i < above; ++i) {
        const uint64_t kind = random.next() % 4;
        if (kind != 0) *arena.actual(i) = static_cast<uint8_t>(kind == 1 ? *arena.actual(i) % 16 : 0);
        *arena.expected(i) = *arena.actual(i);
    }
}

}  // namespace

long any_stride(Random& random, long line_bytes)
{
    switch (random.between(0, 7)) {
        case 0:
            return 0;
        case 1:
            return random.between(0, line_bytes);
        case 2:
            return -line_bytes - random.between(0, 20);
        case 3:
            return random.between(-200, 200);
        case 4:
        case 5:
            return line_bytes + random.between(1, 50);
        default:
            return line_bytes;
    }
}

StridedFrame any_frame(Random& random, PixelBits bits)
{
    StridedFrame g{};
    g.width = random.between(0, 9) == 0 ? random.between(-2, 150) : random.between(1, 24);
    g.height = random.between(-4, 4);
    const auto line = [&](long pixel_bits) { return (std::labs(g.width) * pixel_bits + 7) / 8; };
    g.dst_stride = any_stride(random, line(bits.dst));
    g.src_stride = random.between(0, 3) == 0 ? g.dst_stride : any_stride(random, line(bits.src));
    return g;
}

long apart(const StridedFrame& frame) { return 2 * reach(frame); }

testing::AssertionResult agree(Random& random, const Twins& twins, StridedFrame g, long distance)
{
    const long below = reach(g) + std::max(-distance, 0L) + 8, above = reach(g) + std::max(distance, 0L) + 8;
    Arena arena(random, below, above);
    if (random.between(0, 3) == 0) make_small(random, arena, below, above);
    const long src = random.between(-7, 7);
    g.src = arena.actual(src);
    g.dst = arena.actual(src + distance);
    twins.routine(g);
    g.src = arena.expected(src);
    g.dst = arena.expected(src + distance);
    twins.reference(g);
    testing::AssertionResult result = arena.agrees(src + distance, g.dst_stride);
    if (!result)
        result << "; " << twins.name << ", " << g.width << " x " << g.height << ", strides " << g.dst_stride << " and "
               << g.src_stride << ", destination at source + " << distance;
    return result;
}

testing::AssertionResult agree_everywhere(const Twins& twins, int each)
{
    uint64_t seed = 0;
    for (const char letter : twins.name) seed = seed * 31 + static_cast<uint64_t>(letter);
    Random random(seed);
    const auto one = [&](const StridedFrame& g, long distance) { return agree(random, twins, g, distance); };
    for (int i = 0; i < 30 * each; ++i) {
        const StridedFrame g = any_frame(random, twins.bits);
        const long any = random.between(-apart(g) / 2, apart(g) / 2);
        for (const long distance : {apart(g), -apart(g), 0L, any})
            if (auto result = one(g, distance); !result) return result;
    }
    for (long distance = -64; distance <= 64; ++distance)
        for (int i = 0; i < each; ++i)
            if (auto result = one(any_frame(random, twins.bits), distance); !result) return result;
    return testing::AssertionSuccess();
}

}  // namespace tintvert::test
