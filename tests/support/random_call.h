// Random calls of any routine of the catalogue.
#pragma once

#include "catalog.h"
#include "support/call_memory.h"

namespace tintvert::test {

// Numbers that no rule refuses: small pictures, tight lines about every second time, negative numbers where
// the routine has signed ones. `src` is the address of a run-length coded stream, where the routine takes one.
catalog::Arguments random_call(Random& random, const catalog::Routine& routine);

}  // namespace tintvert::test
