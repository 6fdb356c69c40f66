// The arguments of a routine as options: --dstStride, --scale, --mode ...
#pragma once

#include <cstdint>
#include <map>
#include <string>

#include "catalog.h"
#include "geometry.h"

namespace tintvert::core {

struct GivenArguments {
    std::map<catalog::Arg, int64_t> numbers;  // the arguments that were given
    std::string layout = "rgb32";             // of frames, for routines that take any
};

bool takes(const catalog::Routine& routine, catalog::Arg argument);

// Whose lines --stride is for, where the routine has an argument of that name: the packed side of a pair, and both
// sides of routines that take any layout.
std::string_view layout_of_stride(const catalog::Routine& routine, const GivenArguments& options);

// A plain call with what was given, and with `stride` as the argument of that name if it is not 0. Throws Failure for
// an argument that this routine does not take, and for a layout that does not exist.
catalog::Arguments arguments_of(const catalog::Routine& routine, const GivenArguments& options, int64_t width,
                                int64_t height, int64_t stride);

}  // namespace tintvert::core
