// The `v210` group: six pixels in four little-endian words.
//
//            29 ..... 20  19 ..... 10   9 ...... 0
//   word 0       Cr0          Y0           Cb0
//   word 1       Y2           Cb2          Y1
//   word 2       Cb4          Y3           Cr2
//   word 3       Y5           Cr4          Y4
//
// In the order Cb0, Y0, Cr0, Y1, Cb2, Y2, Cr2, Y3, Cb4, Y4, Cr4, Y5 sample n stands in word n / 3 from bit
// 10 * (n % 3) on.
#pragma once

#include <cstdint>

#include "frame/memory.h"

namespace tintvert {

// Sample n of a group, by the two bytes that it spans.
inline uint32_t v210_sample(const uint8_t* group, uint32_t n)
{
    const uint32_t field = n % 3;
    return load<uint16_t>(group + n / 3 * 4 + field) >> (2 * field) & 0x3FFu;
}

// Whole units of 48 pixels, 128 bytes each.
constexpr uint32_t v210_line_of_48(uint32_t width) { return (width + 47) / 48 * 48 * 8 / 3; }

}  // namespace tintvert
