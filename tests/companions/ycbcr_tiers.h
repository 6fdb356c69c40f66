// The tiers of libycbcr that this machine has beside the plain one.
#pragma once

#include <gtest/gtest.h>

#include <vector>

#include "ycbcr/lines.h"

namespace tintvert::test {

inline const char* name_of(ycbcr::Tier tier)
{
    return tier == ycbcr::Tier::vbmi ? "vbmi" : tier == ycbcr::Tier::avx2 ? "avx2" : "plain";
}

inline std::vector<ycbcr::Tier> wide_tiers()
{
    std::vector<ycbcr::Tier> tiers;
    for (const ycbcr::Tier tier : {ycbcr::Tier::avx2, ycbcr::Tier::vbmi})
        if (ycbcr::machine_has(tier)) tiers.push_back(tier);
    return tiers;
}

class CycbcrTiers : public testing::Test {
protected:
    void SetUp() override
    {
        if (tiers.empty()) GTEST_SKIP() << "no wide form runs on this machine";
    }
    const std::vector<ycbcr::Tier> tiers = wide_tiers();
};
using CycbcrTiersExhaustive = CycbcrTiers;

inline ycbcr::Planar planar(const uint8_t* y, const uint8_t* cb, const uint8_t* cr, int width)
{
    return {y, cb, cr, width / 2};
}

}  // namespace tintvert::test
