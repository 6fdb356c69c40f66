#include <gtest/gtest.h>
#include <tintvert/frame.h>

#include <climits>
#include <utility>

#include "recorder.h"

namespace tintvert::test {
namespace {

class Scratch : public Imports {
protected:
    alignas(32) unsigned char memory[64];
    void *raw = this, *aligned = this;
};

TEST_F(Scratch, asks_for_31_more_with_the_low_five_bits_set)
{
    calls().allocate = [this](unsigned int) { return memory; };
    for (const auto& [size, request] :
         {std::pair{0, 31u}, {1, 63u}, {31, 63u}, {32, 63u}, {33, 95u}, {64, 95u}, {65, 127u}, {1920, 1951u}}) {
        malloc_own_cache_lines(size, &raw, &aligned);
        EXPECT_EQ(calls().log.back(), "ZKAlloc(" + std::to_string(request) + ')') << size;
    }
}

// A sum below 0 has 31 more added before its low five bits are set.
TEST_F(Scratch, asks_for_a_wrapped_number_when_the_sum_is_negative)
{
    calls().allocate = [this](unsigned int) { return memory; };
    for (const auto& [size, request] : {std::pair{-1, 31u},
                                        {-31, 31u},
                                        {-32, 31u},
                                        {-62, 31u},
                                        {-63, 0xFFFFFFFFu},
                                        {-100, 0xFFFFFFDFu},
                                        {INT_MAX, 0x8000003Fu},
                                        {INT_MIN, 0x8000003Fu}}) {
        malloc_own_cache_lines(size, &raw, &aligned);
        EXPECT_EQ(calls().log.back(), "ZKAlloc(" + std::to_string(request) + ')') << size;
    }
}

TEST_F(Scratch, aligns_to_the_next_multiple_of_32)
{
    for (int above = 0; above < 32; ++above) {
        calls().allocate = [this, above](unsigned int) { return memory + above; };
        malloc_own_cache_lines(1, &raw, &aligned);
        EXPECT_EQ(raw, memory + above);
        EXPECT_EQ(aligned, above == 0 ? memory : memory + 32) << above;
    }
}

TEST_F(Scratch, stores_null_twice_when_there_is_no_memory)
{
    calls().allocate = [](unsigned int) { return nullptr; };
    malloc_own_cache_lines(100, &raw, &aligned);
    EXPECT_EQ(raw, nullptr);
    EXPECT_EQ(aligned, nullptr);
}

TEST_F(Scratch, releases_the_raw_pointer_and_clears_both)
{
    calls().name("memory", memory, sizeof memory);
    raw = memory + 1;
    aligned = memory + 32;
    free_own_cache_lines(&raw, &aligned);
    EXPECT_EQ(calls().log, Log{"ZKFree(memory+1)"});
    EXPECT_EQ(raw, nullptr);
    EXPECT_EQ(aligned, nullptr);
    free_own_cache_lines(&raw, &aligned);
    EXPECT_EQ(calls().log, Log{"ZKFree(memory+1)"});
}

TEST_F(Scratch, calls_nothing_on_a_null_raw_pointer)
{
    raw = nullptr;
    free_own_cache_lines(&raw, &aligned);
    EXPECT_EQ(calls().log, Log{});
    EXPECT_EQ(raw, nullptr);
    EXPECT_EQ(aligned, nullptr);
}

TEST_F(Scratch, lets_exceptions_through)
{
    calls().throw_at("ZKAlloc", 1);
    EXPECT_THROW(malloc_own_cache_lines(1, &raw, &aligned), Thrown);
    raw = memory;
    calls().throw_at("ZKFree", 1);
    EXPECT_THROW(free_own_cache_lines(&raw, &aligned), Thrown);
}

// Both pointers are stored after the call that gives or takes the block.
TEST_F(Scratch, pointers_stay_where_a_call_throws)
{
    void *const old_raw = raw = memory + 1, *const old_aligned = aligned = memory + 32;
    for (const char* const import : {"ZKAlloc", "ZKFree"}) {
        calls().throw_at(import, 1);
        EXPECT_THROW((import == std::string{"ZKAlloc"} ? malloc_own_cache_lines(1, &raw, &aligned)
                                                       : free_own_cache_lines(&raw, &aligned)),
                     Thrown);
        EXPECT_EQ(raw, old_raw) << import;
        EXPECT_EQ(aligned, old_aligned) << import;
    }
}

TEST_F(Scratch, aligned_pointer_is_stored_last)
{
    calls().allocate = [this](unsigned int) { return memory + 1; };
    malloc_own_cache_lines(1, &raw, &raw);
    EXPECT_EQ(raw, memory + 32);
}

}  // namespace
}  // namespace tintvert::test
