// The `v210` group: six pixels in four little-endian words.
//
//            29 ..... 20  19 ..... 10   9 ...... 0
//   word 0       Cr0          Y0           Cb0
//   word 1       Y2           Cb2          Y1
//   word 2       Cb4          Y3           Cr2
//   word 3       Y5           Cr4          Y4
//
// In the order Cb0, Y0, Cr0, Y1, Cb2, Y2, Cr2, Y3, Cb4, Y4, Cr4, Y5 sample n is in word n / 3 from bit
// 10 * (n % 3) on. It is the order of `2vuy`. Twelve samples fill a group, so the count may run on from group
// to group. A pair of pixels is four samples: pairs 0, 1 and 2 of a group are its pgroups 0, 1 and 2.
#pragma once

#include <cstdint>

#include "frame/memory.h"
#include "frame/number.h"

namespace tintvert {

constexpr long v210_group_pixels = 6;
constexpr long v210_group_bytes = 16;
constexpr uint32_t v210_pair_samples = 4;

// Sample n of a group, by the two bytes that it spans.
inline uint32_t v210_sample(const uint8_t* group, uint32_t n)
{
    const uint32_t field = n % 3;
    return load<uint16_t>(group + n / 3 * 4 + field) >> (2 * field) & 0x3FFu;
}

// No mask: a value above 1023 runs into the field above it, or from the top one into bits 30 and 31.
constexpr uint32_t v210_word(uint32_t low, uint32_t middle, uint32_t top) { return low | middle << 10 | top << 20; }

// Whole units of 48 pixels, 128 bytes each, at the width of the argument.
constexpr uint32_t v210_line_of_48(uint32_t width) { return (width + 47) / 48 * 48 * 8 / 3; }
constexpr long v210_line_of_48(long width)
{
    const long rounded = static_cast<long>(static_cast<unsigned long>(width) + 47) / 48 * 48;
    return line_offset(rounded, 8) / 3;
}

static_assert(v210_line_of_48(1920u) == 5120 && v210_line_of_48(1280u) == 3456 && v210_line_of_48(100u) == 384);
static_assert(v210_line_of_48(1920L) == 5120 && v210_line_of_48(1280L) == 3456 && v210_line_of_48(100L) == 384);

}  // namespace tintvert
