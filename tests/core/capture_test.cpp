// RTP packets to frames, by direct calls.
#include "capture/walker.h"

#include "support/folder.h"
#include "support/packet_maker.h"

namespace tintvert::test {
namespace {

using namespace core;

struct Walked {
    std::string frames;
    uint64_t whole = 0;
    long missing_pixels = 0;
    capture::PacketCounts packets;
    capture::SegmentCounts segments;
};

class CaptureCore : public FolderTest {
protected:
    Walked walk(const std::string& bytes, const Geometry& size) const
    {
        save("in", bytes);
        capture::Input input(path("in"));
        const auto source = capture::open_source(input);
        Walked walked;
        capture::WalkerOptions options;
        options.size = {size.width, size.height};
        capture::Walker walker(options, [&](const capture::Frame& frame) {
            walked.frames.append(frame.bytes().begin(), frame.bytes().end());
            walked.whole += frame.is_whole() ? 1 : 0;
            walked.missing_pixels += frame.missing_pixels();
        });
        for (capture::Datagram datagram; source->next(datagram);) walker.take(datagram);
        walker.finish();
        walked.packets = walker.packets();
        walked.segments = walker.segments();
        return walked;
    }
};

TEST_F(CaptureCore, frames_in_order_and_shuffled)
{
    const Geometry size{26, 3};
    std::vector<Packet> packets = Sender{size, 5}.frames(2);
    for (const bool backwards : {false, true}) {
        const Walked walked = walk(framed(packets), size);
        EXPECT_TRUE(walked.frames == v210_of(size, 0) + v210_of(size, 1));
        EXPECT_EQ(walked.whole, 2u);
        EXPECT_EQ(walked.packets.taken, packets.size());
        EXPECT_EQ(walked.packets.order.reordered, backwards ? packets.size() - 1 : 0);
        std::reverse(packets.begin(), packets.end());
    }
}

TEST_F(CaptureCore, a_lost_packet_leaves_its_pixels_out)
{
    const Geometry size{26, 4};  // 8 packets a frame, 7 pgroups or 14 pixels each
    std::vector<Packet> packets = Sender{size}.frames(2);
    packets.erase(packets.begin() + 2);
    const Walked walked = walk(framed(packets), size);
    EXPECT_EQ(walked.whole, 1u);
    EXPECT_EQ(walked.missing_pixels, 14);
    EXPECT_EQ(walked.packets.order.missing, 1u);
    const auto is_lost = [&](unsigned x, unsigned y) { return y * size.width + x >= 28 && y * size.width + x < 42; };
    EXPECT_TRUE(walked.frames == v210_of(size, 0, is_lost) + v210_of(size, 1));
}

// One pgroup a packet: each line of 26 pixels begins 5 times at pixel 0 of a group, 4 at 2, 4 at 4.
TEST_F(CaptureCore, counts_the_phases)
{
    const Geometry size{26, 3};
    const Walked walked = walk(framed(Sender{size, 1}.frames(1)), size);
    EXPECT_EQ(walked.segments.taken, 39u);
    EXPECT_EQ(walked.segments.at_phase, (std::array<uint64_t, 3>{15, 12, 12}));
    EXPECT_EQ(walked.segments.all_refused(), 0u);
}

}  // namespace
}  // namespace tintvert::test
