#include "capture/packets/udp.h"

#include <algorithm>
#include <optional>

namespace tintvert::core::capture {
namespace {

// A stretch of a packet: what was captured of it, and how long it was.
struct Part {
    Bytes bytes;
    size_t size;

    bool has(size_t count) const { return bytes.size() >= count && size >= count; }
    Part after(size_t count) const { return {capture::after(bytes, count), size - std::min(size, count)}; }
    Part first(size_t count) const { return {bytes.first(std::min(bytes.size(), count)), std::min(size, count)}; }
};

enum LinkType : uint32_t {
    bsd_loopback = 0,
    ethernet = 1,
    raw_12 = 12,
    raw_14 = 14,
    raw = 101,
    openbsd_loopback = 108,
    linux_cooked = 113,
    raw_ipv4 = 228,
    raw_ipv6 = 229,
    linux_cooked_2 = 276,
};

constexpr uint32_t udp_protocol = 17;

Udp udp_in(const Part& ip_payload)
{
    if (!ip_payload.has(8)) return {};
    const size_t size = be16(ip_payload.bytes, 4);
    if (size < 8 || size > ip_payload.size) return {};
    const Part data = ip_payload.first(size).after(8);
    return {Udp::datagram, data.bytes, data.size, static_cast<uint16_t>(be16(ip_payload.bytes, 2))};
}

// A total length of 0 is left by network cards that cut packets up themselves.
Udp udp_in_ipv4(const Part& packet)
{
    if (!packet.has(20)) return {};
    const size_t header = (packet.bytes[0] & 15) * size_t{4};
    const size_t total = be16(packet.bytes, 2) == 0 ? packet.size : be16(packet.bytes, 2);
    if (header < 20 || total < header || total > packet.size || packet.bytes[9] != udp_protocol) return {};
    if ((be16(packet.bytes, 6) & 0x3FFF) != 0) return {Udp::fragment};
    return udp_in(packet.first(total).after(header));
}

// Hop-by-hop options, routing and destination options may come before UDP, each with its length in units of
// eight bytes, the first not counted.
Udp udp_in_ipv6(const Part& packet)
{
    if (!packet.has(40)) return {};
    const size_t total = be16(packet.bytes, 4) == 0 ? packet.size : be16(packet.bytes, 4) + size_t{40};
    if (total > packet.size) return {};
    uint32_t next = packet.bytes[6];
    Part rest = packet.first(total).after(40);
    while (next == 0 || next == 43 || next == 60) {
        if (!rest.has(8)) return {};
        next = rest.bytes[0];
        rest = rest.after((rest.bytes[1] + size_t{1}) * 8);
    }
    if (next == 44) return {rest.has(8) && rest.bytes[0] == udp_protocol ? Udp::fragment : Udp::none};
    return next == udp_protocol ? udp_in(rest) : Udp();
}

Udp udp_in_ip(const Part& packet)
{
    if (!packet.has(1)) return {};
    const int version = packet.bytes[0] >> 4;
    return version == 4 ? udp_in_ipv4(packet) : version == 6 ? udp_in_ipv6(packet) : Udp();
}

// `type_at` is where the link's header has its EtherType, `header` how long it is.
Udp udp_by_ethertype(const Part& frame, size_t type_at, size_t header)
{
    if (!frame.has(header)) return {};
    uint32_t type = be16(frame.bytes, type_at);
    Part rest = frame.after(header);
    if (type == 0x8100 || type == 0x88A8) {
        if (!rest.has(4)) return {};
        type = be16(rest.bytes, 2);
        rest = rest.after(4);
    }
    return type == 0x0800 || type == 0x86DD ? udp_in_ip(rest) : Udp();
}

}  // namespace

bool is_link_type(uint32_t type)
{
    constexpr uint32_t known[] = {bsd_loopback,     ethernet,     raw_12,   raw_14,   raw,
                                  openbsd_loopback, linux_cooked, raw_ipv4, raw_ipv6, linux_cooked_2};
    return std::ranges::find(known, type) != std::end(known);
}

Udp udp_of(uint32_t link_type, Bytes captured, size_t size)
{
    const Part frame{captured, size};
    switch (link_type) {
        case ethernet:
            return udp_by_ethertype(frame, 12, 14);
        case linux_cooked:
            return udp_by_ethertype(frame, 14, 16);
        case linux_cooked_2:
            return udp_by_ethertype(frame, 0, 20);
        case bsd_loopback:
        case openbsd_loopback:
            return udp_in_ip(frame.after(4));
        default:
            return udp_in_ip(frame);
    }
}

}  // namespace tintvert::core::capture
