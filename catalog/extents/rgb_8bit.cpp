#include "extents.h"

namespace tintvert::catalog::extents {
namespace {

int64_t magnitude(int64_t height) { return height < 0 ? -height : height; }

// The fourth byte of a 32-bit pixel is not read, so a line is read to one byte before its end.
Extents narrowed(const Arguments& call, int64_t first, int64_t stride)
{
    Extents result;
    const int64_t width = call[Arg::width];
    const int64_t count = magnitude(call[Arg::height]);
    result.add(Arg::dst, {}, lines(first, stride, count, width * 3));
    result.add(Arg::src, lines(0, call[Arg::srcStride], count, width * 4 - 1), {});
    return result;
}

// `count` lines of pixels that end at `end`, `end` + `stride`, ...
Range lines_ending(int64_t end, int64_t stride, int64_t count, int64_t pixels_bytes)
{
    return lines(end - pixels_bytes, stride, count, pixels_bytes);
}

Extents widened(const Arguments& call, int64_t count, int64_t src_bytes)
{
    Extents result;
    const int64_t width = call[Arg::width];
    result.add(Arg::dst, {}, lines_ending(call[Arg::dstStride], call[Arg::dstStride], count, width * 4));
    result.add(Arg::src, lines_ending(call[Arg::srcStride], call[Arg::srcStride], count, width * src_bytes), {});
    return result;
}

}  // namespace

Extents words_run(const Arguments& call)
{
    Extents result;
    const int64_t run = int64_t{call.as<uint32_t>(Arg::pixels)} * 4;
    result.add(Arg::dst, {}, {0, run});
    result.add(Arg::src, {0, run}, {});
    return result;
}

Extents words_frame(const Arguments& call)
{
    Extents result;
    const int64_t count = magnitude(call[Arg::height]);
    result.add(Arg::dst, {}, lines(0, call[Arg::dstStride], count, call[Arg::width] * 4));
    result.add(Arg::src, lines(0, call[Arg::srcStride], count, call[Arg::width] * 4), {});
    return result;
}

Extents narrowed_frame(const Arguments& call) { return narrowed(call, 0, call[Arg::dstStride]); }

// Source line 0 goes to line `height` - 1, by the signed number, and the next ones in front of it.
Extents narrowed_upside_down(const Arguments& call)
{
    return narrowed(call, (call[Arg::height] - 1) * call[Arg::dstStride], -call[Arg::dstStride]);
}

Extents widened_from_24(const Arguments& call) { return widened(call, magnitude(call[Arg::height]), 3); }

Extents widened_from_16(const Arguments& call) { return widened(call, magnitude(call[Arg::height]), 2); }

Extents widened_alpha_first(const Arguments& call) { return widened(call, call[Arg::height], 3); }

// The first written line ends at `dst` itself, and the first line read `height` - 1 strides on.
Extents widened_upside_down(const Arguments& call)
{
    Extents result;
    const int64_t width = call[Arg::width], height = call[Arg::height], count = magnitude(height);
    const int64_t stride = call[Arg::srcStride];
    result.add(Arg::dst, {}, lines_ending(0, call[Arg::dstStride], count, width * 4));
    result.add(Arg::src, lines_ending((height - 1) * stride, -stride, count, width * 3), {});
    return result;
}

}  // namespace tintvert::catalog::extents
