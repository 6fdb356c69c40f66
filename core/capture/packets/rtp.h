// The RTP header (RFC 3550).
#pragma once

#include <optional>

#include "capture/packets/bytes.h"

namespace tintvert::core::capture {

struct RtpPacket {
    bool marker;
    uint8_t payload_type;
    uint16_t sequence;
    uint32_t timestamp, ssrc;
    Bytes payload;        // as far as captured
    size_t payload_size;  // as sent; with padding, if that was not captured
};

// Nothing for another version, for a header that was not captured whole, and for RTCP, by its packet types 200
// to 204. `size` is how long the packet was before the capture cut it.
std::optional<RtpPacket> parse_rtp(Bytes bytes, size_t size);

}  // namespace tintvert::core::capture
