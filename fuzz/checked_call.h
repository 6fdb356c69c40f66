// Any checked call by the number of its routine.
#pragma once

#include <tintvert/checked.h>

#include <array>

#include "catalog.h"

namespace tintvert::fuzz {

using Buffers = std::array<checked::Buffer, catalog::argument_count>;  // by argument; null if not set

struct Answer {
    checked::Status error;
    int64_t value = 0;
};

Answer call_checked(size_t routine, const catalog::Arguments& numbers, const Buffers& buffers,
                    const checked::Options& options);

}  // namespace tintvert::fuzz
