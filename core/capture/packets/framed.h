// RFC 4571: RTP packets one after the other, each after its length in two big-endian bytes.
#pragma once

#include <vector>

#include "capture/packets/source.h"

namespace tintvert::core::capture {

// A first length that an RTP header fits in, then a byte with RTP's version 2.
bool is_framed(Bytes head);

class FramedSource : public Source {
public:
    explicit FramedSource(Input& input) : input_(input), packet_(65535) {}
    bool next(Datagram& datagram) override;
    const char* format() const override { return "rfc4571"; }
    bool has_ports() const override { return false; }

private:
    Input& input_;
    std::vector<uint8_t> packet_;
};

}  // namespace tintvert::core::capture
