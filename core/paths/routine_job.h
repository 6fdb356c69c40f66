// One routine over the frames of a clip: its arguments from the options of the command line, and what its buffers
// hold.
#pragma once

#include "calls/routine_options.h"
#include "io/frames.h"
#include "io/pictures/bmp.h"
#include "paths/calls.h"

namespace tintvert::tool {

struct RoutineJob {
    Call call;
    FrameForm from, to;
};

// `stride` goes to the argument of that name, if it is not 0. Throws Failure.
RoutineJob routine_job(const catalog::Routine& routine, const RoutineOptions& options, Size size, int64_t stride = 0);

}  // namespace tintvert::tool
