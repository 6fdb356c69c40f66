// What somebody may have meant who typed a name that does not exist.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "catalog.h"
#include "layouts.h"

namespace tintvert::core {

// "; did you mean 'x'?" for the candidate that is fewest edits away, or nothing if all are far. The prefix
// of the library's names may be left out.
std::string suggestion(std::string_view typed, std::span<const std::string_view> candidates);

// Throw Failure if the catalogue has none of that name.
const catalog::Routine& routine_named(std::string_view name);
const catalog::Layout& layout_named(std::string_view name);

}  // namespace tintvert::core
