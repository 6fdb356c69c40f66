// RGB of 16 bits a channel, the reference implementation: a table of which channel goes where, how a line is placed.
#pragma once

#include <string_view>

#include "reference/strided_frame.h"

namespace tintvert::reference {

enum class Depth { from_16_to_8, from_8_to_16, big_endian_to_16, big_endian_to_8 };
enum class Height { positive_only, exact_flip, one_line_off };

struct DeepForm {
    Depth depth;
    int src_channels, dst_channels;
    // For each destination channel the digit of its source channel, or 'z' for a constant 0. Big-endian
    // forms have one such string for each order; an empty one writes nothing.
    std::string_view picks[4];
    Height height;
};

PixelBytes pixel_bytes(const DeepForm& form);

// All channels of a pixel are read before any is written.
void deep_frame(const DeepForm& form, const StridedFrame& frame, uint32_t bits, uint32_t order);

}  // namespace tintvert::reference
