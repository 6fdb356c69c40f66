// Rounds of eight samples, 16 bytes of 16-bit words, to 12 bytes of 12-bit samples, most significant bit first:
//
//   samples   0xABC 0xDEF
//   bytes     AB CD EF
//
// A sample is bits `shift` to `shift` + 11 of its word.
#pragma once

#include <array>

#include "frame/memory.h"
#include "simd/vec.h"

namespace tintvert {

// Four samples, without intrinsics: 48 bits, the first sample on top.
template <int shift>
void pack_four(uint8_t* dst, const uint8_t* src)
{
    const uint64_t words = load<uint64_t>(src) >> shift;
    const uint64_t packed = byte_reverse((words & 0xFFF) << 52 | (words >> 16 & 0xFFF) << 40 |
                                         (words >> 32 & 0xFFF) << 28 | (words >> 48 & 0xFFF) << 16);
    store(dst, static_cast<uint32_t>(packed));
    store(dst + 4, static_cast<uint16_t>(packed >> 32));
}

template <int shift>
void pack_rounds(uint8_t* dst, const uint8_t* src, long first, long end)
{
    for (long half = 2 * first; half < 2 * end; ++half) pack_four<shift>(dst + half * 6, src + half * 8);
}

#if defined(__x86_64__)

// Two samples as the lower 24 bits of an int, the first one on top.
template <int shift>
TNTVT_AVX2 inline __m256i paired(__m256i words)
{
    const __m256i samples = _mm256_and_si256(_mm256_srli_epi16(words, shift), _mm256_set1_epi16(0xFFF));
    return _mm256_madd_epi16(samples, _mm256_set1_epi32(1 << 16 | 4096));
}

template <int shift>
TNTVT_AVX512 inline __m512i paired(__m512i words)
{
    const __m512i samples = _mm512_and_si512(_mm512_srli_epi16(words, shift), _mm512_set1_epi16(0xFFF));
    return _mm512_madd_epi16(samples, _mm512_set1_epi32(1 << 16 | 4096));
}

// Three bytes of each pair, the third one first: four registers of pairs fill three. Register `n` of the three is these
// bytes of registers `n` and `n` + 1 of the four.
constexpr std::array<uint8_t, 64> places_of_pairs(size_t n)
{
    std::array<uint8_t, 64> result{};
    for (size_t i = 0; i < 64; ++i) {
        const size_t byte = 64 * n + i, place = byte / 3 * 4 + 2 - byte % 3;
        result[i] = static_cast<uint8_t>(place - 64 * n);
    }
    return result;
}
alignas(64) inline constexpr std::array<uint8_t, 64> pair_places[] = {places_of_pairs(0), places_of_pairs(1),
                                                                      places_of_pairs(2)};

template <int shift>
TNTVT_AVX512 inline void pack_16_rounds_avx512(uint8_t* dst, const uint8_t* src)
{
    __m512i pairs[4];
    for (int n = 0; n < 4; ++n) pairs[n] = paired<shift>(_mm512_loadu_si512(src + 64 * n));
    for (int n = 0; n < 3; ++n)
        _mm512_storeu_si512(dst + 64 * n,
                            _mm512_permutex2var_epi8(pairs[n], _mm512_load_si512(&pair_places[n]), pairs[n + 1]));
}

#endif

template <int shift>
struct PackRounds {
#if defined(__x86_64__)
    static long sse2(uint8_t* dst, const uint8_t* src, long rounds)
    {
        pack_rounds<shift>(dst, src, 0, rounds);
        return rounds;
    }

    // Two rounds a step. Its store ends eight bytes beyond them, which the next round then writes.
    TNTVT_AVX2 static long avx2(uint8_t* dst, const uint8_t* src, long rounds)
    {
        const __m256i places =
            _mm256_broadcastsi128_si256(_mm_setr_epi8(2, 1, 0, 6, 5, 4, 10, 9, 8, 14, 13, 12, -1, -1, -1, -1));
        const __m256i whole = _mm256_setr_epi32(0, 1, 2, 4, 5, 6, 3, 7);
        long done = 0;
        for (; rounds - done > 2; done += 2) {
            const __m256i packed = _mm256_shuffle_epi8(paired<shift>(load_256(src + done * 16)), places);
            store_256(dst + done * 12, _mm256_permutevar8x32_epi32(packed, whole));
        }
        pack_rounds<shift>(dst, src, done, rounds);
        return rounds;
    }

    TNTVT_AVX512 static long avx512(uint8_t* dst, const uint8_t* src, long rounds)
    {
        long done = 0;
        for (; rounds - done >= 16; done += 16) pack_16_rounds_avx512<shift>(dst + done * 12, src + done * 16);
        for (; done < rounds; done += 4) {
            const long left = rounds - done < 4 ? rounds - done : 4;
            const __m512i pairs = paired<shift>(_mm512_maskz_loadu_epi8(first_bytes(left * 16), src + done * 16));
            _mm512_mask_storeu_epi8(dst + done * 12, first_bytes(left * 12),
                                    _mm512_permutexvar_epi8(_mm512_load_si512(&pair_places[0]), pairs));
        }
        return rounds;
    }
#endif
};

}  // namespace tintvert
