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

#include "simd/vec.h"

namespace tintvert {

// In 32768ths: 0.772 is 25296.9, 0.402 is 13172.7. Over 128 the errors sum to less than a multiple.
constexpr int blue_fraction = 25297, red_fraction = 13173;

// In 2^-24ths, the upper and lower twelve bits multiplied apart.
constexpr int green_of_cb = -5773711, green_of_cr = 4795935;

// Cb and Cr of the pixels that are left to the doubles, as they are in an int of Y, Cb and Cr.
constexpr int doubles_chroma = (128 + 100) << 16 | (128 - 100) << 8;

// Words for cb and cr in an int.
constexpr int chroma_pair(int cb, int cr) { return static_cast<int>(static_cast<uint32_t>(cr) << 16 | (cb & 0xFFFF)); }

#if defined(__x86_64__)

// Pixels as ints of Y, Cb, Cr and 0. Eight read 28 bytes.
TNTVT_AVX2 inline __m256i ints_of_pixels_avx2(const uint8_t* src)
{
    const __m128i places = _mm_setr_epi8(0, 1, 2, -1, 3, 4, 5, -1, 6, 7, 8, -1, 9, 10, 11, -1);
    return _mm256_shuffle_epi8(load_halves(src, src + 12), _mm256_broadcastsi128_si256(places));
}

// At most sixteen.
TNTVT_AVX512 inline __m512i ints_of_pixels_avx512(const uint8_t* src, long pixels)
{
    const __m512i quarters = _mm512_setr_epi32(0, 1, 2, 0, 3, 4, 5, 0, 6, 7, 8, 0, 9, 10, 11, 0);
    const __m128i places = _mm_setr_epi8(0, 1, 2, -1, 3, 4, 5, -1, 6, 7, 8, -1, 9, 10, 11, -1);
    const __m512i bytes = _mm512_maskz_loadu_epi8(first_bytes(pixels * 3), src);
    return _mm512_shuffle_epi8(_mm512_permutexvar_epi32(quarters, bytes), _mm512_broadcast_i32x4(places));
}

TNTVT_AVX2 inline bool any_equal(__m256i x, __m256i y) { return _mm256_movemask_epi8(_mm256_cmpeq_epi32(x, y)) != 0; }
TNTVT_AVX512 inline bool any_equal(__m512i x, __m512i y) { return _mm512_cmpeq_epi32_mask(x, y) != 0; }

#endif

}  // namespace tintvert

#define TNTVT_STEPS "decode/yuvijg_steps.inc"
#include "simd/each_width.h"

namespace tintvert {

// `Form` has the doubles.
template <class Form>
struct ConvertYuvijg {
#if defined(__x86_64__)
    TNTVT_AVX2 static long avx2(uint8_t* dst, const uint8_t* src, long pixels, bool)
    {
        long done = 0;
        for (; pixels - done >= 10; done += 8) {
            const __m256i step = ints_of_pixels_avx2(src + done * 3);
            if (width_256::has_doubles_chroma(step))
                convert_in_doubles(dst + done * 4, src + done * 3, 8);
            else
                store_256(dst + done * 4, width_256::rgb32_of(step));
        }
        return done;
    }

    TNTVT_AVX512 static long avx512(uint8_t* dst, const uint8_t* src, long pixels, bool)
    {
        for (long done = 0; done < pixels; done += 16) {
            const long left = pixels - done < 16 ? pixels - done : 16;
            const __m512i step = ints_of_pixels_avx512(src + done * 3, left);
            if (width_512::has_doubles_chroma(step))
                convert_in_doubles(dst + done * 4, src + done * 3, left);
            else
                _mm512_mask_storeu_epi8(dst + done * 4, first_bytes(left * 4), width_512::rgb32_of(step));
        }
        return pixels;
    }

private:
    static void convert_in_doubles(uint8_t* dst, const uint8_t* src, long pixels)
    {
        for (long x = 0; x < pixels; ++x) Form::pixel(dst + x * 4, src + x * 3);
    }
#endif
};

}  // namespace tintvert
