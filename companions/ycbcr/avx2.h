// Sixteen pixels at a time, with AVX2.
#pragma once

#include "simd/vec.h"

#if defined(__x86_64__)

namespace ycbcr::width_256 {

// Pixels 0 to 3 and 8 to 11 (`low`), 4 to 7 and 12 to 15 (`high`) of sixteen pixels as bytes.
struct Pixels {
    __m256i low, high;
};

TNTVT_AVX2 inline Pixels interleaved(const PackedPixels& of)
{
    const __m256i b_r = _mm256_unpacklo_epi8(of.blue_green, of.red_alpha);
    const __m256i g_a = _mm256_unpackhi_epi8(of.blue_green, of.red_alpha);
    return {_mm256_unpacklo_epi8(b_r, g_a), _mm256_unpackhi_epi8(b_r, g_a)};
}

TNTVT_AVX2 inline void store_16(uint8_t* dst, const Pixels& pixels)
{
    store_256(dst, _mm256_permute2x128_si256(pixels.low, pixels.high, 0x20));
    store_256(dst + 32, _mm256_permute2x128_si256(pixels.low, pixels.high, 0x31));
}

}  // namespace ycbcr::width_256

#endif
