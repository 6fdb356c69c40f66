// A checked call does what the bare routine does, over random numbers, with memory of just the bytes touched.
#include <gtest/gtest.h>

#include <tintvert.h>
#include "checked_call.h"
#include "in_place.h"
#include "refusals.h"

namespace tintvert::test {
namespace {

using catalog::Arg;

constexpr int rounds = 300;

using Checked = Answer (*)(const catalog::Routine&, const catalog::Arguments&, const std::vector<Given>&,
                           const checked::Options&);

void expect_equal(Checked call, uint64_t seed)
{
    for (const catalog::Routine& routine : catalog::routines()) {
        if (routine.chapter == "frame") continue;
        Random random(seed);
        for (int round = 0; round < rounds; ++round) {
            catalog::Arguments numbers = random_call(random, routine);
            CallMemory memory(random, routine, numbers, margin), bare = memory;
            const Answer answer = call(routine, numbers, exact_buffers(memory), {});
            ASSERT_TRUE(answer.error.ok()) << text_of(routine, numbers) << '\n' << answer.error.message();
            bare.point(numbers);
            const int64_t value = routine.call(numbers);
            ASSERT_TRUE(memory == bare) << text_of(routine, numbers);
            if (!routine.result.ends_with('*') || memory.places().empty())
                ASSERT_EQ(answer.value, value) << text_of(routine, numbers);
            else
                ASSERT_NE(answer.value, 0) << text_of(routine, numbers);
        }
    }
}

TEST(CheckedCall, equals_the_bare_routine) { expect_equal(call_checked, 1); }

TEST(CheckedCall, equals_the_bare_routine_in_c) { expect_equal(call_checked_in_c, 2); }

// One frame on both sides, where the routine promises something for it.
TEST(CheckedCall, equals_the_bare_routine_in_place)
{
    for (const catalog::Routine& routine : catalog::routines()) {
        if (!takes(routine, Arg::dst) || !takes(routine, Arg::src)) continue;
        Random random(3);
        int called = 0;
        for (int round = 0; round < rounds; ++round) {
            catalog::Arguments numbers = random_call(random, routine);
            numbers[Arg::src] = numbers[Arg::dst];
            if (!catalog::refusal(routine, numbers).empty() || !promised_in_place(routine, numbers)) continue;
            const catalog::Extents extents = routine.extents(numbers);
            const catalog::Range dst = accessed_in(extents, Arg::dst), src = accessed_in(extents, Arg::src);
            const catalog::Range range = {std::min(dst.begin, src.begin), std::max(dst.end, src.end) + 1};
            CallBuffer one(random, range), other = one;
            const checked::Buffer buffer = exactly(one.pointer(), range);
            const Answer answer = call_checked(routine, numbers, {{Arg::dst, buffer}, {Arg::src, buffer}});
            ASSERT_TRUE(answer.error.ok()) << text_of(routine, numbers) << '\n' << answer.error.message();
            numbers[Arg::dst] = numbers[Arg::src] = other.address();
            ASSERT_EQ(answer.value, routine.call(numbers));
            ASSERT_EQ(one.bytes(), other.bytes()) << text_of(routine, numbers);
            ++called;
        }
        const bool expected =
            in_place(routine) == catalog::InPlace::as_apart || in_place(routine) == catalog::InPlace::in_its_way;
        EXPECT_EQ(called > 20, expected) << routine.name;
    }
}

TEST(CheckedCall, obtains_and_releases_scratch_memory)
{
    void *raw = nullptr, *aligned = nullptr;
    const checked::Buffer raw_buffer(&raw, sizeof raw), aligned_buffer(&aligned, sizeof aligned);
    ASSERT_TRUE(checked::malloc_own_cache_lines(100, raw_buffer, aligned_buffer).ok());
    EXPECT_NE(raw, nullptr);
    EXPECT_EQ(reinterpret_cast<uintptr_t>(aligned) % 32, 0u);
    ASSERT_TRUE(checked::free_own_cache_lines(raw_buffer, aligned_buffer).ok());
    EXPECT_EQ(raw, nullptr);
    EXPECT_EQ(checked::malloc_own_cache_lines(100, raw_buffer, checked::Buffer(&aligned, 7)).message(),
              "aligned: 7 bytes, needs 8 (bytes 0-7)");
    EXPECT_EQ(raw, nullptr);
}

TEST(CheckedCall, returns_what_the_routine_returns)
{
    EXPECT_EQ(checked::tnvtt_open(1, 2, 3, 4).value, 0);
    EXPECT_EQ(checked::get_ardwRGB_to_SMPTE2048_8Bit().value, get_ardwRGB_to_SMPTE2048_8Bit());
    uint32_t group[4] = {0x3FF, 0, 0, 0};
    v210FourWords out = {};
    const auto split = checked::_v210_get_next_4words(group, {&out, sizeof out});
    EXPECT_EQ(split.value, group + 4);
    EXPECT_EQ(out.Cb0, 0x3FF);
    EXPECT_EQ(checked::tntvt_deinterlace_yuv({}, {}, 0, 0, 0, 0, 0, 0, 0).value, -1);
}

}  // namespace
}  // namespace tintvert::test
