#include "extents.h"

namespace tintvert::catalog::extents {
namespace {

uint32_t packed_stride(const Arguments& call)
{
    const uint32_t stride = call.as<uint32_t>(Arg::stride);
    return stride == 0 || stride == 0xFFFFFFFF ? call.as<uint32_t>(Arg::width) * 2 : stride;
}

// Lines whose offsets are kept to 32 bits.
Range packed_lines(uint32_t stride, uint32_t count, int64_t bytes)
{
    if (uint64_t{stride} * count <= 0xFFFFFFFF) return lines(0, stride, count, bytes);
    Range result;
    for (uint32_t r = 0; r < count; ++r) result = join(result, lines(r * stride, 0, 1, bytes));
    return result;
}

struct ChromaPlanes {
    int64_t first, second;
};

ChromaPlanes chroma_planes(const Arguments& call)
{
    const uint32_t samples = call.as<uint32_t>(Arg::width) * call.as<uint32_t>(Arg::height);
    return {samples, int64_t{samples} + (samples >> 2)};
}

}  // namespace

// A line takes whole groups. Where an odd line of an interlaced frame begins depends on `width`, where an
// even one begins on the end of the line before it.
Extents planes_420_to_2vuy(const Arguments& call)
{
    Extents result;
    const uint32_t width = call.as<uint32_t>(Arg::width), height = call.as<uint32_t>(Arg::height);
    const bool interlaced = call.as<uint8_t>(Arg::interlaced) != 0;
    const int64_t samples = round_up(width, 2);
    const ChromaPlanes planes = chroma_planes(call);
    const auto odd_luma = [&](uint32_t r) { return int64_t{(r == 1 ? 2 : r - 1) * width}; };
    Range read;
    outermost(height, 4, [&](int64_t line) {
        const auto r = static_cast<uint32_t>(line);
        const bool moved = interlaced && r % 2 == 1;
        const int64_t in_order = interlaced && r > 1 ? odd_luma(r - 1) + samples : r * samples;
        const int64_t luma = moved ? odd_luma(r) : in_order;
        const int64_t chroma = moved ? (r == 1 ? width / 2 : r / 2 * width / 2 - width / 2) : r / 2 * width / 2;
        read = join(read, lines(luma, 0, 1, samples));
        read = join(read, lines(planes.first + chroma, 0, 1, samples / 2));
        read = join(read, lines(planes.second + chroma, 0, 1, samples / 2));
    });
    result.add(Arg::dst, {}, packed_lines(packed_stride(call), height, samples * 2));
    result.add(Arg::src, read, {});
    return result;
}

Extents planes_420_from_2vuy(const Arguments& call)
{
    Extents result;
    const uint32_t stride = packed_stride(call), height = call.as<uint32_t>(Arg::height);
    const int64_t groups = round_up(stride, 4) / 4;
    const int64_t chroma = (int64_t{height} + 1) / 2 * groups;
    const ChromaPlanes planes = chroma_planes(call);
    Range written = lines(0, groups * 2, height, groups * 2);
    written = join(written, lines(planes.first, 0, 1, chroma));
    written = join(written, lines(planes.second, 0, 1, chroma));
    result.add(Arg::dst, {}, written);
    result.add(Arg::src, packed_lines(stride, height, groups * 4), {});
    return result;
}

}  // namespace tintvert::catalog::extents
