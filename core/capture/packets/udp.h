// From a captured packet to what UDP carries in it.
#pragma once

#include "capture/packets/bytes.h"

namespace tintvert::core::capture {

struct Udp {
    enum Kind { none, fragment, datagram } kind = none;
    Bytes bytes{};      // as far as captured
    size_t size = 0;    // as UDP's own header has it
    uint16_t port = 0;  // of the receiver
};

// The numbers that pcap has for Ethernet, BSD loopback, Linux cooked captures of both versions, and bare IP.
bool is_link_type(uint32_t type);

// IPv4 and IPv6, below one VLAN tag at most. `size` is how long the packet was before the capture cut it; one
// that contradicts the lengths inside is no datagram. Fragments are not put together.
Udp udp_of(uint32_t link_type, Bytes captured, size_t size);

}  // namespace tintvert::core::capture
