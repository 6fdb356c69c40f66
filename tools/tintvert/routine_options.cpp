#include "routine_options.h"

#include <algorithm>

#include "failure.h"
#include "nearest.h"

namespace tintvert::tool {

using catalog::Arg;
using catalog::Routine;

void add_routine_options(CLI::App& app, RoutineOptions& options)
{
    app.add_option("-l,--layout", options.layout, "what frames hold, for routines that take any")
        ->capture_default_str();
    for (const Routine& routine : catalog::routines()) {
        for (const Arg argument : routine.arguments) {
            const catalog::Argument& about = catalog::describe(argument);
            const std::string name = "--" + std::string{about.name};
            const bool told_by_size = argument == Arg::width || argument == Arg::height || argument == Arg::pixels;
            if (about.kind == catalog::Argument::buffer || argument == Arg::ignored || told_by_size) continue;
            if (argument == Arg::stride || app.get_option_no_throw(name) != nullptr) continue;
            app.add_option_function<int64_t>(
                   name, [&options, argument](const int64_t& value) { options.numbers[argument] = value; },
                   std::string{about.meaning})
                ->group(routine_arguments);
        }
    }
}

bool takes(const Routine& routine, Arg argument)
{
    return std::ranges::find(routine.arguments, argument) != routine.arguments.end();
}

std::string_view layout_of_stride(const Routine& routine, const RoutineOptions& options)
{
    if (routine.from->name == "i420" || routine.from->name == "yv12") return routine.to->name;
    return routine.from->name == "none" ? options.layout : routine.from->name;
}

catalog::Arguments arguments_of(const Routine& routine, const RoutineOptions& options, int64_t width, int64_t height,
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

}  // namespace tintvert::tool
