#include "capture/frame.h"

#include <tintvert.h>

#include <algorithm>

namespace tintvert::core::capture {
namespace {

// At phase 2 the library takes the pgroups 1 and 2 of a group for granted. A segment that ends after the first
// of them leaves the samples of pgroup 2 alone: the upper four bits of byte 10, and bytes 11 to 15.
void unpack_pgroup_1(uint8_t* group, uint8_t* payload)
{
    uint8_t before[16];
    std::copy_n(group, 16, before);
    tntvt_4175_to_v210(group, payload, 5, 0, 2);
    group[10] = static_cast<uint8_t>((group[10] & 0x0F) | (before[10] & 0xF0));
    std::copy(before + 11, before + 16, group + 11);
}

void unpack(uint8_t* line, uint8_t* payload, long pgroups, long offset)
{
    uint8_t* const group = line + offset / 6 * 16;
    const long phase = offset % 6;
    const long in_first_group = phase == 0 ? 0 : 3 - phase / 2;
    if (phase == 2 && pgroups == 1)
        unpack_pgroup_1(group, payload);
    else
        tntvt_4175_to_v210(group, payload, pgroups * 5, pgroups - in_first_group, phase);
}

}  // namespace

// A line's padding takes the whole last group, so no segment writes past its line.
Frame::Frame(FrameSize size)
    : size_(size),
      bytes_(static_cast<size_t>(size.line_bytes() * size.height)),
      there_(static_cast<size_t>(size.pairs() * size.height)),
      missing_pairs_(size.pairs() * size.height)
{}

void Frame::clear()
{
    std::ranges::fill(bytes_, uint8_t{0});
    std::fill(there_.begin(), there_.end(), false);
    missing_pairs_ = size_.pairs() * size_.height;
}

Refusal Frame::store(const Segment& segment, long y)
{
    if (segment.refusal != Refusal::none) return segment.refusal;
    const long offset = segment.offset, pgroups = segment.length / 5;
    if (pgroups == 0) return Refusal::none;
    if (y >= size_.height) return Refusal::line;
    if (offset + 2 * pgroups > size_.width) return Refusal::width;

    // The library takes a pointer to bytes that it might change, and reads them only.
    unpack(bytes_.data() + y * size_.line_bytes(), const_cast<uint8_t*>(segment.data.data()), pgroups, offset);
    const auto first = there_.begin() + y * size_.pairs() + offset / 2;
    missing_pairs_ -= std::count(first, first + pgroups, false);
    std::fill(first, first + pgroups, true);
    return Refusal::none;
}

long Frame::whole_lines() const
{
    long whole = 0;
    for (auto line = there_.begin(); line != there_.end(); line += size_.pairs())
        whole += std::all_of(line, line + size_.pairs(), [](bool there) { return there; });
    return whole;
}

}  // namespace tintvert::core::capture
