// The picture that the demo sends through the library when it is given none.
#pragma once

#include "io/pictures/picture.h"

namespace tintvert::core {

// 1920 x 1080, 8 bits: bars at 75 and 100 percent, grey steps, ramps, luma and chroma line patterns down to
// single pixels, near-black and near-white patches, zone plates, circles on a grid, and a border that shows
// a lost line or column.
Picture test_card();

}  // namespace tintvert::core
