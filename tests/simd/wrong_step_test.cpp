// SIMD steps that are wrong in one way each. The comparison must see every one of them.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>

#include "shapes.h"
#include "simd/agreement.h"

namespace tintvert::test {
namespace {

using namespace catalog;

// Scalar: each byte is the source's plus 1, leftmost first. SIMD: eight at a time, as `Step` has it.
template <class Step>
int64_t add_one(const Arguments& call)
{
    auto* dst = call.as<uint8_t*>(Arg::dst);
    const auto* src = call.as<const uint8_t*>(Arg::src);
    const int64_t count = call[Arg::pixels];
    int64_t x = instruction_set() > InstructionSet::scalar && Step::allowed(dst, src, count)
                    ? Step::leading(dst, src, count)
                    : 0;
    for (; x < count; ++x) dst[x] = static_cast<uint8_t>(src[x] + 1);
    return 0;
}

struct Right {
    static bool allowed(const uint8_t* dst, const uint8_t* src, int64_t count)
    {
        return disjoint(dst, count, src, count);
    }
    static int64_t leading(uint8_t* dst, const uint8_t* src, int64_t count)
    {
        int64_t x = 0;
        for (; count - x >= 8; x += 8) step(dst + x, src + x);
        return x;
    }
    static void step(uint8_t* dst, const uint8_t* src, int wrong_lane = -1)
    {
        uint8_t lanes[8];
        for (int i = 0; i < 8; ++i) lanes[i] = static_cast<uint8_t>(src[i] + (i == wrong_lane ? 2 : 1));
        std::memcpy(dst, lanes, 8);
    }
};

struct WrongLane : Right {
    static int64_t leading(uint8_t* dst, const uint8_t* src, int64_t count)
    {
        if (count < 8) return 0;
        step(dst, src, 7);
        return 8;
    }
};

struct WritesBeyond : Right {
    static int64_t leading(uint8_t* dst, const uint8_t* src, int64_t count)
    {
        int64_t x = 0;
        for (; x < count; x += 8) step(dst + x, src + x);
        return x;
    }
};

struct SkipsOne : Right {
    static int64_t leading(uint8_t* dst, const uint8_t* src, int64_t count)
    {
        const int64_t x = Right::leading(dst, src, count);
        return x > 0 ? std::min(x + 1, count) : 0;
    }
};

struct AssumesAlignment : Right {
    static int64_t leading(uint8_t* dst, const uint8_t* src, int64_t count)
    {
        const auto down = reinterpret_cast<uintptr_t>(src) % 16;
        return count < 24 ? 0 : (step(dst, src - down), 8);
    }
};

struct ForgetsOverlap : Right {
    static bool allowed(const uint8_t*, const uint8_t*, int64_t) { return true; }
};

struct WidensInPlaceOnly : Right {
    static bool allowed(const uint8_t* dst, const uint8_t* src, int64_t) { return dst == src; }
    static int64_t leading(uint8_t* dst, const uint8_t* src, int64_t count)
    {
        return WrongLane::leading(dst, src, count);
    }
};

template <class Step>
bool caught(bool together)
{
    static constexpr Arg arguments[] = {Arg::src, Arg::dst, Arg::pixels};
    Routine routine{};
    routine.name = "add_one";
    routine.shape = &catalog::shapes::line;
    routine.from = routine.to = &catalog::layout::alpha;
    routine.fits_in_memory = [](const Arguments&) { return true; };
    routine.arguments = arguments;
    routine.extents = [](const Arguments& call) {
        Extents extents;
        extents.add(Arg::src, {0, call[Arg::pixels]}, {});
        extents.add(Arg::dst, {}, {0, call[Arg::pixels]});
        return extents;
    };
    routine.call = add_one<Step>;
    Random random(7);
    for (int64_t at = together ? -64 : 0; at <= 64; ++at) {
        Arguments call;
        call[Arg::pixels] = random.between(0, 300);
        if (!agrees(routine, call, {0, at, together}, InstructionSet::sse2, random.next())) return true;
    }
    return false;
}

TEST(WrongStep, right_one_passes)
{
    EXPECT_FALSE(caught<Right>(false));
    EXPECT_FALSE(caught<Right>(true));
}

TEST(WrongStep, wrong_lane_is_caught) { EXPECT_TRUE(caught<WrongLane>(false)); }
TEST(WrongStep, write_beyond_the_run_is_caught) { EXPECT_TRUE(caught<WritesBeyond>(false)); }
TEST(WrongStep, skipped_pixel_is_caught) { EXPECT_TRUE(caught<SkipsOne>(false)); }
TEST(WrongStep, assumed_alignment_is_caught) { EXPECT_TRUE(caught<AssumesAlignment>(false)); }
TEST(WrongStep, forgotten_overlap_is_caught) { EXPECT_TRUE(caught<ForgetsOverlap>(true)); }
TEST(WrongStep, wrong_step_in_place_is_caught) { EXPECT_TRUE(caught<WidensInPlaceOnly>(true)); }

}  // namespace
}  // namespace tintvert::test
