// What the catalogue promises for `dst` equal to `src` holds over random numbers, and what it does not promise
// goes wrong somewhere.
#include "in_place.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "catalog.h"
#include "refusals.h"
#include "support/random_call.h"

namespace tintvert::test {
namespace {

using catalog::Arg;

constexpr int rounds = 3000;
constexpr int64_t margin = 64;

catalog::Range hull(catalog::Range one, catalog::Range other)
{
    return {std::min(one.begin, other.begin), std::max(one.end, other.end)};
}

struct Comparison {
    bool writes, equal;
};

// The same bytes as two frames, and as one. What is compared is the frame written, with all around it.
Comparison compare(Random& random, const catalog::Routine& routine, catalog::Arguments call)
{
    const catalog::Extents two = routine.extents(call);
    call[Arg::src] = call[Arg::dst];
    const catalog::Extents one = routine.extents(call);
    catalog::Range range = hull(accessed_in(two, Arg::dst), accessed_in(two, Arg::src));
    range = hull(range, hull(accessed_in(one, Arg::dst), accessed_in(one, Arg::src)));
    CallBuffer dst(random, {range.begin - margin, range.end + margin}), src = dst, both = dst;
    call[Arg::dst] = dst.address();
    call[Arg::src] = src.address();
    routine.call(call);
    call[Arg::dst] = call[Arg::src] = both.address();
    routine.call(call);
    bool writes = false;
    for (const catalog::Touch& touch : two) writes |= !touch.written.empty();
    return {writes, dst.bytes() == both.bytes()};
}

struct Count {
    int promised = 0, unpromised = 0, differing = 0;
};

Count count(const catalog::Routine& routine)
{
    Random random(1234);
    Count result;
    for (int round = 0; round < rounds; ++round) {
        const catalog::Arguments call = random_call(random, routine);
        catalog::Arguments one = call;
        one[Arg::src] = one[Arg::dst];
        if (!catalog::refusal(routine, one).empty()) continue;
        const Comparison compared = compare(random, routine, call);
        if (!compared.writes) continue;
        if (!catalog::promised_in_place(routine, call)) {
            ++result.unpromised;
            result.differing += compared.equal ? 0 : 1;
            continue;
        }
        ++result.promised;
        std::string numbers;
        for (const Arg argument : routine.arguments)
            numbers += ' ' + std::string{describe(argument).name} + '=' + std::to_string(call[argument]);
        EXPECT_TRUE(compared.equal) << routine.name << numbers;
    }
    return result;
}

TEST(InPlace, is_as_apart_where_promised_and_only_there)
{
    for (const catalog::Routine& routine : catalog::routines()) {
        const catalog::InPlace kind = in_place(routine);
        if (kind != catalog::InPlace::as_apart && kind != catalog::InPlace::fails) continue;
        const Count counted = count(routine);
        if (kind == catalog::InPlace::as_apart) {
            EXPECT_GT(counted.promised, 100) << routine.name;
        } else {
            EXPECT_EQ(counted.promised, 0) << routine.name;
            EXPECT_GT(counted.unpromised, 100) << routine.name;
        }
        if (counted.unpromised > 0) {
            EXPECT_GT(counted.differing, 0) << routine.name;
        }
    }
}

// What a routine does in a way of its own differs from two frames somewhere.
TEST(InPlace, in_its_way_is_another_way)
{
    for (const catalog::Routine& routine : catalog::routines()) {
        if (in_place(routine) != catalog::InPlace::in_its_way) continue;
        Random random(4321);
        int differing = 0;
        for (int round = 0; round < rounds; ++round) {
            const catalog::Arguments call = random_call(random, routine);
            catalog::Arguments one = call;
            one[Arg::src] = one[Arg::dst];
            if (!catalog::refusal(routine, one).empty() || !promised_in_place(routine, call)) continue;
            differing += compare(random, routine, call).equal ? 0 : 1;
        }
        EXPECT_GT(differing, 0) << routine.name;
    }
}

TEST(InPlace, is_untold_without_two_frames)
{
    for (const catalog::Routine& routine : catalog::routines())
        if (!takes(routine, Arg::dst) || !takes(routine, Arg::src)) {
            EXPECT_EQ(in_place(routine), catalog::InPlace::unspecified) << routine.name;
        }
}

}  // namespace
}  // namespace tintvert::test
