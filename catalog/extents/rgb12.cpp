#include "extents.h"

#include <algorithm>

namespace tintvert::catalog::extents {
namespace {

int64_t line_count(const Arguments& call) { return call[Arg::height] < 0 ? -call[Arg::height] : call[Arg::height]; }

// Whole rounds of eight in a line.
int64_t rounds(int64_t count) { return count < 1 ? 0 : round_up(count, 8) / 8; }
int64_t sample_rounds(const Arguments& call) { return rounds(3 * call[Arg::width]); }

Extents unpacked(const Arguments& call, int64_t rounds, int64_t read_bytes, int64_t written_bytes)
{
    Extents result;
    result.add(Arg::dst, {}, lines(0, call[Arg::dstStride], line_count(call), rounds * written_bytes));
    result.add(Arg::src, lines(0, call[Arg::srcStride], line_count(call), rounds * read_bytes), {});
    return result;
}

}  // namespace

Extents rgb12_bgr48(const Arguments& call) { return unpacked(call, sample_rounds(call), 12, 16); }
Extents rgb12_rgb48(const Arguments& call) { return unpacked(call, sample_rounds(call), 36, 48); }
Extents rgb12_rgba32(const Arguments& call) { return unpacked(call, rounds(call[Arg::width]), 36, 32); }

// A line is cut at its stride, and a byte is read before a bit of it is written.
Extents rgb48_rgb12(const Arguments& call)
{
    Extents result;
    const int64_t packed = std::min(sample_rounds(call) * 12, call[Arg::dstStride]);
    const Range filled = lines(0, call[Arg::dstStride], line_count(call), packed);
    result.add(Arg::dst, filled, filled);
    result.add(Arg::src, lines(0, call[Arg::srcStride], line_count(call), sample_rounds(call) * 16), {});
    return result;
}

Extents rgb48_12_rgba32(const Arguments& call)
{
    Extents result;
    const int64_t count = sample_rounds(call) == 0 ? 0 : line_count(call);
    result.add(Arg::dst, {}, lines(0, call[Arg::dstStride], count, 1));
    result.add(Arg::src, lines(0, call[Arg::srcStride], count, sample_rounds(call) * 16), {});
    return result;
}

}  // namespace tintvert::catalog::extents
