#include "extents.h"

namespace tintvert::catalog::extents {
namespace {

// Whole pairs, 8 bytes in and 4 out. The alpha byte is never read, so the run is read from `first` on and
// up to `unread` bytes before its end.
Extents pairs(int32_t pixels, int64_t first, int64_t unread)
{
    Extents result;
    if (pixels < 1) return result;
    const int64_t rounded = round_up(pixels, 2);
    result.add(Arg::dst, {}, {0, rounded * 2});
    result.add(Arg::src, {first, rounded * 4 - unread}, {});
    return result;
}

}  // namespace

Extents argb_run_to_2vuy(const Arguments& call) { return pairs(call.as<int32_t>(Arg::pixels), 1, 0); }

Extents bgra_run_to_2vuy(const Arguments& call) { return pairs(call.as<int32_t>(Arg::pixels), 0, 1); }

Extents either_run_to_2vuy(const Arguments& call)
{
    return call.as<int32_t>(Arg::bgra) != 0 ? bgra_run_to_2vuy(call) : argb_run_to_2vuy(call);
}

Extents bgra_frame_to_2vuy(const Arguments& call)
{
    return pairs(static_cast<int32_t>(call.as<uint32_t>(Arg::width) * call.as<uint32_t>(Arg::height)), 0, 1);
}

}  // namespace tintvert::catalog::extents
