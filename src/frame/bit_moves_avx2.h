// Moves of bits in 256 bits. Each half has a window of 16 or 32 bytes of the source for 16 bytes of the result.
#pragma once

#include "frame/moved_byte.h"
#include "frame/state.h"
#include "simd/vec.h"

#if defined(__x86_64__)
namespace tintvert {

template <class Units>
struct Avx2BitMoves {
    static constexpr int src = static_cast<int>(Units::src_bytes), dst = static_cast<int>(Units::dst_bytes);
    static constexpr bool whole = moves_whole_bytes<Units>();

    // A half makes 16 or 12 bytes. A second window costs a shuffle and pays where the result is much smaller than
    // the source. A unit that is too long for a half is cut in two.
    static constexpr int smaller(int x, int y) { return x < y ? x : y; }
    static constexpr int half_units = smaller(dst == 3 ? 4 : 16 / dst, (3 * src > 4 * dst ? 32 : 16) / src);
    static constexpr int units = half_units > 0 ? 2 * half_units : 1;
    static constexpr int half_bytes = units * dst / 2;
    static_assert(half_bytes == 16 || half_bytes == 12);

    static constexpr unsigned char nowhere = 0x80;  // a shuffle makes 0 of it

    // A byte is cut out of 16 bits that begin with the first byte that it takes bits of: a product with a power of
    // two moves it to their upper half. Bytes at even and at odd places take turns.
    struct Plan {
        int window[2] = {1 << 20, 1 << 20};  // where the window of a half begins
        int parts = 1;                       // of 16 bytes
        alignas(32) uint8_t pick[2][2][32] = {};
        alignas(32) uint16_t times[2][16] = {};
        alignas(32) uint8_t mask[32] = {}, fixed[32] = {}, alpha[32] = {};

        constexpr uint8_t picked(int place, int half, int part) const
        {
            const int index = place - window[half] - 16 * part;
            return index >= 0 && index < 16 ? static_cast<uint8_t>(index) : nowhere;
        }

        constexpr void find_windows()
        {
            for (int half = 0; half < 2; ++half) {
                int end = 0;
                for (int i = 0; i < half_bytes; ++i) {
                    const MovedByte byte = moved_in_run<Units>(half * half_bytes + i);
                    for (int n = byte.first(); byte.takes_bits() && n <= byte.last(); ++n) {
                        window[half] = smaller(window[half], byte.place(n));
                        end = end > byte.place(n) ? end : byte.place(n) + 1;
                    }
                }
                if (end - window[half] > 16) parts = 2;
            }
        }

        constexpr void place_byte(int half, int i)
        {
            const MovedByte byte = moved_in_run<Units>(half * half_bytes + i);
            const int lane = half * 16 + i, turn = i % 2, pair = lane - turn;
            mask[lane] = byte.mask;
            if (!byte.takes_bits()) {
                fixed[lane] = byte.fixed;
                alpha[lane] = byte.rest == Rest::alpha ? 0xFF : 0;
                return;
            }
            for (int part = 0; part < 2; ++part) {
                if (whole) {
                    pick[0][part][lane] = picked(byte.place(byte.first()), half, part);
                    continue;
                }
                pick[turn][part][pair] = picked(byte.place(byte.first()), half, part);
                if (byte.last() > byte.first())
                    pick[turn][part][pair + 1] = picked(byte.place(byte.last()), half, part);
            }
            times[turn][pair / 2] = static_cast<uint16_t>(1 << (8 - (byte.bit - 8 * byte.first())));
        }

        constexpr Plan()
        {
            for (auto& turns : pick)
                for (auto& part : turns)
                    for (uint8_t& index : part) index = nowhere;
            find_windows();
            for (int i = 0; i < half_bytes; ++i) place_byte(0, i), place_byte(1, i);
        }
    };
    static constexpr Plan plan{};
    static constexpr bool one_shuffle = whole && half_bytes == 16 && plan.parts == 1;

    // A step loads whole windows; the last one ends where the last unit's own reads do, or before.
    static constexpr int end_of_loads =
        (plan.window[0] > plan.window[1] ? plan.window[0] : plan.window[1]) + 16 * plan.parts;
    static constexpr int units_beyond = (end_of_loads - end_of_reads<Units>() + src - 1) / src;
    static constexpr int room = units_beyond < units ? units : units_beyond + 1;

    TNTVT_AVX2 static __m256i constant_avx2(const void* at)
    {
        return _mm256_load_si256(static_cast<const __m256i*>(at));
    }

    TNTVT_AVX2 static __m256i window_avx2(const uint8_t* from, int part)
    {
        const uint8_t *low = from + plan.window[0] + 16 * part, *high = from + plan.window[1] + 16 * part;
        if (plan.window[1] - plan.window[0] == 16) return _mm256_loadu_si256(reinterpret_cast<const __m256i*>(low));
        return _mm256_inserti128_si256(_mm256_castsi128_si256(_mm_loadu_si128(reinterpret_cast<const __m128i*>(low))),
                                       _mm_loadu_si128(reinterpret_cast<const __m128i*>(high)), 1);
    }

    TNTVT_AVX2 static __m256i picked_avx2(__m256i one, __m256i other, int turn)
    {
        const __m256i picked = _mm256_shuffle_epi8(one, constant_avx2(plan.pick[turn][0]));
        if (plan.parts == 1) return picked;
        return _mm256_or_si256(picked, _mm256_shuffle_epi8(other, constant_avx2(plan.pick[turn][1])));
    }

    TNTVT_AVX2 static __m256i step_avx2(const uint8_t* from)
    {
        const __m256i one = window_avx2(from, 0), other = plan.parts == 1 ? one : window_avx2(from, 1);
        const __m256i first = picked_avx2(one, other, 0);
        if (whole) return first;
        const __m256i even = _mm256_srli_epi16(_mm256_mullo_epi16(first, constant_avx2(plan.times[0])), 8);
        const __m256i odd = _mm256_mullo_epi16(picked_avx2(one, other, 1), constant_avx2(plan.times[1]));
        return _mm256_and_si256(_mm256_blendv_epi8(even, odd, _mm256_set1_epi16(static_cast<short>(0xFF00))),
                                constant_avx2(plan.mask));
    }

    TNTVT_AVX2 static void store_avx2(uint8_t* to, __m256i result)
    {
        if (half_bytes == 16) return _mm256_storeu_si256(reinterpret_cast<__m256i*>(to), result);
        const __m256i closed = _mm256_permutevar8x32_epi32(result, _mm256_setr_epi32(0, 1, 2, 4, 5, 6, 7, 7));
        _mm_storeu_si128(reinterpret_cast<__m128i*>(to), _mm256_castsi256_si128(closed));
        _mm_storel_epi64(reinterpret_cast<__m128i*>(to + 16), _mm256_extracti128_si256(closed, 1));
    }

    static long leading(long count) { return count < room ? 0 : ((count - room) / units + 1) * units; }

    // Leading pixels; with `down` the rightmost step goes first.
    TNTVT_AVX2 static long run_avx2(uint8_t* to, const uint8_t* from, long count, bool down)
    {
        __m256i rest = constant_avx2(plan.fixed);
        if (takes_alpha<Units>())
            rest = _mm256_or_si256(rest,
                                   _mm256_and_si256(constant_avx2(plan.alpha), _mm256_set1_epi8(static_cast<char>(a))));
        const long steps = leading(count) / units;
        const long first = down ? (steps - 1) * units : 0, apart = down ? -units : units;
        to += first * dst;
        from += first * src;
        for (long n = 0; n < steps; ++n, to += apart * dst, from += apart * src)
            store_avx2(to, _mm256_or_si256(step_avx2(from), rest));
        return steps * units;
    }
};

}  // namespace tintvert
#endif
