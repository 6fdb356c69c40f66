// Any checked call by the catalogue's description of its routine, through the C++ header or the C one.
#pragma once

#include <tintvert/checked.h>
#include <tintvert_checked.h>

#include <string>
#include <vector>

#include "catalog.h"
#include "support/random_call.h"

namespace tintvert::test {

constexpr int64_t margin = 48;  // of the memory around what a call accesses

struct Given {
    catalog::Arg argument;
    checked::Buffer buffer;
};

struct Answer {
    checked::Status error;
    int64_t value = 0;
};

// Buffers that are not given are null.
Answer call_checked(const catalog::Routine& routine, const catalog::Arguments& numbers, const std::vector<Given>& given,
                    const checked::Options& options = {});
Answer call_checked_in_c(const catalog::Routine& routine, const catalog::Arguments& numbers,
                         const std::vector<Given>& given, const checked::Options& options = {});

std::string text_of(const catalog::Routine& routine, const catalog::Arguments& numbers);

// Memory of just these bytes around the pointer.
checked::Buffer exactly(uint8_t* pointer, catalog::Range range);

// Buffers of just what the call accesses.
std::vector<Given> exact_buffers(CallMemory& memory);

}  // namespace tintvert::test
