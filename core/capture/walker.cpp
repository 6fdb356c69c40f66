#include "capture/walker.h"

namespace tintvert::core::capture {

Walker::Walker(const WalkerOptions& options, Assembler::Done done)
    : options_(options),
      assembler_(options.size, options.scan, segments_, std::move(done)),
      order_(packets_.order, [this](Bytes bytes, size_t size, bool follows) { assemble(bytes, size, follows); })
{}

void Walker::take(const Datagram& datagram)
{
    ++packets_.read;
    const std::optional<uint16_t> port = stream_ ? stream_->port : options_.port;
    const bool is_expected = !datagram.port || datagram.port == port;
    const std::optional<RtpPacket> packet = parse_rtp(datagram.bytes, datagram.size);
    if (!packet || (port && !is_expected)) {
        ++(is_expected ? packets_.malformed : packets_.other);
        return;
    }
    if (!stream_ && (is_expected || parse_payload(packet->payload, packet->payload_size).is_plausible()))
        stream_ = {datagram.port, packet->ssrc, packet->payload_type};
    if (!stream_ || packet->ssrc != stream_->ssrc || packet->payload_type != stream_->payload_type) {
        ++packets_.other;
        return;
    }
    if (datagram.is_cut()) ++packets_.cut;
    const uint32_t upper = packet->payload.size() < 2 ? 0 : be16(packet->payload, 0);
    order_.take(upper << 16 | packet->sequence, datagram.bytes, datagram.size);
}

void Walker::finish()
{
    order_.finish();
    assembler_.finish();
}

// What was taken has been parsed before, so it is RTP.
void Walker::assemble(Bytes bytes, size_t size, bool follows)
{
    const RtpPacket packet = *parse_rtp(bytes, size);
    ++packets_.taken;
    assembler_.take(packet, parse_payload(packet.payload, packet.payload_size), follows);
}

}  // namespace tintvert::core::capture
