// Frames whose destination lines are counted the other way.
#pragma once

#include "frame/memory.h"
#include "frame/number.h"
#include "frame/walk.h"

namespace tintvert {

// Numbers of lines wrap, as their offsets do.
constexpr long line_sum(long x, long y)
{
    return static_cast<long>(static_cast<unsigned long>(x) + static_cast<unsigned long>(y));
}

// What goes to destination line n of the result is at line `zero` - n of `frame`.
inline Frame mirrored(const Frame& frame, long zero)
{
    return {advance(bytes(frame.dst), line_offset(zero, frame.dst_stride)), line_offset(-1, frame.dst_stride),
            frame.src, frame.src_stride};
}

}  // namespace tintvert
