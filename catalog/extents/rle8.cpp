// The stream, not the arguments, decides which bytes these routines access: the rules read it, `streamSize`
// bytes at `src`. A stream that runs on behind them needs at least the next byte that its decoder would read.
#include "extents.h"
#include "rle_scan.h"

namespace tintvert::catalog::extents {
namespace {

std::span<const uint8_t> stream_of(const Arguments& call)
{
    return {call.as<const uint8_t*>(Arg::src), call.as<size_t>(Arg::streamSize)};
}

Extents extents_of(const RleScan& scan)
{
    Extents result;
    result.add(Arg::dst, {}, scan.written);
    result.add(Arg::src, scan.ends ? scan.stream : Range{0, static_cast<int64_t>(scan.wanted) + 1}, {});
    result.add(Arg::palette, scan.palette, {});
    return result;
}

}  // namespace

Extents rle8_rgb32(const Arguments& call)
{
    return extents_of(scan_rle8_rgb32(stream_of(call), call[Arg::dstStride], call[Arg::height]));
}

Extents rle8_rgb24(const Arguments& call) { return extents_of(scan_rle8_rgb24(stream_of(call), call[Arg::height])); }

}  // namespace tintvert::catalog::extents
