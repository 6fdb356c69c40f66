// How wide a routine may go, and when a SIMD version may stand in for the plain one.
#pragma once

#include <algorithm>
#include <cstdint>

#define TNTVT_AVX2 __attribute__((target("avx2")))
#define TNTVT_AVX512 __attribute__((target("avx512f,avx512bw,avx512vl,avx512dq,avx512vbmi")))

namespace tintvert {

// `scalar` is the definition; `sse2` is what every processor of the architecture has.
enum class InstructionSet { scalar, sse2, avx2, avx512 };

inline InstructionSet machine_instruction_set()
{
#if !TINTVERT_SIMD
    return InstructionSet::scalar;
#elif defined(__x86_64__)
    if (__builtin_cpu_supports("avx512vbmi") && __builtin_cpu_supports("avx512bw") &&
        __builtin_cpu_supports("avx512vl") && __builtin_cpu_supports("avx512dq"))
        return InstructionSet::avx512;
    return __builtin_cpu_supports("avx2") ? InstructionSet::avx2 : InstructionSet::sse2;
#else
    return InstructionSet::sse2;
#endif
}

// Tests and benchmarks of the forms hold a level of their own.
#ifdef TINTVERT_INSTRUCTION_SET_HELD_BY_PROGRAM
extern InstructionSet highest_instruction_set;
#else
constexpr InstructionSet highest_instruction_set = InstructionSet::avx512;
#endif

// Asked once a call; the library keeps no answer.
inline InstructionSet instruction_set() { return std::min(highest_instruction_set, machine_instruction_set()); }

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
