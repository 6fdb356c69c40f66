// The reference implementation of the field and frame routines: addresses as numbers, one load or store after the
// other, and the companions asked as often and in the order that the routines ask them.
#pragma once

#include <cstdint>

namespace tintvert::reference {

// Modes 5 to 8 must not be given an odd `height`, nor mode 3 one below 2.
int change_field_rgb(uint8_t* dst, uint32_t mode, uint32_t width, uint32_t height, uint32_t dstStride, uint8_t* src,
                     uint32_t srcStride);
int change_field_yuv(uint8_t* dst, uint32_t mode, uint32_t width, uint32_t height, uint32_t dstStride, uint8_t* src,
                     uint32_t srcStride);

// What modes 11 and 12 make of two pixels.
uint32_t mean_of_pixels(uint32_t one, uint32_t other);

// The measure of combing of three channels above, below and here. `k` is not below 0.
int32_t comb_measure(const uint8_t* above, const uint8_t* below, const uint8_t* here, int32_t k);

int deinterlace_rgb(uint8_t* dst, uint8_t* src, uint32_t width, uint32_t height, uint32_t stride, int32_t threshold,
                    int32_t softness, int64_t, int32_t mode);

// In place `height` must not be negative.
void flip_vert(uint8_t* dst, uint8_t* src, uint32_t, int32_t height, uint32_t stride);
void flip_vert_flags(uint8_t* dst, uint8_t* src, uint32_t, uint32_t, int32_t height, uint32_t dstStride,
                     uint32_t srcStride, uint32_t flags, int32_t keepMargins);
void flip_horz(uint8_t* dst, uint8_t* src, int32_t width, int32_t height, uint32_t stride);

void fld_sep_to_mix32(uint8_t* dst, int64_t dstStride, uint8_t* firstField, uint8_t* secondField, int64_t fieldStride,
                      uint32_t width, uint32_t height);
void fld_mix_to_sep32(uint8_t* firstField, uint8_t* secondField, int64_t fieldStride, uint8_t* src, int64_t srcStride,
                      uint32_t width, uint32_t height);
void copy_interleaved(uint8_t* dst, int64_t dstStride, uint8_t* src, int64_t srcStride, int64_t, int64_t height);
int copy_dissolve(uint8_t* dst, uint8_t* src, int64_t stride, int64_t width, int64_t height, uint32_t fourcc);

}  // namespace tintvert::reference
