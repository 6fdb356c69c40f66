// `v210` to RGB, the reference implementation: by the 8-bit rules of `2vuy`, by ten bits, and through the
// entries that resolve strides; and full-range 4:4:4 to RGB.
#pragma once

#include <array>
#include <cstdint>

#include "reference/decode/2vuy_rgb.h"

namespace tintvert::reference {

// The top eight bits of sample n of the groups at `src`, counted from low bits to high, word after word.
int top_eight_of(const uint8_t* src, int64_t n);

// `scale` must not be 0 for the first of these.
void v210_rgb24(uint8_t* dst, int64_t dstStride, const uint8_t* src, int64_t srcStride, int64_t width, int64_t height,
                int64_t scale);
void v210_rgb16(uint8_t* dst, int64_t dstStride, const uint8_t* src, int64_t srcStride, int64_t width, int64_t height,
                int64_t scale);

// The terms of a sum, with six fractional bits, for a 10-bit code.
int luma_term_10(int y);
int blue_term_10(int cb), green_term_of_cb_10(int cb);
int red_term_10(int cr), green_term_of_cr_10(int cr);

Sums sums_of_10(int cb, int y, int cr);
Bgr bgr_of_10(int cb, int y, int cr);

void v210_to_rgb(const uint8_t* src, uint8_t* dst, int64_t width, int64_t height, int64_t dstStride, bool bgra);

// What an entry does at any `scale` but 1, and tntvt_yuv422_10_rgb24 at that one too.
void entry_by_tables(bool ten_bits, int bytes_a_pixel, uint8_t* dst, int64_t dstStride, const uint8_t* src,
                     int64_t srcStride, int64_t width, int64_t height, int64_t scale);

std::array<uint8_t, 4> jpeg_pixel(int y, int cb, int cr);
void yuvijg_rgb32(uint8_t* dst, int64_t dstStride, const uint8_t* src, int64_t srcStride, int64_t width,
                  int64_t height);

}  // namespace tintvert::reference
