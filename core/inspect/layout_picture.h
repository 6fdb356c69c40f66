// A layout drawn from its samples, in letters.
#pragma once

#include <string>

#include "inspect/painter.h"
#include "layouts.h"
#include "samples.h"

namespace tintvert::core {

// Bytes from the lowest address, b0 first; bits of a word from the highest to the lowest.
std::string picture_of(const catalog::Layout& layout, const Painter& paint);

// What each bit of each byte of a unit is, for layouts with samples of more than a byte; empty for others.
std::string bits_picture_of(const catalog::Layout& layout, const Painter& paint);

// The component, with its pixel where the unit has more than one sample of it.
std::string label_of(const catalog::Plane& plane, const catalog::Sample& sample);

}  // namespace tintvert::core
