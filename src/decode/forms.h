// The pixels that the 8-bit table decoders write.
#pragma once

#include <cstdint>

#include "decode/tables.h"
#include "frame/memory.h"

namespace tintvert {

struct Rgb24 {
    static constexpr long pixel_bytes = 3, groups_left = 0;
    static constexpr bool second_luma = true;
    static void put(uint8_t* dst, Bgr pixel)
    {
        dst[0] = pixel.blue;
        dst[1] = pixel.green;
        dst[2] = pixel.red;
    }
};

struct Rgb32 {
    static constexpr long pixel_bytes = 4, groups_left = 0;
    static constexpr bool second_luma = true;
    static void put(uint8_t* dst, Bgr pixel)
    {
        Rgb24::put(dst, pixel);
        dst[3] = 255;
    }
};

// The second pixel of a pair shows the first one's luma. The second luma is not read, which steps of whole groups
// would do: kernels leave the last group of a line.
struct Rgb16 {
    static constexpr long pixel_bytes = 2, groups_left = 1;
    static constexpr bool second_luma = false;
    static void put(uint8_t* dst, Bgr pixel) { store(dst, rgb16_word(pixel)); }
};

}  // namespace tintvert
