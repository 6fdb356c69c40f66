// 8-bit 4:4:4 with the JPEG coefficients in integers. With 128 taken from Cb and Cr:
//
//   blue    y + cb + floor(cb * 0.772)                    in multiples of 1 / 250
//   green   y - cr + floor(cr * 0.28586 - cb * 0.34414)   in multiples of 1 / 50000
//   red     y + cr + floor(cr * 0.402)                    in multiples of 1 / 500
//
// These are the floors of the values that the scalar code truncates toward zero: below 0 they are one too low. Doubles
// err by far less than those multiples, so only at a whole number may they truncate to another one. Blue and red are
// whole where their chroma is 0, and then exact. Green is whole at cb 0 and cr 0 too, at cb 100 and cr -100, where the
// doubles err upwards or not at all, and at cb -100 and cr 100: there y - 37 comes out just lower for some y, and a
// step that has such a pixel is left to the doubles.
//
// An example, blue of y 10 and cb -100: -77.2 has the floor -78, the sum is 10 - 100 - 78 = -168, and 10 - 177.2 =
// -167.2 truncates to -167.
#pragma once

#include <array>

#include "simd/vec.h"

namespace tintvert {

// In 32768ths: 0.772 is 25296.9, 0.402 is 13172.7. Over 128 the errors sum to less than a multiple.
constexpr int blue_fraction = 25297, red_fraction = 13173;

// In 2^-24ths, the upper and lower twelve bits multiplied apart.
constexpr int green_of_cb = -5773711, green_of_cr = 4795935;

// Words in an int.
constexpr int pair_of(int lower, int upper)
{
    return static_cast<int>(static_cast<uint32_t>(upper) << 16 | (static_cast<uint32_t>(lower) & 0xFFFF));
}

#if defined(__x86_64__)

TNTVT_AVX2 inline bool any_equal(__m256i x, __m256i y) { return _mm256_movemask_epi8(_mm256_cmpeq_epi32(x, y)) != 0; }
TNTVT_AVX512 inline bool any_equal(__m512i x, __m512i y) { return _mm512_cmpeq_epi32_mask(x, y) != 0; }

// Bytes 0, 2, 4 ... of `even` and bytes 1, 3, 5 ... of `odd`.
TNTVT_AVX2 inline __m256i alternate_bytes(__m256i even, __m256i odd)
{
    return _mm256_blendv_epi8(even, odd, _mm256_set1_epi16(static_cast<short>(0xFF00)));
}
TNTVT_AVX512 inline __m512i alternate_bytes(__m512i even, __m512i odd)
{
    return _mm512_mask_blend_epi8(0xAAAAAAAAAAAAAAAA, even, odd);
}

#endif

}  // namespace tintvert

#define TNTVT_STEPS "decode/yuvijg_steps.inc"
#include "simd/each_width.h"

namespace tintvert {

#if defined(__x86_64__)

// Eight pixels; reads 28 bytes.
TNTVT_AVX2 inline width_256::YuvijgWords load_yuvijg_avx2(const uint8_t* src)
{
    const __m128i y = _mm_setr_epi8(0, -1, 0, -1, 3, -1, 3, -1, 6, -1, 6, -1, 9, -1, 9, -1);
    const __m128i chroma = _mm_setr_epi8(1, -1, 2, -1, 4, -1, 5, -1, 7, -1, 8, -1, 10, -1, 11, -1);
    const __m256i bytes = load_halves(src, src + 12),
                  chroma_words = _mm256_shuffle_epi8(bytes, width_256::in_every_quarter(chroma));
    return {_mm256_shuffle_epi8(bytes, width_256::in_every_quarter(y)),
            _mm256_sub_epi16(chroma_words, _mm256_set1_epi16(128))};
}

// Where the bytes of sixteen pixels go in words: Y twice, or Cb and Cr.
constexpr std::array<uint8_t, 64> places_of_yuvijg(size_t first, size_t second)
{
    std::array<uint8_t, 64> result{};
    for (size_t i = 0; i < 16; ++i) {
        result[4 * i] = static_cast<uint8_t>(3 * i + first);
        result[4 * i + 2] = static_cast<uint8_t>(3 * i + second);
    }
    return result;
}
alignas(64) inline constexpr std::array<uint8_t, 64> luma_places = places_of_yuvijg(0, 0);
alignas(64) inline constexpr std::array<uint8_t, 64> chroma_places = places_of_yuvijg(1, 2);

// Of the first 48 bytes.
TNTVT_AVX512 inline width_512::YuvijgWords words_of_yuvijg_avx512(__m512i bytes)
{
    constexpr __mmask64 lower_bytes = 0x5555555555555555;
    const __m512i y = _mm512_maskz_permutexvar_epi8(lower_bytes, _mm512_load_si512(&luma_places), bytes);
    const __m512i chroma = _mm512_maskz_permutexvar_epi8(lower_bytes, _mm512_load_si512(&chroma_places), bytes);
    return {y, _mm512_sub_epi16(chroma, _mm512_set1_epi16(128))};
}

#endif

// `Form` has the doubles.
template <class Form>
struct ConvertYuvijg {
#if defined(__x86_64__)
    TNTVT_AVX2 static long avx2(uint8_t* dst, const uint8_t* src, long pixels, bool)
    {
        long done = 0;
        for (; pixels - done >= 10; done += 8) {
            const width_256::YuvijgWords step = load_yuvijg_avx2(src + done * 3);
            if (width_256::has_doubles_chroma(step))
                convert_in_doubles(dst + done * 4, src + done * 3, 8);
            else
                store_256(dst + done * 4, width_256::rgb32_of(step));
        }
        return done;
    }

    // Sixteen pixels a step, 64 bytes loaded as long as the line has them.
    TNTVT_AVX512 static long avx512(uint8_t* dst, const uint8_t* src, long pixels, bool)
    {
        long done = 0;
        for (; pixels - done >= 22; done += 16)
            convert_avx512(dst + done * 4, src + done * 3, _mm512_loadu_si512(src + done * 3), 16);
        for (; done < pixels; done += 16) {
            const long left = pixels - done < 16 ? pixels - done : 16;
            convert_avx512(dst + done * 4, src + done * 3,
                           _mm512_maskz_loadu_epi8(first_bytes(left * 3), src + done * 3), left);
        }
        return pixels;
    }

private:
    TNTVT_AVX512 static void convert_avx512(uint8_t* dst, const uint8_t* src, __m512i bytes, long pixels)
    {
        const width_512::YuvijgWords step = words_of_yuvijg_avx512(bytes);
        if (width_512::has_doubles_chroma(step))
            convert_in_doubles(dst, src, pixels);
        else
            _mm512_mask_storeu_epi8(dst, first_bytes(pixels * 4), width_512::rgb32_of(step));
    }

    static void convert_in_doubles(uint8_t* dst, const uint8_t* src, long pixels)
    {
        for (long x = 0; x < pixels; ++x) Form::pixel(dst + x * 4, src + x * 3);
    }
#endif
};

}  // namespace tintvert
