// `rgb10` to 16 and 8 bits a channel, the reference implementation: each bit by its number.
#pragma once

#include <cstdint>

namespace tintvert::reference {

void rgb10_rgba64(uint8_t* dst, long dstStride, const uint8_t* src, long srcStride, long width, long height,
                  unsigned char swapBytes, unsigned char flipLines);
void rgb10_rgb48(uint8_t* dst, long dstStride, const uint8_t* src, long srcStride, long width, long height,
                 unsigned char swapBytes, unsigned char flipLines);
void rgb10_rgba32(uint8_t* dst, long dstStride, const uint8_t* src, long srcStride, long width, long height,
                  unsigned char swapBytes, unsigned char flipLines);

}  // namespace tintvert::reference
