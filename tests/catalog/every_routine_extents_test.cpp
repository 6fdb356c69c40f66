// Every routine accesses exactly the bytes of its rule, over a thousand random calls each, two frames and one.
#include <gtest/gtest.h>

#include <algorithm>

#include "catalog.h"
#include "in_place.h"
#include "refusals.h"
#include "support/fence.h"
#include "support/random_call.h"

namespace tintvert::test {
namespace {

using catalog::Arg;

constexpr int rounds = 1000;

// Shifts by 8 and by 0 use one byte of a 16-bit channel, and the other may stay unread at the outermost one. No bit
// of the lowest eight of an `rgb10` word goes into 16 bits a channel.
int64_t idle_bytes(const catalog::Routine& routine, const catalog::Arguments& call)
{
    if (routine.from->name == "rgb10") return routine.to->name != "rgba32" ? 1 : 0;
    const uint32_t shift = (call.as<uint32_t>(Arg::bits) - 8) & 31;
    return takes(routine, Arg::bits) && (shift == 8 || shift == 0) ? 1 : 0;
}

TEST(ExtentsExhaustive, of_every_routine)
{
    for (const catalog::Routine& routine : catalog::routines()) {
        Random random(101);
        for (int round = 0; round < rounds && !testing::Test::HasFailure(); ++round) {
            catalog::Arguments call = random_call(random, routine);
            if (round % 4 == 0 && in_place(routine) == catalog::InPlace::in_its_way) {
                call[Arg::src] = call[Arg::dst];
                if (!catalog::refusal(routine, call).empty()) continue;
            }
            const auto* const stream = call.as<const uint8_t*>(Arg::src);
            const auto bytes = call.as<int64_t>(Arg::streamSize);
            const Fill fill = [=](Arg buffer, uint8_t* pointer, catalog::Range hull) {
                if (buffer == Arg::buf) fill_with_errors(pointer, hull);
                if (buffer == Arg::src) std::copy_n(stream, std::min(bytes, hull.end), pointer);
            };
            expect_exact_extents(routine, call,
                                 takes(routine, Arg::palette) || takes(routine, Arg::buf) ? fill : Fill{},
                                 idle_bytes(routine, call));
        }
    }
}

}  // namespace
}  // namespace tintvert::test
