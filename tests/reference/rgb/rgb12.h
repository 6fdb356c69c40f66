// Packed 12 bits to wider forms and back, the reference implementation: each bit by its number.
#pragma once

#include <cstdint>

namespace tintvert::reference {

void rgb12_bgr48(uint8_t* dst, long dstStride, const uint8_t* src, long srcStride, long width, long height);
void rgb12_rgb48(uint8_t* dst, long dstStride, const uint8_t* src, long srcStride, long width, long height);
void rgb12_rgba32(uint8_t* dst, long dstStride, const uint8_t* src, long srcStride, long width, long height);
void rgb48_12_rgb12(uint8_t* dst, long dstStride, const uint8_t* src, long srcStride, long width, long height);
void rgb48_rgb12(uint8_t* dst, long dstStride, const uint8_t* src, long srcStride, long width, long height);
void rgb48_12_rgba32(uint8_t* dst, long dstStride, const uint8_t* src, long srcStride, long width, long height);

}  // namespace tintvert::reference
