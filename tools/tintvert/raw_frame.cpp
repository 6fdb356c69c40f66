#include "raw_frame.h"

#include <algorithm>

#include "failure.h"
#include "nearest.h"

namespace tintvert::tool {
namespace {

constexpr int64_t most = int64_t{1} << 31;

}  // namespace

void add_frame_options(CLI::App* app, FrameOptions* options)
{
    app->add_option("-l,--layout", options->layout, "what the frames hold, a name that `tintvert layouts` gives")
        ->required();
    app->add_option("-s,--size", options->size, "WIDTHxHEIGHT of the frames");
    app->add_option("--stride", options->stride, "bytes from one line to the next; without it, lines have no slack")
        ->check(CLI::NonNegativeNumber);
    app->add_option("--offset", options->offset, "bytes to skip at the head of the file")
        ->check(CLI::NonNegativeNumber);
}

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

FrameShape frame_shape(const FrameOptions& options)
{
    const catalog::SampleForm& form = samples_named(options.layout);
    if (options.size.empty())
        throw Failure(Exit::usage,
                      "raw frames do not tell their size: give --size WIDTHxHEIGHT (tintvert guess may help)");
    const auto [width, height] = size_of(options.size);
    int across = 1, down = 1;
    if (form.planes.size() > 1) {
        for (const catalog::Plane& plane : form.planes) {
            across = std::max(across, plane.across);
            down = std::max(down, plane.field == 0 ? plane.down : 2);
        }
        if (options.stride != 0) throw Failure(Exit::usage, "the planes of {} have no stride", form.layout);
    }
    if (width % across != 0 || height % down != 0)
        throw Failure(Exit::unsafe, "refused: {} of {}, which takes {} x {} pixels together", options.size, form.layout,
                      across, down);
    const catalog::Layout& layout = *catalog::find_layout(form.layout);
    const int64_t tight = layout.line_bytes(width), stride = options.stride == 0 ? tight : options.stride;
    const catalog::Plane& plane = form.planes.front();
    const int64_t least = std::min(tight, (width + plane.across - 1) / plane.across * plane.unit_bytes);
    if (stride < least) throw Failure(Exit::unsafe, "refused: a stride of {} for lines of {} bytes", stride, least);
    if (stride >= most || stride > (most * 4) / height)
        throw Failure(Exit::unsafe, "refused: {} lines of {} bytes", height, stride);
    const int64_t bytes = options.stride == 0 ? catalog::frame_bytes(layout, width, height) : stride * height;
    return {&form, width, height, stride, bytes, catalog::place_planes(form, width, height, stride)};
}

int64_t whole_frames(const std::string& path, const FrameOptions& options, const FrameShape& shape)
{
    const int64_t bytes = std::max<int64_t>(InputFile(path).size() - options.offset, 0);
    if (bytes < shape.bytes || bytes % shape.bytes != 0)
        throw Failure(Exit::no_file, "{} holds {} bytes{}, and a frame of {} of {} has {}", path, bytes,
                      options.offset == 0 ? "" : " behind the offset", options.size, options.layout, shape.bytes);
    return bytes / shape.bytes;
}

std::vector<uint8_t> read_frame(const std::string& path, const FrameOptions& options, const FrameShape& shape,
                                int64_t index)
{
    const int64_t frames = whole_frames(path, options, shape);
    if (index >= frames) throw Failure(Exit::unsafe, "refused: frame {} of {}, which holds {}", index, path, frames);
    std::vector<uint8_t> frame(static_cast<size_t>(shape.bytes));
    InputFile file(path);
    file.skip(options.offset + index * shape.bytes);
    file.read(frame.data(), frame.size());
    return frame;
}

}  // namespace tintvert::tool
