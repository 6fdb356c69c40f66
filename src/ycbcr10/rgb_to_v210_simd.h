// RGB to `v210` by whole groups in registers of doubles: 4 groups at AVX2, 8 at AVX-512. A lane is a group, and
// each of three rounds takes a pair of every group, so that the chroma before a pair is in the same lane of the
// round before; only before pair 0 it is one lane down.
#pragma once

#include <array>

#include "frame/doubles_vec.h"

namespace tintvert {

struct Bgra {
    static constexpr long bytes = 4;
    static constexpr Channels at{2, 1, 0};
};
struct Argb {
    static constexpr long bytes = 4;
    static constexpr Channels at{1, 2, 3};
};
struct Rgb {
    static constexpr long bytes = 3;
    static constexpr Channels at{0, 1, 2};
};

#if defined(__x86_64__)

TNTVT_AVX2 inline __m256i eight_pixels(const uint8_t* src, long pixel_bytes)
{
    if (pixel_bytes == 4) return load_256(src);
    return _mm256_shuffle_epi8(load_halves(src, src + 12), _mm256_broadcastsi128_si256(_mm_setr_epi8(
                                                               0, 1, 2, -1, 3, 4, 5, -1, 6, 7, 8, -1, 9, 10, 11, -1)));
}

namespace width_256 {

// Pairs of pixels, eight bytes each.
struct Pairs {
    Ints at[3];
};

// Pairs 0, 1 and 2 of four groups, from twelve pairs in a row: the register of pair n has it of each group.
template <class Order>
TNTVT_AVX2 inline Pairs load_pairs_of_groups(Order, const uint8_t* src)
{
    const __m256i a = eight_pixels(src, Order::bytes), b = eight_pixels(src + 8 * Order::bytes, Order::bytes);
    const __m256i c = eight_pixels(src + 16 * Order::bytes, Order::bytes);
    const __m256i pairs_0 = _mm256_blend_epi32(_mm256_blend_epi32(a, b, 0b00110000), c, 0b00001100);
    const __m256i pairs_1 = _mm256_blend_epi32(_mm256_blend_epi32(a, b, 0b11000011), c, 0b00110000);
    const __m256i pairs_2 = _mm256_blend_epi32(_mm256_blend_epi32(a, b, 0b00001100), c, 0b11000011);
    return {{_mm256_permute4x64_epi64(pairs_0, 0b01'10'11'00), _mm256_permute4x64_epi64(pairs_1, 0b10'11'00'01),
             _mm256_permute4x64_epi64(pairs_2, 0b11'00'01'10)}};
}

}  // namespace width_256

TNTVT_AVX2 inline __m128i word_of(__m256d low, __m256d middle, __m256d top)
{
    const __m128i lower = _mm_or_si128(_mm256_cvttpd_epi32(low), _mm_slli_epi32(_mm256_cvttpd_epi32(middle), 10));
    return _mm_or_si128(lower, _mm_slli_epi32(_mm256_cvttpd_epi32(top), 20));
}

TNTVT_AVX2 inline void store_groups(uint8_t* dst, __m128i w0, __m128i w1, __m128i w2, __m128i w3)
{
    const __m128i low_01 = _mm_unpacklo_epi32(w0, w1), low_23 = _mm_unpacklo_epi32(w2, w3);
    const __m128i high_01 = _mm_unpackhi_epi32(w0, w1), high_23 = _mm_unpackhi_epi32(w2, w3);
    const __m128i groups[] = {_mm_unpacklo_epi64(low_01, low_23), _mm_unpackhi_epi64(low_01, low_23),
                              _mm_unpacklo_epi64(high_01, high_23), _mm_unpackhi_epi64(high_01, high_23)};
    for (int i = 0; i < 4; ++i) store_128(dst + 16 * i, groups[i]);
}

// An alpha byte at the outer end of the groups is not read: `left_out` is the bit of such a byte.
TNTVT_AVX512 inline __m512i sixteen_pixels(const uint8_t* src, uint64_t left_out)
{
    return _mm512_maskz_loadu_epi8(~left_out, src);
}

constexpr std::array<uint8_t, 64> places_of_triples()
{
    std::array<uint8_t, 64> result{};
    for (size_t i = 0; i < 48; ++i) result[i / 3 * 4 + i % 3] = static_cast<uint8_t>(i);
    return result;
}
alignas(64) inline constexpr std::array<uint8_t, 64> triple_places = places_of_triples();

TNTVT_AVX512 inline __m512i sixteen_triples(const uint8_t* src)
{
    return _mm512_permutexvar_epi8(_mm512_loadu_si512(&triple_places), _mm512_maskz_loadu_epi8(0xFFFFFFFFFFFF, src));
}

namespace width_512 {

struct Pairs {
    Ints at[3];
};

TNTVT_AVX512 inline Pairs load_pairs(Bgra, const uint8_t* src)
{
    return {{sixteen_pixels(src, 0), sixteen_pixels(src + 64, 0), sixteen_pixels(src + 128, uint64_t{1} << 63)}};
}

TNTVT_AVX512 inline Pairs load_pairs(Argb, const uint8_t* src)
{
    return {{sixteen_pixels(src, 1), sixteen_pixels(src + 64, 0), sixteen_pixels(src + 128, 0)}};
}

TNTVT_AVX512 inline Pairs load_pairs(Rgb, const uint8_t* src)
{
    return {{sixteen_triples(src), sixteen_triples(src + 48), sixteen_triples(src + 96)}};
}

// Pair `pair` of eight groups, from 24 pairs in a row.
TNTVT_AVX512 inline __m512i pair_of_groups(const Pairs& pairs, int pair)
{
    const __m512i places = _mm512_add_epi64(_mm512_setr_epi64(0, 3, 6, 9, 12, 15, 18, 21), _mm512_set1_epi64(pair));
    const __m512i below_16 = _mm512_permutex2var_epi64(pairs.at[0], places, pairs.at[1]);
    const __mmask8 above = _mm512_cmpgt_epi64_mask(places, _mm512_set1_epi64(15));
    return _mm512_mask_permutexvar_epi64(below_16, above, places, pairs.at[2]);
}

template <class Order>
TNTVT_AVX512 inline Pairs load_pairs_of_groups(Order order, const uint8_t* src)
{
    const Pairs pairs = load_pairs(order, src);
    return {{pair_of_groups(pairs, 0), pair_of_groups(pairs, 1), pair_of_groups(pairs, 2)}};
}

}  // namespace width_512

TNTVT_AVX512 inline __m512i word_of(__m512d low, __m512d middle, __m512d top)
{
    const __m512i lower = _mm512_or_si512(_mm512_cvttpd_epi64(low), _mm512_slli_epi64(_mm512_cvttpd_epi64(middle), 10));
    return _mm512_or_si512(lower, _mm512_slli_epi64(_mm512_cvttpd_epi64(top), 20));
}

TNTVT_AVX512 inline void store_groups(uint8_t* dst, __m512i w0, __m512i w1, __m512i w2, __m512i w3)
{
    const __m512i low = _mm512_or_si512(w0, _mm512_slli_epi64(w1, 32));
    const __m512i high = _mm512_or_si512(w2, _mm512_slli_epi64(w3, 32));
    const __m512i first = _mm512_setr_epi64(0, 8, 1, 9, 2, 10, 3, 11),
                  second = _mm512_setr_epi64(4, 12, 5, 13, 6, 14, 7, 15);
    _mm512_storeu_si512(dst, _mm512_permutex2var_epi64(low, first, high));
    _mm512_storeu_si512(dst + 64, _mm512_permutex2var_epi64(low, second, high));
}

#endif

}  // namespace tintvert

#define TNTVT_STEPS "ycbcr10/rgb_to_v210_steps.inc"
#include "simd/each_width.h"
