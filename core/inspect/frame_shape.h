// How the bytes of a frame are divided into samples, for the commands that look into frames.
#pragma once

#include <string>
#include <vector>

#include "io/frames.h"
#include "samples.h"

namespace tintvert::core {

// LAYOUT, or LAYOUT:FORM where it has several. Throws Failure.
const catalog::SampleForm& samples_named(const std::string& name);

struct FrameShape {
    const catalog::SampleForm* form;
    int64_t width, height, stride, bytes;
    std::vector<catalog::PlacedPlane> planes;
};

// --layout, --size, --stride, --offset, --frames
struct SampleOptions {
    std::string layout;  // empty to take that of the file's header
    ClipOptions clip;
};

// Makes the clip give frames of the layout with their lines as the file has them, slack included. Throws Failure for
// what no frame has.
FrameShape expect_samples(Clip& clip, const std::string& layout, const ClipOptions& options);

// One frame of a file: the first that --frames names.
struct SampledFrame {
    FrameShape shape;
    std::vector<uint8_t> bytes;
    int64_t place;  // of its first byte in a raw file
};
SampledFrame read_frame(const std::string& path, const SampleOptions& options);

}  // namespace tintvert::core
