#include "capture/missing_picture.h"

#include <tintvert.h>

#include <algorithm>

#include "rgb_frame.h"

namespace tintvert::tool::capture {
namespace {

constexpr uint8_t magenta[Picture::samples] = {255, 0, 255, 255};

}  // namespace

// A stride of three bytes a pixel makes it `rgb24`.
Picture missing_picture(const Frame& frame)
{
    const auto [width, height] = frame.size();
    std::vector<uint8_t> v210 = frame.bytes();
    std::vector<uint8_t> rgb24(static_cast<size_t>(width * height * 3));
    tntvt_v210_rgb24(rgb24.data(), width * 3, v210.data(), frame.size().line_bytes(), width, height, 1);
    Picture picture = picture_of_rgb24(rgb24.data(), width * 3, width, height);
    for (long y = 0; y < height; ++y)
        for (long x = 0; x < width; ++x)
            if (!frame.has_pair(x / 2, y)) std::copy_n(magenta, Picture::samples, picture.pixel(x, y));
    return picture;
}

}  // namespace tintvert::tool::capture
