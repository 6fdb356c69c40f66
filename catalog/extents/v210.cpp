#include <algorithm>
#include <cstdlib>

#include "extents.h"
#include "layouts.h"

namespace tintvert::catalog::extents {
namespace {

// Whole groups of six pixels; the source is read from `first` on and up to `unread` bytes before its end.
Extents groups(int32_t width, int64_t pixel_bytes, int64_t first, int64_t unread)
{
    Extents result;
    if (width < 1) return result;
    const int64_t pixels = round_up(width, 6);
    result.add(Arg::dst, {}, {0, pixels / 6 * 16});
    result.add(Arg::src, {first, pixels * pixel_bytes - unread}, {});
    return result;
}

}  // namespace

Extents argb_line_to_v210(const Arguments& call)
{
    const auto width = call.as<int32_t>(Arg::width);
    return call.as<int32_t>(Arg::hasAlpha) != 0 ? groups(width, 4, 1, 0) : groups(width, 3, 0, 0);
}

Extents bgra_line_to_v210(const Arguments& call) { return groups(call.as<int32_t>(Arg::width), 4, 0, 1); }

// Line k gets the groups that begin in it: the multiples of 6 from k * `width` up to the next line's first
// pixel or the end of the frame. Two negative sizes make a frame too, whose lines go the other way.
Extents rgb32_v210(const Arguments& call)
{
    Extents result;
    const int64_t width = call[Arg::width], pixels = std::abs(width), direction = width < 0 ? -1 : 1;
    const int64_t total = static_cast<int32_t>(call.as<uint32_t>(Arg::width) * call.as<uint32_t>(Arg::height));
    if (total < 1) return result;
    const int64_t dst_stride = call[Arg::dstStride] == 0 ? v210_line_bytes(width) : call[Arg::dstStride];
    const int64_t src_stride = call[Arg::srcStride] == 0 ? width * 4 : call[Arg::srcStride];
    const int64_t repeats_after = pixels % 6 == 0 ? 1 : pixels % 3 == 0 ? 2 : pixels % 2 == 0 ? 3 : 6;
    Range read, written;
    outermost((total + pixels - 1) / pixels, repeats_after + 1, [&](int64_t line) {
        const int64_t begin = round_up(line * pixels, 6), end = round_up(std::min((line + 1) * pixels, total), 6);
        if (begin == end) return;
        const int64_t dst = line * direction * dst_stride, src = line * direction * src_stride;
        written = join(written, {dst, dst + (end - begin) / 6 * 16});
        read = join(read, {src, src + (end - begin) * 4 - 1});
    });
    result.add(Arg::dst, {}, written);
    result.add(Arg::src, read, {});
    return result;
}

Extents two_bytes_each(const Arguments& call)
{
    Extents result;
    const int64_t length = call.as<int32_t>(Arg::width) * int64_t{2};
    result.add(Arg::dst, {}, {0, length});
    result.add(Arg::src, {0, length}, {});
    return result;
}

// `height` 0 is 2^32 lines.
Extents widened_2vuy(const Arguments& call)
{
    Extents result;
    const auto width = call.as<uint32_t>(Arg::width), height = call.as<uint32_t>(Arg::height);
    if (width == 0) return result;
    const auto given = call.as<uint32_t>(Arg::dstStride);
    const uint32_t stride = given == 0 ? (width * 16 / 6 + 63) & 0x7FFFFFC0 : given;
    const int64_t count = height == 0 ? int64_t{1} << 32 : height;
    const int64_t in_groups = round_up(width, 6) / 6;
    result.add(Arg::dst, {}, lines(0, stride, count, in_groups * 16));
    result.add(Arg::src, lines(0, width * int64_t{2}, count, in_groups * 12), {});
    return result;
}

// A group for every three pixels of `width`: twice the line. For frames under 4 GiB.
Extents narrowed_v210(const Arguments& call)
{
    Extents result;
    const auto width = call.as<uint32_t>(Arg::width), height = call.as<uint32_t>(Arg::height);
    const auto given = call.as<uint32_t>(Arg::srcStride);
    const uint32_t stride = given == 0 ? width * 16 / 6 : given;
    const int64_t in_groups = round_up(width, 3) / 3;
    const Range written = lines(0, width * int64_t{2}, height, in_groups * 12);
    const Range read = lines(0, stride, height, in_groups * 16);
    result.add(Arg::dst, {}, written);
    result.add(Arg::src, read, {});
    return result;
}

}  // namespace tintvert::catalog::extents
