// Buffers that share bytes are refused unless the routine promises that or the caller allows it.
#include <gtest/gtest.h>

#include "checked_call.h"
#include "extents.h"
#include "in_place.h"

namespace tintvert::test {
namespace {

using catalog::Arg;

constexpr int rounds = 200;

// Two buffers of a call in one memory: the second begins `shared` bytes below the end of what the first writes.
struct Pair {
    CallMemory& call;
    size_t one, other;
    int64_t shared;
    std::vector<uint8_t> memory;

    Pair(CallMemory& of, size_t i, size_t j, int64_t bytes) : call(of), one(i), other(j), shared(bytes)
    {
        const catalog::Range second = call.places()[other].accessed;
        memory.resize(static_cast<size_t>(all().end - all().begin + second.end - second.begin));
    }

    catalog::Range all() const { return call.places()[one].accessed; }
    // The same pointer is a frame in place, of which one buffer has to contain all.
    bool in_place()
    {
        const std::vector<Given> buffers = given();
        return buffers[one].buffer.pointer() == buffers[other].buffer.pointer();
    }
    std::vector<Given> given()
    {
        std::vector<Given> result = exact_buffers(call);
        uint8_t* const first = memory.data() - all().begin;
        const catalog::Range second = call.places()[other].accessed;
        uint8_t* const begin = first + call.places()[one].written.end - shared;
        result[one].buffer = exactly(first, all());
        result[other].buffer = exactly(begin - second.begin, second);
        return result;
    }
};

TEST(CheckedOverlap, of_one_byte_is_refused_and_of_none_is_not)
{
    int pairs = 0;
    for (const catalog::Routine& routine : catalog::routines()) {
        if (routine.chapter == "frame") continue;
        Random random(21);
        for (int round = 0; round < rounds; ++round) {
            const catalog::Arguments numbers = random_call(random, routine);
            CallMemory memory(random, routine, numbers, margin);
            for (size_t i = 0; i < memory.places().size(); ++i)
                for (size_t j = 0; j < memory.places().size(); ++j) {
                    const CallMemory::Place &one = memory.places()[i], &other = memory.places()[j];
                    if (i == j || one.written.empty() || other.accessed.empty()) continue;
                    if (one.written.end != one.accessed.end) continue;
                    if (takes(routine, Arg::palette) && other.argument == Arg::src) continue;
                    Pair touching(memory, i, j, 0), sharing(memory, i, j, 1);
                    if (sharing.in_place()) continue;
                    const std::vector<uint8_t> before = sharing.memory;
                    const checked::Status error = call_checked(routine, numbers, sharing.given()).error;
                    ASSERT_EQ(error.code, checked::Code::overlap) << text_of(routine, numbers);
                    ASSERT_EQ(sharing.memory, before);
                    ASSERT_EQ(error.where.to - error.where.from, 1) << error.message();
                    if (!touching.in_place()) {
                        EXPECT_TRUE(call_checked(routine, numbers, touching.given()).error.ok())
                            << text_of(routine, numbers);
                    }
                    EXPECT_TRUE(call_checked(routine, numbers, sharing.given(), {.allow_overlap = true}).error.ok());
                    ++pairs;
                }
        }
    }
    EXPECT_GT(pairs, 10000);
}

// Whether what is written is read too, both frames at one address.
bool shares_bytes(const catalog::Extents& extents)
{
    catalog::Range read, written;
    for (const catalog::Touch& touch : extents) {
        read = catalog::extents::join(read, touch.read);
        written = catalog::extents::join(written, touch.written);
    }
    return std::max(read.begin, written.begin) < std::min(read.end, written.end);
}

TEST(CheckedOverlap, in_place_is_refused_where_nothing_is_promised)
{
    int refused = 0;
    for (const catalog::Routine& routine : catalog::routines()) {
        if (!takes(routine, Arg::dst) || !takes(routine, Arg::src) || takes(routine, Arg::palette)) continue;
        Random random(22);
        for (int round = 0; round < rounds; ++round) {
            const catalog::Arguments numbers = random_call(random, routine);
            const catalog::Extents extents = routine.extents(numbers);
            if (extents.end() - extents.begin() != 2 || promised_in_place(routine, numbers)) continue;
            std::vector<uint8_t> memory(100000), before = memory;
            const checked::Buffer both = checked::Buffer(memory).at(50000);
            const std::vector<Given> given = {{Arg::dst, both}, {Arg::src, both}};
            const checked::Status error = call_checked(routine, numbers, given).error;
            if (error.code == checked::Code::refused) continue;  // in place alone
            catalog::Arguments one_frame = numbers;
            one_frame[Arg::src] = one_frame[Arg::dst];
            const bool apart = !shares_bytes(routine.extents(one_frame));
            ASSERT_EQ(error.code, apart ? checked::Code::ok : checked::Code::overlap) << text_of(routine, numbers);
            if (apart) continue;
            ASSERT_EQ(memory, before);
            ++refused;
        }
    }
    EXPECT_GT(refused, 3000);
}

TEST(CheckedOverlap, message_names_both)
{
    uint8_t bytes[24] = {};
    EXPECT_EQ(checked::tntvt_rgb24_rgba32({bytes, 12}, 12, {bytes + 2, 9}, 9, 3, 1).message(),
              "dst: shares bytes with src (bytes 2-10), which tntvt_rgb24_rgba32 does not support");
    EXPECT_TRUE(checked::tntvt_rgb24_rgba32({bytes, 12}, 12, {bytes + 12, 9}, 9, 3, 1).ok());
    EXPECT_TRUE(checked::tntvt_rgb24_rgba32({bytes, 12}, 12, {bytes + 2, 9}, 9, 3, 1, {.allow_overlap = true}).ok());
}

}  // namespace
}  // namespace tintvert::test
