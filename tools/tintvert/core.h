// The tool is a command line for tintvert_core and uses its names without a prefix.
#pragma once

namespace tintvert::core {}

namespace tintvert::tool {
using namespace core;
}
