// Second lumas of `2yuv` pairs pulled back. Bytes that are not replaced are not stored, not even as they were: they may
// be another thread's, or in memory that may only be read. A step leaves a pair or more after it, so nothing past the
// last `t` is read.
#pragma once

#include <bit>

#include "simd/vec.h"

namespace tintvert {

enum class Replacement { reference, half_way, between };

#if defined(__x86_64__)

// The mean rounded down.
TNTVT_AVX2 inline __m256i mean_avx2(__m256i one, __m256i other)
{
    const __m256i odd = _mm256_and_si256(_mm256_xor_si256(one, other), _mm256_set1_epi8(1));
    return _mm256_sub_epi8(_mm256_avg_epu8(one, other), odd);
}

TNTVT_AVX2 inline __m256i distance_avx2(__m256i one, __m256i other)
{
    return _mm256_or_si256(_mm256_subs_epu8(one, other), _mm256_subs_epu8(other, one));
}

TNTVT_AVX2 inline __m256i replacement_avx2(Replacement replacement, __m256i prev, __m256i t, __m256i cur)
{
    if (replacement == Replacement::reference) return prev;
    return mean_avx2(prev, replacement == Replacement::half_way ? t : cur);
}

// Isolated errors are rare, so most steps store nothing.
TNTVT_AVX2 inline void store_chosen_avx2(uint8_t* at, __m256i chosen, __m256i bytes)
{
    auto left = static_cast<uint32_t>(_mm256_movemask_epi8(chosen));
    if (left == 0) return;
    alignas(32) uint8_t each[32];
    store_256(each, bytes);
    for (; left != 0; left &= left - 1) {
        const int i = std::countr_zero(left);
        at[i] = each[i];
    }
}

TNTVT_AVX512 inline __m512i distance_avx512(__m512i one, __m512i other)
{
    return _mm512_or_si512(_mm512_subs_epu8(one, other), _mm512_subs_epu8(other, one));
}

TNTVT_AVX512 inline __m512i mean_avx512(__m512i one, __m512i other)
{
    const __m512i odd = _mm512_and_si512(_mm512_xor_si512(one, other), _mm512_set1_epi8(1));
    return _mm512_sub_epi8(_mm512_avg_epu8(one, other), odd);
}

struct AveragePairs {
    // Sixteen pairs a step; byte 3 of a word is the second luma, and the first is moved there. Registers of 32 bytes
    // have no store of single bytes.
    TNTVT_AVX512 static long avx512(uint8_t* buf, long pairs)
    {
        long pair = 0;
        for (; pairs - pair >= 16; pair += 16) {
            uint8_t* const at = buf + 4 * pair;
            const __m512i lumas = _mm512_maskz_loadu_epi8(0xAAAAAAAAAAAAAAAA, at);
            _mm512_mask_storeu_epi8(at, 0x8888888888888888, mean_avx512(lumas, _mm512_slli_epi32(lumas, 16)));
        }
        return pair;
    }
};

struct PullBack {
    // Eight pairs a step. Byte 2 of a word is the second luma `t`; the first lumas before and after it are moved there.
    // `most` is the brightest reference that counts.
    TNTVT_AVX2 static long avx2(uint8_t* buf, long pairs, Replacement replacement, int most)
    {
        const __m256i brightest = _mm256_set1_epi8(static_cast<char>(most));
        long pair = 0;
        for (; pairs - pair > 8; pair += 8) {
            uint8_t* const at = buf + 4 * pair + 1;
            const __m256i t = load_256(at);
            const __m256i prev = _mm256_slli_epi32(t, 16), cur = _mm256_slli_epi32(load_256(at + 4), 16);
            const __m256i near = distance_avx2(prev, cur), far = distance_avx2(prev, t);
            const __m256i agree = _mm256_cmpeq_epi8(_mm256_min_epu8(near, _mm256_set1_epi8(7)), near);
            const __m256i off = _mm256_cmpeq_epi8(_mm256_max_epu8(far, _mm256_set1_epi8(11)), far);
            const __m256i counts = _mm256_cmpeq_epi8(_mm256_min_epu8(prev, brightest), prev);
            const __m256i isolated =
                _mm256_and_si256(_mm256_and_si256(agree, off), _mm256_and_si256(counts, _mm256_set1_epi32(0x00FF0000)));
            store_chosen_avx2(at, isolated, replacement_avx2(replacement, prev, t, cur));
        }
        return pair;
    }

    // Sixteen pairs a step.
    TNTVT_AVX512 static long avx512(uint8_t* buf, long pairs, Replacement replacement, int most)
    {
        const __m512i brightest = _mm512_set1_epi8(static_cast<char>(most));
        long pair = 0;
        for (; pairs - pair > 16; pair += 16) {
            uint8_t* const at = buf + 4 * pair + 1;
            const __m512i t = _mm512_loadu_si512(at);
            const __m512i prev = _mm512_slli_epi32(t, 16), cur = _mm512_slli_epi32(_mm512_loadu_si512(at + 4), 16);
            const __mmask64 counts = _mm512_mask_cmple_epu8_mask(0x4444444444444444, prev, brightest);
            const __mmask64 agree =
                _mm512_mask_cmple_epu8_mask(counts, distance_avx512(prev, cur), _mm512_set1_epi8(7));
            const __mmask64 isolated =
                _mm512_mask_cmpge_epu8_mask(agree, distance_avx512(prev, t), _mm512_set1_epi8(11));
            const __m512i mean = mean_avx512(prev, replacement == Replacement::half_way ? t : cur);
            _mm512_mask_storeu_epi8(at, isolated, replacement == Replacement::reference ? prev : mean);
        }
        return pair;
    }
};

#else

struct AveragePairs {};
struct PullBack {};

#endif

}  // namespace tintvert
