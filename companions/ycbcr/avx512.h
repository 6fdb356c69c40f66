// The matrix thirty-two pixels at a time, with AVX-512 F, BW, VL, DQ and VBMI: the sums of avx2.h, and byte
// permutes across the whole register that put samples and pixels in their places. What a mask leaves out of a
// load or a store does not fault.
#pragma once

#include <immintrin.h>

#include "matrix.h"

#define YCBCR_AVX512 __attribute__((target("avx512f,avx512bw,avx512vl,avx512dq,avx512vbmi"))) inline

namespace ycbcr {

// Where the bytes of a register come from.
struct Places {
    alignas(64) uint8_t of[64];
};

YCBCR_AVX512 __m512i load(const Places& places) { return _mm512_load_si512(places.of); }

// The first `count` bytes, 1 to 64 of them, and zeros.
YCBCR_AVX512 __m512i load_bytes(const uint8_t* address, int count)
{
    return _mm512_maskz_loadu_epi8(~uint64_t{0} >> (64 - count), address);
}

// The first `count` bytes, 1 to 128 of them, and zeros.
struct TwoRegisters {
    __m512i low, high;
};

YCBCR_AVX512 TwoRegisters load_two(const uint8_t* address, int count)
{
    if (count <= 64) return {load_bytes(address, count), _mm512_setzero_si512()};
    return {load_bytes(address, 64), load_bytes(address + 64, count - 64)};
}

struct Weights512 {
    __m512i luma, blue_red, green;
};

YCBCR_AVX512 __m512i alternate_512(int cb, int cr)
{
    return _mm512_set1_epi32(static_cast<int>(static_cast<uint32_t>(cr) << 16 | static_cast<uint32_t>(cb)));
}

YCBCR_AVX512 Weights512 widen_512(const Weights& w)
{
    return {alternate_512(w.luma, w.luma), alternate_512(w.blue_cb, w.red_cr), alternate_512(w.green_cb, w.green_cr)};
}

// Luma words in the order of the pixels, and the chroma words Cb, Cr of each pair in the same places.
struct Operands512 {
    __m512i luma, chroma;
};

// Pixels 0 to 15 and 16 to 31 as bytes.
struct Pixels512 {
    __m512i first, second;
};

// Packed, each 16 bytes hold eight pixels: their blue, then their green; and in the second register, bytes 64
// to 127, their red, then their alpha.
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

YCBCR_AVX512 Pixels512 convert(const Weights512& w, const Operands512& of)
{
    const __m512i even = _mm512_set4_epi32(0x0D0C0D0C, 0x09080908, 0x05040504, 0x01000100);
    const __m512i odd = _mm512_set4_epi32(0x0F0E0F0E, 0x0B0A0B0A, 0x07060706, 0x03020302);
    const __m512i grey = _mm512_sub_epi16(_mm512_mulhi_epu16(of.luma, w.luma), _mm512_set1_epi16(luma_offset));
    const __m512i blue_red = _mm512_mulhrs_epi16(of.chroma, w.blue_red);
    const __m512i shares = _mm512_mulhrs_epi16(of.chroma, w.green);
    const __m512i exchanged = _mm512_maskz_rol_epi32(0xFFFF, shares, 16);
    const __m512i blue = _mm512_adds_epi16(grey, _mm512_shuffle_epi8(blue_red, even));
    const __m512i red = _mm512_adds_epi16(grey, _mm512_shuffle_epi8(blue_red, odd));
    const __m512i green = _mm512_sub_epi16(grey, _mm512_add_epi16(shares, exchanged));
    const __m512i bg = _mm512_packus_epi16(_mm512_srai_epi16(blue, 6), _mm512_srai_epi16(green, 6));
    const __m512i ra = _mm512_packus_epi16(_mm512_srai_epi16(red, 6), _mm512_set1_epi16(255));
    return {_mm512_permutex2var_epi8(bg, load(first_sixteen), ra),
            _mm512_permutex2var_epi8(bg, load(second_sixteen), ra)};
}

YCBCR_AVX512 void store_32(uint8_t* dst, const Pixels512& of)
{
    _mm512_storeu_si512(dst, of.first);
    _mm512_storeu_si512(dst + 64, of.second);
}

// The first `count` pixels, 1 to 32 of them.
YCBCR_AVX512 void store_pixels(uint8_t* dst, const Pixels512& of, int count)
{
    const uint32_t mask = ~uint32_t{0} >> (32 - count);
    _mm512_mask_storeu_epi32(dst, static_cast<__mmask16>(mask), of.first);
    _mm512_mask_storeu_epi32(dst + 64, static_cast<__mmask16>(mask >> 16), of.second);
}

YCBCR_AVX512 __m512i centred(__m512i chroma) { return _mm512_xor_si512(chroma, _mm512_set1_epi16(-0x8000)); }

// Bytes to the upper half of words: the first byte, the one `distance` behind it if there are two `rows`, then
// the second byte.
constexpr Places upper_halves(int rows, int distance)
{
    Places places{};
    for (int n = 0; n < 32; ++n) places.of[n * 2 + 1] = static_cast<uint8_t>(n / rows + n % rows * distance);
    return places;
}
inline constexpr Places bytes_to_words = upper_halves(1, 0), two_rows_to_words = upper_halves(2, 16);

YCBCR_AVX512 __m512i to_upper_halves(const Places& places, __m512i bytes)
{
    return _mm512_maskz_permutexvar_epi8(0xAAAAAAAAAAAAAAAA, load(places), bytes);
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

YCBCR_AVX512 __m512i to_words(const Samples& samples, const TwoRegisters& groups)
{
    const __m512i words = _mm512_permutex2var_epi8(groups.low, load(samples.bytes), groups.high);
    return _mm512_and_si512(_mm512_sllv_epi16(words, _mm512_load_si512(samples.shifts)), _mm512_set1_epi16(-64));
}

}  // namespace ycbcr
