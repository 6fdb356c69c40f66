#include <algorithm>
#include <numeric>

#include "extents.h"

namespace tintvert::catalog::extents {
namespace {

// A pair has four samples; sample n of a line is in field n % 3 of word n / 3 and is read by the two bytes that
// it spans.
Extents reduced(const Arguments& call, int64_t scale, int64_t pixel_bytes, bool second_luma)
{
    Extents result;
    const int64_t width = call[Arg::width], rows = call[Arg::height] / scale;
    const bool both = scale != 2 && scale != 4;
    const int64_t pairs = width < 1 ? 0 : scale == 4 ? (width + 3) / 4 : (width + 1) / 2;
    const int64_t last_pair = (pairs - 1) * (scale == 4 ? 2 : 1);
    const int64_t last_sample = 4 * last_pair + (both && second_luma ? 3 : 2);
    const int64_t line = pairs == 0 ? 0 : last_sample / 3 * 4 + last_sample % 3 + 2;
    result.add(Arg::dst, {}, lines(0, call[Arg::dstStride], rows, pairs * (both ? 2 : 1) * pixel_bytes));
    result.add(Arg::src, lines(0, reduced_stride(call[Arg::srcStride], scale, rows), rows, line), {});
    return result;
}

}  // namespace

Extents v210_rgb24(const Arguments& call)
{
    const int64_t scale = call[Arg::scale];
    return reduced(call, scale, call[Arg::width] / scale * 4 <= call[Arg::dstStride] ? 4 : 3, true);
}

Extents v210_rgb16(const Arguments& call)
{
    return reduced(call, call[Arg::scale] == 0 ? 1 : call[Arg::scale], 2, false);
}

Extents one_group(const Arguments&)
{
    Extents result;
    result.add(Arg::src, {0, 16}, {});
    result.add(Arg::out, {}, {0, 24});
    return result;
}

// Output is unbroken from one pixel that begins both a line and a group to the next such pixel.
// For frames under 2 GiB.
Extents v210_run_to_rgb(const Arguments& call)
{
    Extents result;
    const auto width = call.as<int32_t>(Arg::width), stride = call.as<int32_t>(Arg::dstStride);
    const int64_t total = static_cast<int32_t>(call.as<uint32_t>(Arg::width) * call.as<uint32_t>(Arg::height));
    if (total < 1) return result;
    const int64_t unbroken = std::lcm(int64_t{6}, int64_t{width});
    const int64_t end = round_up(total, 6);
    Range written;
    outermost((end + unbroken - 1) / unbroken, 2, [&](int64_t run) {
        const int64_t pixel = run * unbroken, start = pixel / width * stride;
        written = join(written, {start, start + 4 * std::min(unbroken, end - pixel)});
    });
    result.add(Arg::src, {0, end / 6 * 16}, {});
    result.add(Arg::dst, {}, written);
    return result;
}

}  // namespace tintvert::catalog::extents
