// Which functions of the companions a routine calls, over random calls with and without a copy that throws, is
// what the catalogue says.
#include <gtest/gtest.h>

#include <set>

#include "facts.h"
#include "recorder.h"
#include "support/random_call.h"

namespace tintvert::test {
namespace {

using catalog::Arg;

using Names = std::set<std::string>;

constexpr const char* classes[] = {"", "fccIsYCbCr8", "fccIsYCbCr10", "fccIsDPX", "fccIsRGB"};

// The extents of a call ask for the class of a FourCC too, so the log begins after them.
void call_once(Random& random, const catalog::Routine& routine, int round, Names& called)
{
    calls().fourcc_class = classes[round % 5];
    catalog::Arguments numbers = random_call(random, routine);
    CallMemory memory(random, routine, numbers, 64);
    memory.point(numbers);
    calls().log.clear();
    if (round % 2 == 1) calls().throw_at("CopyMemoryFast", 1);
    try {
        routine.call(numbers);
    } catch (const Thrown&) {
    }
    for (const std::string& line : calls().log) called.insert(line.substr(0, line.find('(')));
}

// In place, the flips go through a scratch line.
void call_in_place(Random& random, const catalog::Routine& routine, int round, Names& called)
{
    calls().log.clear();
    catalog::Arguments numbers = random_call(random, routine);
    numbers[Arg::height] = 4;
    numbers[Arg::width] = numbers[Arg::stride] = numbers[Arg::dstStride] = numbers[Arg::srcStride] = 16;
    CallBuffer frame(random, {0, 2048});
    numbers[Arg::dst] = numbers[Arg::src] = frame.address();
    if (round % 2 == 1) calls().throw_at("CopyMemoryFast", 1);
    try {
        routine.call(numbers);
    } catch (const Thrown&) {
    }
    for (const std::string& line : calls().log) called.insert(line.substr(0, line.find('(')));
}

TEST_F(Imports, companions_of_every_routine_are_those_of_the_catalogue)
{
    for (const catalog::Routine& routine : catalog::routines()) {
        if (routine.chapter == "frame") continue;
        Random random(81);
        Names called;
        for (int round = 0; round < 400; ++round) {
            calls() = {};
            call_once(random, routine, round, called);
            if (routine.chapter == "field" && takes(routine, Arg::src) && takes(routine, Arg::dst)) {
                calls() = {};
                call_in_place(random, routine, round, called);
            }
        }
        Names expected;
        for (const std::string_view name : companions_of(routine)) expected.emplace(name);
        EXPECT_EQ(called, expected) << routine.name;
    }
}

TEST_F(Imports, companions_of_the_open_call_and_the_scratch_pair)
{
    void *raw = nullptr, *aligned = nullptr;
    catalog::Arguments numbers;
    numbers[Arg::size] = 100;
    numbers[Arg::raw] = reinterpret_cast<int64_t>(&raw);
    numbers[Arg::aligned] = reinterpret_cast<int64_t>(&aligned);
    for (const char* name : {"malloc_own_cache_lines", "free_own_cache_lines"}) {
        const catalog::Routine& routine = *catalog::find(name);
        calls().log.clear();
        routine.call(numbers);
        ASSERT_EQ(calls().log.size(), 1u);
        ASSERT_EQ(companions_of(routine).size(), 1u);
        EXPECT_TRUE(calls().log[0].starts_with(companions_of(routine)[0]));
    }
    EXPECT_EQ(companions_of(*catalog::find("tnvtt_open")), std::vector<std::string_view>{"CPUFeatureFlags"});
}

}  // namespace
}  // namespace tintvert::test
