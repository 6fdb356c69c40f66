// Frames from a reader through several converters at a time to a writer, in their order.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <span>

#include "paths/frame_converter.h"

namespace tintvert::core {

struct Pipeline {
    std::function<bool(std::span<uint8_t>)> read;  // false at the end
    std::function<std::unique_ptr<FrameConverter>()> make_converter;
    std::function<void(std::span<const uint8_t>)> write;
};

// With `jobs` threads, and at most two frames for each of them in memory. Returns how many frames went through.
int64_t run_pipeline(const Pipeline& pipeline, int jobs);

}  // namespace tintvert::core
