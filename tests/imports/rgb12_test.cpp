// The one record that a packer of 12 bits takes and gives back.
#include <gtest/gtest.h>
#include <tintvert/rgb.h>

#include <csignal>
#include <vector>

#include "heap.h"

namespace tintvert::test {
namespace {

using Routine = void (*)(void*, long, void*, long, long, long);

class Rgb12Heap : public testing::Test {
protected:
    void SetUp() override
    {
        if (!heap_is_watched()) GTEST_SKIP() << "the sanitizers have a heap of their own";
    }

    std::vector<HeapCall> calls_of(Routine routine, long width, long height)
    {
        return heap_calls_of([&] { routine(dst.data(), 30, src.data(), 48, width, height); });
    }

    std::vector<uint8_t> dst = std::vector<uint8_t>(512), src = std::vector<uint8_t>(512);
};

TEST_F(Rgb12Heap, packers_take_one_record_a_call)
{
    for (const Routine routine : {tntvt_rgb48_12_rgb12, tntvt_rgb48_rgb12})
        for (const auto& [width, height] :
             {std::pair{1l, 1l}, {5l, 1l}, {5l, 7l}, {5l, -7l}, {5l, 0l}, {0l, 7l}, {-1l, 7l}, {-1l, 0l}}) {
            const std::vector<HeapCall> calls = calls_of(routine, width, height);
            ASSERT_EQ(calls.size(), 2u) << width << " x " << height;
            EXPECT_TRUE(calls[0].is_malloc);
            EXPECT_GE(calls[0].bytes, 3 * sizeof(void*) + 4);
            EXPECT_FALSE(calls[1].is_malloc);
            EXPECT_EQ(calls[1].block, calls[0].block);
        }
}

TEST_F(Rgb12Heap, the_others_take_nothing)
{
    for (const Routine routine :
         {tntvt_rgb12_bgr48, tntvt_rgb12_rgb48, tntvt_rgb12_rgba32, tntvt_rgb48_12_rgba32, tntvt_rgb12_rgb48_sse4})
        EXPECT_TRUE(calls_of(routine, 3, 3).empty());
}

TEST_F(Rgb12Heap, packers_store_through_null_without_memory)
{
    for (const Routine routine : {tntvt_rgb48_12_rgb12, tntvt_rgb48_rgb12})
        EXPECT_EXIT(without_memory([&] { routine(dst.data(), 30, src.data(), 48, 1, 1); }),
                    testing::KilledBySignal(SIGSEGV), "");
}

}  // namespace
}  // namespace tintvert::test
