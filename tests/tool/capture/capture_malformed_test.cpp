// tintvert capture, malformed input: headers with wrong values, packets that are not RTP, truncated and corrupt
// captures. Nothing is written where it does not belong, and frames that are whole stay so.
#include "tool/capture_run.h"

namespace tintvert::test {
namespace {

using CaptureFaults = CaptureTest;

constexpr Geometry size{26, 4};  // 8 packets a frame: 13 pgroups a line, 7 a packet

// Pixels whose place in the frame, line after line, is in [first, end).
auto lost(unsigned first, unsigned end)
{
    return [=](unsigned x, unsigned y) { return y * size.width + x >= first && y * size.width + x < end; };
}

// Headers of the fourth packet of the second frame, whose segments are pixels 16 to 25 of line 1, which are 25
// bytes, and pixels 0 to 3 of line 2.
struct Malformed {
    const char* key;
    unsigned refused;
    size_t at;  // in `bytes_of_payload`
    unsigned value;
    unsigned first_lost, end_lost;  // pixels of the frame
};

constexpr Malformed malformed[] = {
    {"line", 1, 2, 4, 42, 52},  // just below the frame
    {"line", 1, 2, 0x7FFF, 42, 52},
    {"width", 1, 4, 0x8000 + 18, 42, 52},  // one pair over the edge
    {"width", 1, 4, 0x8000 + 26, 42, 52},
    {"width", 1, 4, 0xFFFE, 42, 52},
    {"odd_offset", 1, 4, 0x8000 + 15, 42, 52},
    {"second_field", 1, 2, 0x8001, 42, 52},
    {"length", 1, 6, 15, 52, 56},  // five bytes more than there are
    {"length", 2, 0, 40, 42, 56},  // the second's data is not to be found either
    {"length", 2, 0, 0xFFFF, 42, 56},
    {"partial_pgroup", 1, 0, 24, 42, 52},   // the second finds its data one byte early
    {"header", 1, 4, 0x8000 + 16, 42, 56},  // with that bit set in every header, see below
};

TEST_F(CaptureFaults, lying_headers)
{
    for (const Malformed& header : malformed) {
        std::vector<Packet> packets = Sender{size}.frames(3);
        std::string& payload = packets[11].bytes_of_payload;
        const bool endless = std::string(header.key) == "header";
        payload.replace(header.at, 2, be16(header.value));
        if (endless) payload = std::string(47, '\xFF');  // seven headers and most of one more
        const Captured got = capture(framed(packets), size, {"--keep-incomplete"});
        SCOPED_TRACE(std::string(header.key) + " " + std::to_string(header.value));
        EXPECT_EQ(got.result.code, 1) << got.result.err;
        EXPECT_EQ(got.report["segments"]["refused"][header.key], header.refused);
        EXPECT_EQ(got.report["segments"]["refused"]["all"], header.refused);
        EXPECT_EQ(got.report["frames"], (Json{{"whole", 2}, {"incomplete", 1}, {"written", 3}}));
        EXPECT_EQ(got.report["packets"]["missing"], 0);
        ASSERT_EQ(got.frames.size(), 3 * size.frame_bytes());
        EXPECT_TRUE(got.frames.starts_with(v210_of(size, 0)));
        EXPECT_TRUE(got.frames.ends_with(v210_of(size, 2)));
        EXPECT_EQ(got.report["missing_pixels"], header.end_lost - header.first_lost);
        if (std::string(header.key) == "partial_pgroup") continue;
        EXPECT_TRUE(got.frames.substr(size.frame_bytes(), size.frame_bytes()) ==
                    v210_of(size, 1, lost(header.first_lost, header.end_lost)));
    }
}

// The last packet of a frame that only holds its last pgroup, sent to positions past every edge.
TEST_F(CaptureFaults, nothing_lands_behind_the_last_line)
{
    for (const unsigned width : {2u, 4u, 6u, 46u, 48u}) {
        const Geometry narrow{width, 2};
        for (const unsigned offset : {width, width + 2, width + 4, 0x7FFEu, 0x7FFCu}) {
            for (const unsigned line : {0u, 1u, 2u, 3u, 0x7FFFu}) {
                std::vector<Packet> packets = Sender{narrow, 25}.frames(1);
                packets.back().marker = false;
                Packet beyond{static_cast<uint32_t>(packets.size()), 0, 0xDECAF, true,
                              payload_of(0, {{line, offset, 2}})};
                packets.push_back(beyond);
                const Captured got = capture(framed(packets), narrow);
                EXPECT_EQ(got.result.code, 1);
                EXPECT_TRUE(got.frames == v210_of(narrow, 0));
                EXPECT_EQ(got.report["segments"]["refused"]["all"], 1);
            }
        }
    }
}

TEST_F(CaptureFaults, no_rtp)
{
    const std::vector<Packet> packets = Sender{size}.frames(2);
    const std::string good = packets[3].bytes();
    const auto first_byte = [&](unsigned byte) { return packets[3].bytes(byte); };
    const std::vector<std::string> wrong = {
        first_byte(0x00),                                // version 0
        first_byte(0xC0),                                // version 3
        first_byte(0xA0) + '\0',                         // padding of no byte
        first_byte(0xA0) + '\xFF',                       // padding of more than there is
        packets[3].bytes(0x90, be16(1) + be16(0xFFFF)),  // extension of more than there is
        packets[3].bytes(0x8F).substr(0, 70),            // 60 bytes of sources
        good.substr(0, 11),                              // less than a header
        packets[3].bytes(0x80, "", 200),                 // an RTCP sender report
    };
    for (const std::string& bytes : wrong) {
        const Captured got = capture(framed(packets) + framed(bytes), size);
        EXPECT_EQ(got.result.code, 1);
        EXPECT_EQ(got.report["packets"]["malformed"], 1);
        EXPECT_TRUE(got.frames == v210_of(size, 0) + v210_of(size, 1));
    }
}

// After every number of bytes, and with every byte changed: an answer, and only whole frames.
TEST_F(CaptureFaults, cut_or_damaged_anywhere)
{
    const Geometry small{8, 2};
    const std::string whole = framed(Sender{small, 3}.frames(2));
    const std::string first = v210_of(small, 0), both = first + v210_of(small, 1);
    for (size_t count = 0; count < whole.size(); ++count) {
        const Captured got = capture(whole.substr(0, count), small);
        ASSERT_TRUE(got.result.code == 0 || got.result.code == 1 || got.result.code == 3) << count;
        ASSERT_TRUE(got.frames.empty() || got.frames == first) << count;
        ASSERT_EQ(got.frames.empty(), count < whole.size() / 2) << count;
        ASSERT_EQ(got.result.code == 3, got.frames.empty()) << count;
        ASSERT_EQ(got.result.code == 0, count == whole.size() / 2) << count;
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

TEST_F(CaptureFaults, no_capture)
{
    const std::string pcapng("\x0A\x0D\x0D\x0A\x1C\0\0\0", 8);
    for (const std::string& bytes : {std::string(), std::string("a"), std::string("This is no capture.\n"), pcapng,
                                     framed(std::string(30, '\x80')), std::string(5000, '\0')}) {
        const Captured got = capture(bytes, size);
        EXPECT_EQ(got.result.code, 3);
        EXPECT_TRUE(got.result.has_one_line_of_error()) << got.result.err;
        EXPECT_FALSE(std::filesystem::exists(path("out.v210")));
    }
    for (const std::string& name : {path("none"), path("")}) {
        const Result result = run({"capture", name, path("out"), "--size", "26x4"});
        EXPECT_EQ(result.code, 3);
        EXPECT_TRUE(result.has_one_line_of_error()) << result.err;
    }
}

}  // namespace
}  // namespace tintvert::test
