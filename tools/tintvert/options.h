// Groups of options that several commands share.
#pragma once

#include <CLI/CLI.hpp>
#include <string>

#include "calls/routine_arguments.h"
#include "core.h"
#include "inspect/frame_shape.h"
#include "io/clip_options.h"

namespace tintvert::tool {

// --size, --stride, --offset, --frames.
void add_clip_options(CLI::App& app, ClipOptions& options);
void add_stride_option(CLI::App& app, std::string& stride);

// --layout, and those of a clip.
void add_sample_options(CLI::App& app, SampleOptions& options);

inline constexpr const char* routine_arguments = "Arguments of the routine";  // the heading of their options

// --layout, and an option for each number that a routine takes; but for the size, which --size gives, and for
// `stride`, which --stride gives in more ways than one.
void add_routine_options(CLI::App& app, GivenArguments& options);

// --color=auto|always|never. By default there is colour on a terminal, unless NO_COLOR is set.
void add_color_option(CLI::App* app, std::string* choice);
bool wants_color(const std::string& choice);

}  // namespace tintvert::tool
