// Small raw frames, sample by sample.
#pragma once

#include <cstdint>
#include <string>

#include "layouts.h"
#include "samples.h"

namespace tintvert::test {

// A frame of a layout with tight lines, every sample `value(component, x, y)`.
template <class Value>
std::string raw_frame(const std::string& layout, int64_t width, int64_t height, Value value)
{
    const catalog::Layout& own = *catalog::find_layout(layout);
    std::string frame(static_cast<size_t>(catalog::frame_bytes(own, width, height)), '\0');
    const auto planes = catalog::place_planes(*catalog::find_samples(layout), width, height, own.line_bytes(width));
    catalog::each_sample(
        planes, width,
        [&](const catalog::PlacedPlane& placed, const catalog::Sample& sample, int64_t x, int64_t y, int64_t offset) {
            catalog::store_sample(*placed.plane, sample, reinterpret_cast<uint8_t*>(frame.data() + offset),
                                  value(sample.component, x, y));
        });
    return frame;
}

}  // namespace tintvert::test
