// Groups of `2vuy`, 12 bytes, to groups of `v210`, 16 bytes, and back.
#pragma once

#include "simd/vec.h"

namespace tintvert {

#if defined(__x86_64__)

// Four groups, 48 bytes, as 64.
TNTVT_AVX512 inline __m512i widen_48_avx512(__m512i bytes)
{
    const __m512i word = _mm512_setr_epi32(0, 3, 6, 9, 12, 15, 18, 21, 24, 27, 30, 33, 36, 39, 42, 45);
    const __m512i first = _mm512_mullo_epi32(word, _mm512_set1_epi32(0x01010101));
    const __m512i a_and_b = _mm512_add_epi8(first, _mm512_set1_epi32(1 << 16));
    const __m512i c_on_top = _mm512_add_epi8(first, _mm512_set1_epi32(2 << 24));
    const __m512i low = _mm512_madd_epi16(_mm512_maskz_permutexvar_epi8(0x5555555555555555, a_and_b, bytes),
                                          _mm512_set1_epi32(1 << 12 << 16 | 1 << 2));
    const __m512i top = _mm512_maskz_permutexvar_epi8(0x8888888888888888, c_on_top, bytes);
    return _mm512_or_si512(low, _mm512_srli_epi32(top, 2));
}

// The upper eight bits of the six samples of two words, from bits 2, 12, 22, 34, 44 and 54 on, then 48 bytes
// together.
TNTVT_AVX512 inline __m512i narrow_64_avx512(__m512i words)
{
    const __m512i bytes = _mm512_multishift_epi64_epi8(_mm512_set1_epi64(0x0000362C22160C02), words);
    const __m512i six_of_eight = _mm512_setr_epi64(0x0908050403020100, 0x131211100D0C0B0A, 0x1D1C1B1A19181514,
                                                   0x2928252423222120, 0x333231302D2C2B2A, 0x3D3C3B3A39383534, 0, 0);
    return _mm512_permutexvar_epi8(six_of_eight, bytes);
}

struct WidenGroups {
    // Two groups a step. The bytes a, b, c of a word go to bits 2, 12 and 22: a and b by one sum of products, c from
    // the top byte down. The second half reads four bytes beyond its 12, so the last step leaves a group over.
    // Lines go from last to first, and so do the steps: a processor fetches ahead in one direction.
    TNTVT_AVX2 static long avx2(uint8_t* dst, const uint8_t* src, long groups)
    {
        const __m256i a_and_b =
            _mm256_broadcastsi128_si256(_mm_setr_epi8(0, -1, 1, -1, 3, -1, 4, -1, 6, -1, 7, -1, 9, -1, 10, -1));
        const __m256i c_on_top =
            _mm256_broadcastsi128_si256(_mm_setr_epi8(-1, -1, -1, 2, -1, -1, -1, 5, -1, -1, -1, 8, -1, -1, -1, 11));
        const long steps = (groups - 1) / 2;
        for (long step = steps - 1; step >= 0; --step) {
            const uint8_t* const from = src + step * 24;
            const __m256i bytes = load_halves(from, from + 12);
            const __m256i low =
                _mm256_madd_epi16(_mm256_shuffle_epi8(bytes, a_and_b), _mm256_set1_epi32(1 << 12 << 16 | 1 << 2));
            const __m256i top = _mm256_srli_epi32(_mm256_shuffle_epi8(bytes, c_on_top), 2);
            store_256(dst + step * 32, _mm256_or_si256(low, top));
        }
        return steps * 2;
    }

    // Four groups a step, from the last one down; 64 bytes are loaded where the line has them.
    TNTVT_AVX512 static long avx512(uint8_t* dst, const uint8_t* src, long groups)
    {
        const long steps = (groups - 2) / 4;
        for (long done = steps * 4; done < groups; done += 4) {
            const long left = groups - done;
            const __m512i bytes = _mm512_maskz_loadu_epi8(first_bytes(left * 12), src + done * 12);
            _mm512_mask_storeu_epi8(dst + done * 16, first_bytes(left * 16), widen_48_avx512(bytes));
        }
        for (long step = steps - 1; step >= 0; --step)
            _mm512_storeu_si512(dst + step * 64, widen_48_avx512(_mm512_loadu_si512(src + step * 48)));
        return groups;
    }
};

struct NarrowGroups {
    // Two groups a step. The products move the lowest and the highest sample of a word by 2 and 6 to bytes 0 and 2,
    // the shift moves the one between to byte 1.
    TNTVT_AVX2 static long avx2(uint8_t* dst, const uint8_t* src, long groups)
    {
        const __m256i three_of_four =
            _mm256_broadcastsi128_si256(_mm_setr_epi8(0, 1, 2, 4, 5, 6, 8, 9, 10, 12, 13, 14, -1, -1, -1, -1));
        const __m256i halves_together = _mm256_setr_epi32(0, 1, 2, 4, 5, 6, 7, 7);
        long done = 0;
        for (; groups - done >= 2; done += 2) {
            const __m256i words = load_256(src + done * 16);
            const __m256i outer = _mm256_mulhi_epu16(words, _mm256_set1_epi32(1 << 10 << 16 | 1 << 14));
            const __m256i bytes = _mm256_blendv_epi8(outer, _mm256_srli_epi32(words, 4), _mm256_set1_epi32(0x0000FF00));
            const __m256i run = _mm256_permutevar8x32_epi32(_mm256_shuffle_epi8(bytes, three_of_four), halves_together);
            store_128(dst + done * 12, _mm256_castsi256_si128(run));
            _mm_storel_epi64(reinterpret_cast<__m128i*>(dst + done * 12 + 16), _mm256_extracti128_si256(run, 1));
        }
        return done;
    }

    TNTVT_AVX512 static long avx512(uint8_t* dst, const uint8_t* src, long groups)
    {
        long done = 0;
        for (; groups - done > 3; done += 4)
            _mm512_mask_storeu_epi8(dst + done * 12, first_bytes(48),
                                    narrow_64_avx512(_mm512_loadu_si512(src + done * 16)));
        const long left = groups - done;
        const __m512i words = _mm512_maskz_loadu_epi8(first_bytes(left * 16), src + done * 16);
        _mm512_mask_storeu_epi8(dst + done * 12, first_bytes(left * 12), narrow_64_avx512(words));
        return groups;
    }
};

#else

struct WidenGroups {};
struct NarrowGroups {};

#endif

}  // namespace tintvert
