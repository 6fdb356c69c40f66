// A query tells the extents of the catalogue and calls nothing, and a good call takes nothing from the heap.
#include <gtest/gtest.h>

#include "../imports/heap.h"
#include "checked_call.h"

namespace tintvert::test {
namespace {

using catalog::Arg;

TEST(CheckedQuery, tells_the_extents_and_touches_nothing)
{
    for (const catalog::Routine& routine : catalog::routines()) {
        Random random(41);
        for (int round = 0; round < 100; ++round) {
            const catalog::Arguments numbers = random_call(random, routine);
            Scene scene(random, routine, numbers);
            const Scene before = scene;
            for (const auto call : {call_checked, call_checked_in_c}) {
                checked::Extents told;
                ASSERT_TRUE(call(routine, numbers, scene.given(), {.query = &told}).error.ok());
                ASSERT_TRUE(scene.same_bytes(before));
                const catalog::Extents extents = routine.extents(numbers);
                ASSERT_EQ(told.end() - told.begin(), extents.end() - extents.begin());
                for (ptrdiff_t i = 0; i < told.end() - told.begin(); ++i) {
                    const catalog::Touch& one = extents.begin()[i];
                    const checked::Touch& other = told.begin()[i];
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
            Scene scene(random, routine, numbers);
            const std::vector<Given> given = scene.given();
            const size_t checked = heap_calls_of([&] { (void)call_checked(routine, numbers, given); }).size();
            const size_t in_c = heap_calls_of([&] { (void)call_checked_in_c(routine, numbers, given); }).size();
            scene.point(numbers);
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
