// A frame with the holes in it shown.
#pragma once

#include "capture/frame.h"
#include "picture.h"

namespace tintvert::tool::capture {

// The frame decoded with ITU-R BT.601, and magenta where samples are missing.
Picture missing_picture(const Frame& frame);

}  // namespace tintvert::tool::capture
