#include "extents.h"

namespace tintvert::catalog::extents {
namespace {

Extents block(uint32_t size)
{
    Extents result;
    result.add(Arg::dst, {}, {0, size});
    result.add(Arg::src, {0, size}, {});
    return result;
}

// `bytes` of each pixel, on both sides from its start.
Extents by_line(const Arguments& call, int64_t bytes, int64_t src_pixel, int64_t dst_pixel)
{
    Extents result;
    const int64_t width = call[Arg::width], height = call[Arg::height];
    if (width < 1) return result;
    result.add(Arg::dst, {}, lines(0, call[Arg::dstStride], height, (width - 1) * dst_pixel + bytes));
    result.add(Arg::src, lines(0, call[Arg::srcStride], height, (width - 1) * src_pixel + bytes), {});
    return result;
}

}  // namespace

// For two buffers that are there and are not the same. A `width` of 0 has no extents: it divides by zero.
Extents rgba_full(const Arguments& call)
{
    const int64_t width = call[Arg::width];
    if (width == 0) return {};
    const int64_t from = call[Arg::srcStride] / width, to = call[Arg::dstStride] / width;
    if (call[Arg::srcStride] == call[Arg::dstStride])
        return block(static_cast<uint32_t>(from) * call.as<uint32_t>(Arg::width) * call.as<uint32_t>(Arg::height));
    if (from == 4 && to == 3) return by_line(call, 3, 4, 3);
    if (from == 3 && to == 4) return by_line(call, 3, 3, 4);
    if (from == 3 && to == 3) return by_line(call, 3, 3, 3);
    return by_line(call, 4, 4, 4);
}

}  // namespace tintvert::catalog::extents
