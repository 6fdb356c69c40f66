// Full-range 4:2:2 with luma first to video range with chroma first: the two bytes of a pixel change places.
#pragma once

#include "ycbcr8/full_range_simd.h"

namespace tintvert {

// Cb is on even pixels and Cr on odd ones, before and after. Both bytes of a pixel are read before
// either is written, so a run may be converted in place.
template <uint8_t sign>
void to_video_range(uint8_t* dst, const uint8_t* src, int pixels)
{
    const long run = 2l * pixels;
    long i = run_simd<ToVideoRange>(instruction_set(), {{dst, run}}, {{src, run}}, dst, src, pixels, sign);
    for (; i < pixels; ++i) {
        const uint8_t y = src[2 * i];
        const uint8_t c = src[2 * i + 1] ^ sign;
        dst[2 * i + 1] = video_luma(y);
        dst[2 * i] = video_chroma(c);
    }
}

}  // namespace tintvert
