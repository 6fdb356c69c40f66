#include "capture/packets/pcap.h"

#include <algorithm>

#include "capture/packets/udp.h"
#include "failure.h"

namespace tintvert::core::capture {
namespace {

constexpr uint32_t microseconds = 0xA1B2C3D4, nanoseconds = 0xA1B23C4D;
constexpr size_t most_captured = 1 << 18;  // no writer of the format stores more of a packet

uint32_t le32(Bytes bytes, size_t at)
{
    return be32(bytes, at) >> 24 | (be32(bytes, at) >> 8 & 0xFF00) | (be32(bytes, at) << 8 & 0xFF0000) |
           be32(bytes, at) << 24;
}

bool is_magic(uint32_t number) { return number == microseconds || number == nanoseconds; }

}  // namespace

bool is_pcap(Bytes head) { return head.size() == 4 && (is_magic(be32(head, 0)) || is_magic(le32(head, 0))); }

PcapSource::PcapSource(Input& input) : input_(input), record_(most_captured)
{
    std::array<uint8_t, 24> header{};
    if (input_.read(header.data(), header.size()) < header.size())
        throw Failure(Exit::no_file, "{} ends inside the header of a pcap", input.name());
    is_little_ = is_magic(le32(header, 0));
    link_type_ = number(header, 20) & 0xFFFF;  // above it, what is known of checksums
    if (!is_link_type(link_type_))
        throw Failure(Exit::no_file, "{} was captured from link type {}, which is not read", input.name(), link_type_);
}

bool PcapSource::next(Datagram& datagram)
{
    Bytes captured;
    size_t size = 0;
    while (next_record(captured, size)) {
        const Udp found = udp_of(link_type_, captured, size);
        if (found.kind == Udp::datagram) {
            datagram = {found.bytes, found.size, found.port};
            return true;
        }
        ++(found.kind == Udp::fragment ? fragments_ : skipped_);
    }
    return false;
}

uint32_t PcapSource::number(Bytes bytes, size_t at) const { return is_little_ ? le32(bytes, at) : be32(bytes, at); }

// Behind a record whose length is absurd there is no finding the next one.
bool PcapSource::next_record(Bytes& captured, size_t& size)
{
    std::array<uint8_t, 16> header{};
    const size_t got_header = input_.read(header.data(), header.size());
    if (got_header == 0) return false;
    const size_t count = number(header, 8);
    ends_early_ |= got_header < header.size() || count > most_captured;
    if (ends_early_) return false;
    const size_t got = input_.read(record_.data(), count);
    ends_early_ |= got < count;
    captured = Bytes(record_).first(got);
    size = std::max<size_t>(count, number(header, 12));
    return true;
}

}  // namespace tintvert::core::capture
