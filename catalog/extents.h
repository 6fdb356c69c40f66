// How far a call reaches: one rule a family, named in routines.def. Each rule says, from the arguments
// alone, the lowest and the highest byte that the routine reads and writes in each of its buffers.
#pragma once

#include "catalog.h"

namespace tintvert::catalog::extents {

#define TNTVT_RULE(name) Extents name(const Arguments& call);
#include "extents.def"
#undef TNTVT_RULE

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
