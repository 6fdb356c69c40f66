// What somebody may have meant who typed a name that does not exist.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "catalog.h"

namespace tintvert::tool {

// "; did you mean 'x'?" for the candidate that is fewest edits away, or nothing if all are far. The prefix
// of the library's names may be left out.
std::string suggestion(std::string_view typed, std::span<const std::string_view> candidates);

// Throws Failure if the catalogue has no such routine.
const catalog::Routine& routine_named(const std::string& name);

}  // namespace tintvert::tool
