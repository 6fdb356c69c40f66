#include <algorithm>

#include "extents.h"
#include "layouts.h"

namespace tintvert::catalog::extents {
namespace {

// The bytes that `count` pgroups touch from the start of a group on: word 0 is written whole and not read by
// the first of three, the others read what they keep.
struct Groups {
    Range read, written;
};

Groups pgroups_from_group_start(int64_t count)
{
    if (count < 1) return {};
    const int64_t whole = count / 3 * 16, left = count % 3;
    const int64_t written = whole + (left == 0 ? 0 : left == 1 ? 8 : 12);
    const int64_t read = left == 0 ? whole - 4 : written;  // the third one writes its last word whole
    return {{4, read}, {0, written}};
}

}  // namespace

Extents rfc4175_payload(const Arguments& call)
{
    Extents result;
    const int64_t phase = call[Arg::startPhase], count = std::max<int64_t>(call[Arg::pgroupCount], 0);
    const int64_t before = phase == 2 ? 2 : phase == 4 ? 1 : 0;
    Groups dst = pgroups_from_group_start(count);
    if (before != 0) {
        const int64_t first = before == 2 ? 4 : 8;
        const Range written = dst.written.empty() ? Range{} : Range{16, 16 + dst.written.end};
        const Range read = dst.read.empty() ? Range{} : Range{20, 16 + dst.read.end};
        dst = {join({first, 12}, read), join({first, 16}, written)};
    }
    result.add(Arg::dst, dst.read, dst.written);
    result.add(Arg::payload, {0, std::clamp<int64_t>(call[Arg::payloadSize], 0, (before + count) * 5)}, {});
    return result;
}

// Whole groups of three pgroups replace every field; where the lines are apart they are not read first.
Extents packed10_to_v210(const Arguments& call)
{
    Extents result;
    const uint32_t width = call.as<uint32_t>(Arg::width);
    const int64_t height = call.as<uint32_t>(Arg::height);
    const int64_t src_line = static_cast<uint32_t>(width * 20) >> 3, pairs = (static_cast<int64_t>(width) + 1) / 2;
    const int64_t read = std::min(pairs * 5, src_line);
    result.add(Arg::dst, {}, lines(0, v210_line_bytes(width), height, pgroups_from_group_start(pairs).written.end));
    result.add(Arg::src, lines(0, src_line, height, read), {});
    return result;
}

// The header, at most 275 pgroups behind it, and six bytes at the start of every line.
Extents rfc4175_packet(const Arguments& call)
{
    Extents result;
    const uint32_t width = call.as<uint32_t>(Arg::width);
    const int64_t height = call.as<uint32_t>(Arg::height);
    const bool formed = width != 0 && height != 0;
    const int64_t payload_end = 20 + std::min<int64_t>(width / 2, 275) * 5;
    const Range packet = formed ? Range{0, payload_end} : Range{1, 2};
    result.add(Arg::packet, join(packet, formed ? lines(0, v210_line_bytes(width), height, 6) : Range{}), packet);
    result.add(Arg::seq, {0, 2}, {0, 2});
    result.add(Arg::outA, {}, {0, 4});
    result.add(Arg::outB, {}, {0, 4});
    return result;
}

}  // namespace tintvert::catalog::extents
