// How wide a routine may go, and when a wide form may stand in for the plain one.
#pragma once

#include <algorithm>
#include <cstdint>

#define TNTVT_AVX2 __attribute__((target("avx2")))
#define TNTVT_VBMI __attribute__((target("avx512f,avx512bw,avx512vl,avx512dq,avx512vbmi")))

namespace tintvert {

// `plain` is the definition; `base` is what every processor of the architecture has.
enum class Tier { plain, base, avx2, vbmi };

inline Tier tier_of_machine()
{
#if !TINTVERT_WIDE
    return Tier::plain;
#elif defined(__x86_64__)
    if (__builtin_cpu_supports("avx512vbmi") && __builtin_cpu_supports("avx512bw") &&
        __builtin_cpu_supports("avx512vl") && __builtin_cpu_supports("avx512dq"))
        return Tier::vbmi;
    return __builtin_cpu_supports("avx2") ? Tier::avx2 : Tier::base;
#else
    return Tier::base;
#endif
}

// Tests and benchmarks of the forms hold a tier of their own.
#ifdef TINTVERT_TIER_HELD_BY_PROGRAM
extern Tier highest_tier;
#else
constexpr Tier highest_tier = Tier::vbmi;
#endif

// Asked once a call; the library keeps no answer.
inline Tier tier() { return std::min(highest_tier, tier_of_machine()); }

// Where two runs of bytes share none, the order of loads and stores cannot show.
inline bool disjoint(const uint8_t* one, long one_bytes, const uint8_t* other, long other_bytes)
{
    const auto a_begin = reinterpret_cast<uintptr_t>(one), b_begin = reinterpret_cast<uintptr_t>(other);
    return a_begin + static_cast<uintptr_t>(one_bytes) <= b_begin ||
           b_begin + static_cast<uintptr_t>(other_bytes) <= a_begin;
}

// ... nor where they are the same run and each byte depends on the one that it replaces.
inline bool same_or_disjoint(const uint8_t* one, const uint8_t* other, long bytes)
{
    return one == other || disjoint(one, bytes, other, bytes);
}

}  // namespace tintvert
