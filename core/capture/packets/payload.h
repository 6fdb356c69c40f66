// The payload header of RFC 4175 and the segments of lines after it.
#pragma once

#include <array>
#include <vector>

#include "capture/packets/bytes.h"

namespace tintvert::core::capture {

// Why a segment's samples do not go into the frame.
enum class Refusal {
    none,
    header,          // the segment headers run on past the packet
    length,          // the data would end past the packet
    cut,             // the capture cut it off
    partial_pgroup,  // a length that is no multiple of 5
    odd_offset,      // the second pixel of a pgroup
    second_field,    // F is set, and the frame is not interlaced
    line,            // outside the frame
    width,           // beyond the end of the line
    count
};

struct Segment {
    Refusal refusal = Refusal::none;
    bool second_field = false;
    uint32_t line = 0, offset = 0;  // from 0
    uint32_t length = 0;            // bytes
    Bytes data{};                   // `length` of them, or none if the segment is refused
};

struct Payload {
    uint16_t extended_sequence = 0;  // the upper half of the sequence number
    std::vector<Segment> segments;

    // Nothing in it contradicts itself, and there are samples.
    bool is_plausible() const;
};

// `size` is how long the payload was before the capture cut it. A payload whose headers do not end has a single
// segment that is refused for it.
Payload parse_payload(Bytes bytes, size_t size);

}  // namespace tintvert::core::capture
