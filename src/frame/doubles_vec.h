// Doubles of bytes, four or eight a register, and what moves them along. Pixels come as pairs, eight bytes each.
#pragma once

#include "frame/doubles.h"
#include "simd/vec.h"

#if defined(__x86_64__)

namespace tintvert {

// Shuffles byte `at` of each eight to the bottom and clears the others.
inline __m128i byte_alone(int at)
{
    constexpr auto cleared = static_cast<long long>(0x8080808080808000);
    return _mm_set_epi64x(cleared | (8 + at), cleared | at);
}

// Byte `at` of each eight. It becomes the low bits of 2^52, from which that is subtracted again.
TNTVT_AVX2 inline __m256d to_doubles(__m256i pairs, int at)
{
    const __m256d two_52 = _mm256_set1_pd(4503599627370496.0);
    const __m256i byte = _mm256_shuffle_epi8(pairs, _mm256_broadcastsi128_si256(byte_alone(at)));
    return _mm256_sub_pd(_mm256_or_pd(_mm256_castsi256_pd(byte), two_52), two_52);
}

TNTVT_AVX512 inline __m512d to_doubles(__m512i pairs, int at)
{
    return _mm512_cvtepi64_pd(_mm512_shuffle_epi8(pairs, _mm512_broadcast_i32x4(byte_alone(at))));
}

// The last of `before`, then all but the last of `now`.
TNTVT_AVX2 inline __m256d shifted_in(__m256d before, __m256d now)
{
    return _mm256_shuffle_pd(_mm256_permute2f128_pd(before, now, 0x21), now, 0b0101);
}

TNTVT_AVX512 inline __m512d shifted_in(__m512d before, __m512d now)
{
    return _mm512_castsi512_pd(_mm512_alignr_epi64(_mm512_castpd_si512(now), _mm512_castpd_si512(before), 7));
}

TNTVT_AVX2 inline double last(__m256d x)
{
    const __m128d high = _mm256_extractf128_pd(x, 1);
    return _mm_cvtsd_f64(_mm_unpackhi_pd(high, high));
}

TNTVT_AVX512 inline double last(__m512d x)
{
    const __m128d high = _mm512_extractf64x2_pd(x, 3);
    return _mm_cvtsd_f64(_mm_unpackhi_pd(high, high));
}

}  // namespace tintvert

#endif
