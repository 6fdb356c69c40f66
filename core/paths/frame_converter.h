// Frames through calls of routines, one after the other.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "calls/routine_call.h"
#include "io/clip_options.h"
#include "paths/path.h"

namespace tintvert::core {

// The calls of a path over frames of one size. Throws Failure (unsafe) for a size that a layout on it cannot have.
std::vector<RoutineCall> plan_path(const paths::Path& path, Size size);

// The buffers of its calls are its own, so a converter takes one frame at a time. A frame is the bytes of all buffers
// that are read or written, in the order of the arguments.
class FrameConverter {
public:
    // Without a call, frames of `input_bytes` stay as they are.
    FrameConverter(const std::vector<RoutineCall>& calls, size_t input_bytes);

    std::span<uint8_t> input() { return input_; }
    std::span<const uint8_t> run();

private:
    struct Memory {
        int64_t begin;  // of the bytes, counted from the pointer
        std::vector<uint8_t> bytes;
    };
    struct Stage {
        RoutineCall call;
        std::vector<Memory> memory;  // for each of the call's buffers
    };

    static Stage prepare(const RoutineCall& call);
    static std::span<uint8_t> picture_of(const PlannedBuffer& buffer, Memory& memory);

    std::vector<Stage> stages_;
    std::vector<uint8_t> input_, output_;
};

// One frame through one call.
std::vector<uint8_t> convert_frame(const RoutineCall& call, std::span<const uint8_t> frame);

}  // namespace tintvert::core
