// Every routine at every level that this machine has, beside its scalar version.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "simd/agreement.h"
#include "support/fence.h"

namespace tintvert::test {
namespace {

using namespace catalog;

class Simd : public testing::TestWithParam<const Routine*> {
protected:
    ~Simd() override { highest_instruction_set = InstructionSet::avx512; }

    // Nearly every width has a call that no rule refuses.
    void TearDown() override { EXPECT_GE(called_ * 100, asked_ * 97) << called_ << " calls of " << asked_; }

    // A call at random over `width` pixels.
    bool call_of(int64_t width, Arguments* call)
    {
        ++asked_;
        for (int attempt = 0; attempt < 8; ++attempt)
            if (random_call(random, routine, width, call)) return ++called_, true;
        return false;
    }

    // ... leaves the same bytes at every level.
    void expect_agreement(int64_t width, const Placement& placement)
    {
        Arguments call;
        if (HasFailure() || !call_of(width, &call)) return;
        for (const InstructionSet level : levels()) EXPECT_TRUE(agrees(routine, call, placement, level, random.next()));
    }

    const Routine& routine = *GetParam();
    Random random{std::hash<std::string_view>{}(routine.name)};

private:
    int asked_ = 0, called_ = 0;
};

TEST_P(Simd, equals_scalar_at_every_width)
{
    for (int64_t width = 0; width <= 300; ++width)
        for (int round = 0; round < 2; ++round) expect_agreement(width, {random.between(0, 63), random.between(0, 63)});
}

TEST_P(Simd, equals_scalar_at_every_misalignment)
{
    for (int64_t at = 0; at < 64; ++at)
        for (int round = 0; round < 3; ++round) {
            expect_agreement(random.between(1, 300), {at, random.between(0, 63)});
            expect_agreement(random.between(1, 300), {random.between(0, 63), at});
        }
}

TEST_P(Simd, equals_scalar_where_buffers_overlap)
{
    for (int64_t distance = -64; distance <= 64; ++distance)
        for (int round = 0; round < 3; ++round) expect_agreement(random.between(1, 200), {0, distance, true});
}

TEST_P(Simd, equals_scalar_in_place)
{
    for (int64_t width = 0; width <= 300; ++width) expect_agreement(width, {random.between(0, 63), 0, true});
}

TEST_P(Simd, touches_nothing_outside_the_extents)
{
    Arguments call;
    for (const InstructionSet level : levels()) {
        highest_instruction_set = level;
        for (int round = 0; round < 40; ++round)
            if (call_of(random.between(1, 300), &call)) expect_within_extents(routine, call);
    }
}

INSTANTIATE_TEST_SUITE_P(Routines, Simd, testing::ValuesIn(routines_of_pictures()),
                         [](const auto& routine) { return std::string{routine.param->name}; });

// The program's own routines are called, not those of the library beside it.
TEST(SimdHarness, sets_the_level_of_the_routines_that_it_calls)
{
    highest_instruction_set = InstructionSet::scalar;
    EXPECT_EQ(instruction_set(), InstructionSet::scalar);
    highest_instruction_set = InstructionSet::avx512;
    EXPECT_EQ(instruction_set(), machine_instruction_set());
}

}  // namespace
}  // namespace tintvert::test
