// Rows of a matrix in double precision, four or eight pairs of pixels at a time.
//
// A sum is formed in one order: red and green, blue, the offsets. A difference is the sum with a negative weight,
// to the last bit, and a power of two may be multiplied into weights and offsets, since it scales every step
// without rounding. Nothing else may be moved.
#pragma once

#include <cstdint>

#include "frame/intrinsics.h"
#include "frame/simd.h"

namespace tintvert {

struct Weights {
    double r, g, b, offset, half = 0.0;
};

constexpr Weights scaled(const Weights& w, double power)
{
    return {w.r * power, w.g * power, w.b * power, w.offset * power, w.half * power};
}

// Where the channels of a pixel stand in its four bytes.
struct Channels {
    int r, g, b;
};

// Shuffles byte `at` of each eight to the bottom and clears the rest.
inline __m128i byte_alone(int at)
{
    constexpr auto cleared = static_cast<long long>(0x8080808080808000);
    return _mm_set_epi64x(cleared | (8 + at), cleared | at);
}

struct Rgb4 {
    __m256d r, g, b;
};

// Byte `at` of each eight. It becomes the low bits of 2^52, from which that is taken off again.
TNTVT_AVX2 inline __m256d doubles_4(__m256i pairs, int at)
{
    const __m256d two_52 = _mm256_set1_pd(4503599627370496.0);
    const __m256i byte = _mm256_shuffle_epi8(pairs, _mm256_broadcastsi128_si256(byte_alone(at)));
    return _mm256_sub_pd(_mm256_or_pd(_mm256_castsi256_pd(byte), two_52), two_52);
}

TNTVT_AVX2 inline Rgb4 channels_4(__m256i pairs, const Channels& at, int pixel)
{
    return {doubles_4(pairs, 4 * pixel + at.r), doubles_4(pairs, 4 * pixel + at.g), doubles_4(pairs, 4 * pixel + at.b)};
}

TNTVT_AVX2 inline __m256d row_4(const Weights& w, const Rgb4& p)
{
    const __m256d red_green =
        _mm256_add_pd(_mm256_mul_pd(p.r, _mm256_set1_pd(w.r)), _mm256_mul_pd(p.g, _mm256_set1_pd(w.g)));
    const __m256d sum = _mm256_add_pd(red_green, _mm256_mul_pd(p.b, _mm256_set1_pd(w.b)));
    const __m256d moved = _mm256_add_pd(sum, _mm256_set1_pd(w.offset));
    return w.half == 0.0 ? moved : _mm256_add_pd(moved, _mm256_set1_pd(w.half));
}

// The last of `before`, then all but the last of `now`.
TNTVT_AVX2 inline __m256d shifted_in_4(__m256d before, __m256d now)
{
    return _mm256_shuffle_pd(_mm256_permute2f128_pd(before, now, 0x21), now, 0b0101);
}

// ((previous + centre) + centre) + next
TNTVT_AVX2 inline __m256d filter_4(__m256d previous, __m256d centre, __m256d next)
{
    return _mm256_add_pd(_mm256_add_pd(_mm256_add_pd(previous, centre), centre), next);
}

TNTVT_AVX2 inline double last_4(__m256d x)
{
    const __m128d high = _mm256_extractf128_pd(x, 1);
    return _mm_cvtsd_f64(_mm_unpackhi_pd(high, high));
}

struct Rgb8 {
    __m512d r, g, b;
};

TNTVT_AVX512 inline __m512d doubles_8(__m512i pairs, int at)
{
    return _mm512_cvtepi64_pd(_mm512_shuffle_epi8(pairs, _mm512_broadcast_i32x4(byte_alone(at))));
}

TNTVT_AVX512 inline Rgb8 channels_8(__m512i pairs, const Channels& at, int pixel)
{
    return {doubles_8(pairs, 4 * pixel + at.r), doubles_8(pairs, 4 * pixel + at.g), doubles_8(pairs, 4 * pixel + at.b)};
}

TNTVT_AVX512 inline __m512d row_8(const Weights& w, const Rgb8& p)
{
    const __m512d red_green =
        _mm512_add_pd(_mm512_mul_pd(p.r, _mm512_set1_pd(w.r)), _mm512_mul_pd(p.g, _mm512_set1_pd(w.g)));
    const __m512d sum = _mm512_add_pd(red_green, _mm512_mul_pd(p.b, _mm512_set1_pd(w.b)));
    const __m512d moved = _mm512_add_pd(sum, _mm512_set1_pd(w.offset));
    return w.half == 0.0 ? moved : _mm512_add_pd(moved, _mm512_set1_pd(w.half));
}

TNTVT_AVX512 inline __m512d shifted_in_8(__m512d before, __m512d now)
{
    return _mm512_castsi512_pd(_mm512_alignr_epi64(_mm512_castpd_si512(now), _mm512_castpd_si512(before), 7));
}

TNTVT_AVX512 inline __m512d filter_8(__m512d previous, __m512d centre, __m512d next)
{
    return _mm512_add_pd(_mm512_add_pd(_mm512_add_pd(previous, centre), centre), next);
}

TNTVT_AVX512 inline double last_8(__m512d x)
{
    const __m128d high = _mm512_extractf64x2_pd(x, 3);
    return _mm_cvtsd_f64(_mm_unpackhi_pd(high, high));
}

}  // namespace tintvert
