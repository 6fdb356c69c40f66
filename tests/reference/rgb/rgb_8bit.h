// RGB of 8 bits a channel, one byte at a time, each loaded and stored when the routines do it.
#pragma once

#include "reference/strided_frame.h"

namespace tintvert::reference {

// 32-bit words: all four bytes are read, then all four are written.
void rotated_right(uint8_t* dst, const uint8_t* src);     // b1, b2, b3, b0
void rotated_left(uint8_t* dst, const uint8_t* src);      // b3, b0, b1, b2
void reversed(uint8_t* dst, const uint8_t* src);          // b3, b2, b1, b0
void low_pair_swapped(uint8_t* dst, const uint8_t* src);  // b2, b1, b0, b3
void counted_alpha(uint8_t* dst, const uint8_t* src);     // b3, and one more where the rest is below 8

// Narrowing.
void cut_to_24(uint8_t* dst, const uint8_t* src);
void rgba32_to_bgr24(const StridedFrame& frame);
void rgba32_to_rgb24_upside_down(const StridedFrame& frame);

// Widening. The source is read again for each byte that is written.
void alpha_behind(uint8_t* dst, const uint8_t* src);           // s0, s1, s2, 255, written in this order
void reversed_alpha_behind(uint8_t* dst, const uint8_t* src);  // s2, s1, s0, 255, written d2, d1, d0, d3
void alpha_in_front(uint8_t* dst, const uint8_t* src);         // 255, s0, s1, s2, written d3, d2, d1, d0
void five_bits_widened(uint8_t* dst, const uint8_t* src);      // written d2, d1, d0, d3
void rgba24_to_rgb32_upside_down(const StridedFrame& frame);

}  // namespace tintvert::reference
