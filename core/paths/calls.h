// Calls of routines one behind the other, from a frame's bytes to a frame's bytes.
#pragma once

#include <vector>

#include "calls/conversion.h"
#include "paths/pipeline.h"
#include "paths/road.h"

namespace tintvert::tool {

struct Call {
    const catalog::Routine* routine;
    catalog::Arguments arguments;
};

// What goes in and what comes out are the bytes of all buffers, one behind the other.
class Calls : public FrameConverter {
public:
    Calls(const std::vector<Call>& calls, size_t input_bytes);  // throws Failure (unsafe)
    std::span<uint8_t> input() override { return input_; }
    std::span<const uint8_t> run() override;

private:
    std::vector<Conversion> conversions_;
    std::vector<uint8_t> input_, output_;
};

// The calls of a road over frames of one size. Throws Failure (unsafe) for a size that a layout on it cannot have.
std::vector<Call> calls_of(const road::Road& road, Size size);

}  // namespace tintvert::tool
