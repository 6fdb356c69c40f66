#include "capture/packets/framed.h"

namespace tintvert::core::capture {

bool is_framed(Bytes head) { return head.size() >= 3 && be16(head, 0) >= 12 && head[2] >> 6 == 2; }

// A length of 0 is a packet that says nothing and is passed over.
bool FramedSource::next(Datagram& datagram)
{
    std::array<uint8_t, 2> prefix{};
    size_t size = 0;
    while (size == 0) {
        const size_t got = input_.read(prefix.data(), prefix.size());
        ends_early_ |= got == 1;
        if (got < prefix.size()) return false;
        size = be16(prefix, 0);
    }
    const size_t got = input_.read(packet_.data(), size);
    ends_early_ |= got < size;
    datagram = {Bytes(packet_).first(got), size};
    return true;
}

}  // namespace tintvert::core::capture
