#include "capture/packets/payload.h"

#include <algorithm>

namespace tintvert::core::capture {
namespace {

constexpr size_t segment_header = 6;

Payload refused(Payload payload, Refusal reason)
{
    payload.segments.assign(1, {reason});
    return payload;
}

//   b0..b1   b2..b3         b4..b5
//   length   F line (15)    C offset (15)
Segment parse_segment(Bytes bytes)
{
    Segment segment;
    segment.length = be16(bytes, 0);
    segment.second_field = be16(bytes, 2) >> 15 != 0;
    segment.line = be16(bytes, 2) & 0x7FFF;
    segment.offset = be16(bytes, 4) & 0x7FFF;
    if (segment.length % 5 != 0)
        segment.refusal = Refusal::partial_pgroup;
    else if (segment.offset % 2 != 0)
        segment.refusal = Refusal::odd_offset;
    return segment;
}

// The data follows all the headers, in their order.
void find_data(std::vector<Segment>& segments, Bytes bytes, size_t size, size_t at)
{
    for (Segment& segment : segments) {
        const size_t end = at + segment.length;
        if (end > size)
            segment.refusal = Refusal::length;
        else if (segment.refusal == Refusal::none && end > bytes.size())
            segment.refusal = Refusal::cut;
        else if (segment.refusal == Refusal::none)
            segment.data = bytes.subspan(at, segment.length);
        at = end;
    }
}

}  // namespace

bool Payload::is_plausible() const
{
    const auto fits = [](const Segment& s) { return s.refusal == Refusal::none || s.refusal == Refusal::cut; };
    return std::ranges::all_of(segments, fits) &&
           std::ranges::any_of(segments, [](const Segment& s) { return s.length > 0; });
}

Payload parse_payload(Bytes bytes, size_t size)
{
    Payload payload;
    if (bytes.size() < 2) return refused(payload, bytes.size() < size ? Refusal::cut : Refusal::header);
    payload.extended_sequence = static_cast<uint16_t>(be16(bytes, 0));
    size_t at = 2;
    for (bool continues = true; continues; at += segment_header) {
        if (at + segment_header > size) return refused(payload, Refusal::header);
        if (at + segment_header > bytes.size()) return refused(payload, Refusal::cut);
        payload.segments.push_back(parse_segment(bytes.subspan(at)));
        continues = bytes[at + 4] >> 7 != 0;
    }
    find_data(payload.segments, bytes, size, at);
    return payload;
}

}  // namespace tintvert::core::capture
