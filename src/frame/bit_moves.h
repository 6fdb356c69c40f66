// The kernel of forms that only move bits: each byte of the result is eight neighbouring bits of the source, or a
// constant. Such a form says so byte by byte, in `moved(byte)`, and names its kernel:
//
//   using Simd = BitMoves<Form>;
//
// The shuffles, shifts and masks of a step are worked out from that while it compiles.
#pragma once

#include "frame/moved_byte.h"

#include "frame/bit_moves_avx2.h"
#include "frame/bit_moves_avx512.h"

namespace tintvert {

// A pixel of the walk, `Form`, is `per_pixel` of `Units`, which has `src_bytes`, `dst_bytes` and `moved`.
template <class Units, long per_pixel = 1, class Form = Units>
struct BitMoves {
    static_assert(pixel_is_moved<Form, Units>(), "`moved` and `pixel` of a form differ");
    static constexpr bool in_place = Units::src_bytes == Units::dst_bytes;
#if defined(__x86_64__)
    static long avx2(uint8_t* dst, const uint8_t* src, long pixels, bool down)
    {
        if constexpr (keeps_bytes<Units>())
            return 0;
        else
            return Avx2BitMoves<Units>::run_avx2(dst, src, pixels * per_pixel, down) / per_pixel;
    }

    // One shuffle of whole bytes is as quick in 256 bits, and quicker where frames fill the third-level cache; what
    // that leaves of a line is done under masks.
    static long avx512(uint8_t* dst, const uint8_t* src, long pixels, bool down)
    {
        if constexpr (!keeps_bytes<Units>()) {
            if (Avx2BitMoves<Units>::one_shuffle) {
                const long first = Avx2BitMoves<Units>::leading(pixels * per_pixel);
                VbmiBitMoves<Units>::run_avx512(dst + first * Units::dst_bytes, src + first * Units::src_bytes,
                                                pixels * per_pixel - first, down);
                avx2(dst, src, pixels, down);
                return pixels;
            }
        }
        return VbmiBitMoves<Units>::run_avx512(dst, src, pixels * per_pixel, down) / per_pixel;
    }
#endif
};

}  // namespace tintvert
