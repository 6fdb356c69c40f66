// Three pgroups, 15 bytes, to a `v210` group, 16 bytes.
#pragma once

#include "simd/vec.h"

namespace tintvert {

#if defined(__x86_64__)

// Two groups, one in each half. A sample spans two bytes and begins at bit 0, 2, 4 or 6 of the first; a
// product with 1, 4, 16 or 64 moves it to the top of 16 bits, a shift to its place in the word.
TNTVT_AVX2 inline __m256i unpack_avx2(__m256i stream)
{
    // Samples 3k and 3k + 1 of word k, and sample 3k + 2 in the low half of its word.
    const __m256i low_places =
        _mm256_broadcastsi128_si256(_mm_setr_epi8(1, 0, 2, 1, 4, 3, 6, 5, 8, 7, 9, 8, 12, 11, 13, 12));
    const __m256i low_factors = _mm256_broadcastsi128_si256(_mm_setr_epi16(1, 4, 64, 1, 16, 64, 4, 16));
    const __m256i top_places =
        _mm256_broadcastsi128_si256(_mm_setr_epi8(3, 2, -1, -1, 7, 6, -1, -1, 11, 10, -1, -1, 14, 13, -1, -1));
    const __m256i top_shifts = _mm256_broadcastsi128_si256(_mm_setr_epi32(18, 16, 14, 20));
    const __m256i low = _mm256_srli_epi16(_mm256_mullo_epi16(_mm256_shuffle_epi8(stream, low_places), low_factors), 6);
    const __m256i top = _mm256_sllv_epi32(_mm256_shuffle_epi8(stream, top_places), top_shifts);
    const __m256i joined = _mm256_madd_epi16(low, _mm256_set1_epi32(1024 << 16 | 1));
    const __m256i raised = _mm256_and_si256(top, _mm256_set1_epi32(0x3FF00000));
    return _mm256_or_si256(joined, raised);
}

// Four groups, 60 bytes, as 64. Eight bytes of the stream, the first of them on top, hold the six samples of two
// words, from bit 63 down in the first eight of a group and from bit 59 down in the last eight. Each byte of a word
// is a run of eight of these bits, or a piece of one sample's with a piece of the next one's.
TNTVT_AVX512 inline __m512i unpack_60_avx512(__m512i bytes)
{
    const __m512i places =
        _mm512_setr_epi64(0x0001020304050607, 0x0708090A0B0C0D0E, 0x0F10111213141516, 0x161718191A1B1C1D,
                          0x1E1F202122232425, 0x25262728292A2B2C, 0x2D2E2F3031323334, 0x3435363738393A3B);
    const __m512i upper = _mm512_broadcast_i32x4(_mm_setr_epi8(54, 62, 50, 38, 24, 32, 20, 8,  //
                                                               50, 58, 46, 34, 20, 28, 16, 4));
    const __m512i lower = _mm512_broadcast_i32x4(_mm_setr_epi8(0, 42, 30, 0, 0, 12, 0, 0,  //
                                                               0, 38, 26, 0, 0, 8, 60, 0));
    const __m512i stream = _mm512_permutexvar_epi8(places, bytes);
    const __m512i ends = _mm512_and_si512(_mm512_multishift_epi64_epi8(upper, stream), _mm512_set1_epi32(0x3F0F03FF));
    return _mm512_ternarylogic_epi32(ends, _mm512_multishift_epi64_epi8(lower, stream), _mm512_set1_epi32(0x00F0FC00),
                                     0xF8);
}

struct UnpackGroups {
    // The second half reads a byte beyond its 15, so the last step leaves a group over.
    TNTVT_AVX2 static long avx2(uint8_t* dst, const uint8_t* src, long groups)
    {
        long done = 0;
        for (; groups - done > 2; done += 2) {
            const uint8_t* const from = src + done * 15;
            store_256(dst + done * 16, unpack_avx2(load_halves(from, from + 15)));
        }
        return done;
    }

    // Four groups a step, 64 bytes loaded as long as the line has them.
    TNTVT_AVX512 static long avx512(uint8_t* dst, const uint8_t* src, long groups)
    {
        long done = 0;
        for (; groups - done > 4; done += 4)
            _mm512_storeu_si512(dst + done * 16, unpack_60_avx512(_mm512_loadu_si512(src + done * 15)));
        const long left = groups - done;
        const __m512i bytes = _mm512_maskz_loadu_epi8(first_bytes(left * 15), src + done * 15);
        _mm512_mask_storeu_epi8(dst + done * 16, first_bytes(left * 16), unpack_60_avx512(bytes));
        return groups;
    }
};

#else

struct UnpackGroups {};

#endif

}  // namespace tintvert
