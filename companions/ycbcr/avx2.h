// The matrix sixteen pixels at a time. Sums saturate at 16 bits instead of growing; 32767 / 64 is 511, which
// clips to the same 255.
#pragma once

#include <immintrin.h>

#include "matrix.h"

#define YCBCR_AVX2 __attribute__((target("avx2"))) inline

namespace ycbcr {

struct WideWeights {
    __m256i luma, red_cr, green_cb, green_cr, blue_cb;
};

YCBCR_AVX2 WideWeights widen(const Weights& w)
{
    return {_mm256_set1_epi16(w.luma), _mm256_set1_epi16(w.red_cr), _mm256_set1_epi16(w.green_cb),
            _mm256_set1_epi16(w.green_cr), _mm256_set1_epi16(w.blue_cb)};
}

// Pixels 0 to 3 and 8 to 11 (`low`), 4 to 7 and 12 to 15 (`high`) of sixteen pixels as bytes.
struct WidePixels {
    __m256i low, high;
};

YCBCR_AVX2 WidePixels convert(const WideWeights& w, __m256i luma, __m256i cb, __m256i cr)
{
    const __m256i grey = _mm256_add_epi16(_mm256_mulhrs_epi16(luma, w.luma), _mm256_set1_epi16(32));
    const __m256i blue = _mm256_adds_epi16(grey, _mm256_mulhrs_epi16(cb, w.blue_cb));
    const __m256i green = _mm256_sub_epi16(_mm256_sub_epi16(grey, _mm256_mulhrs_epi16(cb, w.green_cb)),
                                           _mm256_mulhrs_epi16(cr, w.green_cr));
    const __m256i red = _mm256_adds_epi16(grey, _mm256_mulhrs_epi16(cr, w.red_cr));
    // b7..b0 g7..g0 | r7..r0 255.. in each half
    const __m256i bg = _mm256_packus_epi16(_mm256_srai_epi16(blue, 6), _mm256_srai_epi16(green, 6));
    const __m256i ra = _mm256_packus_epi16(_mm256_srai_epi16(red, 6), _mm256_set1_epi16(255));
    const __m256i blue_red = _mm256_unpacklo_epi8(bg, ra);     // b r b r ...
    const __m256i green_alpha = _mm256_unpackhi_epi8(bg, ra);  // g a g a ...
    return {_mm256_unpacklo_epi8(blue_red, green_alpha), _mm256_unpackhi_epi8(blue_red, green_alpha)};
}

YCBCR_AVX2 void store_16(uint8_t* dst, const WidePixels& pixels)
{
    _mm256_storeu_si256(reinterpret_cast<__m256i*>(dst), _mm256_permute2x128_si256(pixels.low, pixels.high, 0x20));
    _mm256_storeu_si256(reinterpret_cast<__m256i*>(dst + 32), _mm256_permute2x128_si256(pixels.low, pixels.high, 0x31));
}

}  // namespace ycbcr
