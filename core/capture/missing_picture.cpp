#include "capture/missing_picture.h"

#include <tintvert.h>

#include "io/pictures/rgb_frame.h"

namespace tintvert::core::capture {
namespace {

void paint(uint8_t* pixel, uint8_t r, uint8_t g, uint8_t b)
{
    pixel[0] = r;
    pixel[1] = g;
    pixel[2] = b;
}

// About the luma: 2, 5 and 1 eighths of red, green and blue.
uint8_t grey_of(const uint8_t* pixel) { return static_cast<uint8_t>((2 * pixel[0] + 5 * pixel[1] + pixel[2]) / 8); }

}  // namespace

// A stride of three bytes a pixel makes it `rgb24`.
Picture missing_picture(const Frame& frame)
{
    const auto [width, height] = frame.size();
    std::vector<uint8_t> v210 = frame.bytes();
    std::vector<uint8_t> rgb24(static_cast<size_t>(width * height * 3));
    tntvt_v210_rgb24(rgb24.data(), width * 3, v210.data(), frame.size().line_bytes(), width, height, 1);
    Picture picture = picture_of_rgb24(rgb24.data(), width * 3, width, height);
    for (long y = 0; y < height; ++y) {
        for (long x = 0; x < width; ++x) {
            uint8_t* const pixel = picture.pixel(x, y);
            const uint8_t grey = grey_of(pixel);
            frame.has_pair(x / 2, y) ? paint(pixel, grey, grey, grey) : paint(pixel, 255, 0, 255);
        }
    }
    return picture;
}

}  // namespace tintvert::core::capture
