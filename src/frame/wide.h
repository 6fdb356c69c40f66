// When a wide form may stand in for the plain one.
#pragma once

#include <cstdint>

#define TNTVT_AVX2 __attribute__((target("avx2"))) inline

namespace tintvert {

// One question per call, no state of ours.
inline bool has_avx2() { return TINTVERT_WIDE && __builtin_cpu_supports("avx2"); }

// Where two runs of bytes share none, the order of loads and stores cannot show.
inline bool disjoint(const uint8_t* one, long one_bytes, const uint8_t* other, long other_bytes)
{
    const auto a_begin = reinterpret_cast<uintptr_t>(one), b_begin = reinterpret_cast<uintptr_t>(other);
    return a_begin + static_cast<uintptr_t>(one_bytes) <= b_begin ||
           b_begin + static_cast<uintptr_t>(other_bytes) <= a_begin;
}

}  // namespace tintvert
