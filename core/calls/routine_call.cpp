#include "calls/routine_call.h"

#include "failure.h"
#include "geometry.h"
#include "refusals.h"

namespace tintvert::core {

using catalog::Arg;
using catalog::Range;

Range PlannedBuffer::whole() const { return join(join(picture, read), written); }

std::vector<int64_t> RoutineCall::input_sizes() const
{
    std::vector<int64_t> sizes;
    for (const PlannedBuffer& buffer : buffers)
        if (buffer.in && buffer.argument != Arg::palette) sizes.push_back(buffer.picture.end - buffer.picture.begin);
    return sizes;
}

std::vector<int64_t> RoutineCall::output_sizes() const
{
    std::vector<int64_t> sizes;
    for (const PlannedBuffer& buffer : buffers)
        if (buffer.out) sizes.push_back(buffer.picture.end - buffer.picture.begin);
    return sizes;
}

RoutineCall plan_call(const catalog::Routine& routine, const catalog::Arguments& arguments)
{
    if (const auto [refusal, why] = catalog::reason(routine, arguments); refusal != catalog::Refusal::none)
        throw Refusal("refused: {} ({})", why, catalog::name_of(refusal));
    RoutineCall call{&routine, arguments, {}};
    const catalog::Extents extents = routine.extents(arguments);
    const std::vector<catalog::Content> contents = catalog::contents(routine, arguments);
    for (const Arg argument : routine.arguments) {
        if (catalog::describe(argument).kind != catalog::Argument::buffer) continue;
        PlannedBuffer buffer{argument, {}, {}, {}, false, false};
        for (const catalog::Content& content : contents) {
            if (content.buffer != argument) continue;
            buffer.picture = {content.origin, content.origin + content.bytes};
            buffer.in = content.in;
            buffer.out = content.out;
        }
        for (const catalog::Touch& touch : extents) {
            if (touch.buffer != argument) continue;
            buffer.read = touch.read;
            buffer.written = touch.written;
        }
        call.buffers.push_back(buffer);
    }
    return call;
}

}  // namespace tintvert::core
