#include "capture/assembler.h"

#include <numeric>

namespace tintvert::core::capture {

uint64_t SegmentCounts::all_refused() const { return std::accumulate(refused.begin(), refused.end(), uint64_t{0}); }

void Assembler::take(const RtpPacket& packet, const Payload& payload, bool follows)
{
    if (in_picture_ && packet.timestamp != timestamp_) end_picture();
    in_picture_ = true;
    timestamp_ = packet.timestamp;
    for (const Segment& segment : payload.segments) take(segment, follows);
    if (packet.marker) end_picture();
}

void Assembler::finish()
{
    if (has_frame_) done_(frame_);
    has_frame_ = false;
}

void Assembler::take(const Segment& segment, bool follows)
{
    if (segment.refusal == Refusal::none && segment.length == 0) {
        ++counts_.empty;
        return;
    }
    if (begins_frame(segment, follows)) finish();
    if (!has_frame_) {
        frame_.clear();
        has_frame_ = true;
        has_second_field_ = first_field_ended_ = false;
    }
    has_second_field_ |= segment.second_field;
    const Refusal refusal = store(segment);
    if (refusal != Refusal::none) {
        ++counts_.refused[static_cast<size_t>(refusal)];
        return;
    }
    ++counts_.taken;
    ++counts_.at_phase[segment.offset % 6 / 2];
}

// Of two fields, the first has ended.
bool Assembler::begins_frame(const Segment& segment, bool follows) const
{
    if (!first_field_ended_ || has_second_field_) return false;
    const bool is_first_of_field = segment.offset == 0 && segment.line == (scan_ == Scan::by_frame ? 1 : 0);
    return !segment.second_field || (!follows && is_first_of_field);
}

Refusal Assembler::store(const Segment& segment)
{
    const long line = segment.line, second = segment.second_field ? 1 : 0;
    if (scan_ == Scan::by_field) return frame_.store(segment, 2 * line + second);
    if (scan_ == Scan::by_frame || second == 0) return frame_.store(segment, line);
    return segment.refusal != Refusal::none ? segment.refusal : Refusal::second_field;
}

void Assembler::end_picture()
{
    in_picture_ = false;
    if (scan_ != Scan::progressive && !has_second_field_)
        first_field_ended_ = true;
    else
        finish();
}

}  // namespace tintvert::core::capture
