// A routine and its reference, called alike on the two memories of an arena.
#pragma once

#include <cstdint>
#include <sstream>
#include <string>
#include <type_traits>

#include "support/arena.h"

namespace tintvert::test {

// A buffer argument, as a place in the arena.
struct At {
    int64_t offset;
};

inline uint8_t* argument(uint8_t* base, At at) { return base + at.offset; }
inline std::string shown(At at) { return '@' + std::to_string(at.offset); }
template <class Number>
Number argument(uint8_t*, Number number)
{
    return number;
}
template <class Number>
std::string shown(Number number)
{
    return std::to_string(number);
}

template <class Result, class... Types, class... Values>
testing::AssertionResult meet(Result (*routine)(Types...), Result (*reference)(Types...), Arena& arena,
                              Values... values)
{
    bool answers_agree = true;
    if constexpr (std::is_void_v<Result>) {
        routine(static_cast<Types>(argument(arena.actual(), values))...);
        reference(static_cast<Types>(argument(arena.expected(), values))...);
    } else {
        const Result answer = routine(static_cast<Types>(argument(arena.actual(), values))...);
        answers_agree = answer == reference(static_cast<Types>(argument(arena.expected(), values))...);
    }
    testing::AssertionResult agreement = arena.agrees();
    if (agreement && answers_agree) return agreement;
    std::ostringstream call;
    ((call << ' ' << shown(values)), ...);
    return testing::AssertionFailure() << agreement.message() << (answers_agree ? "" : "; results differ") << "; call"
                                       << call.str();
}

}  // namespace tintvert::test
