// The matrix sixteen pixels at a time. Sums saturate at 16 bits instead of growing; 32767 / 64 is 511, which
// clips to the same 255.
#pragma once

#include <immintrin.h>

#include "matrix.h"

#define YCBCR_AVX2 __attribute__((target("avx2"))) inline

namespace ycbcr {

// Chroma weights alternate like chroma words: Cb, Cr.
struct SimdWeights {
    __m256i luma, blue_red, green;
};

YCBCR_AVX2 __m256i alternate(int cb, int cr)
{
    return _mm256_set1_epi32(static_cast<int>(static_cast<uint32_t>(cr) << 16 | static_cast<uint32_t>(cb)));
}

YCBCR_AVX2 SimdWeights widen(const Weights& w)
{
    return {alternate(w.luma, w.luma), alternate(w.blue_cb, w.red_cr), alternate(w.green_cb, w.green_cr)};
}

YCBCR_AVX2 __m256i in_both_halves(__m128i bytes) { return _mm256_broadcastsi128_si256(bytes); }

// Pixels 0 to 3 and 8 to 11 (`low`), 4 to 7 and 12 to 15 (`high`) of sixteen pixels as bytes.
struct SimdPixels {
    __m256i low, high;
};

// Sixteen luma words, and the chroma words Cb, Cr of each pair in the same places.
YCBCR_AVX2 SimdPixels convert(const SimdWeights& w, __m256i luma, __m256i chroma)
{
    const __m256i first = in_both_halves(_mm_setr_epi8(0, 1, 0, 1, 4, 5, 4, 5, 8, 9, 8, 9, 12, 13, 12, 13));
    const __m256i second = in_both_halves(_mm_setr_epi8(2, 3, 2, 3, 6, 7, 6, 7, 10, 11, 10, 11, 14, 15, 14, 15));
    const __m256i exchanged = in_both_halves(_mm_setr_epi8(2, 3, 0, 1, 6, 7, 4, 5, 10, 11, 8, 9, 14, 15, 12, 13));
    const __m256i grey = _mm256_sub_epi16(_mm256_mulhi_epu16(luma, w.luma), _mm256_set1_epi16(luma_offset));
    const __m256i blue_red = _mm256_mulhrs_epi16(chroma, w.blue_red);
    const __m256i shares = _mm256_mulhrs_epi16(chroma, w.green);
    const __m256i blue = _mm256_adds_epi16(grey, _mm256_shuffle_epi8(blue_red, first));
    const __m256i red = _mm256_adds_epi16(grey, _mm256_shuffle_epi8(blue_red, second));
    const __m256i green = _mm256_sub_epi16(grey, _mm256_add_epi16(shares, _mm256_shuffle_epi8(shares, exchanged)));
    const __m256i bg = _mm256_packus_epi16(_mm256_srai_epi16(blue, 6), _mm256_srai_epi16(green, 6));
    const __m256i ra = _mm256_packus_epi16(_mm256_srai_epi16(red, 6), _mm256_set1_epi16(255));
    const __m256i b_r = _mm256_unpacklo_epi8(bg, ra);
    const __m256i g_a = _mm256_unpackhi_epi8(bg, ra);
    return {_mm256_unpacklo_epi8(b_r, g_a), _mm256_unpackhi_epi8(b_r, g_a)};
}

YCBCR_AVX2 void store_16(uint8_t* dst, const SimdPixels& pixels)
{
    _mm256_storeu_si256(reinterpret_cast<__m256i*>(dst), _mm256_permute2x128_si256(pixels.low, pixels.high, 0x20));
    _mm256_storeu_si256(reinterpret_cast<__m256i*>(dst + 32), _mm256_permute2x128_si256(pixels.low, pixels.high, 0x31));
}

// An unsigned chroma word, its code in the upper bits, as a signed one about neutral.
YCBCR_AVX2 __m256i centred(__m256i chroma) { return _mm256_xor_si256(chroma, _mm256_set1_epi16(-0x8000)); }

}  // namespace ycbcr
