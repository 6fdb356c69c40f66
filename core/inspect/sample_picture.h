// Frames of any layout as pictures to look at.
#pragma once

#include <vector>

#include "inspect/frame_shape.h"
#include "io/pictures/picture.h"

namespace tintvert::core {

// RGB as it is, 16-bit if the samples have more than 8 bits, alpha left out. One component alone becomes grey.
// YCbCr goes as `2vuy` through tntvt_yuv422_rgb24, full range through tntvt_yuvs_2vuy before.
Picture picture_of_samples(const FrameShape& shape, const std::vector<uint8_t>& frame);

}  // namespace tintvert::core
