// A calling shape: the arguments of a routine in their order, by the names of the interface, and which of its buffers
// carry pictures. An argument that no routine of the shape reads is `ignored`.
#pragma once

#include <span>
#include <string_view>

#include "arguments.h"
#include "few.h"

namespace tintvert::catalog {

struct Geometry;
struct Routine;

// A buffer that carries a picture.
struct PictureBuffer {
    Arg buffer;
    int64_t (*bytes)(const Routine&, const Arguments&);
    int64_t (*origin)(const Arguments&) = nullptr;  // of the picture, from the pointer; null: 0
};

// Tight lines, and every option at its most common value. The caller supplies the buffers.
Arguments plain_arguments(const Routine& routine, const Geometry& geometry);

struct Shape {
    std::string_view name;
    std::span<const Arg> arguments;
    Few<PictureBuffer, 7> pictures = {};  // in the order of the arguments
    bool works_on_dst = false;            // its picture is changed rather than made
    Arguments (*plain)(const Routine&, const Geometry&) = plain_arguments;
};

}  // namespace tintvert::catalog
