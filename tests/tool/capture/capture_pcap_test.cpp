// tintvert capture, from pcaps: every byte order, link and IP header, and what else is on the wire.
#include "tool/capture_run.h"

namespace tintvert::test {
namespace {

using CapturePcap = CaptureTest;

constexpr Geometry size{26, 4};

// Numbers in the byte order of the machine that captured.
struct Pcap {
    unsigned link_type = 1;
    bool is_little = true;
    uint32_t magic = 0xA1B2C3D4;
    size_t snap_length = 262144;
    std::string bytes{};

    std::string number(uint32_t value) const
    {
        std::string text = be32(value);
        if (is_little) std::reverse(text.begin(), text.end());
        return text;
    }
    void begin()
    {
        const std::string version = is_little ? std::string("\x02\0\x04\0", 4) : std::string("\0\x02\0\x04", 4);
        bytes = number(magic) + version + number(0) + number(0) + number(static_cast<uint32_t>(snap_length)) +
                number(link_type);
    }
    void add(const std::string& packet)
    {
        if (bytes.empty()) begin();
        const std::string captured = packet.substr(0, snap_length);
        bytes += number(1) + number(2) + number(static_cast<uint32_t>(captured.size())) +
                 number(static_cast<uint32_t>(packet.size())) + captured;
    }
};

std::string udp(const std::string& data, unsigned port = 5004)
{
    return be16(40000) + be16(port) + be16(static_cast<unsigned>(data.size()) + 8) + be16(0) + data;
}

std::string ipv4(const std::string& data, const std::string& options = "", unsigned fragment = 0x4000,
                 unsigned protocol = 17)
{
    const size_t header = 20 + options.size();
    return std::string(1, static_cast<char>(0x40 + header / 4)) + '\0' +
           be16(static_cast<unsigned>(header + data.size())) + be16(1) + be16(fragment) + '\x40' +
           static_cast<char>(protocol) + be16(0) + be32(0x7F000001) + be32(0x7F000001) + options + data;
}

std::string ipv6(const std::string& data, unsigned next = 17)
{
    return be32(0x60000000) + be16(static_cast<unsigned>(data.size())) + static_cast<char>(next) + '\x40' +
           std::string(32, '\x01') + data;
}

const std::string addresses(12, '\x02');
std::string ethernet(const std::string& ip) { return addresses + be16(ip[0] >> 4 == 4 ? 0x0800 : 0x86DD) + ip; }

struct Wire {
    const char* name;
    unsigned link_type;
    std::string (*wrap)(const std::string& rtp);
};

const Wire wires[] = {
    {"Ethernet, IPv4", 1, [](const std::string& r) { return ethernet(ipv4(udp(r))); }},
    {"trailing Ethernet padding", 1, [](const std::string& r) { return ethernet(ipv4(udp(r))) + "padding"; }},
    {"IPv4 options", 1, [](const std::string& r) { return ethernet(ipv4(udp(r), std::string(40, '\x01'))); }},
    {"VLAN", 1,
     [](const std::string& r) { return addresses + be16(0x8100) + be16(0x2007) + be16(0x0800) + ipv4(udp(r)); }},
    {"provider VLAN, IPv6", 1,
     [](const std::string& r) { return addresses + be16(0x88A8) + be16(7) + be16(0x86DD) + ipv6(udp(r)); }},
    {"IPv6", 1, [](const std::string& r) { return ethernet(ipv6(udp(r))); }},
    {"IPv6 with options", 1,
     [](const std::string& r) {
         const std::string hop = std::string("\x3C\x00\x01\x04\0\0\0\0", 8);  // then destination options
         const std::string destination = std::string("\x11\x01", 2) + std::string(14, '\0');  // then UDP
         return ethernet(ipv6(hop + destination + udp(r), 0));
     }},
    {"loopback, little-endian", 0, [](const std::string& r) { return std::string("\x02\0\0\0", 4) + ipv4(udp(r)); }},
    {"loopback, big-endian", 0, [](const std::string& r) { return be32(30) + ipv6(udp(r)); }},
    {"OpenBSD loopback", 108, [](const std::string& r) { return be32(2) + ipv4(udp(r)); }},
    {"raw", 101, [](const std::string& r) { return ipv4(udp(r)); }},
    {"raw 12", 12, [](const std::string& r) { return ipv6(udp(r)); }},
    {"raw 14", 14, [](const std::string& r) { return ipv4(udp(r)); }},
    {"raw IPv4", 228, [](const std::string& r) { return ipv4(udp(r)); }},
    {"raw IPv6", 229, [](const std::string& r) { return ipv6(udp(r)); }},
    {"Linux cooked", 113, [](const std::string& r) { return std::string(14, '\0') + be16(0x0800) + ipv4(udp(r)); }},
    {"Linux cooked 2", 276, [](const std::string& r) { return be16(0x86DD) + std::string(18, '\0') + ipv6(udp(r)); }},
};

TEST_F(CapturePcap, every_wire_and_byte_order)
{
    for (const Wire& wire : wires) {
        for (const bool is_little : {true, false}) {
            for (const uint32_t magic : {0xA1B2C3D4u, 0xA1B23C4Du}) {
                Pcap pcap{wire.link_type, is_little, magic};
                for (const Packet& packet : Sender{size, 7, 65530}.frames(2)) pcap.add(wire.wrap(packet.bytes()));
                const Captured got = capture(pcap.bytes, size);
                SCOPED_TRACE(wire.name);
                EXPECT_EQ(got.result.code, 0) << got.result.err;
                EXPECT_TRUE(got.frames == v210_of(size, 0) + v210_of(size, 1));
                EXPECT_EQ(got.report["capture"]["format"], "pcap");
                EXPECT_EQ(got.report["stream"], (Json{{"port", 5004}, {"ssrc", 0xDECAF}, {"payload_type", 96}}));
            }
        }
    }
}

// A name query, RTCP, a second stream, TCP, ARP, an IP fragment and a header that is too short, all before
// the video.
TEST_F(CapturePcap, finds_the_video_among_others)
{
    Pcap pcap;
    pcap.add(ethernet(ipv4(udp(std::string("\x81\x80\0\x01\0\x01\0\0\0\0\0\0\x07"
                                           "example",
                                           20),
                               53))));
    pcap.add(ethernet(ipv4(udp(std::string("\x80\xC8\0\x06", 4) + std::string(24, '\0'), 5005))));
    pcap.add(ethernet(ipv4(std::string(40, 'T'), "", 0, 6)));
    pcap.add(addresses + be16(0x0806) + std::string(28, 'A'));
    pcap.add(ethernet(ipv4(udp(std::string(100, 'F')), "", 0x2000)));
    pcap.add(ethernet(ipv4(udp("short")).substr(0, 15)));
    const std::vector<Packet> packets = Sender{size}.frames(2);
    for (const Packet& packet : packets) {
        pcap.add(ethernet(ipv4(udp(packet.bytes()))));
        Packet other = packet;
        other.number += 5;
        pcap.add(ethernet(ipv4(udp(other.bytes(), 6000))));
    }
    for (const char* port : {"", "5004", "6000"}) {
        const std::vector<std::string> options = {"--port", port};
        const Captured got = capture(pcap.bytes, size, *port ? options : std::vector<std::string>());
        EXPECT_EQ(got.result.code, 0) << got.result.err;
        EXPECT_TRUE(got.frames == v210_of(size, 0) + v210_of(size, 1));
        EXPECT_EQ(got.report["stream"]["port"], *port == '6' ? 6000 : 5004);
        EXPECT_EQ(got.report["packets"]["other"], packets.size() + 2);
        EXPECT_EQ(got.report["packets"]["malformed"], 0);
        EXPECT_EQ(got.report["capture"]["skipped"], 3);
        EXPECT_EQ(got.report["capture"]["fragments"], 1);
    }
    const Captured none = capture(pcap.bytes, size, {"--port", "7000"});
    EXPECT_EQ(none.result.code, 3);
    EXPECT_TRUE(none.report["stream"].is_null());
}

// Of 12 + 2 + 6 or 12 bytes of headers and 35 of data, after 42 bytes of Ethernet, IP and UDP: 88 bytes contain
// 26 of data, or 20 after two headers.
TEST_F(CapturePcap, cut_by_the_snap_length)
{
    Pcap pcap;
    pcap.snap_length = 88;
    const std::vector<Packet> packets = Sender{size}.frames(1);
    for (const Packet& packet : packets) pcap.add(ethernet(ipv4(udp(packet.bytes()))));
    const Captured got = capture(pcap.bytes, size, {"--keep-incomplete"});
    EXPECT_EQ(got.result.code, 1);
    EXPECT_EQ(got.report["packets"]["cut"], 7);  // all but the last, which has three pgroups
    EXPECT_EQ(got.report["packets"]["missing"], 0);
    const Json segments = got.report["segments"];
    EXPECT_EQ(segments["refused"]["cut"], segments["refused"]["all"]);
    EXPECT_GE(segments["refused"]["cut"], 7);
    EXPECT_GT(segments["taken"], 1);  // whole segments of truncated packets
    EXPECT_EQ(got.frames.size(), size.frame_bytes());

    // Too short for the payload header, or for RTP's.
    for (const size_t snap_length : {42u + 13, 42u + 12, 42u + 5, 42u, 41u, 20u, 0u}) {
        Pcap shorter;
        shorter.snap_length = snap_length;
        for (const Packet& packet : packets) shorter.add(ethernet(ipv4(udp(packet.bytes()))));
        EXPECT_EQ(capture(shorter.bytes, size, {"--port", "5004"}).result.code, 3) << snap_length;
    }
}

TEST_F(CapturePcap, cut_or_damaged_anywhere)
{
    const Geometry small{8, 1};
    Pcap pcap;
    size_t third = 0;  // the end of the third packet of four
    for (const Packet& packet : Sender{small, 3}.frames(2)) {
        pcap.add(ethernet(ipv6(udp(packet.bytes()))));
        if (packet.number == 2) third = pcap.bytes.size();
    }
    const std::string& whole = pcap.bytes;
    const size_t half = 24 + (whole.size() - 24) / 2;
    const std::string first = v210_of(small, 0);
    for (size_t count = 0; count < whole.size(); ++count) {
        const Captured got = capture(whole.substr(0, count), small);
        ASSERT_EQ(got.result.code, count < half ? 3 : count == half ? 0 : 1) << count << got.result.err;
        ASSERT_TRUE(got.frames == (count < half ? "" : first)) << count;
        if (count > half) {
            ASSERT_EQ(got.report["capture"]["ends_early"], count != third) << count;
        }
        ASSERT_TRUE(left_nothing_unfinished());
    }
    for (size_t i = 0; i < whole.size(); ++i) {
        std::string damaged = whole;
        damaged[i] = static_cast<char>(damaged[i] ^ (i % 3 == 0 ? 0x01 : i % 3 == 1 ? 0x80 : 0xFF));
        const Captured got = capture(damaged, small, {"--keep-incomplete"});
        ASSERT_TRUE(got.result.code == 0 || got.result.code == 1 || got.result.code == 3) << i;
        ASSERT_EQ(got.frames.size() % first.size(), 0u) << i;
    }
}

TEST_F(CapturePcap, a_record_of_absurd_length_ends_it)
{
    Pcap pcap;
    for (const Packet& packet : Sender{size}.frames(1)) pcap.add(ethernet(ipv4(udp(packet.bytes()))));
    pcap.bytes += pcap.number(1) + pcap.number(2) + pcap.number(0xFFFFFFF0) + pcap.number(0xFFFFFFF0) + "data";
    const Captured got = capture(pcap.bytes, size);
    EXPECT_EQ(got.result.code, 1);
    EXPECT_TRUE(got.report["capture"]["ends_early"]);
    EXPECT_TRUE(got.frames == v210_of(size, 0));
}

TEST_F(CapturePcap, unknown_link_type)
{
    Pcap pcap{105};  // a wireless network
    pcap.begin();
    const Captured got = capture(pcap.bytes, size);
    EXPECT_EQ(got.result.code, 3);
    EXPECT_TRUE(got.result.has_one_line_of_error()) << got.result.err;
    EXPECT_NE(got.result.err.find("link type 105"), std::string::npos) << got.result.err;
}

}  // namespace
}  // namespace tintvert::test
