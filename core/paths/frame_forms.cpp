#include "paths/frame_forms.h"

#include <algorithm>
#include <cstdlib>
#include <initializer_list>

#include "calls/routine_arguments.h"
#include "layouts.h"

namespace tintvert::core {

using catalog::Arg;

namespace {

// With the longest of the call's strides that are of these lines.
FrameForm form_of(const RoutineCall& call, const std::string& layout, Size size, std::initializer_list<Arg> strides)
{
    const catalog::Layout* const known = catalog::find_layout(layout);
    FrameForm form;
    form.layout = layout;
    form.width = size.width;
    form.height = size.height;
    form.stride = known == nullptr ? 0 : known->line_bytes(size.width);
    form.words = {static_cast<int>(std::clamp<int64_t>(call.arguments[Arg::bits], 1, 16)),
                  call.arguments[Arg::swapBytes] != 0};
    for (const Arg own : strides)
        if (takes(*call.routine, own)) form.stride = std::max(form.stride, std::abs(call.arguments[own]));
    return form;
}

// `stride` is the packed side's of a pair, and both sides' of routines that take any layout.
bool reads_stride(const catalog::Routine& routine)
{
    return routine.from->name == "2vuy" || routine.from->name == "none";
}

std::string named(std::string_view layout, const std::string& any_layout)
{
    return layout == "none" ? any_layout : std::string(layout);
}

}  // namespace

FrameForm input_form(const RoutineCall& call, const std::string& any_layout, Size size)
{
    const catalog::Routine& routine = *call.routine;
    const std::string layout = named(routine.from->name, any_layout);
    FrameForm form = reads_stride(routine) ? form_of(call, layout, size, {Arg::srcStride, Arg::stride})
                                           : form_of(call, layout, size, {Arg::srcStride});
    form.parts = call.input_sizes();
    form.unbroken = routine.shape->name == "run_to_rgb";
    return form;
}

FrameForm output_form(const RoutineCall& call, const std::string& any_layout, Size size)
{
    const catalog::Routine& routine = *call.routine;
    // This one writes red first.
    const std::string layout = named(routine.name == "tntvt_rgb10_rgb48" ? "bgr48" : routine.to->name, any_layout);
    const int64_t scale = takes(routine, Arg::scale) ? std::max<int64_t>(call.arguments[Arg::scale], 1) : 1;
    const Size reduced{size.width / scale, size.height / scale};
    FrameForm form = reads_stride(routine) && routine.to->name != "none"
                         ? form_of(call, layout, reduced, {Arg::dstStride})
                         : form_of(call, layout, reduced, {Arg::dstStride, Arg::stride});
    form.parts = call.output_sizes();
    return form;
}

}  // namespace tintvert::core
