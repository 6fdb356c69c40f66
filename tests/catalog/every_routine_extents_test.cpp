// Every routine touches exactly the bytes that its rule tells, over a thousand random calls each, two frames
// and one.
#include <gtest/gtest.h>

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

// Ascending and byte by byte, so that a fence in the buffer stops it there.
void lay_out(uint8_t* pointer, const uint8_t* stream, size_t bytes)
{
    volatile uint8_t* to = pointer;
    for (size_t i = 0; i < bytes; ++i) to[i] = stream[i];
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
            const auto bytes = call.as<size_t>(Arg::streamSize);
            const Fill fill = [=](Arg buffer, uint8_t* pointer, catalog::Range) {
                if (buffer == Arg::src) lay_out(pointer, stream, bytes);
            };
            expect_exact_extents(routine, call, takes(routine, Arg::palette) ? fill : Fill{},
                                 idle_bytes(routine, call));
        }
    }
}

}  // namespace
}  // namespace tintvert::test
