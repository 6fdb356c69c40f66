// Small raw frames for the tool, and the PNG files that it makes.
#pragma once

#include <png.h>

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "support/raw_frame.h"
#include "tool/run.h"

namespace tintvert::test {

// The pixels of a PNG as 8-bit red, green, blue.
struct Pixels {
    unsigned width = 0, height = 0;
    std::vector<uint8_t> rgb;

    std::array<int, 3> at(unsigned x, unsigned y) const
    {
        const uint8_t* const pixel = &rgb[(y * width + x) * 3];
        return {pixel[0], pixel[1], pixel[2]};
    }
};

inline Pixels pixels_of(const std::string& png)
{
    png_image image = {};
    image.version = PNG_IMAGE_VERSION;
    EXPECT_NE(png_image_begin_read_from_memory(&image, png.data(), png.size()), 0);
    image.format = PNG_FORMAT_RGB;
    Pixels pixels{image.width, image.height, std::vector<uint8_t>(PNG_IMAGE_SIZE(image))};
    EXPECT_NE(png_image_finish_read(&image, nullptr, pixels.rgb.data(), 0, nullptr), 0);
    return pixels;
}

}  // namespace tintvert::test
