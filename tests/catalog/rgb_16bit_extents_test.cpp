// The routines of 16 bits a channel touch exactly the bytes that their extents rules tell, over random
// geometry.
#include <gtest/gtest.h>

#include "catalog.h"
#include "support/fence.h"
#include "support/random.h"

namespace tintvert::test {
namespace {

using catalog::Arg;

constexpr int rounds = 120;

struct Case {
    const char* name;
    long dst_bytes, src_bytes;
    bool reduces;
};

// Tight frames every fourth round, and the common depths every second.
catalog::Arguments geometry(Random& random, int round, const Case& of)
{
    constexpr int64_t common[] = {16, 12, 10, 8, 9, 7, 0, 40, 0xFFFFFFFF};
    catalog::Arguments call;
    const long width = random.between(-1, 70);
    call[Arg::width] = width;
    call[Arg::height] = random.between(-12, 12);
    const bool tight = round % 4 == 0;
    call[Arg::dstStride] = tight ? width * of.dst_bytes : random.between(-600, 600);
    call[Arg::srcStride] = tight ? width * of.src_bytes : random.between(-600, 600);
    call[Arg::bits] = round % 2 == 0 ? common[random.between(0, 8)] : random.between(0, 50);
    call[Arg::order] = random.between(0, 4);
    return call;
}

// Shifts by 8 and by 0 use one byte of a channel, and the other may stay unread at the outermost one.
int64_t idle_bytes(const catalog::Arguments& call)
{
    const uint32_t shift = (call.as<uint32_t>(Arg::bits) - 8) & 31;
    return shift == 8 || shift == 0 ? 1 : 0;
}

void prove(uint64_t seed, std::initializer_list<Case> cases)
{
    Random random(seed);
    for (const Case& one : cases)
        for (int round = 0; round < rounds; ++round) {
            const catalog::Arguments call = geometry(random, round, one);
            expect_exact_extents(*catalog::find(one.name), call, {}, one.reduces ? idle_bytes(call) : 0);
        }
}

TEST(Rgb16BitExtents, reducing)
{
    prove(21, {{"tntvt_rgb48_rgba32", 4, 6, true},
               {"tntvt_bgr48_rgba32", 4, 6, true},
               {"tntvt_rgba64_rgba32", 4, 8, true},
               {"tntvt_argb64_rgba32", 4, 8, true},
               {"tntvt_abgr64_rgba32", 4, 8, true},
               {"tntvt_bgra64_rgba32", 4, 8, true}});
}

TEST(Rgb16BitExtents, widening)
{
    prove(22, {{"tntvt_rgba32_rgb48", 6, 4, false},
               {"tntvt_rgba32_bgr48", 6, 4, false},
               {"tntvt_rgba32_rgba64", 8, 4, false},
               {"tntvt_rgba32_argb64", 8, 4, false},
               {"tntvt_bgra32_rgba64", 8, 4, false}});
}

TEST(Rgb16BitExtents, big_endian)
{
    prove(23, {{"tntvt_argb64be_rgba64", 8, 8, false},
               {"tntvt_argb64be_rgb48", 6, 8, false},
               {"tntvt_argb64be_rgba32", 4, 8, true},
               {"tntvt_argb64be_rgb24", 3, 8, true}});
}

}  // namespace
}  // namespace tintvert::test
