// 64 first callers of every routine that fills tables, each with a frame of its own, beside the same calls one after
// the other.
#include <gtest/gtest.h>

#include <barrier>
#include <thread>
#include <vector>

#include "decode/tables.h"
#include "decode/v210_tables.h"
#include "geometry.h"
#include "support/call_memory.h"
#include "ycbcr8/scale_tables.h"

namespace tintvert::test {
namespace {

constexpr int threads = 64;

template <class Table>
void clear(Table& table)
{
    std::fill(std::begin(table), std::end(table), std::remove_reference_t<decltype(table[0])>{});
}

// Every table and its flag as they are at load.
void cool()
{
    for (uint8_t* table : {gsbScaleLumaDown, gsbScaleChromaDown, gsbScaleLumaUp, gsbScaleChromaUp})
        std::fill(table, table + 256, uint8_t{0});
    clear(Atab);
    clear(BEtab);
    clear(DCtab);
    clear(clip10to8);
    clear(v210_Atab);
    clear(v210_BEtab);
    clear(v210_DCtab);
    clear(v210_clip10to8);
    gsfScaleTablesReady = fTablesSet = 0;
    _v210_to_rgb_initted = 0;
}

bool any_is_filled() { return gsfScaleTablesReady != 0 || fTablesSet != 0 || _v210_to_rgb_initted != 0; }

// One call with buffers of its own. Entry 255 of a scale table passes through another value while a late builder
// writes it, so bytes in place stay below 128.
class Job {
public:
    Job(const catalog::Routine& routine, uint64_t seed)
        : routine_(&routine),
          call_(catalog::plain_call(routine, {98, 8, 1, "v210"})),
          random_(seed),
          memory_(random_, routine, call_)
    {
        for (CallMemory::Place& place : memory_.places())
            if (place.argument == catalog::Arg::buffer)
                for (int64_t i = place.accessed.begin; i < place.accessed.end; ++i) place.buffer.pointer()[i] &= 0x7F;
        memory_.point(call_);
    }
    void run() { result_ = routine_->call(call_); }

    bool operator==(const Job& other) const { return result_ == other.result_ && memory_ == other.memory_; }

private:
    const catalog::Routine* routine_;
    catalog::Arguments call_;
    Random random_;
    CallMemory memory_;
    int64_t result_ = 0;
};

// Those after whose call from cold a flag is up. 98 pixels leave some for the scalar version at every level.
std::vector<const catalog::Routine*> table_routines()
{
    std::vector<const catalog::Routine*> found;
    for (const catalog::Routine& routine : catalog::routines()) {
        if (routine.chapter != "ycbcr8" && routine.chapter != "decode") continue;
        cool();
        Job(routine, 1).run();
        if (any_is_filled()) found.push_back(&routine);
    }
    return found;
}

void run_at_once(std::vector<Job>& jobs)
{
    std::barrier start(static_cast<std::ptrdiff_t>(jobs.size()));
    std::vector<std::thread> callers;
    for (Job& job : jobs)
        callers.emplace_back([&job, &start] {
            start.arrive_and_wait();
            job.run();
        });
    for (std::thread& caller : callers) caller.join();
}

template <class RoutineOf>
void expect_equal_results(RoutineOf routine_of, uint64_t seed)
{
    std::vector<Job> together, alone;
    for (int t = 0; t < threads; ++t) {
        together.emplace_back(routine_of(t), seed + static_cast<uint64_t>(t));
        alone.emplace_back(routine_of(t), seed + static_cast<uint64_t>(t));
    }
    for (Job& job : alone) job.run();
    cool();
    run_at_once(together);
    for (int t = 0; t < threads; ++t)
        EXPECT_TRUE(together[static_cast<size_t>(t)] == alone[static_cast<size_t>(t)])
            << routine_of(t).name << ' ' << t;
}

TEST(Cold, a_routine_in_64_threads)
{
    const auto routines = table_routines();
    ASSERT_EQ(routines.size(), 8u);
    for (const catalog::Routine* routine : routines)
        for (uint64_t round = 0; round < 20; ++round)
            expect_equal_results([=](int) -> const catalog::Routine& { return *routine; }, round* threads);
}

TEST(Cold, all_routines_in_64_threads)
{
    const auto routines = table_routines();
    for (size_t round = 0; round < 20; ++round)
        expect_equal_results(
            [&](int t) -> const catalog::Routine& {
                return *routines[(round * 7 + static_cast<size_t>(t)) % routines.size()];
            },
            round* threads);
}

}  // namespace
}  // namespace tintvert::test
