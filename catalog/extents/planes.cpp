#include "extents.h"

namespace tintvert::catalog::extents {

Extents join_planes(const Arguments& call)
{
    Extents result;
    const int64_t groups = call.as<uint32_t>(Arg::count) / 2;
    result.add(Arg::dst, {}, {0, groups * 4});
    result.add(Arg::y, {0, groups * 2}, {});
    result.add(Arg::cb, {0, groups}, {});
    result.add(Arg::cr, {0, groups}, {});
    return result;
}

Extents part_planes(const Arguments& call)
{
    Extents result;
    const int64_t groups = call.as<uint32_t>(Arg::count) / 2;
    result.add(Arg::y, {}, {0, groups * 2});
    result.add(Arg::cb, {}, {0, groups});
    result.add(Arg::cr, {}, {0, groups});
    result.add(Arg::src, {0, groups * 4}, {});
    return result;
}

Extents join_fields(const Arguments& call)
{
    Extents result;
    const auto groups = call.as<uint32_t>(Arg::groups);
    const int64_t of_field = call.as<uint32_t>(Arg::total) / 2 / groups * groups;
    result.add(Arg::dst, {}, {0, of_field * 8});
    for (const Arg y : {Arg::y1, Arg::y2}) result.add(y, {0, of_field * 2}, {});
    for (const Arg c : {Arg::cb1, Arg::cr1, Arg::cb2, Arg::cr2}) result.add(c, {0, of_field}, {});
    return result;
}

// Pairs of lines, the second line one pitch after the first, pair after pair by its own step.
Extents yuy2_to_planes(const Arguments& call)
{
    Extents result;
    const int64_t width = call[Arg::width], height = call[Arg::height];
    if (width < 1 || height < 1) return result;
    const int64_t src_pitch = call[Arg::srcPitch] * 2, dst_pitch = call[Arg::dstPitch];
    const int64_t groups = (width - 1) / 2 + 1, pairs = (height + 1) / 2;
    const int64_t odd = width % 2;
    const auto pair_lines = [&](int64_t step, int64_t pitch, int64_t bytes) {
        return join(lines(0, step, pairs, bytes), lines(pitch, step, pairs, bytes));
    };
    const Range chroma = lines(0, groups + ((dst_pitch - width) >> 1), pairs, groups);
    result.add(Arg::src, pair_lines(2 * src_pitch + 2 * odd, src_pitch, groups * 4), {});
    result.add(Arg::y, {}, pair_lines(2 * dst_pitch + odd, dst_pitch, groups * 2));
    result.add(Arg::cb, {}, chroma);
    result.add(Arg::cr, {}, chroma);
    return result;
}

}  // namespace tintvert::catalog::extents
