// The arguments of a routine as options: --dstStride, --scale, --mode ...
#pragma once

#include <CLI/CLI.hpp>
#include <cstdint>
#include <map>

#include "catalog.h"

namespace tintvert::tool {

using ArgumentOptions = std::map<catalog::Arg, int64_t>;

// Every number that some routine takes, but for the size, which is told by --size.
void add_argument_options(CLI::App* app, ArgumentOptions* options);

// Throws Failure for one that this routine does not take.
void apply(const ArgumentOptions& options, const catalog::Routine& routine, catalog::Arguments* call);

}  // namespace tintvert::tool
