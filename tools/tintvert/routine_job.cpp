#include "routine_job.h"

#include <algorithm>
#include <cstdlib>

#include "layouts.h"

namespace tintvert::tool {

using catalog::Arg;
using catalog::Routine;

namespace {

int64_t line_bytes(const std::string& layout, int64_t width)
{
    const catalog::Layout* known = catalog::find_layout(layout);
    return known == nullptr ? 0 : known->line_bytes(width);
}

std::vector<int64_t> sizes_of(const std::vector<std::span<uint8_t>>& buffers)
{
    std::vector<int64_t> sizes;
    for (const auto& buffer : buffers) sizes.push_back(static_cast<int64_t>(buffer.size()));
    return sizes;
}

}  // namespace

RoutineJob routine_job(const Routine& routine, const RoutineOptions& options, Size size, int64_t stride)
{
    const auto scale = options.numbers.find(Arg::scale);
    const int64_t reduction = scale == options.numbers.end() ? 1 : scale->second;
    const bool reduces = takes(routine, Arg::scale) && reduction > 1;
    RoutineJob job;
    job.call = {&routine, arguments_of(routine, options, size.width, size.height, stride)};
    const catalog::Arguments& call = job.call.arguments;

    const Words words{static_cast<int>(std::clamp<int64_t>(call[Arg::bits], 1, 16)), call[Arg::swapBytes] != 0};
    const auto form = [&](std::string_view layout, Size picture, std::initializer_list<Arg> strides) {
        FrameForm result;
        result.layout = layout == "none" ? options.layout : std::string{layout};
        result.width = picture.width;
        result.height = picture.height;
        result.stride = line_bytes(result.layout, picture.width);
        result.words = words;
        for (const Arg own : strides)
            if (takes(routine, own)) result.stride = std::max(result.stride, std::abs(call[own]));
        return result;
    };
    // `stride` is the packed side's of a pair, and both sides' of routines that take any layout.
    const bool reads_stride = routine.from->name == "2vuy" || routine.from->name == "none";
    job.from = reads_stride ? form(routine.from->name, size, {Arg::srcStride, Arg::stride})
                            : form(routine.from->name, size, {Arg::srcStride});
    // Red stands first in what this one writes.
    const std::string_view to = routine.name == "tntvt_rgb10_rgb48" ? "bgr48" : routine.to->name;
    job.to = form(to, reduces ? Size{size.width / reduction, size.height / reduction} : size,
                  reads_stride && routine.to->name != "none" ? std::initializer_list<Arg>{Arg::dstStride}
                                                             : std::initializer_list<Arg>{Arg::dstStride, Arg::stride});
    Conversion conversion(routine, call);
    job.from.parts = sizes_of(conversion.inputs());
    job.to.parts = sizes_of(conversion.outputs());
    job.from.unbroken = routine.shape->name == "run_to_rgb";
    return job;
}

}  // namespace tintvert::tool
