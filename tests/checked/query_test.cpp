// A query reports the extents of the catalogue and calls nothing, and a good call takes nothing from the heap.
#include <gtest/gtest.h>

#include "../imports/heap.h"
#include "checked_call.h"

namespace tintvert::test {
namespace {

using catalog::Arg;

TEST(CheckedQuery, reports_the_extents_and_touches_nothing)
{
    for (const catalog::Routine& routine : catalog::routines()) {
        Random random(41);
        for (int round = 0; round < 100; ++round) {
            const catalog::Arguments numbers = random_call(random, routine);
            CallMemory memory(random, routine, numbers, margin);
            const CallMemory before = memory;
            for (const auto call : {call_checked, call_checked_in_c}) {
                checked::Extents reported;
                ASSERT_TRUE(call(routine, numbers, exact_buffers(memory), {.query = &reported}).error.ok());
                ASSERT_TRUE(memory == before);
                const catalog::Extents extents = routine.extents(numbers);
                ASSERT_EQ(reported.end() - reported.begin(), extents.end() - extents.begin());
                for (ptrdiff_t i = 0; i < reported.end() - reported.begin(); ++i) {
                    const catalog::Touch& one = extents.begin()[i];
                    const checked::Touch& other = reported.begin()[i];
                    ASSERT_EQ(other.buffer, describe(one.buffer).name);
                    ASSERT_EQ(other.read, (checked::Range{one.read.begin, one.read.end}));
                    ASSERT_EQ(other.written, (checked::Range{one.written.begin, one.written.end}));
                }
            }
        }
    }
}

TEST(CheckedQuery, needs_no_buffers)
{
    checked::Extents needs;
    ASSERT_TRUE(checked::tntvt_2vuy_v210({}, {}, 1280, 720, 0, {.query = &needs}).ok());
    EXPECT_EQ(needs.begin()[0].written.to, 719 * 3456 + 3424);
}

// The routines that have a record or a scratch line of their own obtain no more than that.
TEST(CheckedHeap, gives_nothing_to_a_good_call)
{
    if (!heap_is_watched()) GTEST_SKIP() << "the sanitizers have a heap of their own";
    size_t of_their_own = 0;
    for (const catalog::Routine& routine : catalog::routines()) {
        if (routine.chapter == "frame") continue;
        Random random(42);
        for (int round = 0; round < 100; ++round) {
            catalog::Arguments numbers = random_call(random, routine);
            CallMemory memory(random, routine, numbers, margin);
            const std::vector<Given> given = exact_buffers(memory);
            const size_t checked = heap_calls_of([&] { (void)call_checked(routine, numbers, given); }).size();
            const size_t in_c = heap_calls_of([&] { (void)call_checked_in_c(routine, numbers, given); }).size();
            memory.point(numbers);
            const size_t bare = heap_calls_of([&] { routine.call(numbers); }).size();
            ASSERT_EQ(checked, bare) << text_of(routine, numbers);
            ASSERT_EQ(in_c, bare) << text_of(routine, numbers);
            of_their_own += bare;
        }
    }
    EXPECT_GT(of_their_own, 0u);
}

}  // namespace
}  // namespace tintvert::test
