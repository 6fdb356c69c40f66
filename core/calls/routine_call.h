// One call of a routine before it is made: its arguments, and what it does with each buffer.
#pragma once

#include <vector>

#include "catalog.h"

namespace tintvert::core {

struct PlannedBuffer {
    catalog::Arg argument;
    catalog::Range picture, read, written;  // counted from the pointer
    bool in, out;                           // whether the picture is read, and written

    catalog::Range whole() const;  // all of it
};

struct RoutineCall {
    const catalog::Routine* routine;
    catalog::Arguments arguments;
    std::vector<PlannedBuffer> buffers;  // in the order of the arguments

    // The bytes of the pictures that are read, and of those that are written. A palette is no picture.
    std::vector<int64_t> input_sizes() const;
    std::vector<int64_t> output_sizes() const;
};

// Throws Failure (unsafe) for geometry that the routine must not be called with.
RoutineCall plan_call(const catalog::Routine& routine, const catalog::Arguments& arguments);

}  // namespace tintvert::core
