// `i420` and `yv12`: luma, then two chroma planes, all in one buffer. Line offsets are 32-bit products.
#pragma once

#include <cstdint>

#include "frame/memory.h"

namespace tintvert {

// The planes of a frame in memory order: Cb before Cr in `i420`, Cr before Cb in `yv12`. The second chroma
// plane begins a quarter of the luma plane, rounded down, after the first.
template <class Byte>
struct Planes420 {
    Byte *luma, *chroma1, *chroma2;

    Planes420(Byte* frame, uint32_t width, uint32_t height)
    {
        const uint32_t samples = width * height;
        luma = frame;
        chroma1 = advance(frame, samples);
        chroma2 = advance(chroma1, samples >> 2);
    }
};

// `stride` is that of the `2vuy` side.
inline uint32_t stride_or_default(uint32_t stride, uint32_t width)
{
    return stride == 0 || stride == 0xFFFFFFFF ? width * 2 : stride;
}

}  // namespace tintvert
