// Which bytes a call accesses: one rule a family. Each rule computes, from the arguments alone, the lowest and the
// highest byte that the routine reads and writes in each of its buffers.
#pragma once

#include "arguments.h"

namespace tintvert::catalog::extents {

using Rule = Extents(const Arguments&);
Rule untouched, scratch_new, scratch_free, argb_run_to_2vuy, bgra_run_to_2vuy, either_run_to_2vuy, bgra_frame_to_2vuy,
    pixel_run_to_2vuy, pixel_frame_to_2vuy, yuv444_to_422, yuv422_to_444, join_planes, part_planes, join_fields,
    planes_420_to_2vuy, planes_420_from_2vuy, yuy2_to_planes, alphay_to_2yuv, alphay_from_2yuv, strip_chroma,
    alpha_to_rgba, rgba_to_alpha, rgba_setalpha, rgba_addalpha, average_2y, scaled_groups, yuv422_rgb24, yuv422_rgb16,
    st2084_bytes, yuv2_to_st2084, st2084_to_yuv2, st2084_v210, rfc4175_payload, packed10_to_v210, rfc4175_packet,
    rgb10_rgba64, rgb10_rgb48, rgb10_rgba32, rgb12_bgr48, rgb12_rgb48, rgb12_rgba32, rgb48_rgb12, rgb48_12_rgba32,
    rle8_rgb24, rle8_rgb32, rgba_full, words_run, words_frame, narrowed_frame, narrowed_upside_down, widened_from_24,
    widened_from_16, widened_alpha_first, widened_upside_down, reduced_from_48, reduced_from_48_one_line_off,
    reduced_from_64, widened_to_48, widened_to_48_one_line_off, widened_to_64, swapped_to_64, swapped_to_48,
    swapped_to_32, swapped_to_24, change_field_rgb, change_field_yuv, deinterlace, flip_vert, flip_vert_flags,
    flip_horz, fields_to_frame, frame_to_fields, copy_interleaved, copy_dissolve, v210_rgb24, v210_rgb16, one_group,
    v210_run_to_rgb, rgb32_v210, argb_line_to_v210, bgra_line_to_v210, two_bytes_each, widened_2vuy, narrowed_v210,
    yuv422_10_rgb24, yuv422_10_rgb32, yuv422_8_rgb24, yuv422_8_rgb32, yuv420_rgb32, yuvijg_rgb32;

// Parts that rules are made of.

using catalog::join;

// `count` lines of `bytes` bytes that begin at `first`, `first` + `stride`, ...
inline Range lines(int64_t first, int64_t stride, int64_t count, int64_t bytes)
{
    if (count < 1 || bytes < 1) return {};
    const int64_t last = first + (count - 1) * stride;
    return join({first, first + bytes}, {last, last + bytes});
}

// The distance of the lines that a reduction takes. Where it takes none, no refusal holds the product small.
inline int64_t reduced_stride(int64_t stride, int64_t scale, int64_t rows) { return rows < 1 ? 0 : stride * scale; }

// The first and the last `few` of `count` lines, each once: where lines follow a pattern that repeats after
// `few` or fewer, one of these is the lowest and one the highest.
template <class Visit>
void outermost(int64_t count, int64_t few, Visit visit)
{
    for (int64_t i = 0; i < few && i < count; ++i) visit(i);
    for (int64_t i = few > count - few ? few : count - few; i < count; ++i) visit(i);
}

// One frame on both sides. Buffers that the caller has still to supply are null, and are two.
inline bool in_place(const Arguments& call) { return call[Arg::dst] != 0 && call[Arg::dst] == call[Arg::src]; }

// A frame `src` read and a frame `dst` written; in place they are one.
inline Extents two_frames_or_one(const Arguments& call, Range read, Range written)
{
    Extents result;
    result.add(Arg::dst, in_place(call) ? read : Range{}, written);
    if (!in_place(call)) result.add(Arg::src, read, {});
    return result;
}

inline int64_t round_up(int64_t value, int64_t unit) { return (value + unit - 1) / unit * unit; }

}  // namespace tintvert::catalog::extents
