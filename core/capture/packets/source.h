// A capture as a row of datagrams, each of which ought to be an RTP packet.
#pragma once

#include <memory>
#include <optional>

#include "capture/packets/input.h"

namespace tintvert::core::capture {

struct Datagram {
    Bytes bytes;      // what was captured, valid until the next one is asked for
    size_t size = 0;  // what was sent: more than `bytes` has if the packet is truncated
    std::optional<uint16_t> port{};

    bool is_cut() const { return bytes.size() < size; }
};

class Source {
public:
    virtual ~Source() = default;
    virtual bool next(Datagram& datagram) = 0;  // false at the end
    virtual const char* format() const = 0;
    virtual bool has_ports() const = 0;

    bool ends_early() const { return ends_early_; }  // inside a packet, or in something that is none
    uint64_t skipped() const { return skipped_; }    // captured packets without a whole UDP header
    uint64_t fragments() const { return fragments_; }

protected:
    bool ends_early_ = false;
    uint64_t skipped_ = 0, fragments_ = 0;
};

// By the first bytes: pcap, or RFC 4571 framing in which the first packet has the version of RTP. Anything
// else is a Failure.
std::unique_ptr<Source> open_source(Input& input);

}  // namespace tintvert::core::capture
