// Alpha in and out of 32-bit pixels.
#pragma once

#include "simd/vec.h"

namespace tintvert {

#if defined(__x86_64__)

struct SpreadAlpha {
    // Sixteen samples, each to four bytes.
    TNTVT_AVX2 static long avx2(uint8_t* dst, const uint8_t* src, long pixels, bool)
    {
        const __m256i first = _mm256_setr_epi32(0, 0x01010101, 0x02020202, 0x03030303,  //
                                                0x04040404, 0x05050505, 0x06060606, 0x07070707);
        const __m256i last = _mm256_add_epi8(first, _mm256_set1_epi8(8));
        long done = 0;
        for (; pixels - done >= 16; done += 16) {
            const __m256i samples = _mm256_broadcastsi128_si256(load_128(src + done));
            store_256(dst + done * 4, _mm256_shuffle_epi8(samples, first));
            store_256(dst + done * 4 + 32, _mm256_shuffle_epi8(samples, last));
        }
        return done;
    }
};

struct SetAlpha {
    // The alpha bytes alone: the colours are not stored, not even as they were, since they may be another thread's.
    // Registers of 32 bytes have no such store.
    TNTVT_AVX512 static long avx512(uint8_t* line, uint8_t alpha, long pixels)
    {
        const __m512i value = _mm512_set1_epi8(static_cast<char>(alpha));
        long done = 0;
        for (; pixels - done >= 16; done += 16) _mm512_mask_storeu_epi8(line + done * 4, 0x8888888888888888, value);
        return done;
    }
};

struct AddAlpha {
    // Eight pixels of three bytes. The second half reads four bytes beyond its 12, so the last step leaves two pixels
    // over. Lines go from last to first, and so do the steps: a processor fetches ahead in one direction.
    TNTVT_AVX2 static long avx2(uint8_t* dst, const uint8_t* src, uint8_t alpha, long pixels)
    {
        const __m256i apart =
            _mm256_broadcastsi128_si256(_mm_setr_epi8(0, 1, 2, -1, 3, 4, 5, -1, 6, 7, 8, -1, 9, 10, 11, -1));
        const __m256i value = _mm256_set1_epi32(static_cast<int>(uint32_t{alpha} << 24));
        const long steps = pixels < 2 ? 0 : (pixels - 2) / 8;
        for (long step = steps - 1; step >= 0; --step) {
            const uint8_t* const from = src + step * 24;
            const __m256i colours = _mm256_shuffle_epi8(load_halves(from, from + 12), apart);
            store_256(dst + step * 32, _mm256_or_si256(colours, value));
        }
        return steps * 8;
    }
};

#else

struct SpreadAlpha {};
struct SetAlpha {};
struct AddAlpha {};

#endif

}  // namespace tintvert
