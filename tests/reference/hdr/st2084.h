// The ST 2084 conversions, the reference implementation: tables from the formulas, bytes one at a time in the order in
// which they are read and written.
#pragma once

#include <cstdint>

namespace tintvert::reference {

// Entries 0 to 1023 from the start of an 8-bit table on, the tables after it included.
uint32_t entry_from_rgb_to_st2084(uint32_t index);
uint32_t entry_from_st2084_to_rgb(uint32_t index);

int rgb_to_st2084(uint8_t* dst, uint8_t* src, uint32_t dstStride, uint32_t srcStride, int height);
int st2084_to_rgb(uint8_t* dst, uint8_t* src, uint32_t dstStride, uint32_t srcStride, int height);
int yuv2_to_st2084(uint8_t* dst, uint8_t* src, uint32_t dstStride, uint32_t srcStride, int height);
int st2084_to_yuv2(uint8_t* dst, uint8_t* src, uint32_t dstStride, uint32_t srcStride, int height);
int v210_to_st2084(uint8_t* dst, uint8_t* src, uint32_t dstStride, uint32_t srcStride, int height);
int st2084_to_v210(uint8_t* dst, uint8_t* src, uint32_t dstStride, uint32_t srcStride, int height);

}  // namespace tintvert::reference
