// A frame with the holes in it shown.
#pragma once

#include "capture/frame.h"
#include "io/pictures/picture.h"

namespace tintvert::core::capture {

// The frame in grey, and magenta where samples are missing: colour bars have every other colour too.
Picture missing_picture(const Frame& frame);

}  // namespace tintvert::core::capture
