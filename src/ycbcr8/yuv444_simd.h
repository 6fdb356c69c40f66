// Groups of `yuv444`, 6 bytes, to groups of `2vuy`, 4 bytes, and back.
#pragma once

#include "simd/vec.h"

namespace tintvert {

#if defined(__x86_64__)

struct Places444 {
    alignas(64) uint8_t to_422[64] = {}, to_444[64] = {};

    constexpr Places444()
    {
        constexpr int of_422[] = {1, 0, 2, 3}, of_444[] = {1, 0, 2, 3, 0, 2};
        for (int i = 0; i < 32; ++i) to_422[i] = static_cast<uint8_t>(i / 4 * 6 + of_422[i % 4]);
        for (int i = 0; i < 48; ++i) to_444[i] = static_cast<uint8_t>(i / 6 * 4 + of_444[i % 6]);
    }
};
inline constexpr Places444 places_444;

struct To422 {
    // Four groups, two in each half. The second half reads four bytes of the next group.
    TNTVT_AVX2 static long avx2(uint8_t* dst, const uint8_t* src, long groups)
    {
        const __m256i four_of_six =
            _mm256_broadcastsi128_si256(_mm_setr_epi8(1, 0, 2, 3, 7, 6, 8, 9, -1, -1, -1, -1, -1, -1, -1, -1));
        long done = 0;
        for (; groups - done > 4; done += 4) {
            const uint8_t* const from = src + done * 6;
            const __m256i halves = _mm256_shuffle_epi8(load_halves(from, from + 12), four_of_six);
            store_128(dst + done * 4, _mm256_castsi256_si128(_mm256_permute4x64_epi64(halves, 0x08)));
        }
        return done;
    }

    // Eight groups, 48 bytes of the 64 that are read: all of them the line's, the last four of the group after the
    // next.
    TNTVT_AVX512 static long avx512(uint8_t* dst, const uint8_t* src, long groups)
    {
        const __m512i places = _mm512_load_si512(places_444.to_422);
        long done = 0;
        for (; groups - done > 10; done += 8) {
            const __m512i bytes = _mm512_permutexvar_epi8(places, _mm512_loadu_si512(src + done * 6));
            store_256(dst + done * 4, _mm512_castsi512_si256(bytes));
        }
        return done;
    }
};

struct To444 {
    TNTVT_AVX2 static long avx2(uint8_t* dst, const uint8_t* src, long groups)
    {
        const __m256i six_of_four = _mm256_setr_epi8(1, 0, 2, 3, 0, 2, 5, 4, 6, 7, 4, 6, -1, -1, -1, -1,  //
                                                     9, 8, 10, 11, 8, 10, 13, 12, 14, 15, 12, 14, -1, -1, -1, -1);
        const __m256i halves_together = _mm256_setr_epi32(0, 1, 2, 4, 5, 6, 7, 7);
        long done = 0;
        for (; groups - done >= 4; done += 4) {
            const __m256i bytes = _mm256_broadcastsi128_si256(load_128(src + done * 4));
            const __m256i run = _mm256_permutevar8x32_epi32(_mm256_shuffle_epi8(bytes, six_of_four), halves_together);
            store_128(dst + done * 6, _mm256_castsi256_si128(run));
            _mm_storel_epi64(reinterpret_cast<__m128i*>(dst + done * 6 + 16), _mm256_extracti128_si256(run, 1));
        }
        return done;
    }

    TNTVT_AVX512 static long avx512(uint8_t* dst, const uint8_t* src, long groups)
    {
        const __m512i places = _mm512_load_si512(places_444.to_444);
        long done = 0;
        for (; groups - done >= 8; done += 8) {
            const __m512i bytes = _mm512_castsi256_si512(load_256(src + done * 4));
            _mm512_mask_storeu_epi8(dst + done * 6, first_bytes(48), _mm512_permutexvar_epi8(places, bytes));
        }
        return done;
    }
};

#else

struct To422 {};
struct To444 {};

#endif

}  // namespace tintvert
