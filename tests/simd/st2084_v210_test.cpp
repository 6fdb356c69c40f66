// The 10-bit lookups of ST 2084 at every level, beside the scalar version: every index in every place, and entries that
// a program has changed.
#include <gtest/gtest.h>
#include <tintvert.h>

#include <algorithm>
#include <cstring>
#include <utility>
#include <vector>

#include "simd/simd.h"

namespace tintvert::test {
namespace {

using Bytes = std::vector<uint8_t>;

constexpr unsigned line_bytes = 1024 * 8 + 48;  // whole steps and three groups more

class St2084V210 : public testing::Test {
protected:
    ~St2084V210() override { highest_instruction_set = InstructionSet::avx512; }

    // Index n in each of the three places of words 2n and 2n + 1, from another one on in each.
    static Bytes every_index()
    {
        Bytes src(line_bytes + 1);
        for (uint32_t n = 0; n < line_bytes / 8; ++n) {
            const auto index = [n](uint32_t from) { return (n + from) & 0x3FF; };
            const uint32_t words[] = {index(0) << 12 | 0xC0000FFF, index(512) << 22 | index(100) << 2 | 0x000A5801};
            std::memcpy(&src[1 + 8 * n], words, 8);
        }
        return src;
    }

    static void expect_agreement()
    {
        Bytes src = every_index();
        for (const auto convert : {tntvt_v210_to_st2084, tntvt_st2084_to_v210}) {
            highest_instruction_set = InstructionSet::scalar;
            Bytes expected(src.size(), 0xA5);
            convert(expected.data(), src.data(), line_bytes, line_bytes, 1);
            for (const InstructionSet level : {InstructionSet::sse2, InstructionSet::avx2, InstructionSet::avx512}) {
                highest_instruction_set = level;
                Bytes actual(src.size(), 0xA5), in_place = src;
                convert(actual.data(), src.data(), line_bytes, line_bytes, 1);
                convert(in_place.data(), in_place.data(), line_bytes, line_bytes, 1);
                EXPECT_TRUE(actual == expected) << static_cast<int>(level);
                EXPECT_TRUE(std::equal(in_place.begin() + 1, in_place.end(), expected.begin() + 1))
                    << static_cast<int>(level);
            }
        }
    }
};

TEST_F(St2084V210, every_index) { expect_agreement(); }

// One entry at a time, each in what the one table and the other can reach.
TEST_F(St2084V210, entries_that_a_program_has_changed)
{
    uint32_t* const table = get_ardwSMPTE2048_to_RGB_8Bit();
    for (const int at : {0, 127, 128, 300, 767})
        for (const uint32_t entry : {0x3FFu, 0x400u, 0xFFFFu, 0x10000u, 0xFFFFFFFFu}) {
            SCOPED_TRACE(testing::Message() << "entry " << at << " is " << entry);
            const uint32_t held = std::exchange(table[at], entry);
            expect_agreement();
            table[at] = held;
        }
}

}  // namespace
}  // namespace tintvert::test
