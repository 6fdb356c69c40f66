// Sixteen full-range pixels a step to video range.
#pragma once

#include "simd/vec.h"
#include "ycbcr8/video_range.h"

namespace tintvert {

// The upper 16 bits of a product are the quotient.
constexpr uint32_t luma_factor = 56285;    // 219 / 255 of 65536, rounded up
constexpr uint32_t chroma_factor = 57796;  // 224 / 254

constexpr bool factors_are_exact()
{
    for (uint32_t v = 0; v < 256; ++v) {
        if ((v * luma_factor >> 16) + 16 != video_luma(v)) return false;
        if (((v == 0 ? 0 : v - 1) * chroma_factor >> 16) + 16 != video_chroma(v)) return false;
    }
    return true;
}
static_assert(factors_are_exact());

#if defined(__x86_64__)

struct ToVideoRange {
    static constexpr bool in_place = true;
    TNTVT_AVX2 static long avx2(uint8_t* dst, const uint8_t* src, long pixels, uint8_t sign)
    {
        const __m256i turned = _mm256_set1_epi16(static_cast<short>(sign));
        const __m256i of_luma = _mm256_set1_epi16(static_cast<short>(luma_factor));
        const __m256i of_chroma = _mm256_set1_epi16(static_cast<short>(chroma_factor));
        long done = 0;
        for (; pixels - done >= 16; done += 16) {
            const __m256i words = load_256(src + done * 2);
            const __m256i y = _mm256_and_si256(words, _mm256_set1_epi16(0xFF));
            const __m256i c = _mm256_xor_si256(_mm256_srli_epi16(words, 8), turned);
            const __m256i luma = _mm256_mulhi_epu16(y, of_luma);
            const __m256i chroma = _mm256_mulhi_epu16(_mm256_subs_epu16(c, _mm256_set1_epi16(1)), of_chroma);
            const __m256i both = _mm256_or_si256(_mm256_slli_epi16(luma, 8), chroma);
            store_256(dst + done * 2, _mm256_add_epi8(both, _mm256_set1_epi8(16)));
        }
        return done;
    }
};

#else

struct ToVideoRange {};

#endif

}  // namespace tintvert
