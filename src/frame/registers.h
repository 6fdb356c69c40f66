// Registers of 16 and 32 bytes to and from any address.
#pragma once

#include "frame/intrinsics.h"
#include "frame/simd.h"

#if defined(__x86_64__)

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
#endif
