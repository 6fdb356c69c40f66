// What --version prints: the version, and what the tool was built with.
#pragma once

#include <string>

namespace tintvert::tool {

std::string version_text();

}  // namespace tintvert::tool
