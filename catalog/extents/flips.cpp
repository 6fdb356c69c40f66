#include "extents.h"

namespace tintvert::catalog::extents {
namespace {

// Frames under 4 GiB. A negative height has no extents: it is no work with two frames, and in place it
// leaves any frame.
int64_t height_of(const Arguments& call) { return call.as<int32_t>(Arg::height); }

struct Margins {
    int64_t left = 0, right = 0;
};

Margins margins_of(const Arguments& call)
{
    const int64_t margin = int64_t{call.as<uint32_t>(Arg::dstStride)} - call.as<uint32_t>(Arg::srcStride);
    if (margin <= 0) return {};
    switch (call.as<uint32_t>(Arg::flags) & 0xF000000) {
        case 0x1000000:
            return {margin, 0};
        case 0x2000000:
            return {0, margin};
        case 0x4000000:
            return {(margin + 1) / 2, margin / 2};
        case 0x8000000:
            return {margin / 2, (margin + 1) / 2};
        default:
            return {};
    }
}

// Every line of `count` from line `first` on has `line` touched.
Range on_lines(Range line, int64_t first, int64_t count, int64_t stride)
{
    return lines(first * stride + line.begin, stride, count, line.end - line.begin);
}

}  // namespace

Extents flip_vert(const Arguments& call)
{
    const int64_t stride = call.as<uint32_t>(Arg::stride);
    int64_t height = height_of(call);
    if (in_place(call) && height < 2) height = 0;
    const Range frame = lines(0, stride, height, stride);
    return two_frames_or_one(call, frame, frame);
}

Extents flip_vert_flags(const Arguments& call)
{
    const int64_t dst_stride = call.as<uint32_t>(Arg::dstStride);
    const int64_t src_stride = call.as<uint32_t>(Arg::srcStride);
    const int64_t height = height_of(call);
    const Margins margins = margins_of(call);
    const Range src_line{0, src_stride}, dst_line{0, dst_stride};
    Range cleared;
    if (call.as<int32_t>(Arg::keepMargins) == 0)
        cleared = join({0, margins.left}, {margins.left + src_stride, margins.left + src_stride + margins.right});
    if (!in_place(call)) {
        const Range placed = join(cleared, {margins.left, margins.left + src_stride});
        return two_frames_or_one(call, on_lines(src_line, 0, height, src_stride),
                                 on_lines(placed, 0, height, dst_stride));
    }
    const int64_t half = height < 0 ? 0 : height / 2;
    const Range read =
        join(on_lines(dst_line, 0, half, dst_stride), on_lines(src_line, height - half, half, dst_stride));
    const Range written = join(on_lines(join(cleared, src_line), 0, half, dst_stride),
                               on_lines(dst_line, height - half, half, dst_stride));
    return two_frames_or_one(call, read, written);
}

// Pixels 0 to `width` take part; with two frames source pixel 0 and destination pixel `width` do not.
Extents flip_horz(const Arguments& call)
{
    const int64_t stride = call.as<uint32_t>(Arg::stride);
    const int64_t width = call.as<int32_t>(Arg::width);
    const int64_t height = height_of(call);
    if (in_place(call)) {
        const Range frame = lines(0, stride, height, width < 2 ? 0 : width * 4 + 4);
        return two_frames_or_one(call, frame, frame);
    }
    return two_frames_or_one(call, lines(4, stride, height, width * 4), lines(0, stride, height, width * 4));
}

}  // namespace tintvert::catalog::extents
