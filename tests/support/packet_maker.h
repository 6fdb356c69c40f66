// RTP packets with RFC 4175 payload headers, and the `v210` frames that they ought to become.
#pragma once

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

namespace tintvert::test {

struct Geometry {
    unsigned width, height;

    size_t line_bytes() const { return (width + 47) / 48 * size_t{128}; }
    size_t frame_bytes() const { return line_bytes() * height; }
};

inline std::string be16(unsigned value) { return {static_cast<char>(value >> 8), static_cast<char>(value)}; }
inline std::string be32(uint32_t value) { return be16(value >> 16) + be16(value & 0xFFFF); }

// Ten bits for every sample of every frame, in the order Cb, Y, Cr, Y of a line; never 0, which stands for
// a sample that did not come.
inline uint32_t sample_of(unsigned frame, unsigned y, unsigned n)
{
    uint32_t x = (frame * 977u + y) * 7919u + n + 1;
    x ^= x >> 7;
    x *= 0x9E3779B1u;
    return (x >> 16 & 0x3FF) | 1;
}

struct Segment {
    unsigned line, offset, pixels;
    bool second_field = false;
    unsigned source_line = ~0u;  // of the frame, where that is not `line`
};

inline std::string pgroups_of(unsigned frame, const Segment& segment)
{
    const unsigned y = segment.source_line == ~0u ? segment.line : segment.source_line;
    std::string bytes;
    uint64_t bits = 0;
    for (unsigned n = segment.offset * 2, end = (segment.offset + segment.pixels) * 2; n < end; ++n) {
        bits = bits << 10 | sample_of(frame, y, n);
        if (n % 4 == 3)
            for (int shift = 32; shift >= 0; shift -= 8) bytes += static_cast<char>(bits >> shift);
    }
    return bytes;
}

struct Packet {
    uint32_t number = 0;  // the lower half goes to the RTP header, the upper one to the payload header
    uint32_t timestamp = 0, ssrc = 0xDECAF;
    bool marker = false;
    std::string bytes_of_payload{};

    std::string bytes(unsigned first_byte = 0x80, const std::string& behind_header = "", unsigned type = 96) const
    {
        return std::string(1, static_cast<char>(first_byte)) + static_cast<char>(type | (marker ? 0x80u : 0u)) +
               be16(number & 0xFFFF) + be32(timestamp) + be32(ssrc) + behind_header + be16(number >> 16) +
               bytes_of_payload;
    }
};

// What follows the upper half of the number: all the headers, then all the data.
inline std::string payload_of(unsigned frame, const std::vector<Segment>& segments)
{
    std::string headers, data;
    for (size_t i = 0; i < segments.size(); ++i) {
        const Segment& s = segments[i];
        headers += be16(s.pixels / 2 * 5) + be16(s.line | (s.second_field ? 0x8000u : 0u)) +
                   be16(s.offset | (i + 1 < segments.size() ? 0x8000u : 0u));
        data += pgroups_of(frame, s);
    }
    return headers + data;
}

// The lines from `first` on, every `step`-th, in packets of `pgroups` each, which run on over the ends of
// lines. Numbers go on from `number`.
struct Sender {
    Geometry size;
    unsigned pgroups = 7;
    uint32_t number = 0;
    uint32_t ticks = 3600;  // a frame

    std::vector<Packet> lines(unsigned frame, unsigned first, unsigned step, bool by_field = true)
    {
        std::vector<Packet> packets;
        std::vector<Segment> segments;
        unsigned room = pgroups;
        const auto send = [&] {
            packets.push_back({number++, frame * ticks, 0xDECAF, false, payload_of(frame, segments)});
            segments.clear();
            room = pgroups;
        };
        for (unsigned y = first; y < size.height; y += step) {
            for (unsigned x = 0; x < size.width;) {
                const unsigned taken = std::min(room, (size.width - x) / 2);
                segments.push_back({by_field ? (y - first) / step : y, x, taken * 2, first == 1, y});
                x += taken * 2;
                room -= taken;
                if (room == 0) send();
            }
        }
        if (!segments.empty()) send();
        packets.back().marker = true;
        return packets;
    }

    std::vector<Packet> frame(unsigned n) { return lines(n, 0, 1); }

    std::vector<Packet> frames(unsigned count)
    {
        std::vector<Packet> packets;
        for (unsigned n = 0; n < count; ++n)
            for (const Packet& packet : frame(n)) packets.push_back(packet);
        return packets;
    }
};

// RFC 4571.
inline std::string framed(const std::string& packet) { return be16(static_cast<unsigned>(packet.size())) + packet; }
inline std::string framed(const std::vector<Packet>& packets)
{
    std::string bytes;
    for (const Packet& packet : packets) bytes += framed(packet.bytes());
    return bytes;
}

// The frame as `v210`, without the samples for whose pixel `is_lost` says so.
template <class IsLost>
std::string v210_of(const Geometry& size, unsigned frame, IsLost is_lost)
{
    std::string bytes(size.frame_bytes(), '\0');
    for (unsigned y = 0; y < size.height; ++y) {
        for (unsigned n = 0; n < size.width * 2; ++n) {
            if (is_lost(n / 2, y)) continue;
            const uint32_t field = sample_of(frame, y, n) << n % 3 * 10;
            for (unsigned b = 0; b < 4; ++b) {
                char& at = bytes[y * size.line_bytes() + n / 3 * 4 + b];
                at = static_cast<char>(static_cast<unsigned char>(at) | (field >> 8 * b & 0xFF));
            }
        }
    }
    return bytes;
}

inline std::string v210_of(const Geometry& size, unsigned frame)
{
    return v210_of(size, frame, [](unsigned, unsigned) { return false; });
}

}  // namespace tintvert::test
