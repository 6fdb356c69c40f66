#include "extents.h"

namespace tintvert::catalog::extents {
namespace {

// The bytes of a line up to the last one that a pixel needs: in a started group its samples alone are read.
int64_t read_2vuy(int64_t width) { return width % 2 == 0 ? width * 2 : width * 2 + 1; }

int64_t read_v210(int64_t width)
{
    constexpr int64_t started[] = {0, 4, 8, 12, 12, 16};
    return width / 6 * 16 + started[width % 6];
}

// What libycbcr touches of a frame of packed groups: `width` x 4 bytes a line are written.
Extents by_matrix(const Arguments& call, int64_t (*read_bytes)(int64_t width))
{
    Extents result;
    const int64_t width = call[Arg::width], height = call[Arg::height];
    const int64_t count = width < 1 ? 0 : height < 0 ? -height : height;
    result.add(Arg::dst, {}, lines(0, call[Arg::dstStride], count, width * 4));
    result.add(Arg::src, lines(0, call[Arg::srcStride], count, count == 0 ? 0 : read_bytes(width)), {});
    return result;
}

Arguments with_strides(Arguments call, int64_t dst_line, int64_t src_line)
{
    if (call[Arg::dstStride] < 1) call[Arg::dstStride] = dst_line;
    if (call[Arg::srcStride] < 1) call[Arg::srcStride] = src_line;
    return call;
}

Arguments with_strides_10(const Arguments& call, int64_t pixel_bytes)
{
    const int64_t width = call[Arg::width];
    return with_strides(call, width * pixel_bytes, (width + 47) / 48 * 128);
}

Arguments with_strides_8(const Arguments& call, int64_t pixel_bytes)
{
    const int64_t width = call[Arg::width];
    return with_strides(call, width * pixel_bytes, width * 2);
}

}  // namespace

Extents yuv422_10_rgb24(const Arguments& call) { return v210_rgb24(with_strides_10(call, 3)); }

Extents yuv422_10_rgb32(const Arguments& call)
{
    const Arguments resolved = with_strides_10(call, 4);
    return call[Arg::scale] == 1 ? by_matrix(resolved, read_v210) : v210_rgb24(resolved);
}

Extents yuv422_8_rgb24(const Arguments& call)
{
    const Arguments resolved = with_strides_8(call, 3);
    return call[Arg::scale] == 1 ? by_matrix(resolved, read_v210) : yuv422_rgb24(resolved);
}

Extents yuv422_8_rgb32(const Arguments& call)
{
    const Arguments resolved = with_strides_8(call, 4);
    return call[Arg::scale] == 1 ? by_matrix(resolved, read_2vuy) : yuv422_rgb24(resolved);
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
