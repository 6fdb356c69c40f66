// RGB to `2vuy` by four or eight pairs of pixels a step: in whole numbers and, where those cannot tell, in doubles.
//
// Weights have three decimals, so every value is a whole number of `unit`s. Doubles err by less than 1e-10, which is
// far less than a unit: they truncate to the quotient, unless the value is a whole number, which they may just miss.
// By the matrix of video range the chroma of every grey is one; other values come on one by chance.
//
// A `Matrix` gives the weights with its powers of two multiplied in.
#pragma once

#include <array>

#include "frame/doubles.h"
#include "frame/registers.h"

namespace tintvert {

// Unfiltered chroma of the pixel before a pair.
struct Carried {
    double cb, cr;
};

// A step reads the pixel before it.
template <class Matrix, const Channels& at>
Carried carried_to(const uint8_t* src)
{
    const uint8_t* pixel = src - 4;
    const auto before = Matrix::convert(pixel[at.r], pixel[at.g], pixel[at.b]);
    return {before.cb, before.cr};
}

// Simd steps have the quarter of the filter in the chroma's weights, and carry a quarter of the chroma.
template <class Matrix>
struct Quartered {
    static constexpr Weights cb = scaled(Matrix::cb, 0.25), cr = scaled(Matrix::cr, 0.25);
};

// Units to one: the whole part of a value is then the quotient of its upper 16 bits by 125.
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

// What stands in alpha's place, and weighs the row's offset.
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
    static constexpr WordWeights chroma = word_weights(Quartered<Matrix>::cb, Quartered<Matrix>::cr, at);
};

struct Words8 {
    __m256i even, odd;
};

template <int alpha>
TNTVT_AVX2 inline Words8 words_8(__m256i pixels)
{
    constexpr int there = alpha < 2 ? 0b01010101 : 0b10101010;
    const __m256i constant = _mm256_set1_epi16(in_place_of_alpha);
    const __m256i even = _mm256_and_si256(pixels, _mm256_set1_epi16(0xFF)), odd = _mm256_srli_epi16(pixels, 8);
    if constexpr (alpha % 2 == 0)
        return {_mm256_blend_epi16(even, constant, there), odd};
    else
        return {even, _mm256_blend_epi16(odd, constant, there)};
}

TNTVT_AVX2 inline __m256i units_8(const WordWeights& w, const Words8& pixels)
{
    const __m256i high = _mm256_add_epi32(_mm256_madd_epi16(pixels.even, _mm256_set1_epi64x(w.even_high)),
                                          _mm256_madd_epi16(pixels.odd, _mm256_set1_epi64x(w.odd_high)));
    const __m256i low = _mm256_add_epi32(_mm256_madd_epi16(pixels.even, _mm256_set1_epi64x(w.even_low)),
                                         _mm256_madd_epi16(pixels.odd, _mm256_set1_epi64x(w.odd_low)));
    return _mm256_add_epi32(_mm256_slli_epi32(high, 10), low);
}

// previous + centre + centre + next, for either pixel of a pair.
TNTVT_AVX2 inline __m256i filter_words_8(__m256i pixels, __m256i before)
{
    const __m256i sum = _mm256_add_epi16(pixels, before);
    return _mm256_add_epi16(sum, _mm256_shuffle_epi32(sum, 0b10'11'00'01));
}

// Four pairs. False, and nothing stored, if one of the values is a whole number.
template <class Matrix, const Channels& at>
TNTVT_AVX2 inline bool whole_numbers_avx2(uint8_t* dst, const uint8_t* src)
{
    using Pair = OfPair<Matrix, at>;
    const Words8 pixels = words_8<place_of_alpha(at)>(load_256(src));
    const Words8 before = words_8<place_of_alpha(at)>(load_256(src - 4));
    const __m256i y = units_8(Pair::y, pixels);
    const __m256i chroma =
        units_8(Pair::chroma, {filter_words_8(pixels.even, before.even), filter_words_8(pixels.odd, before.odd)});
    const __m256i lower = _mm256_blend_epi16(chroma, _mm256_slli_epi32(y, 16), 0b10101010);
    const __m256i upper = _mm256_blend_epi16(_mm256_srli_epi32(chroma, 16), y, 0b10101010);
    const __m256i quotients = _mm256_mulhi_epu16(upper, _mm256_set1_epi16(static_cast<short>(fraction_of_125)));
    const __m256i no_rest = _mm256_cmpeq_epi16(lower, _mm256_setzero_si256());
    if (_mm256_movemask_epi8(no_rest) != 0) {
        const __m256i products = _mm256_mullo_epi16(_mm256_srli_epi16(quotients, 6), _mm256_set1_epi16(125));
        if (_mm256_testz_si256(no_rest, _mm256_cmpeq_epi16(upper, products)) == 0) return false;
    }
    const __m256i bytes = _mm256_srli_epi16(_mm256_slli_epi16(quotients, 2), 8);
    store_128(dst, _mm_packus_epi16(_mm256_castsi256_si128(bytes), _mm256_extracti128_si256(bytes, 1)));
    return true;
}

// The low bytes of four pairs.
TNTVT_AVX2 inline __m128i groups_4(__m256d cb, __m256d y0, __m256d cr, __m256d y1)
{
    const __m128i low = _mm_set1_epi16(0xFF);
    const __m128i even = _mm_packs_epi32(_mm256_cvttpd_epi32(cb), _mm256_cvttpd_epi32(y0));
    const __m128i odd = _mm_packs_epi32(_mm256_cvttpd_epi32(cr), _mm256_cvttpd_epi32(y1));
    const __m128i bytes = _mm_packus_epi16(_mm_and_si128(even, low), _mm_and_si128(odd, low));
    return _mm_shuffle_epi8(bytes, _mm_setr_epi8(0, 4, 8, 12, 1, 5, 9, 13, 2, 6, 10, 14, 3, 7, 11, 15));
}

template <class Matrix, const Channels& at>
TNTVT_AVX2 long doubles_avx2(uint8_t* dst, const uint8_t* src, long pairs)
{
    using Quarter = Quartered<Matrix>;
    const Carried carried = carried_to<Matrix, at>(src);
    __m256d previous_cb = _mm256_set1_pd(carried.cb * 0.25), previous_cr = _mm256_set1_pd(carried.cr * 0.25);
    long done = 0;
    for (; pairs - done >= 4; done += 4) {
        const __m256i pixels = load_256(src + done * 8);
        const Rgb4 even = channels_4(pixels, at, 0), odd = channels_4(pixels, at, 1);
        const __m256d cb = row_4(Quarter::cb, odd), cr = row_4(Quarter::cr, odd);
        const __m256d filtered_cb = filter_4(shifted_in_4(previous_cb, cb), row_4(Quarter::cb, even), cb);
        const __m256d filtered_cr = filter_4(shifted_in_4(previous_cr, cr), row_4(Quarter::cr, even), cr);
        store_128(dst + done * 4, groups_4(filtered_cb, row_4(Matrix::y, even), filtered_cr, row_4(Matrix::y, odd)));
        previous_cb = cb;
        previous_cr = cr;
    }
    return done;
}

struct Words16 {
    __m512i even, odd;
};

template <int alpha>
TNTVT_AVX512 inline Words16 words_16(__m512i pixels)
{
    constexpr __mmask32 elsewhere = alpha < 2 ? 0xAAAAAAAA : 0x55555555;
    const __m512i constant = _mm512_set1_epi16(in_place_of_alpha), low_bytes = _mm512_set1_epi16(0xFF);
    if constexpr (alpha % 2 == 0)
        return {_mm512_mask_blend_epi16(elsewhere, constant, _mm512_and_si512(pixels, low_bytes)),
                _mm512_srli_epi16(pixels, 8)};
    else
        return {_mm512_and_si512(pixels, low_bytes), _mm512_mask_srli_epi16(constant, elsewhere, pixels, 8)};
}

TNTVT_AVX512 inline __m512i units_16(const WordWeights& w, const Words16& pixels)
{
    const __m512i high = _mm512_add_epi32(_mm512_madd_epi16(pixels.even, _mm512_set1_epi64(w.even_high)),
                                          _mm512_madd_epi16(pixels.odd, _mm512_set1_epi64(w.odd_high)));
    const __m512i low = _mm512_add_epi32(_mm512_madd_epi16(pixels.even, _mm512_set1_epi64(w.even_low)),
                                         _mm512_madd_epi16(pixels.odd, _mm512_set1_epi64(w.odd_low)));
    return _mm512_add_epi32(_mm512_slli_epi32(high, 10), low);
}

TNTVT_AVX512 inline __m512i filter_words_16(__m512i pixels, __m512i before)
{
    const __m512i sum = _mm512_add_epi16(pixels, before);
    return _mm512_add_epi16(sum, _mm512_shuffle_epi32(sum, _MM_PERM_CDAB));
}

constexpr std::array<uint8_t, 64> places_of_high_bytes()
{
    std::array<uint8_t, 64> result{};
    for (size_t i = 0; i < 32; ++i) result[i] = static_cast<uint8_t>(2 * i + 1);
    return result;
}
alignas(64) inline constexpr std::array<uint8_t, 64> high_places = places_of_high_bytes();

// Eight pairs. False, and nothing stored, if one of the values is a whole number.
template <class Matrix, const Channels& at>
TNTVT_AVX512 inline bool whole_numbers_avx512(uint8_t* dst, const uint8_t* src)
{
    using Pair = OfPair<Matrix, at>;
    const Words16 pixels = words_16<place_of_alpha(at)>(_mm512_loadu_si512(src));
    const Words16 before = words_16<place_of_alpha(at)>(_mm512_loadu_si512(src - 4));
    const __m512i y = units_16(Pair::y, pixels);
    const __m512i chroma =
        units_16(Pair::chroma, {filter_words_16(pixels.even, before.even), filter_words_16(pixels.odd, before.odd)});
    const __m512i lower = _mm512_mask_blend_epi16(0xAAAAAAAA, chroma, _mm512_slli_epi32(y, 16));
    const __m512i upper = _mm512_mask_blend_epi16(0xAAAAAAAA, _mm512_srli_epi32(chroma, 16), y);
    const __m512i quotients = _mm512_mulhi_epu16(upper, _mm512_set1_epi16(static_cast<short>(fraction_of_125)));
    const __mmask32 no_rest = _mm512_testn_epi16_mask(lower, lower);
    if (no_rest != 0) {
        const __m512i products = _mm512_mullo_epi16(_mm512_srli_epi16(quotients, 6), _mm512_set1_epi16(125));
        if (_mm512_mask_cmpeq_epi16_mask(no_rest, upper, products) != 0) return false;
    }
    const __m512i bytes = _mm512_permutexvar_epi8(_mm512_loadu_si512(&high_places), _mm512_slli_epi16(quotients, 2));
    store_256(dst, _mm512_castsi512_si256(bytes));
    return true;
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
TNTVT_AVX512 inline __m256i groups_8(__m512d cb, __m512d y0, __m512d cr, __m512d y1)
{
    const __m512i even =
        _mm512_permutex2var_epi8(_mm512_cvttpd_epi64(cb), _mm512_loadu_si512(low_places), _mm512_cvttpd_epi64(y0));
    const __m512i odd =
        _mm512_permutex2var_epi8(_mm512_cvttpd_epi64(cr), _mm512_loadu_si512(low_places + 1), _mm512_cvttpd_epi64(y1));
    return _mm256_blend_epi16(_mm512_castsi512_si256(even), _mm512_castsi512_si256(odd), 0b10101010);
}

template <class Matrix, const Channels& at>
TNTVT_AVX512 long doubles_avx512(uint8_t* dst, const uint8_t* src, long pairs)
{
    using Quarter = Quartered<Matrix>;
    const Carried carried = carried_to<Matrix, at>(src);
    __m512d previous_cb = _mm512_set1_pd(carried.cb * 0.25), previous_cr = _mm512_set1_pd(carried.cr * 0.25);
    long done = 0;
    for (; pairs - done >= 8; done += 8) {
        const __m512i pixels = _mm512_loadu_si512(src + done * 8);
        const Rgb8 even = channels_8(pixels, at, 0), odd = channels_8(pixels, at, 1);
        const __m512d cb = row_8(Quarter::cb, odd), cr = row_8(Quarter::cr, odd);
        const __m512d filtered_cb = filter_8(shifted_in_8(previous_cb, cb), row_8(Quarter::cb, even), cb);
        const __m512d filtered_cr = filter_8(shifted_in_8(previous_cr, cr), row_8(Quarter::cr, even), cr);
        store_256(dst + done * 4, groups_8(filtered_cb, row_8(Matrix::y, even), filtered_cr, row_8(Matrix::y, odd)));
        previous_cb = cb;
        previous_cr = cr;
    }
    return done;
}

// A step that holds a whole number is made in doubles, and some behind it too: greys come in runs.
constexpr long pairs_in_doubles = 128;

template <class Matrix, const Channels& at>
TNTVT_AVX2 long pairs_avx2(uint8_t* dst, const uint8_t* src, long pairs)
{
    long done = 0;
    while (pairs - done >= 4) {
        while (pairs - done >= 4 && whole_numbers_avx2<Matrix, at>(dst + done * 4, src + done * 8)) done += 4;
        const long left = pairs - done;
        done +=
            doubles_avx2<Matrix, at>(dst + done * 4, src + done * 8, left < pairs_in_doubles ? left : pairs_in_doubles);
    }
    return done;
}

template <class Matrix, const Channels& at>
TNTVT_AVX512 long pairs_avx512(uint8_t* dst, const uint8_t* src, long pairs)
{
    long done = 0;
    while (pairs - done >= 8) {
        while (pairs - done >= 8 && whole_numbers_avx512<Matrix, at>(dst + done * 4, src + done * 8)) done += 8;
        const long left = pairs - done;
        done += doubles_avx512<Matrix, at>(dst + done * 4, src + done * 8,
                                           left < pairs_in_doubles ? left : pairs_in_doubles);
    }
    return done;
}

}  // namespace tintvert
