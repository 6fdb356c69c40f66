// `2vuy` to RGB by the fixed-point rules, the reference implementation, without tables.
#pragma once

#include <cstdint>

namespace tintvert::reference {

// The terms of a sum, with four fractional bits, for a luma or chroma byte.
int luma_term(int y);
int blue_term(int cb), green_term_of_cb(int cb);
int red_term(int cr), green_term_of_cr(int cr);

struct Sums {
    int blue, green, red;
};
Sums sums_of(int cb, int y, int cr);

struct Bgr {
    uint8_t blue, green, red;
};
Bgr bgr_of(int cb, int y, int cr);
uint16_t rgb16_word_of(int cb, int y, int cr);

// `scale` must not be 0.
void yuv422_rgb24(uint8_t* dst, int64_t dstStride, const uint8_t* src, int64_t srcStride, int64_t width, int64_t height,
                  int64_t scale);
void yuv422_rgb16(uint8_t* dst, int64_t dstStride, const uint8_t* src, int64_t srcStride, int64_t width, int64_t height,
                  int64_t scale);

}  // namespace tintvert::reference
