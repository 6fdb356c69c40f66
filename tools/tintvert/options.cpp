#include "options.h"

#include <unistd.h>

#include <cstdlib>

namespace tintvert::tool {

using catalog::Arg;
using catalog::Routine;

void add_stride_option(CLI::App& app, std::string& stride)
{
    app.add_option("--stride", stride,
                   "the lines of raw frames: auto48 (v210: 128 bytes for 48 pixels), auto64 (rounded up to 64 bytes), "
                   "packed (no padding) or bytes");
}

void add_clip_options(CLI::App& app, ClipOptions& options)
{
    app.add_option("-s,--size", options.size, "width and height of raw frames, such as 1920x1080");
    add_stride_option(app, options.stride);
    app.add_option("--offset", options.offset, "bytes to skip at the head of raw files")->check(CLI::NonNegativeNumber);
    app.add_option("--frames", options.frames, "from frame A up to frame B, which is not taken; or A alone");
}

void add_sample_options(CLI::App& app, SampleOptions& options)
{
    app.add_option("-l,--layout", options.layout,
                   "the layout of the frames, a name that `tintvert layouts` gives; not needed for files with a header "
                   "that names it");
    add_clip_options(app, options.clip);
}

void add_routine_options(CLI::App& app, GivenArguments& options)
{
    app.add_option("-l,--layout", options.layout, "the layout of the frames, for routines that take any")
        ->capture_default_str();
    for (const Routine& routine : catalog::routines()) {
        for (const Arg argument : routine.arguments) {
            const catalog::Argument& about = catalog::describe(argument);
            const std::string name = "--" + std::string{about.name};
            const bool given_by_size = argument == Arg::width || argument == Arg::height || argument == Arg::pixels;
            if (about.kind == catalog::Argument::buffer || argument == Arg::ignored || given_by_size) continue;
            if (argument == Arg::stride || app.get_option_no_throw(name) != nullptr) continue;
            app.add_option_function<int64_t>(
                   name, [&options, argument](const int64_t& value) { options.numbers[argument] = value; },
                   std::string{about.meaning})
                ->group(routine_arguments);
        }
    }
}

void add_color_option(CLI::App* app, std::string* choice)
{
    app->add_option("--color", *choice, "colour; auto is for a terminal, unless NO_COLOR is set")
        ->default_str("auto")
        ->check(CLI::IsMember({"auto", "always", "never"}));
}

bool wants_color(const std::string& choice)
{
    if (choice == "always" || choice == "never") return choice == "always";
    const char* const no = std::getenv("NO_COLOR");
    return (no == nullptr || *no == '\0') && isatty(STDOUT_FILENO) != 0;
}

}  // namespace tintvert::tool
