// Moves of bits in 512 bits. A step takes up to 64 bytes and makes up to 64; masks cut the last one to the line.
#pragma once

#include "frame/moved_byte.h"
#include "frame/state.h"
#include "simd/vec.h"

#if defined(__x86_64__)
namespace tintvert {

template <class Units>
struct VbmiBitMoves {
    static constexpr int src = static_cast<int>(Units::src_bytes), dst = static_cast<int>(Units::dst_bytes);
    static constexpr int units = 64 / (src > dst ? src : dst);
    static constexpr bool whole = moves_whole_bytes<Units>();
    static_assert(units > 0);

    // Eight bytes of the result are cut out of the same 64 bits, which hold what they take bits of. Where that
    // is more, bytes at even and at odd places take turns.
    struct Plan {
        int turns = 1;
        alignas(64) uint8_t pick[2][64] = {};
        alignas(64) uint8_t bit[64] = {};
        alignas(64) uint8_t mask[64] = {}, fixed[64] = {};
        uint64_t bits = 0, alpha = 0, stored = 0, read = 0;  // a bit a byte

        // The source bytes of one turn of eight.
        struct Held {
            int bytes[16] = {}, count = 0;

            // The slot of a byte that the next one follows; both are added if they are not there yet.
            constexpr int slot_of(int byte, int next)
            {
                for (int slot = 0; slot < count; ++slot)
                    if (bytes[slot] == byte && (next == byte || (slot + 1 < count && bytes[slot + 1] == next)))
                        return slot;
                if (count == 0 || bytes[count - 1] != byte) bytes[count++] = byte;
                const int slot = count - 1;
                if (next != byte) bytes[count++] = next;
                return slot;
            }
        };

        // Whether they fit.
        constexpr bool place_eight(int begin, int turn)
        {
            Held held;
            for (int i = begin + turn; i < begin + 8 && i < units * dst; i += turns) {
                const MovedByte byte = moved_in_run<Units>(i);
                if (!byte.takes_bits()) continue;
                const int slot = held.slot_of(byte.place(byte.first()), byte.place(byte.last()));
                bit[i] = static_cast<uint8_t>((8 * (slot - byte.first()) + byte.bit) & 63);
            }
            if (held.count > 8) return false;
            for (int slot = 0; slot < held.count; ++slot)
                pick[turn][begin + slot] = static_cast<uint8_t>(held.bytes[slot]);
            return true;
        }

        constexpr bool place_bits()
        {
            for (int begin = 0; begin < 64; begin += 8)
                for (int turn = 0; turn < turns; ++turn)
                    if (!place_eight(begin, turn)) return false;
            return true;
        }

        constexpr Plan()
        {
            for (int i = 0; i < units * dst; ++i) {
                const MovedByte byte = moved_in_run<Units>(i);
                const uint64_t lane = uint64_t{1} << i;
                mask[i] = byte.mask;
                fixed[i] = byte.fixed;
                if (byte.takes_bits()) {
                    bits |= lane;
                    read |= uint64_t{1} << byte.place(byte.first()) | uint64_t{1} << byte.place(byte.last());
                }
                if (byte.rest == Rest::alpha) alpha |= lane;
                if (byte.rest != Rest::kept) stored |= lane;
                if (whole && byte.takes_bits()) pick[0][i] = static_cast<uint8_t>(byte.place(byte.first()));
            }
            if (whole || place_bits()) return;
            turns = 2;
            place_bits();
        }
    };
    static constexpr Plan plan{};

    static constexpr uint64_t ones(long count) { return count >= 64 ? ~uint64_t{0} : (uint64_t{1} << count) - 1; }

    TNTVT_AVX512 static __m512i constant_avx512(const void* at) { return _mm512_load_si512(at); }

    // Masks of ones: g++ 12 warns of the intrinsics without a mask.
    static constexpr uint64_t all = ~uint64_t{0};

    TNTVT_AVX512 static __m512i moved_avx512(__m512i from, __m512i rest)
    {
        const __m512i first = constant_avx512(plan.pick[0]), second = constant_avx512(plan.pick[1]);
        if (whole) return _mm512_mask_permutexvar_epi8(rest, plan.bits, first, from);
        const __m512i begins = constant_avx512(plan.bit);
        __m512i cut = _mm512_maskz_multishift_epi64_epi8(all, begins, _mm512_maskz_permutexvar_epi8(all, first, from));
        if (plan.turns == 2)
            cut = _mm512_mask_multishift_epi64_epi8(cut, all / 3 * 2, begins,
                                                    _mm512_maskz_permutexvar_epi8(all, second, from));
        return _mm512_or_si512(_mm512_and_si512(cut, constant_avx512(plan.mask)), rest);
    }

    TNTVT_AVX512 static void step_avx512(uint8_t* to, const uint8_t* from, __m512i rest, uint64_t read,
                                         uint64_t written)
    {
        _mm512_mask_storeu_epi8(to, written, moved_avx512(_mm512_maskz_loadu_epi8(read, from), rest));
    }

    // All of the line; with `down` the rightmost step goes first.
    TNTVT_AVX512 static long run_avx512(uint8_t* to, const uint8_t* from, long count, bool down)
    {
        __m512i rest = constant_avx512(plan.fixed);
        if (takes_alpha<Units>()) rest = _mm512_mask_mov_epi8(rest, plan.alpha, _mm512_set1_epi8(static_cast<char>(a)));
        const long steps = count / units, left = count % units;
        if (left > 0)
            step_avx512(to + steps * units * dst, from + steps * units * src, rest, plan.read & ones(left * src),
                        plan.stored & ones(left * dst));
        const long first = down ? (steps - 1) * units : 0, apart = down ? -units : units;
        to += first * dst;
        from += first * src;
        for (long n = 0; n < steps; ++n, to += apart * dst, from += apart * src)
            step_avx512(to, from, rest, plan.read, plan.stored);
        return count;
    }
};

}  // namespace tintvert
#endif
