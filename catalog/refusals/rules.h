// What one family of routines is not called with: one rule a family, named in refusals.def.
#pragma once

#include <cstdint>

#include "refusals.h"

namespace tintvert::catalog::refusals {

#define TNTVT_REFUSES(routine, rule) Reason rule(const Arguments& call);
#include "refusals.def"
#undef TNTVT_REFUSES

constexpr int64_t most_signed = 0x7FFFFFFF, most_unsigned = 0xFFFFFFFF;

constexpr int64_t size_of(int64_t number) { return number < 0 ? -number : number; }

// Whether the product of two sizes is above `most`. It is below 2^64: numbers that fit in memory, and a small factor.
constexpr bool above(int64_t most, int64_t one, int64_t other)
{
    return static_cast<uint64_t>(size_of(one)) * static_cast<uint64_t>(size_of(other)) > static_cast<uint64_t>(most);
}

}  // namespace tintvert::catalog::refusals
