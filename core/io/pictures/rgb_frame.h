// Pictures as the library's 8-bit RGB frames: blue at byte 0.
#pragma once

#include <cstdint>
#include <vector>

#include "io/pictures/picture.h"

namespace tintvert::core {

// `rgb32` of `frame_width` pixels a line; columns that the picture has not repeat its last one.
std::vector<uint8_t> rgb32_of(const Picture& picture, long frame_width);

// The first `width` pixels of every line of an `rgb24` frame, opaque.
Picture picture_of_rgb24(const uint8_t* frame, long stride, long width, long height);

}  // namespace tintvert::core
