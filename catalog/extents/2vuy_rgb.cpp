#include "extents.h"

namespace tintvert::catalog::extents {
namespace {

struct Walk {
    int64_t rows, groups, pixels, read_bytes;  // of a line: groups taken, pixels written, bytes to the last one read
};

// At a scale of 2 and 4 a group gives one pixel and its fourth byte stays unread.
Walk walk(const Arguments& call, int64_t scale, bool reads_second_luma)
{
    const int64_t width = call[Arg::width];
    const int64_t limit = scale == 4 ? width >> 1 : width;
    const int64_t groups = limit < 1 ? 0 : (limit + 1) / 2;
    const bool both = scale != 2 && scale != 4;
    const int64_t step = scale == 4 ? 8 : 4;
    const int64_t last = both && reads_second_luma ? 4 : 3;
    return {call[Arg::height] / scale, groups, both ? groups * 2 : groups,
            groups == 0 ? 0 : (groups - 1) * step + last};
}

}  // namespace

Extents yuv422_rgb24(const Arguments& call)
{
    Extents result;
    const int64_t scale = call[Arg::scale];
    const Walk line = walk(call, scale, true);
    const int64_t pixel_bytes = call[Arg::width] / scale * 4 <= call[Arg::dstStride] ? 4 : 3;
    result.add(Arg::dst, {}, lines(0, call[Arg::dstStride], line.rows, line.pixels * pixel_bytes));
    result.add(Arg::src, lines(0, reduced_stride(call[Arg::srcStride], scale, line.rows), line.rows, line.read_bytes),
               {});
    return result;
}

// Source lines are taken in exchanged pairs: 1, 0, 3, 2; an odd count reads the line after the last.
Extents yuv422_rgb16(const Arguments& call)
{
    Extents result;
    const int64_t scale = call[Arg::scale] == 0 ? 1 : call[Arg::scale];
    const Walk line = walk(call, scale, false);
    const int64_t stride = reduced_stride(call[Arg::srcStride], scale, line.rows);
    const int64_t first = line.rows == 1 ? stride : 0;
    const int64_t count = line.rows == 1 ? 1 : round_up(line.rows, 2);
    result.add(Arg::dst, {}, lines(0, call[Arg::dstStride], line.rows, line.pixels * 2));
    result.add(Arg::src, line.rows < 1 ? Range{} : lines(first, stride, count, line.read_bytes), {});
    return result;
}

}  // namespace tintvert::catalog::extents
