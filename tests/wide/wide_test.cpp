// Every routine at every tier that this machine has, beside its plain form.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/fence.h"
#include "wide/agreement.h"

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

std::vector<Tier> tiers()
{
    std::vector<Tier> result;
    for (const Tier tier : {Tier::base, Tier::avx2, Tier::vbmi})
        if (tier <= tier_of_machine()) result.push_back(tier);
    return result;
}

class Wide : public testing::TestWithParam<const Routine*> {
protected:
    ~Wide() override { highest_tier = Tier::vbmi; }

    // A call at random over `width` pixels leaves the same bytes at every tier.
    void expect_agreement(int64_t width, const Placement& placement)
    {
        Arguments call;
        if (HasFailure() || !random_call(random, routine, width, &call)) return;
        for (const Tier tier : tiers()) EXPECT_TRUE(agrees(routine, call, placement, tier, random.next()));
    }

    const Routine& routine = *GetParam();
    Random random{std::hash<std::string_view>{}(routine.name)};
};

TEST_P(Wide, equals_plain_at_every_width)
{
    for (int64_t width = 0; width <= 300; ++width)
        for (int round = 0; round < 2; ++round) expect_agreement(width, {random.between(0, 63), random.between(0, 63)});
}

TEST_P(Wide, equals_plain_at_every_misalignment)
{
    for (int64_t at = 0; at < 64; ++at)
        for (int round = 0; round < 3; ++round) {
            expect_agreement(random.between(1, 300), {at, random.between(0, 63)});
            expect_agreement(random.between(1, 300), {random.between(0, 63), at});
        }
}

TEST_P(Wide, equals_plain_where_buffers_overlap)
{
    for (int64_t distance = -64; distance <= 64; ++distance)
        for (int round = 0; round < 3; ++round) expect_agreement(random.between(1, 200), {0, distance, true});
}

TEST_P(Wide, equals_plain_in_place)
{
    for (int64_t width = 0; width <= 300; ++width) expect_agreement(width, {random.between(0, 63), 0, true});
}

TEST_P(Wide, touches_nothing_outside_the_extents)
{
    Arguments call;
    for (const Tier tier : tiers()) {
        highest_tier = tier;
        for (int round = 0; round < 40; ++round)
            if (random_call(random, routine, random.between(1, 300), &call)) expect_within_extents(routine, call);
    }
}

INSTANTIATE_TEST_SUITE_P(Routines, Wide, testing::ValuesIn(routines_of_pictures()),
                         [](const auto& routine) { return std::string{routine.param->name}; });

// The program's own routines are called, not those of the library beside it.
TEST(WideHarness, holds_the_tier_of_the_routines_that_it_calls)
{
    highest_tier = Tier::plain;
    EXPECT_EQ(tier(), Tier::plain);
    highest_tier = Tier::vbmi;
    EXPECT_EQ(tier(), tier_of_machine());
}

}  // namespace
}  // namespace tintvert::test
