// Samples of 4:2:2 groups, four bytes each, to planes and back.
#pragma once

#include "simd/vec.h"

namespace tintvert {

// Two, one and one byte a group.
template <class Byte>
struct PlanarRuns {
    Byte *y, *cb, *cr;
};

#if defined(__x86_64__)

// Bytes 0, 2, 4 ... of two registers, or 1, 3, 5 ..., in their order.
TNTVT_AVX2 inline __m256i even_bytes_avx2(__m256i one, __m256i other)
{
    const __m256i low = _mm256_set1_epi16(0xFF);
    const __m256i packed = _mm256_packus_epi16(_mm256_and_si256(one, low), _mm256_and_si256(other, low));
    return _mm256_permute4x64_epi64(packed, 0xD8);
}

TNTVT_AVX2 inline __m256i odd_bytes_avx2(__m256i one, __m256i other)
{
    const __m256i packed = _mm256_packus_epi16(_mm256_srli_epi16(one, 8), _mm256_srli_epi16(other, 8));
    return _mm256_permute4x64_epi64(packed, 0xD8);
}

// Sixteen bytes of one chroma plane and sixteen of the other, from their alternation.
TNTVT_AVX2 inline void store_chroma_avx2(uint8_t* cb, uint8_t* cr, __m256i chroma)
{
    const __m256i apart =
        _mm256_broadcastsi128_si256(_mm_setr_epi8(0, 2, 4, 6, 8, 10, 12, 14, 1, 3, 5, 7, 9, 11, 13, 15));
    const __m256i planes = _mm256_permute4x64_epi64(_mm256_shuffle_epi8(chroma, apart), 0xD8);
    store_128(cb, _mm256_castsi256_si128(planes));
    store_128(cr, _mm256_extracti128_si256(planes, 1));
}

// 32 bytes of chroma and 32 of luma as alternate bytes.
TNTVT_AVX2 inline void store_groups_avx2(uint8_t* dst, __m256i chroma, __m256i luma)
{
    const __m256i c = _mm256_permute4x64_epi64(chroma, 0xD8), y = _mm256_permute4x64_epi64(luma, 0xD8);
    store_256(dst, _mm256_unpacklo_epi8(c, y));
    store_256(dst + 32, _mm256_unpackhi_epi8(c, y));
}

// Where the samples of 32 groups of `YUY2` are in two registers: their luma, and their Cb before their Cr.
struct Yuy2Places {
    alignas(64) uint8_t luma[64], chroma[64];
};

constexpr Yuy2Places places_of_yuy2()
{
    Yuy2Places result{};
    for (int n = 0; n < 64; ++n) {
        result.luma[n] = static_cast<uint8_t>(n * 2);
        result.chroma[n] = static_cast<uint8_t>(n % 32 * 4 + n / 32 * 2 + 1);
    }
    return result;
}
inline constexpr Yuy2Places yuy2_places = places_of_yuy2();

// Planes out of `2vuy` groups.
struct Deinterleave {
    TNTVT_AVX2 static long avx2(const PlanarRuns<uint8_t>& to, const uint8_t* src, long groups)
    {
        long done = 0;
        for (; groups - done >= 16; done += 16) {
            const __m256i one = load_256(src + done * 4), other = load_256(src + done * 4 + 32);
            store_256(to.y + done * 2, odd_bytes_avx2(one, other));
            store_chroma_avx2(to.cb + done, to.cr + done, even_bytes_avx2(one, other));
        }
        return done;
    }
};

struct DeinterleaveLuma {
    // From the first luma byte on, so that the last step leaves a group over.
    TNTVT_AVX2 static long avx2(uint8_t* y, const uint8_t* src, long groups, bool)
    {
        long done = 0;
        for (; groups - done > 16; done += 16) {
            const uint8_t* const from = src + done * 4 + 1;
            store_256(y + done * 2, even_bytes_avx2(load_256(from), load_256(from + 32)));
        }
        return done;
    }
};

// `2vuy` groups out of planes.
struct Interleave {
    TNTVT_AVX2 static long avx2(uint8_t* dst, const PlanarRuns<const uint8_t>& from, long groups)
    {
        long done = 0;
        for (; groups - done >= 16; done += 16) {
            const __m128i cb = load_128(from.cb + done), cr = load_128(from.cr + done);
            const __m256i chroma = _mm256_inserti128_si256(_mm256_castsi128_si256(_mm_unpacklo_epi8(cb, cr)),
                                                           _mm_unpackhi_epi8(cb, cr), 1);
            store_groups_avx2(dst + done * 4, chroma, load_256(from.y + done * 2));
        }
        return done;
    }
};

struct InterleaveLuma {
    // From the first group up or, where the lines go from last to first, down to it: a processor fetches ahead in one
    // direction.
    TNTVT_AVX2 static long avx2(uint8_t* dst, const uint8_t* y, long groups, bool down)
    {
        const long steps = groups / 16;
        for (long n = 0; n < steps; ++n) {
            const long step = down ? steps - 1 - n : n;
            store_groups_avx2(dst + step * 64, _mm256_set1_epi8(-128), load_256(y + step * 32));
        }
        return steps * 16;
    }
};

struct DeinterleaveYuy2 {
    // `YUY2`, luma first, two lines to two of luma and one of each chroma, which is their mean rounded up.
    TNTVT_AVX2 static long avx2(const PlanarRuns<uint8_t>& to, uint8_t* y_below, const uint8_t* src,
                                const uint8_t* below, long groups)
    {
        long done = 0;
        for (; groups - done >= 16; done += 16) {
            const __m256i one = load_256(src + done * 4), other = load_256(src + done * 4 + 32);
            const __m256i one_below = load_256(below + done * 4), other_below = load_256(below + done * 4 + 32);
            store_256(to.y + done * 2, even_bytes_avx2(one, other));
            store_256(y_below + done * 2, even_bytes_avx2(one_below, other_below));
            store_chroma_avx2(to.cb + done, to.cr + done,
                              _mm256_avg_epu8(odd_bytes_avx2(one, other), odd_bytes_avx2(one_below, other_below)));
        }
        return done;
    }

    // The same, 32 groups a step. The last step ends with the line and makes some groups anew.
    TNTVT_AVX512 static long avx512(const PlanarRuns<uint8_t>& to, uint8_t* y_below, const uint8_t* src,
                                    const uint8_t* below, long groups)
    {
        if (groups < 32) return avx2(to, y_below, src, below, groups);
        const __m512i luma = _mm512_load_si512(yuy2_places.luma), chroma = _mm512_load_si512(yuy2_places.chroma);
        for (long done = 0; done < groups; done += 32) {
            const long at = done < groups - 32 ? done : groups - 32;
            const __m512i one = _mm512_loadu_si512(src + at * 4), other = _mm512_loadu_si512(src + at * 4 + 64);
            const __m512i one_below = _mm512_loadu_si512(below + at * 4);
            const __m512i other_below = _mm512_loadu_si512(below + at * 4 + 64);
            _mm512_storeu_si512(to.y + at * 2, _mm512_permutex2var_epi8(one, luma, other));
            _mm512_storeu_si512(y_below + at * 2, _mm512_permutex2var_epi8(one_below, luma, other_below));
            const __m512i means =
                _mm512_permutex2var_epi8(_mm512_avg_epu8(one, one_below), chroma, _mm512_avg_epu8(other, other_below));
            store_256(to.cb + at, _mm512_castsi512_si256(means));
            store_256(to.cr + at, _mm512_maskz_extracti64x4_epi64(0xF, means, 1));
        }
        return groups;
    }
};

#else

struct Deinterleave {};
struct DeinterleaveLuma {};
struct Interleave {};
struct InterleaveLuma {};
struct DeinterleaveYuy2 {};

#endif

inline long deinterleave_simd(InstructionSet level, const PlanarRuns<uint8_t>& to, const uint8_t* src, long groups)
{
    return run_simd<Deinterleave>(level, {{to.y, groups * 2}, {to.cb, groups}, {to.cr, groups}}, {{src, groups * 4}},
                                  to, src, groups);
}

inline long interleave_simd(InstructionSet level, uint8_t* dst, const PlanarRuns<const uint8_t>& from, long groups)
{
    return run_simd<Interleave>(level, {{dst, groups * 4}},
                                {{from.y, groups * 2}, {from.cb, groups}, {from.cr, groups}}, dst, from, groups);
}

inline long deinterleave_luma_simd(InstructionSet level, uint8_t* y, const uint8_t* src, long groups)
{
    return run_simd<DeinterleaveLuma>(level, {{y, groups * 2}}, {{src, groups * 4}}, y, src, groups, false);
}

inline long deinterleave_yuy2_simd(InstructionSet level, const PlanarRuns<uint8_t>& to, uint8_t* y_below,
                                   const uint8_t* src, const uint8_t* below, long groups)
{
    return run_simd<DeinterleaveYuy2>(level,
                                      {{to.y, groups * 2}, {y_below, groups * 2}, {to.cb, groups}, {to.cr, groups}},
                                      {{src, groups * 4}, {below, groups * 4}}, to, y_below, src, below, groups);
}

}  // namespace tintvert
