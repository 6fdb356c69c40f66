// A call as a program in C.
#pragma once

#include <string>

#include "calls/routine_call.h"

namespace tintvert::core {

// A program of C11 and C++20: the buffers, and the call.
std::string c_program(const RoutineCall& call);

}  // namespace tintvert::core
