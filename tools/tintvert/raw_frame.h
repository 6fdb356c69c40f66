// Raw frames of a layout, as the commands that look into files read them.
#pragma once

#include <CLI/CLI.hpp>
#include <cstdint>
#include <string>
#include <vector>

#include "clip_options.h"
#include "input_file.h"
#include "samples.h"

namespace tintvert::tool {

struct FrameOptions {
    std::string layout, size;
    int64_t stride = 0, offset = 0;  // a stride of 0: lines without slack
};

// --layout, --size, --stride, --offset
void add_frame_options(CLI::App* app, FrameOptions* options);

// LAYOUT, or LAYOUT:FORM where it has several. Throws Failure.
const catalog::SampleForm& samples_named(const std::string& name);

// How the bytes of one frame are divided.
struct FrameShape {
    const catalog::SampleForm* form;
    int64_t width, height, stride, bytes;
    std::vector<catalog::PlacedPlane> planes;
};

// Throws Failure for a size that no frame has.
FrameShape frame_shape(const FrameOptions& options);

// The frames of a file that are whole. Throws Failure if there is none, or if the last one is cut short.
int64_t whole_frames(const std::string& path, const FrameOptions& options, const FrameShape& shape);
std::vector<uint8_t> read_frame(const std::string& path, const FrameOptions& options, const FrameShape& shape, int64_t index);

}  // namespace tintvert::tool
