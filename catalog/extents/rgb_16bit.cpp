#include "extents.h"

namespace tintvert::catalog::extents {
namespace {

// The lines that a `height` yields and where they end, counted in strides: source lines end at 1, 2, ...
struct Lines {
    int64_t count, first_dst_end;
    bool upside_down;
};

Lines positive_only(int64_t height) { return {height, 1, false}; }

Lines exact_flip(int64_t height) { return height > 0 ? Lines{height, 1, false} : Lines{-height, -height, true}; }

Lines flip_one_line_off(int64_t height)
{
    const int64_t count = static_cast<int32_t>(height < 0 ? -height : height);
    return height > 0 ? Lines{count, 1, false} : Lines{count, count - 1, true};
}

// Of a source pixel of `bytes` bytes, those from `first` up to `end` are read.
struct Pixel {
    int64_t bytes;
    Range read;
};

Extents extents_of(const Arguments& call, Lines line, Pixel src, int64_t dst_bytes)
{
    Extents result;
    const int64_t width = call[Arg::width];
    if (width < 1) return result;
    const int64_t dst_stride = call[Arg::dstStride], src_stride = call[Arg::srcStride];
    result.add(Arg::dst, {},
               lines(line.first_dst_end * dst_stride - width * dst_bytes, line.upside_down ? -dst_stride : dst_stride,
                     line.count, width * dst_bytes));
    result.add(Arg::src,
               lines(src_stride - width * src.bytes + src.read.begin, src_stride, line.count,
                     (width - 1) * src.bytes + src.read.end - src.read.begin),
               {});
    return result;
}

// The fourth byte of an 8-bit pixel has no place in three channels and is not read, nor is the first
// channel of a big-endian one.
constexpr Pixel rgb48{6, {0, 6}}, rgba64{8, {0, 8}}, rgb48_behind_alpha{8, {2, 8}};
constexpr Pixel rgba32{4, {0, 4}}, rgba32_without_alpha{4, {0, 3}};

bool four_channels_from(const Arguments& call) { return call.as<uint32_t>(Arg::order) <= 3; }

bool three_channels_from(const Arguments& call)
{
    const auto order = call.as<uint32_t>(Arg::order);
    return order == 0 || order == 2;
}

}  // namespace

Extents reduced_from_48(const Arguments& call) { return extents_of(call, exact_flip(call[Arg::height]), rgb48, 4); }

Extents reduced_from_48_one_line_off(const Arguments& call)
{
    return extents_of(call, flip_one_line_off(call[Arg::height]), rgb48, 4);
}

Extents reduced_from_64(const Arguments& call) { return extents_of(call, positive_only(call[Arg::height]), rgba64, 4); }

Extents widened_to_48(const Arguments& call)
{
    return extents_of(call, exact_flip(call[Arg::height]), rgba32_without_alpha, 6);
}

Extents widened_to_48_one_line_off(const Arguments& call)
{
    return extents_of(call, flip_one_line_off(call[Arg::height]), rgba32_without_alpha, 6);
}

Extents widened_to_64(const Arguments& call) { return extents_of(call, positive_only(call[Arg::height]), rgba32, 8); }

Extents swapped_to_64(const Arguments& call)
{
    if (!four_channels_from(call)) return {};
    return extents_of(call, positive_only(call[Arg::height]), rgba64, 8);
}

Extents swapped_to_48(const Arguments& call)
{
    if (!three_channels_from(call)) return {};
    return extents_of(call, positive_only(call[Arg::height]), rgb48_behind_alpha, 6);
}

Extents swapped_to_32(const Arguments& call)
{
    if (!four_channels_from(call)) return {};
    return extents_of(call, positive_only(call[Arg::height]), rgba64, 4);
}

Extents swapped_to_24(const Arguments& call)
{
    if (!three_channels_from(call)) return {};
    return extents_of(call, exact_flip(call[Arg::height]), rgb48_behind_alpha, 3);
}

}  // namespace tintvert::catalog::extents
