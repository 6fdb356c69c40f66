// RGB to `2vuy` by four or eight pairs of pixels a step: in integers and, where those do not decide, in doubles.
//
// Weights have three decimals and are divided by 256, 1024 or four times that, so every value is a whole number of
// units of 1 / (125 * 2^16). Doubles err by less than 1e-10, far less than a unit, so they truncate to the same number
// as the integers, unless the value is itself whole, which they may just miss. With the matrix of video range the
// chroma of every grey is whole; other values are by chance.
//
// An example, the luma of red 100, green 150, blue 200 by BT.601:
//
//   value     (100 * 65.738 + 150 * 129.057 + 200 * 25.064) / 256 + 16 = 136.8795...
//   weights   65.738 / 256 is 2103616 units, 129.057 / 256 is 4129824, 25.064 / 256 is 802048
//   offset    16 is 131072000 units; a byte has room for it as 8 (in alpha's place) times 16384000
//   sum       100 * 2103616 + 150 * 4129824 + 200 * 802048 + 8 * 16384000 = 1121316800 units
//   halves    1121316800 is 17109 * 2^16 + 61376
//   result    17109 / 125 is 136, by a product: 17109 * 33555 >> 22. The lower half is not 0, so no whole number is
//   near
//
// The weights do not fit the 16-bit products of a step: 4129824 is multiplied as 4033 * 1024 + 32.
#pragma once

#include <array>

#include "frame/doubles_vec.h"

namespace tintvert {

// Of the pixel before `src`.
template <class Matrix, const Channels& at>
ChromaBefore chroma_before(const uint8_t* src)
{
    const double r = src[at.r - 4], g = src[at.g - 4], b = src[at.b - 4];
    return {row(Matrix::cb, r, g, b), row(Matrix::cr, r, g, b)};
}

// Units in one: the whole part of a value is the quotient of its upper 16 bits by 125.
constexpr double unit = 125 << 16;

// The upper 16 bits of a product are 64 times that quotient.
constexpr uint32_t fraction_of_125 = 33555;

constexpr bool fraction_is_exact()
{
    for (uint32_t x = 0; x < 0x8000; ++x)
        if (x * fraction_of_125 >> 22 != x / 125) return false;
    return true;
}
static_assert(fraction_is_exact());

// What is put in alpha's place, to be multiplied by the row's offset.
constexpr short in_place_of_alpha = 8;

constexpr int place_of_alpha(const Channels& at) { return 6 - at.r - at.g - at.b; }

// Weights of the bytes of a pixel, in units.
constexpr std::array<int, 4> in_units(const Weights& w, const Channels& at)
{
    std::array<int, 4> result{};
    const auto put = [&](int place, double weight) {
        result[static_cast<size_t>(place)] = static_cast<int>(weight * unit + (weight < 0 ? -0.5 : 0.5));
    };
    put(at.r, w.r);
    put(at.g, w.g);
    put(at.b, w.b);
    put(place_of_alpha(at), (w.offset + w.half) / in_place_of_alpha);
    return result;
}

// Words are multiplied: those of bytes 0 and 2 of a pixel apart from those of 1 and 3, by the upper bits of the weights
// and by the lower ten. A pair of pixels may have a row each.
struct WordWeights {
    int64_t even_high, odd_high, even_low, odd_low;
};

constexpr int64_t words_of(int first, int third)
{
    return static_cast<uint16_t>(first) | (static_cast<int64_t>(third) & 0xFFFF) << 16;
}

constexpr WordWeights word_weights(const Weights& first, const Weights& second, const Channels& at)
{
    const std::array<int, 4> one = in_units(first, at), two = in_units(second, at);
    const auto high = [&](size_t i) {
        return words_of(one[i] >> 10, one[i + 2] >> 10) | words_of(two[i] >> 10, two[i + 2] >> 10) << 32;
    };
    const auto low = [&](size_t i) {
        return words_of(one[i] & 1023, one[i + 2] & 1023) | words_of(two[i] & 1023, two[i + 2] & 1023) << 32;
    };
    return {high(0), high(1), low(0), low(1)};
}

// Luma for both pixels; Cb for the first and Cr for the second, whose filter has taken in four pixels.
template <class Matrix, const Channels& at>
struct OfPair {
    static constexpr WordWeights y = word_weights(Matrix::y, Matrix::y, at);
    static constexpr WordWeights chroma = word_weights(Matrix::cb, Matrix::cr, at);
};

#if defined(__x86_64__)

// The upper bytes of words, but for the even words, or the odd ones, which are those of `constant`.
template <bool even>
TNTVT_AVX2 inline __m256i upper_bytes_but(__m256i constant, __m256i words)
{
    return _mm256_blend_epi16(_mm256_srli_epi16(words, 8), constant, even ? 0b01010101 : 0b10101010);
}

template <bool even>
TNTVT_AVX512 inline __m512i upper_bytes_but(__m512i constant, __m512i words)
{
    return _mm512_mask_srli_epi16(constant, even ? 0xAAAAAAAA : 0x55555555, words, 8);
}

// The upper bytes of the words of four or eight pairs.
TNTVT_AVX2 inline void store_high_bytes(uint8_t* dst, __m256i words)
{
    const __m256i bytes = _mm256_srli_epi16(words, 8);
    store_128(dst, _mm_packus_epi16(_mm256_castsi256_si128(bytes), _mm256_extracti128_si256(bytes, 1)));
}

constexpr std::array<uint8_t, 64> places_of_high_bytes()
{
    std::array<uint8_t, 64> result{};
    for (size_t i = 0; i < 32; ++i) result[i] = static_cast<uint8_t>(2 * i + 1);
    return result;
}
alignas(64) inline constexpr std::array<uint8_t, 64> high_places = places_of_high_bytes();

TNTVT_AVX512 inline void store_high_bytes(uint8_t* dst, __m512i words)
{
    store_256(dst, _mm512_castsi512_si256(_mm512_permutexvar_epi8(_mm512_loadu_si512(&high_places), words)));
}

// The low bytes of four pairs.
TNTVT_AVX2 inline void store_low_bytes(uint8_t* dst, __m256d cb, __m256d y0, __m256d cr, __m256d y1)
{
    const __m128i low = _mm_set1_epi16(0xFF);
    const __m128i even = _mm_packs_epi32(_mm256_cvttpd_epi32(cb), _mm256_cvttpd_epi32(y0));
    const __m128i odd = _mm_packs_epi32(_mm256_cvttpd_epi32(cr), _mm256_cvttpd_epi32(y1));
    const __m128i bytes = _mm_packus_epi16(_mm_and_si128(even, low), _mm_and_si128(odd, low));
    store_128(dst, _mm_shuffle_epi8(bytes, _mm_setr_epi8(0, 4, 8, 12, 1, 5, 9, 13, 2, 6, 10, 14, 3, 7, 11, 15)));
}

// Places of the low bytes of eight integers and of eight others, for bytes `first` and `first` + 1 of each group.
constexpr std::array<uint8_t, 64> places_of_low_bytes(size_t first)
{
    std::array<uint8_t, 64> result{};
    for (size_t i = 0; i < 8; ++i) {
        result[4 * i + first] = static_cast<uint8_t>(8 * i);
        result[4 * i + first + 1] = static_cast<uint8_t>(64 + 8 * i);
    }
    return result;
}
alignas(64) inline constexpr std::array<uint8_t, 64> low_places[] = {places_of_low_bytes(0), places_of_low_bytes(2)};

// The low bytes of eight pairs.
TNTVT_AVX512 inline void store_low_bytes(uint8_t* dst, __m512d cb, __m512d y0, __m512d cr, __m512d y1)
{
    const __m512i even =
        _mm512_permutex2var_epi8(_mm512_cvttpd_epi64(cb), _mm512_loadu_si512(low_places), _mm512_cvttpd_epi64(y0));
    const __m512i odd =
        _mm512_permutex2var_epi8(_mm512_cvttpd_epi64(cr), _mm512_loadu_si512(low_places + 1), _mm512_cvttpd_epi64(y1));
    store_256(dst, _mm256_blend_epi16(_mm512_castsi512_si256(even), _mm512_castsi512_si256(odd), 0b10101010));
}

#endif

}  // namespace tintvert

#define TNTVT_STEPS "ycbcr8/rgb_to_2vuy_steps.inc"
#include "simd/each_width.h"

namespace tintvert {

template <class Matrix, const Channels& at>
struct ConvertPairs {
#if defined(__x86_64__)
    static long avx2(uint8_t* dst, const uint8_t* src, long pairs)
    {
        return width_256::convert_pairs<Matrix, at>(dst, src, pairs);
    }
    static long avx512(uint8_t* dst, const uint8_t* src, long pairs)
    {
        return width_512::convert_pairs<Matrix, at>(dst, src, pairs);
    }
#endif
};

}  // namespace tintvert
