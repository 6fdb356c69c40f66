// Packets in their order become frames.
#pragma once

#include <array>
#include <functional>

#include "capture/frame.h"
#include "capture/packets/rtp.h"

namespace tintvert::core::capture {

struct SegmentCounts {
    uint64_t taken = 0, empty = 0;       // empty ones bring no samples and are not refused
    std::array<uint64_t, 3> at_phase{};  // of those taken: they begin at pixel 0, 2 or 4 of a group
    std::array<uint64_t, static_cast<size_t>(Refusal::count)> refused{};

    uint64_t all_refused() const;
};

enum class Scan {
    progressive,
    by_field,  // interlaced, lines numbered within their field: line n of field F is line 2n + F of the frame
    by_frame   // interlaced, lines numbered within the frame
};

// A picture ends with the marker or before another time stamp. A progressive frame is one picture. An
// interlaced one is a picture of both fields, or one of the first field (F clear) and then one of the second;
// not, though, a second field that is there from its first sample on while packets are missing before it, since
// whole fields are lost then.
class Assembler {
public:
    using Done = std::function<void(const Frame&)>;

    Assembler(FrameSize size, Scan scan, SegmentCounts& counts, Done done)
        : frame_(size), scan_(scan), counts_(counts), done_(std::move(done))
    {}

    // `follows`: no packet is missing before this one.
    void take(const RtpPacket& packet, const Payload& payload, bool follows);
    void finish();

private:
    void take(const Segment& segment, bool follows);
    bool begins_frame(const Segment& segment, bool follows) const;
    Refusal store(const Segment& segment);
    void end_picture();

    Frame frame_;
    Scan scan_;
    SegmentCounts& counts_;
    Done done_;
    bool in_picture_ = false;  // and its time stamp is
    uint32_t timestamp_ = 0;
    bool has_frame_ = false;  // a segment has come for it
    bool has_second_field_ = false, first_field_ended_ = false;
};

}  // namespace tintvert::core::capture
