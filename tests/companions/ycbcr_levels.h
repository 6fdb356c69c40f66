// The instruction sets beside scalar code that libycbcr has kernels for and this machine has.
#pragma once

#include <gtest/gtest.h>

#include <vector>

#include "ycbcr/lines.h"

namespace tintvert::test {

inline const char* name_of(ycbcr::InstructionSet level)
{
    return level == ycbcr::InstructionSet::avx512 ? "avx512" : level == ycbcr::InstructionSet::avx2 ? "avx2" : "scalar";
}

inline std::vector<ycbcr::InstructionSet> simd_levels()
{
    std::vector<ycbcr::InstructionSet> levels;
    for (const ycbcr::InstructionSet level : {ycbcr::InstructionSet::avx2, ycbcr::InstructionSet::avx512})
        if (level <= machine_instruction_set()) levels.push_back(level);
    return levels;
}

class CycbcrLevels : public testing::Test {
protected:
    void SetUp() override
    {
        if (levels.empty()) GTEST_SKIP() << "no SIMD version runs on this machine";
    }
    const std::vector<ycbcr::InstructionSet> levels = simd_levels();
};
using CycbcrLevelsExhaustive = CycbcrLevels;

inline ycbcr::Planar planar(const uint8_t* y, const uint8_t* cb, const uint8_t* cr, int width)
{
    return {y, cb, cr, width / 2};
}

}  // namespace tintvert::test
