// Thirty-two pixels at a time, with AVX-512 F, BW, VL, DQ and VBMI: byte permutes across the whole register put samples
// and pixels in their places. What a mask leaves out of a load or a store does not fault.
#pragma once

#include "simd/vec.h"

#if defined(__x86_64__)

namespace ycbcr::width_512 {

// Where the bytes of a register come from.
struct Places {
    alignas(64) uint8_t of[64];
};

TNTVT_AVX512 inline __m512i load_places(const Places& places) { return _mm512_load_si512(places.of); }

// The first `count` bytes, 1 to 64 of them, and zeros.
TNTVT_AVX512 inline __m512i load_bytes(const uint8_t* address, int count)
{
    return _mm512_maskz_loadu_epi8(~uint64_t{0} >> (64 - count), address);
}

// The first `count` bytes, 1 to 128 of them, and zeros.
struct TwoRegisters {
    __m512i low, high;
};

TNTVT_AVX512 inline TwoRegisters load_two(const uint8_t* address, int count)
{
    if (count <= 64) return {load_bytes(address, count), _mm512_setzero_si512()};
    return {load_bytes(address, 64), load_bytes(address + 64, count - 64)};
}

// Pixels 0 to 15 and 16 to 31 as bytes.
struct Pixels {
    __m512i first, second;
};

// Bytes 0 to 63 are those of `blue_green`, 64 to 127 those of `red_alpha`.
constexpr Places sixteen_from(int pixel)
{
    Places places{};
    for (int n = 0; n < 64; ++n) {
        const int x = pixel + n / 4, channel = n % 4;
        places.of[n] = static_cast<uint8_t>(channel / 2 * 64 + x / 8 * 16 + channel % 2 * 8 + x % 8);
    }
    return places;
}
inline constexpr Places first_sixteen = sixteen_from(0), second_sixteen = sixteen_from(16);

TNTVT_AVX512 inline Pixels interleaved(const PackedPixels& of)
{
    return {_mm512_permutex2var_epi8(of.blue_green, load_places(first_sixteen), of.red_alpha),
            _mm512_permutex2var_epi8(of.blue_green, load_places(second_sixteen), of.red_alpha)};
}

TNTVT_AVX512 inline void store_32(uint8_t* dst, const Pixels& of)
{
    _mm512_storeu_si512(dst, of.first);
    _mm512_storeu_si512(dst + 64, of.second);
}

// The first `count` pixels, 1 to 32 of them.
TNTVT_AVX512 inline void store_pixels(uint8_t* dst, const Pixels& of, int count)
{
    const uint32_t mask = ~uint32_t{0} >> (32 - count);
    _mm512_mask_storeu_epi32(dst, static_cast<__mmask16>(mask), of.first);
    _mm512_mask_storeu_epi32(dst + 64, static_cast<__mmask16>(mask >> 16), of.second);
}

// Bytes to the upper half of words: the first byte, the one `distance` after it if there are two `rows`, then
// the second byte.
constexpr Places upper_halves(int rows, int distance)
{
    Places places{};
    for (int n = 0; n < 32; ++n) places.of[n * 2 + 1] = static_cast<uint8_t>(n / rows + n % rows * distance);
    return places;
}
inline constexpr Places bytes_to_words = upper_halves(1, 0), two_rows_to_words = upper_halves(2, 16);

TNTVT_AVX512 inline __m512i to_upper_halves(const Places& places, __m512i bytes)
{
    return _mm512_maskz_permutexvar_epi8(0xAAAAAAAAAAAAAAAA, load_places(places), bytes);
}

// Every second of 64 samples of `v210`. Each gets a word of its own, where a shift brings it to the top.
struct Samples {
    Places bytes;
    alignas(64) uint16_t shifts[32];
};

constexpr Samples every_second_from(int first)
{
    Samples samples{};
    for (int n = 0; n < 32; ++n) {
        const int sample = first + n * 2, byte = sample / 3 * 4 + sample % 3;
        samples.bytes.of[n * 2] = static_cast<uint8_t>(byte);
        samples.bytes.of[n * 2 + 1] = static_cast<uint8_t>(byte + 1);
        samples.shifts[n] = static_cast<uint16_t>(6 - sample % 3 * 2);
    }
    return samples;
}

// Of pixels that begin with pair 0, 1 or 2 of a group.
inline constexpr Samples chroma_samples[] = {every_second_from(0), every_second_from(4), every_second_from(8)};
inline constexpr Samples luma_samples[] = {every_second_from(1), every_second_from(5), every_second_from(9)};

TNTVT_AVX512 inline __m512i to_words(const Samples& samples, const TwoRegisters& groups)
{
    const __m512i words = _mm512_permutex2var_epi8(groups.low, load_places(samples.bytes), groups.high);
    return _mm512_and_si512(_mm512_sllv_epi16(words, _mm512_load_si512(samples.shifts)), _mm512_set1_epi16(-64));
}

}  // namespace ycbcr::width_512

#endif
