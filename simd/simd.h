// Which instruction set a routine may use, and when SIMD code may take the place of the scalar code.
//
// A kernel is the SIMD version of the scalar code beside it: a struct with an entry for each instruction set that it
// is written for, `sse2`, `avx2` or `avx512`, all with the same arguments. An entry makes as many leading units of a
// run (pixels, pairs, groups) as its steps can and returns how many; the scalar code goes on from there. run_simd
// alone chooses the entry and asks whether the buffers overlap.
//
//   struct SwapPairs {
//       static constexpr bool in_place = true;  // may also run where it writes the bytes that it reads
//   #if defined(__x86_64__)
//       TNTVT_AVX2 static long avx2(uint8_t* dst, const uint8_t* src, long pairs);
//   #endif
//   };
//   long n = run_simd<SwapPairs>(level, {{dst, 2 * pairs}}, {{src, 2 * pairs}}, dst, src, pairs);
//   for (; n < pairs; ++n) ...
//
// Another processor is a value of InstructionSet, a question in machine_instruction_set and a line in made_by_kernel.
#pragma once

#include <algorithm>
#include <cstdint>
#include <initializer_list>

#include "simd/platform.h"

#if defined(__x86_64__)
#define TNTVT_AVX2 __attribute__((target("avx2")))
#define TNTVT_AVX512 __attribute__((target("avx512f,avx512bw,avx512vl,avx512dq,avx512vbmi")))
#endif

namespace tintvert {

// `scalar` is the definition; every x86-64 processor has `sse2`.
enum class InstructionSet { scalar, sse2, avx2, avx512 };

inline InstructionSet machine_instruction_set()
{
#if TINTVERT_SIMD && defined(__x86_64__)
    if (__builtin_cpu_supports("avx512vbmi") && __builtin_cpu_supports("avx512bw") &&
        __builtin_cpu_supports("avx512vl") && __builtin_cpu_supports("avx512dq"))
        return InstructionSet::avx512;
    return __builtin_cpu_supports("avx2") ? InstructionSet::avx2 : InstructionSet::sse2;
#else
    return InstructionSet::scalar;
#endif
}

// Tests and benchmarks choose the instruction set themselves, and see how many units the kernels made.
#ifdef TINTVERT_INSTRUCTION_SET_HELD_BY_PROGRAM
extern InstructionSet highest_instruction_set;
inline long simd_units = 0;
inline void count_simd_units(long units) { simd_units += units; }
#else
constexpr InstructionSet highest_instruction_set = InstructionSet::avx512;
inline void count_simd_units(long) {}
#endif

// Asked once a call; the library keeps no answer.
inline InstructionSet instruction_set() { return std::min(highest_instruction_set, machine_instruction_set()); }

inline bool disjoint(const uint8_t* one, long one_bytes, const uint8_t* other, long other_bytes)
{
    const auto begin = reinterpret_cast<uintptr_t>(one), other_begin = reinterpret_cast<uintptr_t>(other);
    return begin + static_cast<uintptr_t>(one_bytes) <= other_begin ||
           other_begin + static_cast<uintptr_t>(other_bytes) <= begin;
}

struct Run {
    const uint8_t* at;
    long bytes;

    bool disjoint_from(const Run& other) const { return disjoint(at, bytes, other.at, other.bytes); }
    bool is(const Run& other) const { return at == other.at && bytes == other.bytes; }
};

// Whether the order of loads and stores cannot be observed: no byte is written that another run writes or reads. Where
// each byte depends on the one that it replaces, a run may also be written in its own place. A run of no bytes is no
// work.
inline bool order_is_free(std::initializer_list<Run> written, std::initializer_list<Run> read, bool in_place)
{
    for (const Run& one : written) {
        if (one.bytes < 1) return false;
        for (const Run& other : written)
            if (&other != &one && !one.disjoint_from(other)) return false;
        for (const Run& other : read)
            if (!one.disjoint_from(other) && !(in_place && one.is(other))) return false;
    }
    return true;
}

template <class Kernel, class... Arguments>
long made_by_kernel(InstructionSet level, Arguments&&... arguments)
{
    if constexpr (requires { &Kernel::avx512; })
        if (level >= InstructionSet::avx512) return Kernel::avx512(arguments...);
    if constexpr (requires { &Kernel::avx2; })
        if (level >= InstructionSet::avx2) return Kernel::avx2(arguments...);
    if constexpr (requires { &Kernel::sse2; })
        if (level >= InstructionSet::sse2) return Kernel::sse2(arguments...);
    return 0;
}

// How many leading units the best entry of `Kernel` has made; none where the order of loads and stores is the result.
template <class Kernel, class... Arguments>
long run_simd(InstructionSet level, std::initializer_list<Run> written, std::initializer_list<Run> read,
              Arguments&&... arguments)
{
    constexpr bool in_place = requires { requires Kernel::in_place; };
    if (level == InstructionSet::scalar || !order_is_free(written, read, in_place)) return 0;
    const long units = made_by_kernel<Kernel>(level, arguments...);
    count_simd_units(units);
    return units;
}

}  // namespace tintvert
