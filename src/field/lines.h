// Where lines stand when their offsets are 32-bit numbers: every product and every doubled pitch wraps at
// 32 bits, and the result is zero-extended before it is added to a pointer.
#pragma once

#include <cstdint>

#include "frame/memory.h"

namespace tintvert {

inline uint8_t* line_at(uint8_t* frame, uint32_t line, uint32_t pitch) { return advance(frame, line * pitch); }

// Two neighbouring lines, one of each field, that go down the frame together.
struct LinePair {
    uint8_t* even;
    uint8_t* odd;
    uint32_t twice;  // twice the pitch

    LinePair(uint8_t* frame, uint32_t pitch) : even(frame), odd(advance(frame, pitch)), twice(pitch * 2) {}

    void next()
    {
        even = advance(even, twice);
        odd = advance(odd, twice);
    }
};

using Field = uint8_t* LinePair::*;
constexpr Field first_field = &LinePair::even;
constexpr Field second_field = &LinePair::odd;

}  // namespace tintvert
