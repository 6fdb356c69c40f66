// RGB to `v210`, `v210` to and from `2vuy`, and the two routines of 8-bit bytes, the reference implementation.
// A group is read whole before it is written.
#pragma once

#include <cstdint>

namespace tintvert::reference {

// The columns of the encoders: how they weigh, offset and round.
enum class Encoding { video_601, narrow_601, narrow_709 };

// Luma as stored and chroma before the filter.
struct Ycc {
    int y;
    double cb, cr;
};
Ycc ycc_of(Encoding encoding, int r, int g, int b);

void argb_line_to_v210(const uint8_t* src, uint8_t* dst, int width, int hasAlpha);
void bgra_line_to_v210(const uint8_t* src, uint8_t* dst, int width);
void rgb32_to_v210(uint8_t* dst, int64_t dstStride, const uint8_t* src, int64_t srcStride, int64_t width,
                   int64_t height);

void yuv2_bytes(const uint8_t* src, uint8_t* dst, int width);
void yuvs_bytes(const uint8_t* src, uint8_t* dst, int width);

// A `height` of 0 never comes back from the first.
void bytes_to_v210(uint8_t* dst, const uint8_t* src, uint32_t width, uint32_t height, uint32_t dstStride);
void v210_to_bytes(uint8_t* dst, const uint8_t* src, uint32_t width, uint32_t height, uint32_t srcStride);

}  // namespace tintvert::reference
