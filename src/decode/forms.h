// The pixels that the 8-bit table decoders write, one at a time or four from a register of B, G, R, 255.
#pragma once

#include <cstdint>

#include "decode/lanes.h"
#include "decode/tables.h"
#include "frame/memory.h"

namespace tintvert {

struct Rgb24 {
    static constexpr long pixel_bytes = 3, groups_left = 0;
    static void put(uint8_t* dst, Bgr pixel)
    {
        dst[0] = pixel.blue;
        dst[1] = pixel.green;
        dst[2] = pixel.red;
    }
};

struct Rgb32 {
    static constexpr long pixel_bytes = 4, groups_left = 0;
    static void put(uint8_t* dst, Bgr pixel)
    {
        Rgb24::put(dst, pixel);
        dst[3] = 255;
    }
};

// The second pixel of a pair shows the first one's luma. The second luma of a line's last pair is not even
// read, so wide steps leave that pair's group.
struct Rgb16 {
    static constexpr long pixel_bytes = 2, groups_left = 1;
    static void put(uint8_t* dst, Bgr pixel) { store(dst, rgb16_word(pixel)); }
};

}  // namespace tintvert
