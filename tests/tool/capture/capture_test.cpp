// tintvert capture, packets as they should be: every byte of every frame, whatever their order and numbers.
#include <sys/resource.h>

#include <random>

#include "tool/capture_run.h"

namespace tintvert::test {
namespace {

using Capture = CaptureTest;

std::string v210_frames(const Geometry& size, unsigned count)
{
    std::string frames;
    for (unsigned n = 0; n < count; ++n) frames += v210_of(size, n);
    return frames;
}

void expect_complete(const Captured& got, const Geometry& size, unsigned frames)
{
    EXPECT_EQ(got.result.code, 0) << got.result.out << got.result.err;
    EXPECT_EQ(got.result.err, "");
    EXPECT_TRUE(got.frames == v210_frames(size, frames));
    ASSERT_FALSE(got.report.is_null());
    EXPECT_TRUE(got.report["complete"]);
    EXPECT_EQ(got.report["frames"], (Json{{"whole", frames}, {"incomplete", 0}, {"written", frames}}));
    EXPECT_EQ(got.report["lines"], (Json{{"whole", frames * size.height}, {"broken", 0}}));
    EXPECT_EQ(got.report["missing_pixels"], 0);
}

// Packets of 1 to 50 pgroups over lines of 1 to 49 begin and end at every pair of a group, and in either
// order every group is shared by segments that must leave each other's samples alone.
TEST_F(Capture, every_phase_length_and_width)
{
    for (const unsigned width : {2u, 4u, 6u, 8u, 10u, 26u, 48u, 50u, 98u}) {
        for (const unsigned pgroups : {1u, 2u, 3u, 5u, 7u, 50u}) {
            const Geometry size{width, 3};
            std::vector<Packet> packets = Sender{size, pgroups}.frames(2);
            for (const bool backwards : {false, true}) {
                const Captured got = capture(framed(packets), size);
                expect_complete(got, size, 2);
                EXPECT_EQ(got.report["packets"]["taken"], packets.size());
                EXPECT_EQ(got.report["packets"]["reordered"], backwards ? packets.size() - 1 : 0);
                std::reverse(packets.begin(), packets.end());
                if (HasFailure()) FAIL() << width << " pixels, " << pgroups << " pgroups, backwards " << backwards;
            }
        }
    }
}

// Sent from the frame's end to its start, so that a segment arrives after the one that follows it in the same group.
TEST_F(Capture, segments_leave_their_neighbours_alone)
{
    for (const unsigned pgroups : {1u, 2u, 4u, 5u}) {
        const Geometry size{26, 3};
        std::vector<Packet> packets = Sender{size, pgroups}.frames(1);
        packets.back().marker = false;
        packets.front().marker = true;
        std::reverse(packets.begin(), packets.end());
        for (size_t i = 0; i < packets.size(); ++i) packets[i].number = static_cast<uint32_t>(i);
        const Captured got = capture(framed(packets), size);
        EXPECT_EQ(got.report["packets"]["reordered"], 0);
        expect_complete(got, size, 1);
    }
}

TEST_F(Capture, counts_the_phases)
{
    // One pgroup a packet: each line of 26 pixels begins 5 times at pixel 0 of a group, 4 at 2, 4 at 4.
    const Geometry size{26, 3};
    const Json segments = capture(framed(Sender{size, 1}.frames(1)), size).report["segments"];
    EXPECT_EQ(segments["taken"], 39);
    EXPECT_EQ(segments["phase_0"], 15);
    EXPECT_EQ(segments["phase_2"], 12);
    EXPECT_EQ(segments["phase_4"], 12);
    EXPECT_EQ(segments["refused"]["all"], 0);
}

// A sender that counts the upper half, one that leaves it at 0, and one that has it at another number.
TEST_F(Capture, sequence_numbers_wrap)
{
    const Geometry size{26, 4};
    for (const uint32_t first : {65530u, 0xFFFFFFFAu}) {
        const std::vector<Packet> counted = Sender{size, 7, first}.frames(3);
        expect_complete(capture(framed(counted), size), size, 3);
        for (const uint32_t upper : {0u, 0x30000u}) {
            std::vector<Packet> packets = counted;
            for (Packet& packet : packets) packet.number = (packet.number & 0xFFFF) | upper;
            expect_complete(capture(framed(packets), size), size, 3);
            std::swap(packets[5], packets[6]);  // 65535 and 0
            expect_complete(capture(framed(packets), size), size, 3);
        }
    }
}

TEST_F(Capture, shuffled_packets_find_their_place)
{
    const Geometry size{50, 20};
    std::vector<Packet> packets = Sender{size, 4, 65000}.frames(8);
    ASSERT_GE(packets.size(), 1000u);
    std::mt19937 random(1);
    for (size_t i = 0; i < packets.size(); i += 100)
        std::shuffle(packets.begin() + static_cast<long>(i),
                     packets.begin() + static_cast<long>(std::min(i + 100, packets.size())), random);
    const Captured got = capture(framed(packets), size);
    expect_complete(got, size, 8);
    EXPECT_GT(got.report["packets"]["reordered"], 500);
    EXPECT_EQ(got.report["packets"]["missing"], 0);
    EXPECT_EQ(got.report["packets"]["late"], 0);
}

TEST_F(Capture, duplicates_change_nothing)
{
    const Geometry size{26, 4};
    const std::vector<Packet> packets = Sender{size}.frames(2);
    std::vector<Packet> twice = packets;
    twice.insert(twice.end(), packets.begin(), packets.end());
    const Captured got = capture(framed(twice), size);
    expect_complete(got, size, 2);
    EXPECT_EQ(got.report["packets"]["duplicate"], packets.size());
    EXPECT_EQ(got.report["packets"]["taken"], packets.size());
}

// Either of marker and time stamp is enough.
TEST_F(Capture, marker_or_timestamp_ends_a_frame)
{
    const Geometry size{26, 4};
    std::vector<Packet> packets = Sender{size}.frames(3);
    for (Packet& packet : packets) packet.marker = false;
    expect_complete(capture(framed(packets), size), size, 3);
    packets = Sender{size, 7, 0, 0}.frames(3);
    expect_complete(capture(framed(packets), size), size, 3);
}

// Padding of 7 bytes, an extension of 2 words, 3 contributing sources, and all of them.
TEST_F(Capture, rtp_headers_of_every_shape)
{
    const Geometry size{26, 4};
    const std::string sources(12, 'c'), extension = be16(0xBEDE) + be16(2) + std::string(8, 'x');
    const std::string padding = std::string(6, '\xFF') + '\x07';
    std::string bytes;
    unsigned shape = 0;
    for (const Packet& packet : Sender{size, 3}.frames(2)) {
        const bool padded = shape & 1, extended = shape & 2, mixed = shape & 4;
        bytes += framed(packet.bytes(0x80u | (padded ? 0x20u : 0) | (extended ? 0x10u : 0) | (mixed ? 3u : 0),
                                     (mixed ? sources : "") + (extended ? extension : "")) +
                        (padded ? padding : ""));
        ++shape;
    }
    ASSERT_GE(shape, 8u);
    expect_complete(capture(bytes, size), size, 2);
}

TEST_F(Capture, empty_segments_and_packets_bring_nothing)
{
    const Geometry size{26, 4};
    std::vector<Packet> packets = Sender{size}.frames(1);
    Packet empty{static_cast<uint32_t>(packets.size()), 0, 0xDECAF, true, payload_of(0, {{0, 0, 0}})};
    packets.push_back(empty);
    const Captured got = capture(framed(packets) + std::string(2, '\0'), size);
    expect_complete(got, size, 1);
    EXPECT_EQ(got.report["segments"]["empty"], 1);
}

// Fields of their own time stamps and markers, or of one; numbered by field or through the frame.
TEST_F(Capture, fields_are_woven)
{
    const Geometry size{26, 5};
    for (const bool by_field : {true, false}) {
        for (const unsigned kind : {0u, 1u, 2u}) {
            Sender sender{size};
            std::vector<Packet> packets;
            for (unsigned n = 0; n < 3; ++n) {
                for (const unsigned field : {0u, 1u}) {
                    std::vector<Packet> half = sender.lines(n, field, 2, by_field);
                    if (kind == 1 && field == 0) half.back().marker = false;
                    for (Packet& packet : half) {
                        if (kind == 2) packet.timestamp += field * 1800;
                        packets.push_back(packet);
                    }
                }
            }
            const std::string option = by_field ? "--interlaced" : "--interlaced=frame";
            const Captured got = capture(framed(packets), size, {option});
            expect_complete(got, size, 3);
            EXPECT_EQ(got.report["size"]["scan"], by_field ? "interlaced_by_field" : "interlaced_by_frame");

            const Json flat = capture(framed(packets), size).report;
            EXPECT_EQ(flat["frames"]["whole"], 0);
            EXPECT_GT(flat["segments"]["refused"]["second_field"], 0);
        }
    }
}

// Packets begin at the pixels 0, 14 of line 0, 2, 16 of line 1, 4, 18 of line 2, 6, 20 of line 3.
TEST_F(Capture, tells_in_words_on_stderr)
{
    const Geometry size{26, 4};
    save("in", framed(Sender{size}.frames(2)));
    const Result result = run({"capture", path("in"), path("out"), "--size", "26x4"});
    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.err, path("in") +
                              ": rfc4571, SSRC 0x000decaf, payload type 96\n"
                              "packets   16 taken, 0 missing\n"
                              "segments  22 taken (at pixel 0, 2, 4 of a group: 12, 6, 4)\n"
                              "lines     8 whole, 0 not\n"
                              "frames    2 whole, 0 incomplete; 2 written\n");
}

TEST_F(Capture, a_full_disk_leaves_nothing)
{
    const Geometry size{48, 16};  // 2048 bytes a frame
    save("in", framed(Sender{size}.frames(2)));
    const Result result = run({"capture", path("in"), path("out"), "--size", "48x16"}, [] {
        const rlimit limit = {3000, 3000};
        setrlimit(RLIMIT_FSIZE, &limit);
    });
    EXPECT_EQ(result.code, 3);
    EXPECT_TRUE(result.has_one_line_of_error()) << result.err;
    EXPECT_EQ(files_in(""), std::set<std::string>{"in"});
}

}  // namespace
}  // namespace tintvert::test
