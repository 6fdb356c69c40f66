// RGB to `v210` by whole groups in registers of doubles: 4 groups at AVX2, 8 at AVX-512. A lane is a group, and
// each of three rounds takes a pair of every group, so that the chroma before a pair is in the same lane of the
// round before; only before pair 0 it is one lane down.
//
// A `Matrix` gives the weights with its powers of two multiplied in, `chroma_scale` being that of its chroma.
#pragma once

#include <array>

#include "frame/doubles.h"
#include "frame/simd.h"

namespace tintvert {

// Unfiltered chroma of the pixel before the next group.
// QUIRK (keeps_chroma_start_of_512): it begins at 512.0 in every matrix. VideoRange601 has 128.0 for
// neutral, so the first Cb and the first Cr of its lines come out 384 too high.
struct Carried {
    double cb = 512.0, cr = 512.0;
};

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

// Pairs of pixels, eight bytes each, 4 or 8 a register.
struct Pairs4 {
    __m256i at[3];
};
struct Pairs8 {
    __m512i at[3];
};

TNTVT_AVX2 inline __m256i eight_pixels(const uint8_t* src, long pixel_bytes)
{
    if (pixel_bytes == 4) return _mm256_loadu_si256(reinterpret_cast<const __m256i*>(src));
    const __m256i halves =
        _mm256_inserti128_si256(_mm256_castsi128_si256(_mm_loadu_si128(reinterpret_cast<const __m128i*>(src))),
                                _mm_loadu_si128(reinterpret_cast<const __m128i*>(src + 12)), 1);
    return _mm256_shuffle_epi8(
        halves, _mm256_broadcastsi128_si256(_mm_setr_epi8(0, 1, 2, -1, 3, 4, 5, -1, 6, 7, 8, -1, 9, 10, 11, -1)));
}

// Pair 0, 1 and 2 of four groups, from twelve pairs in a row.
TNTVT_AVX2 inline Pairs4 pairs_of_groups(__m256i a, __m256i b, __m256i c)
{
    const __m256i pairs_0 = _mm256_blend_epi32(_mm256_blend_epi32(a, b, 0b00110000), c, 0b00001100);
    const __m256i pairs_1 = _mm256_blend_epi32(_mm256_blend_epi32(a, b, 0b11000011), c, 0b00110000);
    const __m256i pairs_2 = _mm256_blend_epi32(_mm256_blend_epi32(a, b, 0b00001100), c, 0b11000011);
    return {{_mm256_permute4x64_epi64(pairs_0, 0b01'10'11'00), _mm256_permute4x64_epi64(pairs_1, 0b10'11'00'01),
             _mm256_permute4x64_epi64(pairs_2, 0b11'00'01'10)}};
}

TNTVT_AVX2 inline __m128i word_4(__m256d low, __m256d middle, __m256d top)
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
    for (int i = 0; i < 4; ++i) _mm_storeu_si128(reinterpret_cast<__m128i*>(dst + 16 * i), groups[i]);
}

template <class Matrix>
TNTVT_AVX2 inline __m256d filtered_4(__m256d previous, __m256d centre, __m256d next)
{
    const __m256d sum = filter_4(previous, centre, next);
    return Matrix::filter_half == 0.0 ? sum : _mm256_add_pd(sum, _mm256_set1_pd(Matrix::filter_half));
}

// Four bytes beyond the groups may be read of three-byte pixels.
template <class Matrix, class Order>
TNTVT_AVX2 long groups_avx2(uint8_t* dst, const uint8_t* src, long groups, Carried& carried)
{
    constexpr long eight = 8 * Order::bytes;
    __m256d before_cb = _mm256_set1_pd(carried.cb * Matrix::chroma_scale);
    __m256d before_cr = _mm256_set1_pd(carried.cr * Matrix::chroma_scale);
    long done = 0;
    for (; groups - done >= 4; done += 4, src += 3 * eight, dst += 64) {
        const Pairs4 pairs = pairs_of_groups(eight_pixels(src, Order::bytes), eight_pixels(src + eight, Order::bytes),
                                             eight_pixels(src + 2 * eight, Order::bytes));
        __m256d y[6], cb[6], cr[6];
        for (int i = 0; i < 6; ++i) {
            const Rgb4 pixel = channels_4(pairs.at[i / 2], Order::at, i % 2);
            y[i] = row_4(Matrix::y, pixel);
            cb[i] = row_4(Matrix::cb_row, pixel);
            cr[i] = row_4(Matrix::cr_row, pixel);
        }
        const __m256d cb_0 = filtered_4<Matrix>(shifted_in_4(before_cb, cb[5]), cb[0], cb[1]);
        const __m256d cr_0 = filtered_4<Matrix>(shifted_in_4(before_cr, cr[5]), cr[0], cr[1]);
        store_groups(dst, word_4(cb_0, y[0], cr_0), word_4(y[1], filtered_4<Matrix>(cb[1], cb[2], cb[3]), y[2]),
                     word_4(filtered_4<Matrix>(cr[1], cr[2], cr[3]), y[3], filtered_4<Matrix>(cb[3], cb[4], cb[5])),
                     word_4(y[4], filtered_4<Matrix>(cr[3], cr[4], cr[5]), y[5]));
        before_cb = cb[5];
        before_cr = cr[5];
    }
    carried = {last_4(before_cb) / Matrix::chroma_scale, last_4(before_cr) / Matrix::chroma_scale};
    return done;
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

TNTVT_AVX512 inline Pairs8 load_pairs(Bgra, const uint8_t* src)
{
    return {{sixteen_pixels(src, 0), sixteen_pixels(src + 64, 0), sixteen_pixels(src + 128, uint64_t{1} << 63)}};
}

TNTVT_AVX512 inline Pairs8 load_pairs(Argb, const uint8_t* src)
{
    return {{sixteen_pixels(src, 1), sixteen_pixels(src + 64, 0), sixteen_pixels(src + 128, 0)}};
}

TNTVT_AVX512 inline Pairs8 load_pairs(Rgb, const uint8_t* src)
{
    return {{sixteen_triples(src), sixteen_triples(src + 48), sixteen_triples(src + 96)}};
}

// Pair `pair` of eight groups, from 24 pairs in a row.
TNTVT_AVX512 inline __m512i pairs_of_groups(const Pairs8& pairs, int pair)
{
    const __m512i places = _mm512_add_epi64(_mm512_setr_epi64(0, 3, 6, 9, 12, 15, 18, 21), _mm512_set1_epi64(pair));
    const __m512i below_16 = _mm512_permutex2var_epi64(pairs.at[0], places, pairs.at[1]);
    const __mmask8 above = _mm512_cmpgt_epi64_mask(places, _mm512_set1_epi64(15));
    return _mm512_mask_permutexvar_epi64(below_16, above, places, pairs.at[2]);
}

TNTVT_AVX512 inline __m512i word_8(__m512d low, __m512d middle, __m512d top)
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

template <class Matrix>
TNTVT_AVX512 inline __m512d filtered_8(__m512d previous, __m512d centre, __m512d next)
{
    const __m512d sum = filter_8(previous, centre, next);
    return Matrix::filter_half == 0.0 ? sum : _mm512_add_pd(sum, _mm512_set1_pd(Matrix::filter_half));
}

template <class Matrix, class Order>
TNTVT_AVX512 long groups_avx512(uint8_t* dst, const uint8_t* src, long groups, Carried& carried)
{
    __m512d before_cb = _mm512_set1_pd(carried.cb * Matrix::chroma_scale);
    __m512d before_cr = _mm512_set1_pd(carried.cr * Matrix::chroma_scale);
    long done = 0;
    for (; groups - done >= 8; done += 8, src += 48 * Order::bytes, dst += 128) {
        const Pairs8 pairs = load_pairs(Order{}, src);
        __m512d y[6], cb[6], cr[6];
        for (int i = 0; i < 6; ++i) {
            const Rgb8 pixel = channels_8(pairs_of_groups(pairs, i / 2), Order::at, i % 2);
            y[i] = row_8(Matrix::y, pixel);
            cb[i] = row_8(Matrix::cb_row, pixel);
            cr[i] = row_8(Matrix::cr_row, pixel);
        }
        const __m512d cb_0 = filtered_8<Matrix>(shifted_in_8(before_cb, cb[5]), cb[0], cb[1]);
        const __m512d cr_0 = filtered_8<Matrix>(shifted_in_8(before_cr, cr[5]), cr[0], cr[1]);
        store_groups(dst, word_8(cb_0, y[0], cr_0), word_8(y[1], filtered_8<Matrix>(cb[1], cb[2], cb[3]), y[2]),
                     word_8(filtered_8<Matrix>(cr[1], cr[2], cr[3]), y[3], filtered_8<Matrix>(cb[3], cb[4], cb[5])),
                     word_8(y[4], filtered_8<Matrix>(cr[3], cr[4], cr[5]), y[5]));
        before_cb = cb[5];
        before_cr = cr[5];
    }
    carried = {last_8(before_cb) / Matrix::chroma_scale, last_8(before_cr) / Matrix::chroma_scale};
    return done;
}

}  // namespace tintvert
