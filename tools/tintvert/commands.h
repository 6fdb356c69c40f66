// The commands, one file each under commands/. Each is added to the command line by a function that gives
// back what to run if the caller named it.
#pragma once

#include <CLI/CLI.hpp>
#include <functional>

#include "core.h"
#include "failure.h"

namespace tintvert::tool {

struct Command {
    CLI::App* app;
    std::function<Exit()> run;  // data to stdout, everything else to stderr
};

Command add_bits(CLI::App& tool);
Command add_capture(CLI::App& tool);
Command add_compare(CLI::App& tool);
Command add_completions(CLI::App& tool);
Command add_convert(CLI::App& tool);
Command add_demo(CLI::App& tool);
Command add_explain(CLI::App& tool);
Command add_guess(CLI::App& tool);
Command add_layouts(CLI::App& tool);
Command add_list(CLI::App& tool);
Command add_man(CLI::App& tool);
Command add_names(CLI::App& tool);
Command add_show(CLI::App& tool);
Command add_st2084(CLI::App& tool);
Command add_verify(CLI::App& tool);
Command add_view(CLI::App& tool);

}  // namespace tintvert::tool
