// Geometry that a careful caller does not hand to a routine: divisions by zero, walks of 2^32 lines, loops
// that never end, products that wrap. What is left has extents that are sums below 2^62.
#pragma once

#include <string_view>

#include "arguments.h"

namespace tintvert::catalog {

struct Routine;

enum class Refusal {
    none,
    too_large,          // more than memory holds
    divides_by_zero,    //
    never_returns,      //
    walks_2_32_lines,   // or more, by a counter that goes below 0
    wraps,              // a product at the width of the interface
    reads_as_unsigned,  // a negative number as one near 2^32
    overruns_scratch,   // a copy longer than the routine's own scratch line
};

std::string_view name_of(Refusal refusal);

struct Reason {
    Refusal refusal = Refusal::none;
    const char* sentence = "";  // for a person
};

// Buffers that `call` leaves at 0 are taken as two.
Reason reason(const Routine& routine, const Arguments& call);

// The sentence alone: nothing if the call may be made.
inline std::string_view refusal(const Routine& routine, const Arguments& call)
{
    return reason(routine, call).sentence;
}

}  // namespace tintvert::catalog
