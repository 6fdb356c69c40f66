// Small raw frames, sample by sample.
#pragma once

#include <png.h>

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "samples.h"
#include "tool/run.h"

namespace tintvert::test {

// A frame of a layout with tight lines, every sample `value(component, x, y)`.
template <class Value>
std::string raw_frame(const std::string& layout, int64_t width, int64_t height, Value value)
{
    const catalog::Layout& own = *catalog::find_layout(layout);
    std::string frame(static_cast<size_t>(catalog::frame_bytes(own, width, height)), '\0');
    const auto planes = catalog::place_planes(*catalog::find_samples(layout), width, height, own.line_bytes(width));
    catalog::each_sample(
        planes, width,
        [&](const catalog::PlacedPlane& placed, const catalog::Sample& sample, int64_t x, int64_t y, int64_t offset) {
            catalog::store_sample(*placed.plane, sample, reinterpret_cast<uint8_t*>(frame.data() + offset),
                                  value(sample.component, x, y));
        });
    return frame;
}

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
