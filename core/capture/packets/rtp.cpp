#include "capture/packets/rtp.h"

namespace tintvert::core::capture {

//   b0                       b1                 b2..b3      b4..b7       b8..b11   b12..
//   version padding ext CC   marker type        sequence    timestamp    SSRC      CC x CSRC, extension
std::optional<RtpPacket> parse_rtp(Bytes bytes, size_t size)
{
    if (bytes.size() < 12 || bytes[0] >> 6 != 2 || (bytes[1] >= 200 && bytes[1] <= 204)) return {};
    const bool has_padding = (bytes[0] & 0x20) != 0, has_extension = (bytes[0] & 0x10) != 0;
    size_t header = 12 + (bytes[0] & 15) * size_t{4};
    if (has_extension) {
        if (bytes.size() < header + 4) return {};
        header += 4 + be16(bytes, header + 2) * size_t{4};
    }
    if (bytes.size() < header) return {};

    // The last byte of all says how many bytes of padding there are, itself among them.
    size_t padding = 0;
    if (has_padding && bytes.size() == size) {
        padding = bytes.back();
        if (padding == 0 || padding > size - header) return {};
    }
    RtpPacket packet{};
    packet.marker = bytes[1] >> 7 != 0;
    packet.payload_type = bytes[1] & 0x7F;
    packet.sequence = static_cast<uint16_t>(be16(bytes, 2));
    packet.timestamp = be32(bytes, 4);
    packet.ssrc = be32(bytes, 8);
    packet.payload = bytes.first(bytes.size() - padding).subspan(header);
    packet.payload_size = size - padding - header;
    return packet;
}

}  // namespace tintvert::core::capture
