// From datagrams to frames, with an account of everything on the way.
#pragma once

#include "capture/assembler.h"
#include "capture/order.h"
#include "capture/packets/source.h"

namespace tintvert::core::capture {

struct WalkerOptions {
    FrameSize size{};
    Scan scan = Scan::progressive;
    std::optional<uint16_t> port{};
};

// Of which one is taken from a capture.
struct Stream {
    std::optional<uint16_t> port;
    uint32_t ssrc;
    uint8_t payload_type;
};

struct PacketCounts {
    uint64_t read = 0;
    uint64_t taken = 0;      // once each, in order
    uint64_t other = 0;      // of another port, another stream, or no video
    uint64_t malformed = 0;  // no RTP, where RTP is expected
    uint64_t cut = 0;        // in the capture
    OrderCounts order{};
};

// Without a port, the stream is the first whose packet reads as RTP with a payload header that contradicts
// nothing; with one, or where there are no ports, the first that reads as RTP.
class Walker {
public:
    Walker(const WalkerOptions& options, Assembler::Done done);

    void take(const Datagram& datagram);
    void finish();

    const std::optional<Stream>& stream() const { return stream_; }
    const PacketCounts& packets() const { return packets_; }
    const SegmentCounts& segments() const { return segments_; }

private:
    void assemble(Bytes bytes, size_t size, bool follows);

    WalkerOptions options_;
    std::optional<Stream> stream_;
    PacketCounts packets_;
    SegmentCounts segments_;
    Assembler assembler_;
    Order order_;
};

}  // namespace tintvert::core::capture
