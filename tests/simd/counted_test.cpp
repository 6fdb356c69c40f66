// The kernels really run: over wide pictures each makes units of every routine, but for the routines listed here.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>

#include "simd/agreement.h"

namespace tintvert::test {
namespace {

using namespace catalog;

// Scalar code at every level. The planar decoders run the kernels of libycbcr, which count nothing here.
constexpr std::string_view scalar_routines[] = {
    "_v210_get_next_4words",  "tntvt_2yuv_strip_chroma", "tntvt_4175_to_v210",     "tntvt_change_field_yuv",
    "tntvt_copy_interleaved", "tntvt_deinterlace_rgb",   "tntvt_fld_mix_to_sep32", "tntvt_fld_sep_to_mix32",
    "tntvt_flip_vert",        "tntvt_flip_vert_flags",   "tntvt_i420_rgb32",       "tntvt_rgba_to_alpha",
    "tntvt_yuv422_10_rgb32",  "tntvt_yuv422_8_rgb24",    "tntvt_yuv422_8_rgb32",   "tntvt_yv12_rgb32",
};

// Scalar code below AVX-512.
constexpr std::string_view avx512_routines[] = {"tntvt_rgba_setalpha", "tntvt_st2084_to_v210", "tntvt_v210_to_st2084",
                                                "tntvt_yuv2_to_st2084"};

bool has_kernel(const Routine& routine, InstructionSet level)
{
    if (std::ranges::count(scalar_routines, routine.name) != 0) return false;
    return level == InstructionSet::avx512 || std::ranges::count(avx512_routines, routine.name) == 0;
}

class Kernels : public testing::TestWithParam<const Routine*> {
protected:
    ~Kernels() override { highest_instruction_set = InstructionSet::avx512; }
};

TEST_P(Kernels, make_units_of_wide_pictures)
{
    const Routine& routine = *GetParam();
    for (const InstructionSet level : levels()) {
        if (level < InstructionSet::avx2) continue;
        Random random(17);
        simd_units = 0;
        int called = 0;
        for (int round = 0; round < 40; ++round) {
            Arguments call;
            if (!random_call(random, routine, 256 + random.between(0, 44), &call)) continue;
            ++called;
            EXPECT_TRUE(agrees(routine, call, {random.between(0, 63), random.between(0, 63)}, level, random.next()));
        }
        EXPECT_GT(called, 30);
        EXPECT_EQ(simd_units > 0, has_kernel(routine, level))
            << simd_units << " units, level " << static_cast<int>(level);
    }
}

INSTANTIATE_TEST_SUITE_P(Routines, Kernels, testing::ValuesIn(routines_of_pictures()),
                         [](const auto& routine) { return std::string{routine.param->name}; });

}  // namespace
}  // namespace tintvert::test
