// How numbers become smaller ones.
#pragma once

#include <cstdint>

namespace tintvert {

// A double becomes an integer by truncation toward zero.
constexpr int32_t truncate(double value) { return static_cast<int32_t>(value); }

// ... and a byte by keeping the low eight bits of that: 256.0 becomes 0.
constexpr uint8_t low_byte(double value) { return static_cast<uint8_t>(truncate(value)); }

// What does not fit in an `int` wraps.
constexpr int32_t wrapped(long value) { return static_cast<int32_t>(value); }

// Products of two counts wrap at 32 bits.
constexpr int32_t wrapping_product(long x, long y)
{
    return static_cast<int32_t>(static_cast<uint32_t>(x) * static_cast<uint32_t>(y));
}

// The line count of the routines to which the sign of `height` says nothing. The magnitude of the most
// negative number is itself, which is below 1 and so no work.
constexpr long magnitude(long height)
{
    return height < 0 ? static_cast<long>(0ul - static_cast<unsigned long>(height)) : height;
}

// Offsets of lines wrap at the width of `long`.
constexpr long line_offset(long line, long stride)
{
    return static_cast<long>(static_cast<unsigned long>(line) * static_cast<unsigned long>(stride));
}

}  // namespace tintvert
