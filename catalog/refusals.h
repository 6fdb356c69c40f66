// Geometry that a careful caller does not hand to a routine: divisions by zero, walks of 2^32 lines, loops
// that never end, products that wrap.
#pragma once

#include <string_view>

#include "catalog.h"

namespace tintvert::catalog {

// A sentence for a person, or nothing if the call may be made.
std::string_view refusal(const Routine& routine, const Arguments& call);

}  // namespace tintvert::catalog
