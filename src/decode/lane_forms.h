// Two pairs of pixels at a time by the 8-bit terms, in the registers that every x86-64 processor has.
#pragma once

#include "decode/forms.h"
#include "decode/lanes.h"
#include "frame/memory.h"

namespace tintvert {

constexpr LaneTables<256, 4> lane_tables()
{
    LaneTables<256, 4> result{};
    for (int k = 0; k < 256; ++k) {
        const auto at = static_cast<size_t>(k);
        const ChromaTerms b = cb_terms(k), d = cr_terms(k);
        result.luma[at] = {luma_term(k), luma_term(k), luma_term(k), 0};
        result.cb[at] = {b.second, b.first, 0, 255 << 4};
        result.cr[at] = {0, d.second, d.first, 0};
    }
    return result;
}

inline constexpr LaneTables<256, 4> lane_terms = lane_tables();

#if defined(__x86_64__)

inline __m128i four_pixels(const Codes& one, const Codes& other)
{
    return _mm_packus_epi16(pair_of_pixels(lane_terms, one), pair_of_pixels(lane_terms, other));
}

inline void put_two_pairs(Rgb32, uint8_t* dst, const Codes& one, const Codes& other)
{
    _mm_storeu_si128(reinterpret_cast<__m128i*>(dst), four_pixels(one, other));
}

// The fourth byte of each pixel goes.
inline void put_two_pairs(Rgb24, uint8_t* dst, const Codes& one, const Codes& other)
{
    const __m128i pixels = four_pixels(one, other);
    const __m128i even = _mm_and_si128(pixels, _mm_set1_epi64x(0xFFFFFF));
    const __m128i odd = _mm_and_si128(_mm_srli_epi64(pixels, 8), _mm_set1_epi64x(0xFFFFFF000000));
    const __m128i sixes = _mm_or_si128(even, odd);  // six bytes in each half
    const __m128i twelve = _mm_or_si128(_mm_move_epi64(sixes), _mm_slli_si128(_mm_srli_si128(sixes, 8), 6));
    _mm_storel_epi64(reinterpret_cast<__m128i*>(dst), twelve);
    store(dst + 8, _mm_cvtsi128_si32(_mm_srli_si128(twelve, 8)));
}

// The word of rgb16_word, twice for each pair.
inline void put_two_pairs(Rgb16, uint8_t* dst, const Codes& one, const Codes& other)
{
    const __m128i sums = first_pixels(lane_terms, one, other);
    const __m128i pixels = _mm_unpacklo_epi8(_mm_packus_epi16(sums, sums), _mm_setzero_si128());
    const __m128i green_red = _mm_srli_epi64(pixels, 16);
    const __m128i red = _mm_srli_epi64(_mm_and_si128(pixels, _mm_set1_epi64x(0xF800000000)), 25);
    const __m128i green = _mm_slli_epi64(_mm_and_si128(green_red, _mm_set1_epi64x(0xF8)), 2);
    const __m128i blue = _mm_srli_epi64(_mm_and_si128(pixels, _mm_set1_epi64x(0xF8)), 3);
    const __m128i words = _mm_or_si128(_mm_or_si128(red, green), blue);
    const __m128i twice = _mm_shufflelo_epi16(_mm_shufflehi_epi16(words, 0), 0);
    _mm_storel_epi64(reinterpret_cast<__m128i*>(dst), _mm_shuffle_epi32(twice, 0b1000));
}

#endif

}  // namespace tintvert
