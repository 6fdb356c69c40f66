// How far two frames of a layout are apart, component by component.
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "inspect/frame_shape.h"

namespace tintvert::core {

struct ComponentDifference {
    std::string_view component;
    int bits;
    int64_t samples = 0, different = 0, largest = 0;
    double sum = 0, squares = 0;

    double mean() const { return sum / static_cast<double>(samples); }
    double psnr() const;  // in dB against the highest code; infinite if nothing differs
};

struct FirstDifference {
    int64_t frame, line, pixel;
    std::string_view component;
    int64_t one, other;
};

class SampleDifference {
public:
    explicit SampleDifference(const FrameShape& shape);

    void add(int64_t frame, const std::vector<uint8_t>& one, const std::vector<uint8_t>& other);

    const std::vector<ComponentDifference>& components() const { return components_; }
    const std::optional<FirstDifference>& first() const { return first_; }  // lowest frame, line, pixel

private:
    const FrameShape& shape_;
    std::vector<ComponentDifference> components_;
    std::optional<FirstDifference> first_;
};

}  // namespace tintvert::core
