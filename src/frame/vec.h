// The intrinsics of x86-64, and registers of 256 and 512 bits by the same names, for steps that are written once (see
// each_width.h). Words have 16 bits, ints 32. Doubles add and multiply by operators.
#pragma once

#include "frame/simd.h"

#if defined(__x86_64__)

// g++ 12 takes the deliberately undefined operands inside many of the 512-bit intrinsics for mistakes.
#if defined(__clang__)
#include <immintrin.h>
#else
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wuninitialized"
#pragma GCC diagnostic ignored "-Wmaybe-uninitialized"
#include <immintrin.h>
#pragma GCC diagnostic pop
#endif

namespace tintvert {

TNTVT_AVX2 inline __m128i load_128(const uint8_t* at) { return _mm_loadu_si128(reinterpret_cast<const __m128i*>(at)); }

TNTVT_AVX2 inline __m256i load_256(const uint8_t* at)
{
    return _mm256_loadu_si256(reinterpret_cast<const __m256i*>(at));
}

// Sixteen bytes from either address, one half each.
TNTVT_AVX2 inline __m256i load_halves(const uint8_t* low, const uint8_t* high)
{
    return _mm256_inserti128_si256(_mm256_castsi128_si256(load_128(low)), load_128(high), 1);
}

TNTVT_AVX2 inline void store_128(uint8_t* at, __m128i value)
{
    _mm_storeu_si128(reinterpret_cast<__m128i*>(at), value);
}

TNTVT_AVX2 inline void store_256(uint8_t* at, __m256i value)
{
    _mm256_storeu_si256(reinterpret_cast<__m256i*>(at), value);
}

// The lowest `count` of 64 bytes, for the last step of a line.
inline uint64_t first_bytes(long count) { return count < 64 ? (uint64_t{1} << count) - 1 : ~uint64_t{0}; }

}  // namespace tintvert

namespace tintvert::width_256 {

using Ints = __m256i;
using Doubles = __m256d;

TNTVT_AVX2 inline Ints load(const uint8_t* at) { return load_256(at); }
TNTVT_AVX2 inline Ints all_words(int value) { return _mm256_set1_epi16(static_cast<short>(value)); }
TNTVT_AVX2 inline Ints all_ints(int value) { return _mm256_set1_epi32(value); }
TNTVT_AVX2 inline Ints all_int64s(int64_t value) { return _mm256_set1_epi64x(value); }
TNTVT_AVX2 inline Doubles all_doubles(double value) { return _mm256_set1_pd(value); }
TNTVT_AVX2 inline Ints in_every_quarter(__m128i bytes) { return _mm256_broadcastsi128_si256(bytes); }

}  // namespace tintvert::width_256

namespace tintvert::width_512 {

using Ints = __m512i;
using Doubles = __m512d;

TNTVT_AVX512 inline Ints load(const uint8_t* at) { return _mm512_loadu_si512(at); }
TNTVT_AVX512 inline Ints all_words(int value) { return _mm512_set1_epi16(static_cast<short>(value)); }
TNTVT_AVX512 inline Ints all_ints(int value) { return _mm512_set1_epi32(value); }
TNTVT_AVX512 inline Ints all_int64s(int64_t value) { return _mm512_set1_epi64(value); }
TNTVT_AVX512 inline Doubles all_doubles(double value) { return _mm512_set1_pd(value); }
TNTVT_AVX512 inline Ints in_every_quarter(__m128i bytes) { return _mm512_broadcast_i32x4(bytes); }

}  // namespace tintvert::width_512

namespace tintvert {

#define TNTVT_VEC_OF_TWO(name, of_256, of_512)                                             \
    TNTVT_AVX2 inline __m256i name(__m256i x, __m256i y) { return _mm256_##of_256(x, y); } \
    TNTVT_AVX512 inline __m512i name(__m512i x, __m512i y) { return _mm512_##of_512(x, y); }

TNTVT_VEC_OF_TWO(bits_and, and_si256, and_si512)
TNTVT_VEC_OF_TWO(bits_xor, xor_si256, xor_si512)
TNTVT_VEC_OF_TWO(add_ints, add_epi32, add_epi32)
TNTVT_VEC_OF_TWO(add_words, add_epi16, add_epi16)
TNTVT_VEC_OF_TWO(add_words_saturating, adds_epi16, adds_epi16)
TNTVT_VEC_OF_TWO(subtract_words, sub_epi16, sub_epi16)
TNTVT_VEC_OF_TWO(multiply_low, mullo_epi16, mullo_epi16)
TNTVT_VEC_OF_TWO(multiply_high, mulhi_epu16, mulhi_epu16)  // unsigned words
TNTVT_VEC_OF_TWO(multiply_high_signed, mulhi_epi16, mulhi_epi16)
TNTVT_VEC_OF_TWO(multiply_rounded, mulhrs_epi16, mulhrs_epi16)    // signed words, (x * y + 0x4000) >> 15
TNTVT_VEC_OF_TWO(multiply_and_add_pairs, madd_epi16, madd_epi16)  // signed words to ints
TNTVT_VEC_OF_TWO(pack_to_bytes, packus_epi16, packus_epi16)       // in each quarter, saturating
TNTVT_VEC_OF_TWO(shuffle_bytes, shuffle_epi8, shuffle_epi8)       // in each quarter

#undef TNTVT_VEC_OF_TWO

#define TNTVT_VEC_SHIFT(name, operation)        \
    template <int bits>                         \
    TNTVT_AVX2 inline __m256i name(__m256i x)   \
    {                                           \
        return _mm256_##operation(x, bits);     \
    }                                           \
    template <int bits>                         \
    TNTVT_AVX512 inline __m512i name(__m512i x) \
    {                                           \
        return _mm512_##operation(x, bits);     \
    }

TNTVT_VEC_SHIFT(shift_words_left, slli_epi16)
TNTVT_VEC_SHIFT(shift_words_right, srli_epi16)
TNTVT_VEC_SHIFT(shift_signed_words_right, srai_epi16)
TNTVT_VEC_SHIFT(shift_ints_left, slli_epi32)
TNTVT_VEC_SHIFT(shift_ints_right, srli_epi32)
TNTVT_VEC_SHIFT(shift_signed_ints_right, srai_epi32)

#undef TNTVT_VEC_SHIFT

// Words 0, 2, 4 ... of `even` and words 1, 3, 5 ... of `odd`.
TNTVT_AVX2 inline __m256i alternate(__m256i even, __m256i odd) { return _mm256_blend_epi16(even, odd, 0b10101010); }
TNTVT_AVX512 inline __m512i alternate(__m512i even, __m512i odd)
{
    return _mm512_mask_blend_epi16(0xAAAAAAAA, even, odd);
}

// Int 1 for int 0, 0 for 1, 3 for 2 ...
TNTVT_AVX2 inline __m256i exchange_ints(__m256i x) { return _mm256_shuffle_epi32(x, 0b10'11'00'01); }
TNTVT_AVX512 inline __m512i exchange_ints(__m512i x) { return _mm512_shuffle_epi32(x, _MM_PERM_CDAB); }

// Which words are 0, and which of these are equal in `x` and `y`.
TNTVT_AVX2 inline __m256i zero_words(__m256i x) { return _mm256_cmpeq_epi16(x, _mm256_setzero_si256()); }
TNTVT_AVX2 inline __m256i equal_words(__m256i among, __m256i x, __m256i y)
{
    return _mm256_and_si256(among, _mm256_cmpeq_epi16(x, y));
}
TNTVT_AVX2 inline bool any_word(__m256i words) { return _mm256_movemask_epi8(words) != 0; }
TNTVT_AVX512 inline __mmask32 zero_words(__m512i x) { return _mm512_testn_epi16_mask(x, x); }
TNTVT_AVX512 inline __mmask32 equal_words(__mmask32 among, __m512i x, __m512i y)
{
    return _mm512_mask_cmpeq_epi16_mask(among, x, y);
}
TNTVT_AVX512 inline bool any_word(__mmask32 words) { return words != 0; }

}  // namespace tintvert

#endif
