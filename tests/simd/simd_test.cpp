// Every routine at every level that this machine has, beside its scalar version.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "simd/agreement.h"
#include "support/fence.h"

namespace tintvert::test {

namespace {

using namespace catalog;

// The run-length decoders and the packet former walk streams that random bytes do not make.
bool walks_pictures(const Routine& routine)
{
    bool picture = false;
    for (const Arg argument : routine.arguments) {
        if (argument == Arg::palette || argument == Arg::packet || argument == Arg::raw) return false;
        picture = picture || describe(argument).kind == Argument::buffer;
    }
    return picture;
}

std::vector<const Routine*> routines_of_pictures()
{
    std::vector<const Routine*> result;
    for (const Routine& routine : routines())
        if (walks_pictures(routine)) result.push_back(&routine);
    return result;
}

std::vector<InstructionSet> levels()
{
    std::vector<InstructionSet> result;
    for (const InstructionSet level : {InstructionSet::sse2, InstructionSet::avx2, InstructionSet::avx512})
        if (level <= machine_instruction_set()) result.push_back(level);
    return result;
}

class Simd : public testing::TestWithParam<const Routine*> {
protected:
    ~Simd() override { highest_instruction_set = InstructionSet::avx512; }

    // A call at random over `width` pixels leaves the same bytes at every level.
    void expect_agreement(int64_t width, const Placement& placement)
    {
        Arguments call;
        if (HasFailure() || !random_call(random, routine, width, &call)) return;
        for (const InstructionSet level : levels()) EXPECT_TRUE(agrees(routine, call, placement, level, random.next()));
    }

    const Routine& routine = *GetParam();
    Random random{std::hash<std::string_view>{}(routine.name)};
};

TEST_P(Simd, equals_plain_at_every_width)
{
    for (int64_t width = 0; width <= 300; ++width)
        for (int round = 0; round < 2; ++round) expect_agreement(width, {random.between(0, 63), random.between(0, 63)});
}

TEST_P(Simd, equals_plain_at_every_misalignment)
{
    for (int64_t at = 0; at < 64; ++at)
        for (int round = 0; round < 3; ++round) {
            expect_agreement(random.between(1, 300), {at, random.between(0, 63)});
            expect_agreement(random.between(1, 300), {random.between(0, 63), at});
        }
}

TEST_P(Simd, equals_plain_where_buffers_overlap)
{
    for (int64_t distance = -64; distance <= 64; ++distance)
        for (int round = 0; round < 3; ++round) expect_agreement(random.between(1, 200), {0, distance, true});
}

TEST_P(Simd, equals_plain_in_place)
{
    for (int64_t width = 0; width <= 300; ++width) expect_agreement(width, {random.between(0, 63), 0, true});
}

TEST_P(Simd, touches_nothing_outside_the_extents)
{
    Arguments call;
    for (const InstructionSet level : levels()) {
        highest_instruction_set = level;
        for (int round = 0; round < 40; ++round)
            if (random_call(random, routine, random.between(1, 300), &call)) expect_within_extents(routine, call);
    }
}

INSTANTIATE_TEST_SUITE_P(Routines, Simd, testing::ValuesIn(routines_of_pictures()),
                         [](const auto& routine) { return std::string{routine.param->name}; });

// The program's own routines are called, not those of the library beside it.
TEST(SimdHarness, holds_the_level_of_the_routines_that_it_calls)
{
    highest_instruction_set = InstructionSet::scalar;
    EXPECT_EQ(instruction_set(), InstructionSet::scalar);
    highest_instruction_set = InstructionSet::avx512;
    EXPECT_EQ(instruction_set(), machine_instruction_set());
}

}  // namespace
}  // namespace tintvert::test
