// Fields, flips and mixing.
#include <algorithm>

#include "extents.h"
#include "refusals/rules.h"

namespace tintvert::catalog::refusals {
namespace {

constexpr Reason frame_wraps = {Refusal::wraps, "lines that far apart wrap at 32 bits"};

bool frame_wraps_at(const Arguments& call, Arg stride) { return above(most_unsigned, call[stride], call[Arg::height]); }

Reason field_change(const Arguments& call, uint32_t mode)
{
    if (mode < 1 || mode > 14) return {};
    const int64_t height = call[Arg::height], dst_stride = call[Arg::dstStride];
    const int64_t src_stride = call[Arg::srcStride] == 0 ? dst_stride : call[Arg::srcStride];
    if (mode == 3 && height < 2)
        return {Refusal::walks_2_32_lines, "mode 3 with fewer than two lines counts through 2^32 of them"};
    if (mode == 3 && src_stride > dst_stride)
        return {Refusal::overruns_scratch, "mode 3 copies `srcStride` bytes through a scratch line of `dstStride`"};
    if (mode >= 5 && mode <= 8 && height % 2 != 0)
        return {Refusal::walks_2_32_lines, "modes 5 to 8 with an odd `height` count through 2^32 lines"};
    if (mode == 4 && above(most_unsigned, call[Arg::width], 4))
        return {Refusal::wraps, "the length of a line wraps at 32 bits"};
    for (const int64_t stride : {dst_stride, src_stride})
        if (above(most_unsigned, stride, 2) || above(most_unsigned, stride, height)) return frame_wraps;
    return {};
}

}  // namespace

Reason field_change_rgb(const Arguments& call) { return field_change(call, call.as<uint32_t>(Arg::mode)); }

Reason field_change_yuv(const Arguments& call)
{
    const auto mode = call.as<uint32_t>(Arg::mode);
    return field_change(call, mode == 4 ? 1 : mode == 11 ? 9 : mode == 12 ? 10 : mode);
}

Reason flip(const Arguments& call)
{
    if (call[Arg::height] < 0 && extents::in_place(call))
        return {Refusal::reads_as_unsigned, "in place a negative `height` leaves the frame"};
    if (frame_wraps_at(call, Arg::stride) || call[Arg::stride] == most_unsigned) return frame_wraps;
    return {};
}

Reason flip_placed(const Arguments& call)
{
    if (call[Arg::height] < 0 && extents::in_place(call))
        return {Refusal::reads_as_unsigned, "in place a negative `height` leaves the frame"};
    for (const Arg stride : {Arg::dstStride, Arg::srcStride})
        if (frame_wraps_at(call, stride) || call[stride] == most_unsigned) return frame_wraps;
    return {};
}

Reason mirror(const Arguments& call)
{
    if (call[Arg::width] < 0 && extents::in_place(call))
        return {Refusal::reads_as_unsigned, "in place a negative `width` is 2^31 pixels and more"};
    return frame_wraps_at(call, Arg::stride) ? frame_wraps : Reason{};
}

Reason woven(const Arguments& call)
{
    if (!above(most_unsigned, call[Arg::width], 4)) return {};
    return {Refusal::wraps, "the length of a line wraps at 32 bits"};
}

Reason interleaved(const Arguments& call)
{
    const int64_t dst_stride = call[Arg::dstStride], src_stride = call[Arg::srcStride], height = call[Arg::height];
    if (dst_stride == src_stride) {
        if (extents::in_place(call)) return {};
        if (dst_stride * height < 0) return {Refusal::reads_as_unsigned, "a negative size is nearly 4 GiB"};
        return frame_wraps_at(call, Arg::dstStride) ? frame_wraps : Reason{};
    }
    if (height > 0 && std::min(dst_stride, src_stride) < 0)
        return {Refusal::reads_as_unsigned, "a negative stride is a line of nearly 4 GiB"};
    return {};
}

}  // namespace tintvert::catalog::refusals
