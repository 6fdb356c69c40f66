// Classic pcap: 24 bytes of header, then records of 16 bytes and a captured packet each, in the byte order of
// the machine that wrote them.
#pragma once

#include <vector>

#include "capture/packets/source.h"

namespace tintvert::core::capture {

// Either byte order, time stamps in micro- or nanoseconds.
bool is_pcap(Bytes head);

// The UDP datagrams of a capture. Throws Failure for a header that is cut short or names a link type that is
// not read.
class PcapSource : public Source {
public:
    explicit PcapSource(Input& input);
    bool next(Datagram& datagram) override;
    const char* format() const override { return "pcap"; }
    bool has_ports() const override { return true; }

private:
    uint32_t number(Bytes bytes, size_t at) const;
    bool next_record(Bytes& captured, size_t& size);

    Input& input_;
    bool is_little_ = false;
    uint32_t link_type_ = 0;
    std::vector<uint8_t> record_;
};

}  // namespace tintvert::core::capture
