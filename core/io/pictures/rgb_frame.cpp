#include "io/pictures/rgb_frame.h"

#include <algorithm>

namespace tintvert::core {

std::vector<uint8_t> rgb32_of(const Picture& picture, long frame_width)
{
    std::vector<uint8_t> frame(static_cast<size_t>(frame_width * picture.height * 4));
    uint8_t* to = frame.data();
    for (long y = 0; y < picture.height; ++y) {
        for (long x = 0; x < frame_width; ++x, to += 4) {
            const uint8_t* from = picture.pixel(std::min(x, picture.width - 1), y);
            to[0] = from[2];
            to[1] = from[1];
            to[2] = from[0];
            to[3] = from[3];
        }
    }
    return frame;
}

Picture picture_of_rgb24(const uint8_t* frame, long stride, long width, long height)
{
    Picture picture(width, height);
    for (long y = 0; y < height; ++y) {
        for (long x = 0; x < width; ++x) {
            const uint8_t* from = frame + y * stride + x * 3;
            uint8_t* to = picture.pixel(x, y);
            to[0] = from[2];
            to[1] = from[1];
            to[2] = from[0];
            to[3] = 255;
        }
    }
    return picture;
}

}  // namespace tintvert::core
