#include "extents.h"

#include <algorithm>

namespace tintvert::catalog::extents {
namespace {

// Lines of which bytes [first, first + bytes) are read and written, alike on both sides.
Extents both(const Arguments& call, int64_t first, int64_t bytes)
{
    Extents result;
    const auto count = static_cast<int64_t>(call.as<uint32_t>(Arg::height));
    const Range dst = lines(first, call.as<uint32_t>(Arg::dstStride), count, bytes);
    const Range src = lines(first, call.as<uint32_t>(Arg::srcStride), count, bytes);
    result.add(Arg::dst, {}, dst);
    result.add(Arg::src, src, {});
    return result;
}

int64_t line_bytes(const Arguments& call)
{
    return std::min(call.as<uint32_t>(Arg::dstStride), call.as<uint32_t>(Arg::srcStride));
}

}  // namespace

Extents st2084_bytes(const Arguments& call) { return both(call, 0, line_bytes(call)); }

Extents yuv2_to_st2084(const Arguments& call)
{
    const int64_t groups = line_bytes(call) / 4;
    return both(call, 1, groups * 4 - 1);
}

Extents st2084_to_yuv2(const Arguments& call)
{
    const int64_t groups = line_bytes(call) / 4;
    return both(call, 1, groups * 4);
}

Extents st2084_v210(const Arguments& call) { return both(call, 1, round_up(line_bytes(call), 16)); }

}  // namespace tintvert::catalog::extents
