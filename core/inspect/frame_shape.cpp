#include "inspect/frame_shape.h"

#include <algorithm>

#include "failure.h"
#include "names.h"

namespace tintvert::core {
namespace {

// Subsampled planes have a sample for each pair of pixels or of lines.
void need_whole_units(const catalog::SampleForm& form, Size size)
{
    if (form.planes.size() == 1) return;
    int across = 1, down = 1;
    for (const catalog::Plane& plane : form.planes) {
        across = std::max(across, plane.across);
        down = std::max(down, plane.field == 0 ? plane.down : 2);
    }
    if (size.width % across != 0 || size.height % down != 0)
        throw Refusal("refused: {}x{} of {}, which takes {} x {} pixels together", size.width, size.height, form.layout,
                      across, down);
}

}  // namespace

const catalog::SampleForm& samples_named(const std::string& name)
{
    const size_t colon = std::min(name.find(':'), name.size());
    const catalog::Layout& layout = layout_named(name.substr(0, colon));
    const std::string form = name.substr(std::min(colon + 1, name.size()));
    if (const catalog::SampleForm* samples = catalog::find_samples(layout.name, form)) return *samples;
    if (!catalog::find_samples(layout.name)) throw Failure(Exit::usage, "{} is coded and has no samples", layout.name);
    std::string forms;
    for (const catalog::SampleForm& other : catalog::sample_forms())
        if (other.layout == layout.name && !other.form.empty())
            forms += fmt::format(" {}:{}", other.layout, other.form);
    throw Failure(Exit::usage, "{} has no form '{}'{}{}", layout.name, form, forms.empty() ? "" : "; it has", forms);
}

FrameShape expect_samples(Clip& clip, const std::string& layout, const ClipOptions& options)
{
    const std::string name = layout.empty() ? clip.layout() : layout;
    if (name.empty()) throw Failure(Exit::usage, "the layout of {} is not known: give --layout LAYOUT", clip.name());
    const catalog::SampleForm& form = samples_named(name);
    const Size size = clip.size();
    need_whole_units(form, size);
    FrameForm bytes = scalar_version(form.layout, size);
    if (const int64_t stride = stride_of(options.stride, form.layout, size); stride != 0) {
        bytes.stride = stride;
        bytes.parts = {stride * size.height};
    }
    clip.expect(bytes);
    return {&form,        size.width,     size.height,
            bytes.stride, bytes.parts[0], catalog::place_planes(form, size.width, size.height, bytes.stride)};
}

SampledFrame read_frame(const std::string& path, const SampleOptions& options)
{
    Clip clip(options.clip, {path});
    FrameShape shape = expect_samples(clip, options.layout, options.clip);
    std::vector<uint8_t> bytes(static_cast<size_t>(shape.bytes));
    if (!clip.next(bytes)) throw Failure(Exit::unsafe, "{} has no frame", clip.name());
    const int64_t place = options.clip.offset + frame_range_of(options.clip.frames).first * shape.bytes;
    return {std::move(shape), std::move(bytes), place};
}

}  // namespace tintvert::core
