#include "calls/routine_arguments.h"

#include <algorithm>

#include "failure.h"
#include "names.h"

namespace tintvert::core {

using catalog::Arg;
using catalog::Routine;

bool takes(const Routine& routine, Arg argument)
{
    return std::ranges::find(routine.arguments, argument) != routine.arguments.end();
}

std::string_view layout_of_stride(const Routine& routine, const GivenArguments& options)
{
    if (routine.from->name == "i420" || routine.from->name == "yv12") return routine.to->name;
    return routine.from->name == "none" ? options.layout : routine.from->name;
}

catalog::Arguments arguments_of(const Routine& routine, const GivenArguments& options, int64_t width, int64_t height,
                                int64_t stride)
{
    layout_named(options.layout);
    const auto scale = options.numbers.find(Arg::scale);
    catalog::Arguments call = catalog::plain_call(
        routine, {width, height, scale == options.numbers.end() ? 1 : scale->second, options.layout});
    if (stride != 0) call[Arg::stride] = stride;
    for (const auto& [argument, value] : options.numbers) {
        if (!takes(routine, argument))
            throw Failure(Exit::usage, "{} takes no {}", routine.name, catalog::describe(argument).name);
        call[argument] = value;
    }
    return call;
}

}  // namespace tintvert::core
