// The three looked-up samples of every two words of `v210`, 48 at once. Bits from the bottom of the two words:
//
//   word 0   12 .. 21
//   word 1   34 .. 43, 54 .. 63
#pragma once

#include "simd/vec.h"

namespace tintvert {

// Entries of at most 16 bits as planes of their low and high bytes.
struct EntryPlanes {
    alignas(64) uint8_t low[1024], high[1024];
};

#if defined(__x86_64__)

// Bits 0 to 7 of the indices of 64 samples as bytes, and bits 7, 8 and 9 as masks.
struct Indices {
    __m512i low;
    __mmask64 bit_7, bit_8, bit_9;
};

TNTVT_AVX512 inline __m512i entries_from_avx512(const uint8_t* plane, __m512i low)
{
    return _mm512_permutex2var_epi8(_mm512_load_si512(plane), low, _mm512_load_si512(plane + 64));
}

TNTVT_AVX512 inline __m512i look_up_avx512(const uint8_t* plane, const Indices& at)
{
    __m512i quarters[4];
    for (int n = 0; n < 4; ++n)
        quarters[n] = _mm512_mask_blend_epi8(at.bit_7, entries_from_avx512(plane + 256 * n, at.low),
                                             entries_from_avx512(plane + 256 * n + 128, at.low));
    return _mm512_mask_blend_epi8(at.bit_9, _mm512_mask_blend_epi8(at.bit_8, quarters[0], quarters[1]),
                                  _mm512_mask_blend_epi8(at.bit_8, quarters[2], quarters[3]));
}

// Eight bits from each of three places in each eight bytes, those of `one` before those of `other`.
TNTVT_AVX512 inline __m512i eight_bits_avx512(int first, int second, int third, __m512i one, __m512i other)
{
    const __m512i from = _mm512_set1_epi32(first | second << 8 | third << 16);
    return _mm512_mask_multishift_epi64_epi8(_mm512_multishift_epi64_epi8(from, one), 0xF0F0F0F0F0F0F0F0, from, other);
}

TNTVT_AVX512 inline Indices indices_avx512(__m512i one, __m512i other)
{
    const __m512i low = eight_bits_avx512(12, 34, 54, one, other), high = eight_bits_avx512(20, 42, 62, one, other);
    return {low, _mm512_movepi8_mask(low), _mm512_test_epi8_mask(high, _mm512_set1_epi8(1)),
            _mm512_test_epi8_mask(high, _mm512_set1_epi8(2))};
}

// Each eight bytes of `entries` hold three entries of 16 bits. What they have above bit 9 spills upwards.
TNTVT_AVX512 inline __m512i with_entries_avx512(__m512i words, __m512i entries)
{
    const __m512i first = _mm512_slli_epi64(_mm512_and_si512(entries, _mm512_set1_epi64(0xFFFF)), 12);
    const __m512i second = _mm512_slli_epi64(_mm512_and_si512(entries, _mm512_set1_epi64(0xFFFF0000)), 34 - 16);
    const __m512i third = _mm512_slli_epi64(_mm512_srli_epi64(entries, 32), 54);
    const __m512i kept = _mm512_and_si512(words, _mm512_set1_epi64(0x000FFC003FF003FF));
    return _mm512_or_si512(_mm512_or_si512(kept, first), _mm512_or_si512(second, third));
}

// One unit if the entries fit.
struct TakeEntries {
    TNTVT_AVX512 static long avx512(EntryPlanes& planes, const uint32_t* table)
    {
        __m512i all = _mm512_setzero_si512();
        for (int i = 0; i < 1024; i += 16) {
            const __m512i entries = _mm512_loadu_si512(table + i);
            all = _mm512_or_si512(all, entries);
            store_128(planes.low + i, _mm512_cvtepi32_epi8(entries));
            store_128(planes.high + i, _mm512_cvtepi32_epi8(_mm512_srli_epi32(entries, 8)));
        }
        return _mm512_test_epi32_mask(all, _mm512_set1_epi32(-0x10000)) == 0;
    }
};

struct MapV210 {
    static constexpr bool in_place = true;
    TNTVT_AVX512 static long avx512(uint8_t* dst, const uint8_t* src, long bytes, const EntryPlanes& planes)
    {
        long done = 0;
        for (; bytes - done >= 128; done += 128) {
            const __m512i one = _mm512_loadu_si512(src + done), other = _mm512_loadu_si512(src + done + 64);
            const Indices at = indices_avx512(one, other);
            const __m512i low = look_up_avx512(planes.low, at), high = look_up_avx512(planes.high, at);
            const __m512i even = _mm512_unpacklo_epi8(low, high), odd = _mm512_unpackhi_epi8(low, high);
            _mm512_storeu_si512(dst + done, with_entries_avx512(one, _mm512_unpacklo_epi64(even, odd)));
            _mm512_storeu_si512(dst + done + 64, with_entries_avx512(other, _mm512_unpackhi_epi64(even, odd)));
        }
        return done;
    }
};

#else

struct TakeEntries {};
struct MapV210 {};

#endif

}  // namespace tintvert
