// RGB to `2vuy`, the reference implementation.
#pragma once

#include <cstdint>

namespace tintvert::reference {

enum class Bytes { xrgb, bgrx };  // of a source pixel, from the lowest address; x is never read
enum class Matrix { video_601, full_709 };

struct Ycbcr {
    double y, cb, cr;
};

Ycbcr ycbcr_of(Matrix matrix, double r, double g, double b);

// Pair by pair, in ascending order; a pair is read whole before its four bytes are written.
void rgb_run_to_2vuy(const uint8_t* src, uint8_t* dst, int64_t pixels, Bytes bytes, Matrix matrix);

// `width` x `height` pixels of B, G, R, x as one run, the product cut to a signed 32-bit number.
void rgb32_frame_to_2vuy(uint8_t* dst, const uint8_t* src, int64_t width, int64_t height);

}  // namespace tintvert::reference
