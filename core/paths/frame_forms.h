// How the frames lie in memory that a call of a routine reads and writes.
#pragma once

#include <string>

#include "calls/routine_call.h"
#include "io/frames.h"

namespace tintvert::core {

// `any_layout` is what frames are of where the routine takes any layout; `size` is that of the picture that is read.
FrameForm input_form(const RoutineCall& call, const std::string& any_layout, Size size);
FrameForm output_form(const RoutineCall& call, const std::string& any_layout, Size size);

}  // namespace tintvert::core
