// Runs of pixels from a palette, a store for one pixel or two where the scalar code makes one for each byte. No more
// than three bytes of an entry are read.
#pragma once

#include "frame/memory.h"
#include "simd/simd.h"

namespace tintvert {

inline uint32_t colour_of(const uint8_t* entry) { return load<uint16_t>(entry) | uint32_t{entry[2]} << 16; }

// One entry over and over.
struct RepeatColour {
    static long sse2(uint8_t* dst, const uint8_t* entry, long pixels)
    {
        const uint32_t colour = colour_of(entry);
        const uint64_t two = uint64_t{colour} << 32 | colour;
        long n = 0;
        for (; pixels - n >= 2; n += 2) store(dst + 4 * n, two);
        if (n < pixels) store(dst + 4 * n, colour);
        return pixels;
    }
};

// An entry for each index.
struct LookUpColours {
    static long sse2(uint8_t* dst, const uint8_t* indices, const uint8_t* palette, long pixels)
    {
        for (long n = 0; n < pixels; ++n) store(dst + 4 * n, colour_of(palette + 4 * indices[n]));
        return pixels;
    }
};

}  // namespace tintvert
