// `v210`: 4:2:2 with ten bits a sample. Six pixels are a group of four 32-bit little-endian words, 16 bytes.
//
//            31 30  29 ..... 20  19 ..... 10   9 ...... 0
//   word 0     -        Cr0          Y0           Cb0
//   word 1     -        Y2           Cb2          Y1
//   word 2     -        Cb4          Y3           Cr2
//   word 3     -        Y5           Cr4          Y4
//
// Read from low bits to high and from word to word, the samples stand in the order of `2vuy`: sample n is
// word n / 3, shift 10 * (n % 3). Twelve samples fill a group, so the rule runs on from group to group.
#pragma once

#include <cstdint>

#include "frame/memory.h"
#include "frame/number.h"

namespace tintvert::v210 {

enum Sample { Cb0, Y0, Cr0, Y1, Cb2, Y2, Cr2, Y3, Cb4, Y4, Cr4, Y5 };

constexpr long group_pixels = 6;
constexpr long group_bytes = 16;

// A pair of pixels is four samples: Cb, Y of its first pixel, Cr, Y of its second. Pairs 0, 1 and 2 of a
// group are its pgroups 0, 1 and 2; they begin with pixel 0, 2 and 4.
constexpr int pair_samples = 4;

constexpr int word_of(int sample) { return sample / 3; }
constexpr int place_of(int sample) { return sample % 3; }  // 0 is the low field, 2 the top one

static_assert(word_of(Cr0) == 0 && place_of(Cr0) == 2 && word_of(Y1) == 1 && place_of(Y1) == 0);
static_assert(pair_samples * 1 == Cb2 && word_of(Cb2) == 1 && place_of(Cb2) == 1);
static_assert(pair_samples * 2 == Cb4 && word_of(Cb4) == 2 && place_of(Cb4) == 2);
static_assert(word_of(Y5) == 3 && place_of(Y5) == 2);

constexpr uint32_t field(uint32_t word, int place) { return word >> 10 * place & 1023; }

// No mask: a value above 1023 runs into the field above it, or from the top one into bits 30 and 31.
constexpr uint32_t joined(uint32_t low, uint32_t middle, uint32_t top) { return low | middle << 10 | top << 20; }

// The word with one field replaced; bits 30 and 31 are kept as well.
constexpr uint32_t with_field(uint32_t word, int place, uint32_t value)
{
    return (word & ~(1023u << 10 * place)) | value << 10 * place;
}

inline uint32_t sample(const uint8_t* group, int n)
{
    return field(load<uint32_t>(group + 4 * word_of(n)), place_of(n));
}

// A line of whole 48-pixel blocks: `width` rounded up to a multiple of 48, times 8, divided by 3, at the
// width of the argument. 1920 gives 5120, 1280 gives 3456, 100 gives 384.
constexpr uint32_t line_of_48s(uint32_t width) { return (width + 47) / 48 * 48 * 8 / 3; }
constexpr long line_of_48s(long width)
{
    const long rounded = static_cast<long>(static_cast<unsigned long>(width) + 47) / 48 * 48;
    return line_offset(rounded, 8) / 3;
}

static_assert(line_of_48s(1920L) == 5120 && line_of_48s(1280L) == 3456 && line_of_48s(100L) == 384);
static_assert(line_of_48s(1920u) == 5120 && line_of_48s(1280u) == 3456 && line_of_48s(100u) == 384);

}  // namespace tintvert::v210
