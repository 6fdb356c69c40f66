// Frames from a reader through several converters at a time to a writer, in their order.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <span>

namespace tintvert::tool {

// Turns one frame into another. Each is used by one frame at a time.
class FrameConverter {
public:
    virtual ~FrameConverter() = default;
    virtual std::span<uint8_t> input() = 0;
    virtual std::span<const uint8_t> run() = 0;
};

struct Pipeline {
    std::function<bool(std::span<uint8_t>)> read;  // false behind the last frame
    std::function<std::unique_ptr<FrameConverter>()> make_converter;
    std::function<void(std::span<const uint8_t>)> write;
};

// With `jobs` threads, and two frames for each of them in memory at the most. How many frames went through.
int64_t run_pipeline(const Pipeline& pipeline, int jobs);

}  // namespace tintvert::tool
