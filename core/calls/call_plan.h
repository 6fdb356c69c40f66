// One call of a routine, planned but not made: its arguments, its buffers, and the C that makes it.
#pragma once

#include <string>
#include <vector>

#include "catalog.h"
#include "io/clip_options.h"

namespace tintvert::tool {

struct PlannedBuffer {
    catalog::Arg argument;
    catalog::Range picture, read, written;  // counted from the pointer
    bool in, out;                           // whether the picture goes in, and comes out

    catalog::Range whole() const;  // all of it
};

struct CallPlan {
    const catalog::Routine* routine;
    catalog::Arguments arguments;
    std::vector<PlannedBuffer> buffers;
    std::vector<uint8_t> stream;  // for run-length decoders, which reach as far as their stream tells
};

// Throws Failure for geometry that the routine must not be called with. The size is that of a run-length coded picture.
CallPlan plan_call(const catalog::Routine& routine, const catalog::Arguments& arguments, Size size);

// A program of C11 and C++20: the buffers, and the call.
std::string c_call(const CallPlan& plan);

}  // namespace tintvert::tool
