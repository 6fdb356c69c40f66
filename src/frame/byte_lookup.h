// Bytes through tables of 256.
//
// Bytes 0, 2, 4 ... of a run go through the table `first` and bytes 1, 3, 5 ... through `second`, or, if that is
// null, as they are.
#pragma once

#include "simd/vec.h"

namespace tintvert {

struct PairTables {
    const uint8_t *first, *second;
};

#if defined(__x86_64__)

// A table as sixteen parts of 16 entries, each but the first and the ninth as its difference from the part before.
struct Parts {
    __m128i of[16];
};

TNTVT_AVX2 inline Parts parts_avx2(const uint8_t* table)
{
    Parts parts;
    for (int k = 0; k < 16; ++k) {
        const __m128i entries = load_128(table + 16 * k);
        parts.of[k] = k % 8 == 0 ? entries : _mm_xor_si128(entries, load_128(table + 16 * (k - 1)));
    }
    return parts;
}

// A shuffle looks up the low four bits of a byte, and nothing where the byte is negative. Step by step 16 is taken
// off, so that byte x passes part 0 to part x / 16 and the differences add up to its entry; 128 and above count from
// the ninth part on.
TNTVT_AVX2 inline __m256i look_up_avx2(const Parts& parts, __m256i bytes)
{
    __m256i result = _mm256_setzero_si256();
    for (int half = 0; half < 16; half += 8) {
        __m256i left = half == 0 ? bytes : _mm256_xor_si256(bytes, _mm256_set1_epi8(-128));
        for (int k = half; k < half + 8; ++k) {
            const __m256i part = _mm256_broadcastsi128_si256(parts.of[k]);
            result = _mm256_xor_si256(result, _mm256_shuffle_epi8(part, left));
            left = _mm256_subs_epi8(left, _mm256_set1_epi8(16));
            asm("" : "+x"(result));  // regrouped, the sum takes more registers than there are
        }
    }
    return result;
}

// The second bytes of the 32 pairs in two registers, in the order that unpacking undoes.
TNTVT_AVX2 inline __m256i second_bytes_avx2(__m256i one, __m256i other)
{
    return _mm256_packus_epi16(_mm256_srli_epi16(one, 8), _mm256_srli_epi16(other, 8));
}

struct Quarters {
    __m512i of[4];
};

TNTVT_AVX512 inline Quarters quarters_avx512(const uint8_t* table)
{
    return {{_mm512_loadu_si512(table), _mm512_loadu_si512(table + 64), _mm512_loadu_si512(table + 128),
             _mm512_loadu_si512(table + 192)}};
}

TNTVT_AVX512 inline __m512i look_up_avx512(const Quarters& table, __m512i bytes)
{
    const __m512i lower = _mm512_permutex2var_epi8(table.of[0], bytes, table.of[1]);
    const __m512i upper = _mm512_permutex2var_epi8(table.of[2], bytes, table.of[3]);
    return _mm512_mask_blend_epi8(_mm512_movepi8_mask(bytes), lower, upper);
}

TNTVT_AVX512 inline __m512i map_64_avx512(const Quarters& first, const Quarters& second, __m512i bytes)
{
    return _mm512_mask_blend_epi8(0xAAAAAAAAAAAAAAAA, look_up_avx512(first, bytes), look_up_avx512(second, bytes));
}

struct MapPairs {
    static constexpr bool in_place = true;
    TNTVT_AVX2 static long avx2(uint8_t* dst, const uint8_t* src, long bytes, const PairTables& tables)
    {
        if (bytes < 64) return 0;
        const __m256i low = _mm256_set1_epi16(0xFF);
        const Parts first_parts = parts_avx2(tables.first);
        const Parts second_parts = parts_avx2(tables.second != nullptr ? tables.second : tables.first);
        long done = 0;
        for (; bytes - done >= 64; done += 64) {
            const __m256i one = load_256(src + done), other = load_256(src + done + 32);
            const __m256i firsts = _mm256_packus_epi16(_mm256_and_si256(one, low), _mm256_and_si256(other, low));
            const __m256i first = look_up_avx2(first_parts, firsts);
            const __m256i second = tables.second != nullptr ? look_up_avx2(second_parts, second_bytes_avx2(one, other))
                                                            : second_bytes_avx2(one, other);
            store_256(dst + done, _mm256_unpacklo_epi8(first, second));
            store_256(dst + done + 32, _mm256_unpackhi_epi8(first, second));
        }
        return done;
    }

    TNTVT_AVX512 static long avx512(uint8_t* dst, const uint8_t* src, long bytes, const PairTables& tables)
    {
        const Quarters first = quarters_avx512(tables.first);
        long done = 0;
        if (tables.second == nullptr) {
            for (; done < bytes; done += 64) {
                const __mmask64 there = first_bytes(bytes - done);
                const __m512i from = _mm512_maskz_loadu_epi8(there, src + done), mapped = look_up_avx512(first, from);
                _mm512_mask_storeu_epi8(dst + done, there, _mm512_mask_blend_epi8(0xAAAAAAAAAAAAAAAA, mapped, from));
            }
            return bytes;
        }
        const Quarters second = quarters_avx512(tables.second);
        for (; bytes - done >= 64; done += 64)
            _mm512_storeu_si512(dst + done, map_64_avx512(first, second, _mm512_loadu_si512(src + done)));
        const __mmask64 there = first_bytes(bytes - done);
        const __m512i last = _mm512_maskz_loadu_epi8(there, src + done);
        _mm512_mask_storeu_epi8(dst + done, there, map_64_avx512(first, second, last));
        return bytes;
    }
};

struct MapEvenBytes {
    static constexpr bool in_place = true;
    // Bytes 0, 2, 4 ... alone: those between are not stored, not even as they were, since they may be another thread's.
    // Registers of 32 bytes have no such store.
    TNTVT_AVX512 static long avx512(uint8_t* dst, const uint8_t* src, long bytes, const uint8_t* table)
    {
        const Quarters quarters = quarters_avx512(table);
        for (long done = 0; done < bytes; done += 64) {
            const __mmask64 even = first_bytes(bytes - done) & 0x5555555555555555;
            const __m512i mapped = look_up_avx512(quarters, _mm512_maskz_loadu_epi8(even, src + done));
            _mm512_mask_storeu_epi8(dst + done, even, mapped);
        }
        return bytes;
    }
};

#else

struct MapPairs {};
struct MapEvenBytes {};

#endif

inline long map_pairs_simd(InstructionSet level, uint8_t* dst, const uint8_t* src, long bytes, const PairTables& tables)
{
    return run_simd<MapPairs>(level, {{dst, bytes}}, {{src, bytes}}, dst, src, bytes, tables);
}

}  // namespace tintvert
