#include <zkutil.h>

#include <algorithm>

#include "extents.h"

namespace tintvert::catalog::extents {
namespace {

struct Woven {
    Range frame, first, second;
};

Woven weave(const Arguments& call, Arg frame_stride)
{
    const int64_t height = call.as<uint32_t>(Arg::height);
    const int64_t bytes = call.as<uint32_t>(Arg::width) * 4;
    const int64_t field_stride = call[Arg::fieldStride];
    return {lines(0, call[frame_stride], height, bytes), lines(0, field_stride, (height + 1) / 2, bytes),
            lines(0, field_stride, height / 2, bytes)};
}

int64_t bytes_mixed(uint32_t fourcc, int64_t width)
{
    if (fccIsYCbCr8(fourcc) != 0) return width * 2;
    if (fccIsYCbCr10(fourcc) != 0 || fccIsDPX(fourcc) != 0) return width * 2 / 3 * 4;
    return fccIsRGB(fourcc) != 0 ? width * 4 : 0;
}

}  // namespace

Extents fields_to_frame(const Arguments& call)
{
    Extents result;
    const Woven woven = weave(call, Arg::dstStride);
    result.add(Arg::dst, {}, woven.frame);
    result.add(Arg::firstField, woven.first, {});
    result.add(Arg::secondField, woven.second, {});
    return result;
}

Extents frame_to_fields(const Arguments& call)
{
    Extents result;
    const Woven woven = weave(call, Arg::srcStride);
    result.add(Arg::firstField, {}, woven.first);
    result.add(Arg::secondField, {}, woven.second);
    result.add(Arg::src, woven.frame, {});
    return result;
}

Extents copy_interleaved(const Arguments& call)
{
    const int64_t dst_stride = call[Arg::dstStride], src_stride = call[Arg::srcStride], height = call[Arg::height];
    if (dst_stride == src_stride) {
        const int64_t bytes = in_place(call) ? 0 : static_cast<uint32_t>(height * dst_stride);
        return two_frames_or_one(call, {0, bytes}, {0, bytes});
    }
    const int64_t bytes = static_cast<uint32_t>(std::min(dst_stride, src_stride));
    return two_frames_or_one(call, lines(0, src_stride, height, bytes), lines(0, dst_stride, height, bytes));
}

Extents copy_dissolve(const Arguments& call)
{
    Extents result;
    const Range mixed =
        lines(0, call[Arg::stride], call[Arg::height], bytes_mixed(call.as<uint32_t>(Arg::fourcc), call[Arg::width]));
    result.add(Arg::dst, mixed, mixed);
    if (!in_place(call)) result.add(Arg::src, mixed, {});
    return result;
}

}  // namespace tintvert::catalog::extents
