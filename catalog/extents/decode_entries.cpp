#include "extents.h"
#include "layouts.h"

namespace tintvert::catalog::extents {
namespace {

// The bytes of a line up to the last one that a pixel needs: in a started group its samples alone are read.
int64_t read_2vuy(int64_t width) { return width % 2 == 0 ? width * 2 : width * 2 + 1; }

int64_t read_v210(int64_t width)
{
    constexpr int64_t started[] = {0, 4, 8, 12, 12, 16};
    return width / 6 * 16 + started[width % 6];
}

struct Strides {
    int64_t dst, src;
};

int64_t or_default(int64_t stride, int64_t line) { return stride < 1 ? line : stride; }

Strides strides_10(const Arguments& call, int64_t pixel_bytes)
{
    const int64_t width = call[Arg::width];
    return {or_default(call[Arg::dstStride], width * pixel_bytes),
            or_default(call[Arg::srcStride], v210_line_bytes(width))};
}

Strides strides_8(const Arguments& call, int64_t pixel_bytes)
{
    const int64_t width = call[Arg::width];
    return {or_default(call[Arg::dstStride], width * pixel_bytes), or_default(call[Arg::srcStride], width * 2)};
}

// What libycbcr touches of a frame of packed groups: `width` x 4 bytes a line are written.
Extents by_matrix(const Arguments& call, Strides strides, int64_t (*read_bytes)(int64_t width))
{
    Extents result;
    const int64_t width = call[Arg::width], height = call[Arg::height];
    const int64_t count = width < 1 ? 0 : height < 0 ? -height : height;
    result.add(Arg::dst, {}, lines(0, strides.dst, count, width * 4));
    result.add(Arg::src, lines(0, strides.src, count, count == 0 ? 0 : read_bytes(width)), {});
    return result;
}

Extents by_tables(const Arguments& call, Strides strides, Extents (*rule)(const Arguments&))
{
    Arguments resolved = call;
    resolved[Arg::dstStride] = strides.dst;
    resolved[Arg::srcStride] = strides.src;
    return rule(resolved);
}

}  // namespace

Extents yuv422_10_rgb24(const Arguments& call) { return by_tables(call, strides_10(call, 3), v210_rgb24); }

Extents yuv422_10_rgb32(const Arguments& call)
{
    const Strides strides = strides_10(call, 4);
    return call[Arg::scale] == 1 ? by_matrix(call, strides, read_v210) : by_tables(call, strides, v210_rgb24);
}

Extents yuv422_8_rgb24(const Arguments& call)
{
    const Strides strides = strides_8(call, 3);
    return call[Arg::scale] == 1 ? by_matrix(call, strides, read_v210) : by_tables(call, strides, yuv422_rgb24);
}

Extents yuv422_8_rgb32(const Arguments& call)
{
    const Strides strides = strides_8(call, 4);
    return call[Arg::scale] == 1 ? by_matrix(call, strides, read_2vuy) : by_tables(call, strides, yuv422_rgb24);
}

// Luma lines, and the chroma planes that follow `srcStride` x `height` bytes of them.
Extents yuv420_rgb32(const Arguments& call)
{
    Extents result;
    const int64_t width = call.as<int32_t>(Arg::width), height = call.as<int32_t>(Arg::height);
    const int64_t stride = call.as<int32_t>(Arg::srcStride), n = stride * height;
    if (width < 1 || height < 1) return result;
    const Range luma = lines(0, stride, height, width), cb = lines(n, stride / 2, height / 2, width / 2);
    const Range cr = lines(n + (n >> 2), stride / 2, height / 2, width / 2);
    result.add(Arg::dst, {}, {0, width * 4 * height});
    result.add(Arg::src, join(luma, join(cb, cr)), {});
    return result;
}

Extents yuvijg_rgb32(const Arguments& call)
{
    Extents result;
    const int64_t width = call[Arg::width], height = call[Arg::height];
    result.add(Arg::dst, {}, lines(0, call[Arg::dstStride], height, width * 4));
    result.add(Arg::src, lines(0, call[Arg::srcStride], height, width * 3), {});
    return result;
}

}  // namespace tintvert::catalog::extents
