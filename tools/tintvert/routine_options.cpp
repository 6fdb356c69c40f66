#include "routine_options.h"

#include <algorithm>
#include <string>

#include "failure.h"

namespace tintvert::tool {

using catalog::Arg;

void add_argument_options(CLI::App* app, ArgumentOptions* options)
{
    for (const catalog::Routine& routine : catalog::routines()) {
        for (const Arg argument : routine.arguments) {
            const catalog::Argument& about = catalog::describe(argument);
            const std::string name = "--" + std::string(about.name);
            const bool told_by_size = argument == Arg::width || argument == Arg::height || argument == Arg::pixels;
            if (about.kind == catalog::Argument::buffer || argument == Arg::ignored || told_by_size) continue;
            if (app->get_option_no_throw(name) != nullptr) continue;
            app->add_option_function<int64_t>(
                   name, [options, argument](const int64_t& value) { (*options)[argument] = value; },
                   std::string(about.meaning))
                ->group("Arguments of the routine");
        }
    }
}

void apply(const ArgumentOptions& options, const catalog::Routine& routine, catalog::Arguments* call)
{
    for (const auto& [argument, value] : options) {
        if (std::ranges::find(routine.arguments, argument) == routine.arguments.end())
            throw Failure(Exit::usage, "{} takes no {}", routine.name, catalog::describe(argument).name);
        (*call)[argument] = value;
    }
}

}  // namespace tintvert::tool
