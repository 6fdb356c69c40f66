#include "layouts.h"

#include <algorithm>

#include "samples.h"

namespace tintvert::catalog {
namespace {

constexpr const Layout* all[] = {
#define TNTVT_LAYOUT(name) &layout::name,
#include "layouts.def"
#undef TNTVT_LAYOUT
};

int64_t count_of(const Plane& plane, std::string_view component)
{
    return std::ranges::count(plane.fields, component, &Sample::component);
}

bool has(const Layout& layout, std::string_view component)
{
    const SampleForm* form = find_samples(layout.name);
    return form != nullptr &&
           std::ranges::any_of(form->planes, [&](const Plane& plane) { return count_of(plane, component) > 0; });
}

}  // namespace

Table<Layout> layouts() { return {all, std::size(all)}; }

const Layout* find_layout(std::string_view name)
{
    const auto found = std::ranges::find(all, name, &Layout::name);
    return found == std::end(all) ? nullptr : *found;
}

int64_t Layout::line_bytes(int64_t width) const
{
    if (line_rule != nullptr) return line_rule(width);
    const Plane& first = find_samples(name)->planes.front();
    return width * first.unit_bytes / first.across;
}

int64_t Layout::tight_line_bytes(int64_t width) const
{
    return tight_rule == nullptr ? line_bytes(width) : tight_rule(width);
}

Planes Layout::planes() const
{
    const PlanePicture last = samples.empty() ? PlanePicture{} : samples[samples.size() - 1];
    if (last.field != 0) return Planes::fields422;
    if (last.down > 1) return Planes::yuv420;
    return samples.size() > 1 && last.form.empty() ? Planes::yuv422 : Planes::packed;
}

Chroma Layout::chroma() const
{
    const SampleForm* form = find_samples(name);
    if (form == nullptr || has(*this, "R")) return Chroma::c444;
    for (const Plane& plane : form->planes) {
        const int64_t count = count_of(plane, "Cb");
        if (count == 0) continue;
        return plane.down > 1 ? Chroma::c420 : plane.across > count ? Chroma::c422 : Chroma::c444;
    }
    return Chroma::none;
}

// Indices into a palette mean colours of 8 bits.
int Layout::bits() const
{
    const SampleForm* form = find_samples(name);
    if (form == nullptr) return 8;
    const auto& fields = form->planes.front().fields;
    return std::ranges::find_if(fields, [](const Sample& sample) { return !sample.component.empty(); })->bits;
}

bool Layout::alpha() const { return has(*this, "A") && has(*this, "R"); }

int64_t frame_bytes(const Layout& layout, int64_t width, int64_t height)
{
    const int64_t first = layout.line_bytes(width) * height;
    switch (layout.planes()) {
        case Planes::yuv422:
        case Planes::fields422:
            return first * 2;
        case Planes::yuv420:
            return first + (first >> 2) * 2;
        default:
            return first;
    }
}

}  // namespace tintvert::catalog
