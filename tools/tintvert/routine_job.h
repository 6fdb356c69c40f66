// One routine over the frames of a clip: its arguments from the options of the command line, and what its buffers
// hold.
#pragma once

#include <map>
#include <string>

#include "bmp.h"
#include "calls.h"
#include "frames.h"

namespace tintvert::tool {

struct RoutineOptions {
    std::map<catalog::Arg, int64_t> numbers;  // the arguments that were given
    std::string layout = "rgb32";             // of frames, for routines that take any
};

struct RoutineJob {
    Call call;
    FrameForm from, to;
};

// --dstStride, --bits, --mode ...: an option for each number that a routine takes and the size does not tell.
void add_routine_options(CLI::App& app, RoutineOptions& options);

bool takes(const catalog::Routine& routine, catalog::Arg argument);

// `stride` goes to the argument of that name, if it is not 0. Throws Failure.
RoutineJob routine_job(const catalog::Routine& routine, const RoutineOptions& options, Size size, int64_t stride = 0);

}  // namespace tintvert::tool
