#include "extents.h"

namespace tintvert::catalog::extents {
namespace {

// Every fourth byte of `count` groups, from the first of them to the last.
int64_t one_of_four(int64_t count) { return count < 1 ? 0 : count * 4 - 3; }

Range dst_lines(const Arguments& call, int64_t first, int64_t count, int64_t bytes)
{
    return lines(first, call[Arg::dstStride], count, bytes);
}

Range src_lines(const Arguments& call, int64_t first, int64_t count, int64_t bytes)
{
    return lines(first, call[Arg::srcStride], count, bytes);
}

Range plane(const Arguments& call) { return lines(0, call[Arg::width], call[Arg::height], call[Arg::width]); }

}  // namespace

// Lines end where their stride ends.
Extents alphay_to_2yuv(const Arguments& call)
{
    Extents result;
    const int64_t pairs = call[Arg::width] >> 1, height = call[Arg::height];
    result.add(Arg::dst, {}, dst_lines(call, call[Arg::dstStride] - pairs * 4, height, pairs * 4));
    result.add(Arg::src, src_lines(call, call[Arg::srcStride] - pairs * 2, height, pairs * 2), {});
    return result;
}

// Bytes 1 and 3 of each group are read, in one line more than `height`.
Extents alphay_from_2yuv(const Arguments& call)
{
    Extents result;
    const int64_t pairs = call[Arg::width] >> 1, height = call[Arg::height] + 1;
    result.add(Arg::dst, {}, dst_lines(call, 0, height, pairs * 2));
    result.add(Arg::src, src_lines(call, 1, height, pairs * 4 - 1), {});
    return result;
}

Extents strip_chroma(const Arguments& call)
{
    Extents result;
    const int64_t pairs = call[Arg::width] >> 1, height = call[Arg::height] + 1;
    result.add(Arg::dst, {}, dst_lines(call, 0, height, pairs * 4));
    result.add(Arg::src, src_lines(call, 0, height, pairs * 4), {});
    return result;
}

Extents alpha_to_rgba(const Arguments& call)
{
    Extents result;
    result.add(Arg::dst, {}, dst_lines(call, 0, call[Arg::height], call[Arg::width] * 4));
    result.add(Arg::src, plane(call), {});
    return result;
}

Extents rgba_to_alpha(const Arguments& call)
{
    Extents result;
    result.add(Arg::dst, {}, plane(call));
    result.add(Arg::src, src_lines(call, 0, call[Arg::height], one_of_four(call[Arg::width])), {});
    return result;
}

Extents rgba_setalpha(const Arguments& call)
{
    Extents result;
    result.add(Arg::dst, {}, dst_lines(call, 3, call[Arg::height], one_of_four(call[Arg::width])));
    return result;
}

Extents rgba_addalpha(const Arguments& call)
{
    Extents result;
    const int64_t width = call.as<uint32_t>(Arg::width), height = call.as<int32_t>(Arg::height);
    result.add(Arg::dst, {}, dst_lines(call, 0, height, width * 4));
    result.add(Arg::src, src_lines(call, 0, height, width * 3), {});
    return result;
}

}  // namespace tintvert::catalog::extents
