// The one record that a payload routine takes and gives back, whatever the work.
#include <gtest/gtest.h>
#include <tintvert/ycbcr10.h>

#include <csignal>
#include <vector>

#include "heap.h"
#include "recorder.h"

namespace tintvert::test {
namespace {

class Rfc4175Heap : public Imports {
protected:
    using Call = std::function<void()>;

    void SetUp() override
    {
        Imports::SetUp();
        if (!heap_is_watched()) GTEST_SKIP() << "the sanitizers have a heap of their own";
    }

    Call payload(long count, long phase)
    {
        return [=, this] { tntvt_4175_to_v210(dst.data(), src.data(), 100, count, phase); };
    }
    Call packed(unsigned width, unsigned height)
    {
        return [=, this] { tntvt_YCbCr10Packed_to_v210(dst.data(), src.data(), width, height); };
    }
    Call packet(unsigned width, unsigned height)
    {
        return [=, this] {
            tntvt_v210_frame_to_rtp_4175(dst.data(), 0, &seq, 0, 0, 0, nullptr, width, height, &outA, &outB);
        };
    }
    std::vector<Call> all()
    {
        return {payload(3, 0), payload(0, 0), payload(-1, 2), payload(20, 4), packed(6, 2), packed(6, 0),
                packed(0, 2),  packed(96, 4), packet(2, 1),   packet(96, 4),  packet(0, 2), packet(2, 0)};
    }

    std::vector<uint8_t> dst = std::vector<uint8_t>(4096), src = std::vector<uint8_t>(4096);
    unsigned short seq = 0;
    unsigned outA = 0, outB = 0;
};

TEST_F(Rfc4175Heap, takes_one_record_a_call_and_nothing_from_the_companions)
{
    for (const Call& call : all()) {
        const std::vector<HeapCall> heap = heap_calls_of(call);
        ASSERT_EQ(heap.size(), 2u);
        EXPECT_TRUE(heap[0].is_malloc);
        EXPECT_GE(heap[0].bytes, 3 * sizeof(void*) + 4);
        EXPECT_FALSE(heap[1].is_malloc);
        EXPECT_EQ(heap[1].block, heap[0].block);
    }
    EXPECT_EQ(calls().log, Log{});
}

TEST_F(Rfc4175Heap, stores_through_null_without_memory)
{
    for (const Call& call : {payload(1, 0), payload(0, 4), packed(1, 1), packet(2, 1)})
        EXPECT_EXIT(without_memory(call), testing::KilledBySignal(SIGSEGV), "");
}

}  // namespace
}  // namespace tintvert::test
