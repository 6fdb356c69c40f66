// The 8-bit pixels that the table decoders write.
#pragma once

#include <cstdint>

#include "decode/tables.h"

namespace tintvert {

struct Rgb24 {
    static constexpr long pixel_bytes = 3;
    static void put(uint8_t* dst, Bgr pixel)
    {
        dst[0] = pixel.blue;
        dst[1] = pixel.green;
        dst[2] = pixel.red;
    }
};

struct Rgb32 {
    static constexpr long pixel_bytes = 4;
    static void put(uint8_t* dst, Bgr pixel)
    {
        Rgb24::put(dst, pixel);
        dst[3] = 255;
    }
};

}  // namespace tintvert
