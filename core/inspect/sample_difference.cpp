#include "inspect/sample_difference.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <tuple>

namespace tintvert::core {

double ComponentDifference::psnr() const
{
    if (different == 0) return std::numeric_limits<double>::infinity();
    const double peak = std::pow(2, bits) - 1;
    return 10 * std::log10(peak * peak * static_cast<double>(samples) / squares);
}

// In the order in which the usual reader names them.
SampleDifference::SampleDifference(const FrameShape& shape) : shape_(shape)
{
    for (const std::string_view name : {"Y", "Cb", "Cr", "R", "G", "B", "A"})
        for (const catalog::Plane& plane : shape.form->planes)
            for (const catalog::Sample& field : plane.fields)
                if (field.component == name &&
                    std::ranges::find(components_, name, &ComponentDifference::component) == components_.end())
                    components_.push_back({name, field.bits});
}

void SampleDifference::add(int64_t frame, const std::vector<uint8_t>& one, const std::vector<uint8_t>& other)
{
    catalog::each_sample(
        shape_.planes, shape_.width,
        [&](const catalog::PlacedPlane& placed, const catalog::Sample& sample, int64_t x, int64_t y, int64_t offset) {
            const int64_t a = catalog::load_sample(*placed.plane, sample, one.data() + offset);
            const int64_t b = catalog::load_sample(*placed.plane, sample, other.data() + offset);
            ComponentDifference& own =
                *std::ranges::find(components_, sample.component, &ComponentDifference::component);
            ++own.samples;
            if (a == b) return;
            const int64_t apart = std::abs(a - b);
            ++own.different;
            own.largest = std::max(own.largest, apart);
            own.sum += static_cast<double>(apart);
            own.squares += static_cast<double>(apart) * static_cast<double>(apart);
            if (!first_ || std::tuple(frame, y, x) < std::tuple(first_->frame, first_->line, first_->pixel))
                first_ = FirstDifference{frame, y, x, sample.component, a, b};
        });
}

}  // namespace tintvert::core
