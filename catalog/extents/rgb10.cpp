#include "extents.h"

namespace tintvert::catalog::extents {
namespace {

// Tight frames. A walk up reads source lines from `lowest` on: 0, or 1 where it begins one line behind the frame.
Extents tight(const Arguments& call, int64_t pixel_bytes, int64_t lowest)
{
    Extents result;
    const int64_t width = call[Arg::width], height = call[Arg::height];
    if (width < 1 || height < 1) return result;
    const bool up = (call[Arg::swapBytes] != 0) == (call[Arg::flipLines] != 0);
    const int64_t first = up ? lowest * width * 4 : 0;
    result.add(Arg::dst, {}, {0, width * height * pixel_bytes});
    result.add(Arg::src, {first, first + width * height * 4}, {});
    return result;
}

}  // namespace

Extents rgb10_rgba64(const Arguments& call) { return tight(call, 8, 1); }
Extents rgb10_rgb48(const Arguments& call) { return tight(call, 6, 1); }
Extents rgb10_rgba32(const Arguments& call) { return tight(call, 4, 0); }

}  // namespace tintvert::catalog::extents
