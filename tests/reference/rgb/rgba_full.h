// The frame copy by pixel size, the reference implementation.
#pragma once

#include <cstdint>

namespace tintvert::reference {

// A block of 2^31 bytes or more is not copied. `width` must not be 0.
void rgba_full(uint8_t* dst, long dstStride, const uint8_t* src, long srcStride, long width, long height);

}  // namespace tintvert::reference
