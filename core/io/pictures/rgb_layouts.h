// Pictures as frames of the RGB layouts, and back.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "io/pictures/picture.h"

namespace tintvert::core {

// Whether a layout is one that a picture can be put into and taken out of.
bool stores_picture(std::string_view layout);

// Whether it has more than 8 bits a channel.
bool is_deep(std::string_view layout);

// How the words of a layout are to be read: significant bits of a 16-bit channel, and whether `rgb10` words
// are big-endian.
struct Words {
    int bits = 16;
    bool big_endian = true;
};

// Lines of `stride` bytes, pixels at their start.
std::vector<uint8_t> frame_of_picture(const Picture& picture, std::string_view layout, long stride, const Words& words);

// 16-bit layouts give 16-bit pictures. Opaque unless `alpha` is asked for.
Picture picture_of_frame(const uint8_t* frame, std::string_view layout, long stride, long width, long height,
                         const Words& words, bool alpha);

}  // namespace tintvert::core
