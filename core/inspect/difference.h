// How far two pictures are apart.
#pragma once

#include <array>

#include "io/pictures/picture.h"

namespace tintvert::core {

struct Difference {
    std::array<int, 3> largest{};  // red, green, blue
    std::array<double, 3> mean{};
};

// Pixel (x, y) of `result` against pixel (x * step, y * step) of `original`, both of 8 bits.
Difference difference(const Picture& result, const Picture& original, long step);

}  // namespace tintvert::core
