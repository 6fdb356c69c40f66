// Code run one instruction at a time.
//
// What a routine does between two instructions is seen here and nowhere else: that it stores a byte back as it was,
// over what another thread may have put there meanwhile, or that it loops without work.
#pragma once

#include <functional>

namespace tintvert::test {

// Whether this machine can. Emulators and other processors may not.
bool can_single_step();

// Runs `work` and calls `after_each` after every instruction. Once that returns false the rest of `work` is left out.
// The number of instructions.
long single_step(const std::function<void()>& work, const std::function<bool()>& after_each);

}  // namespace tintvert::test
