// The four bytes of a pixel in another order, one 32-bit word at a time.
//
// A pixel is b0, b1, b2, b3 from the lowest address, which makes the word 0xb3b2b1b0. A word is read
// whole before it is written.
#pragma once

#include <cstdint>

#include "frame/bit_moves.h"
#include "frame/memory.h"

namespace tintvert {

constexpr uint32_t rotate_right_8(uint32_t x) { return x >> 8 | x << 24; }
constexpr uint32_t rotate_left_8(uint32_t x) { return x << 8 | x >> 24; }
constexpr uint32_t reverse_bytes(uint32_t x) { return __builtin_bswap32(x); }
constexpr uint32_t swap_low_pair(uint32_t x) { return (x & 0xFF00FF00) | (x & 0xFF) << 16 | (x >> 16 & 0xFF); }

static_assert(rotate_right_8(0xB3B2B1B0) == 0xB0B3B2B1);
static_assert(rotate_left_8(0xB3B2B1B0) == 0xB2B1B0B3);
static_assert(reverse_bytes(0xB3B2B1B0) == 0xB0B1B2B3);
static_assert(swap_low_pair(0xB3B2B1B0) == 0xB3B0B1B2);

template <uint32_t (*order)(uint32_t)>
struct EachWord {
    static constexpr long src_bytes = 4, dst_bytes = 4;
    using Simd = BitMoves<EachWord>;
    static constexpr MovedByte moved(int byte) { return moved_bits(8 * (order(0x03020100) >> 8 * byte & 0xFF)); }
    static constexpr void pixel(uint8_t* dst, const uint8_t* src) { store(dst, order(load<uint32_t>(src))); }
};

}  // namespace tintvert
