#include "extents.h"

namespace tintvert::catalog::extents {
namespace {

Extents two_bytes_each(int32_t pixels)
{
    Extents result;
    if (pixels < 1) return result;
    result.add(Arg::dst, {}, {0, int64_t{pixels} * 2});
    result.add(Arg::src, {0, int64_t{pixels} * 2}, {});
    return result;
}

int64_t groups_of_444(const Arguments& call)
{
    const uint32_t bytes = call.as<uint32_t>(Arg::width) * call.as<uint32_t>(Arg::height) * 3;
    return round_up(bytes, 6) / 6;
}

}  // namespace

Extents pixel_run_to_2vuy(const Arguments& call) { return two_bytes_each(call.as<int32_t>(Arg::pixels)); }

Extents pixel_frame_to_2vuy(const Arguments& call)
{
    return two_bytes_each(static_cast<int32_t>(call.as<uint32_t>(Arg::width) * call.as<uint32_t>(Arg::height)));
}

// The last two bytes of a 4:4:4 group, the odd pixel's chroma, are not read.
Extents yuv444_to_422(const Arguments& call)
{
    Extents result;
    const int64_t groups = groups_of_444(call);
    result.add(Arg::dst, {}, {0, groups * 4});
    result.add(Arg::src, {0, groups == 0 ? 0 : groups * 6 - 2}, {});
    return result;
}

Extents yuv422_to_444(const Arguments& call)
{
    Extents result;
    const int64_t groups = groups_of_444(call);
    result.add(Arg::dst, {}, {0, groups * 6});
    result.add(Arg::src, {0, groups * 4}, {});
    return result;
}

}  // namespace tintvert::catalog::extents
