// A routine over a picture: the arguments of a plain call, and which bytes of its buffers are the picture.
#pragma once

#include <string_view>
#include <vector>

#include "catalog.h"
#include "layouts.h"

namespace tintvert::catalog {

struct Geometry {
    int64_t width, height;              // of the picture that goes in
    int64_t scale = 1;                  // for routines that reduce
    std::string_view layout = "rgb32";  // of the frames of routines that take any
};

// Tight lines, and every option at its most common value. The caller supplies the buffers.
Arguments plain_call(const Routine& routine, const Geometry& geometry);

// One buffer of a call as a file would hold it: `bytes` from `origin` on, counted from the pointer.
struct Content {
    Arg buffer;
    bool in, out;
    int64_t origin, bytes;
};

// The buffers that carry pictures, in the order of the arguments.
std::vector<Content> contents(const Routine& routine, const Arguments& call);

}  // namespace tintvert::catalog
