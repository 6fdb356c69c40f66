// The payload reader, the packed frame and the packet former against their reference implementation, over random
// geometry and overlapping buffers.
#include <gtest/gtest.h>
#include <tintvert.h>

#include "reference/ycbcr10/rfc4175.h"
#include "support/arena.h"

namespace tintvert::test {
namespace {

size_t v210_line(size_t width) { return (width + 47) / 48 * 128; }

struct Payload {
    long size, count, phase;
};

using Reader = int (*)(uint8_t*, const uint8_t*, long, long, long);

testing::AssertionResult payloads_agree(Random& random, const Payload& payload, long offset,
                                        Reader expected = reference::payload_to_v210)
{
    Arena arena(random, 1100, 2200);
    const long at = random.between(0, 31);
    const int result =
        tntvt_4175_to_v210(arena.actual(at + offset), arena.actual(at), payload.size, payload.count, payload.phase);
    expected(arena.expected(at + offset), arena.expected(at), payload.size, payload.count, payload.phase);
    if (result != 0) return testing::AssertionFailure() << "returns " << result;
    const testing::AssertionResult same = arena.agrees(at + offset, 16);
    if (same) return same;
    return testing::AssertionFailure() << "size " << payload.size << ", count " << payload.count << ", phase "
                                       << payload.phase << ", offset " << offset << ": " << same.message();
}

Payload random_payload(Random& random)
{
    const long count = random.between(-2, 100);
    const long size = random.between(0, 1) == 0 ? 5 * count + 10 : random.between(-5, 520);
    return {size, count, random.between(-1, 6)};
}

TEST(Rfc4175PayloadReference, separate_buffers)
{
    Random random(440);
    for (int round = 0; round < 2000; ++round)
        ASSERT_TRUE(payloads_agree(random, random_payload(random), random.between(0, 1) == 0 ? 1010 : -1000));
}

TEST(Rfc4175PayloadReference, every_length_and_phase)
{
    Random random(441);
    for (long size = 0; size <= 64; ++size)
        for (long count = 0; count <= 10; ++count)
            for (const long phase : {0l, 2l, 4l}) ASSERT_TRUE(payloads_agree(random, {size, count, phase}, 900));
}

TEST(Rfc4175PayloadReference, overlapping)
{
    Random random(442);
    for (long offset = -64; offset <= 64; ++offset)
        for (int round = 0; round < 16; ++round) ASSERT_TRUE(payloads_agree(random, random_payload(random), offset));
}

// Reading ahead by one pgroup, and bits past the end that read as 1, are both refused.
TEST(Rfc4175PayloadReference, refuses_what_differs)
{
    Random random(443);
    EXPECT_FALSE(
        payloads_agree(random, {500, 60, 0}, 4, [](uint8_t* dst, const uint8_t* payload, long size, long count, long) {
            reference::Pgroup ahead = reference::read_pgroup(payload, size, 0);
            for (long i = 0; i < count; ++i) {
                const reference::Pgroup now = ahead;
                ahead = reference::read_pgroup(payload, size, i + 1);
                reference::store_place(dst + i / 3 * 16, static_cast<int>(i % 3), now);
            }
            return 0;
        }));
    EXPECT_FALSE(payloads_agree(random, {7, 2, 0}, 1000, [](uint8_t* dst, const uint8_t* payload, long, long, long) {
        reference::store_place(dst, 0, reference::read_pgroup(payload, 7, 0));
        reference::store_place(dst, 1, {0x3FF, 0x3FF, 0x3FF, 0x3FF});
        return 0;
    }));
}

testing::AssertionResult packed_frames_agree(Random& random, long width, long height, long src_at, long dst_at)
{
    Arena arena(random, 3200, 7000);
    const auto w = static_cast<uint32_t>(width), h = static_cast<uint32_t>(height);
    const int result = tntvt_YCbCr10Packed_to_v210(arena.actual(dst_at), arena.actual(src_at), w, h);
    reference::packed_to_v210(arena.expected(dst_at), arena.expected(src_at), w, h);
    if (result != 0) return testing::AssertionFailure() << "returns " << result;
    const testing::AssertionResult same = arena.agrees(dst_at, static_cast<long>(v210_line(w)));
    if (same) return same;
    return testing::AssertionFailure() << width << " by " << height << ", src at " << src_at << ", dst at " << dst_at
                                       << ": " << same.message();
}

TEST(PackedFrameReference, every_width)
{
    Random random(430);
    for (long width = 0; width <= 300; ++width)
        for (long height = 1; height <= 3; ++height)
            ASSERT_TRUE(packed_frames_agree(random, width, height, random.between(0, 31), random.between(3000, 3031)));
}

TEST(PackedFrameReference, every_misalignment)
{
    Random random(431);
    for (const long width : {24l, 47l, 97l})
        for (long src_at = 0; src_at < 32; ++src_at)
            for (long dst_at = 0; dst_at < 32; ++dst_at)
                ASSERT_TRUE(packed_frames_agree(random, width, 2, src_at, 1500 + dst_at));
}

TEST(PackedFrameReference, overlapping)
{
    Random random(432);
    for (long offset = -64; offset <= 64; ++offset) {
        for (const long width : {1l, 2l, 6l, 13l, 24l, 48l, 96l, 150l, 299l, 300l}) {
            const long at = random.between(0, 31);
            ASSERT_TRUE(packed_frames_agree(random, width, 1, at, at + offset));
            ASSERT_TRUE(packed_frames_agree(random, width, 3, at, at + offset));
        }
    }
    // The frame before and after the other, where only its ends meet.
    for (int round = 0; round < 600; ++round) {
        const long at = random.between(0, 31);
        ASSERT_TRUE(packed_frames_agree(random, random.between(1, 300), random.between(1, 3), at,
                                        at + random.between(-2800, 2400)));
    }
}

// A line of the frame is a payload of the line's bytes: the two routines agree.
TEST(PackedFrameReference, a_line_is_a_payload)
{
    Random random(433);
    for (long width = 1; width <= 300; ++width) {
        Arena arena(random, 0, 7000);
        const long src_line = width * 20 / 8, dst_line = static_cast<long>(v210_line(static_cast<size_t>(width)));
        tntvt_YCbCr10Packed_to_v210(arena.actual(2500), arena.actual(width % 32), static_cast<unsigned>(width), 3);
        for (long y = 0; y < 3; ++y)
            tntvt_4175_to_v210(arena.expected(2500 + y * dst_line), arena.expected(width % 32 + y * src_line), src_line,
                               (width + 1) / 2, 0);
        ASSERT_TRUE(arena.agrees(2500, dst_line)) << width;
    }
}

using Former = int (*)(uint8_t*, uint16_t*, uint32_t, uint32_t, uint16_t, uint32_t, uint32_t);

testing::AssertionResult packets_agree(Random& random, uint32_t width, uint32_t height,
                                       Former expected = reference::v210_frame_to_packet)
{
    Arena arena(random, 64, static_cast<int64_t>(std::max<size_t>(1395, v210_line(width) * height) + 128));
    const long at = random.between(0, 31);
    const auto timestamp = static_cast<uint32_t>(random.next()), ssrc = static_cast<uint32_t>(random.next());
    const auto ext_seq = static_cast<uint16_t>(random.next());
    uint16_t actual_seq = static_cast<uint16_t>(random.next()), expected_seq = actual_seq;
    unsigned ignored = 0xDEADBEEF, outA = 1, outB = 2;
    const int result = tntvt_v210_frame_to_rtp_4175(arena.actual(at), random.between(-2000, 2000), &actual_seq,
                                                    timestamp, ssrc, ext_seq, &ignored, width, height, &outA, &outB);
    expected(arena.expected(at), &expected_seq, timestamp, ssrc, ext_seq, width, height);
    if (result != 0 || outA != 0 || outB != 0 || ignored != 0xDEADBEEF || actual_seq != expected_seq)
        return testing::AssertionFailure() << "result " << result << ", seq " << actual_seq << " for " << expected_seq;
    const testing::AssertionResult same = arena.agrees(at);
    if (same) return same;
    return testing::AssertionFailure() << width << " by " << height << ": " << same.message();
}

// Narrow lines are under the packet, up to eleven of them, and are read as earlier packets left them.
TEST(Rfc4175PacketReference, random_frames)
{
    Random random(450);
    for (int round = 0; round < 600; ++round) {
        const long widest = round % 3 == 0 ? 1000 : 150;
        ASSERT_TRUE(packets_agree(random, static_cast<uint32_t>(2 * random.between(0, widest)),
                                  static_cast<uint32_t>(random.between(0, 14))));
    }
}

TEST(Rfc4175PacketReference, every_even_width)
{
    Random random(451);
    for (uint32_t width = 2; width <= 1200; width += 2) ASSERT_TRUE(packets_agree(random, width, 3));
}

TEST(Rfc4175PacketReference, tall_frames)
{
    Random random(452);
    for (const uint32_t height : {255u, 256u, 257u, 1080u, 33000u, 65537u})
        ASSERT_TRUE(packets_agree(random, 2, height)) << height;
}

// A former that reads the samples once a packet differs where a packet covers its own line.
TEST(Rfc4175PacketReference, refuses_what_differs)
{
    Random random(453);
    EXPECT_FALSE(
        packets_agree(random, 48, 2,
                      [](uint8_t* packet, uint16_t* seq, auto timestamp, auto ssrc, auto ext, auto width, auto height) {
                          reference::v210_frame_to_packet(packet, seq, timestamp, ssrc, ext, width, height);
                          const reference::Pgroup samples = reference::read_pgroup(packet + 20, 1375, 0);
                          for (long pass = 0; pass < 24; ++pass)
                              reference::write_pgroup(packet + 20, 1375, pass, samples);
                          return 0;
                      }));
}

}  // namespace
}  // namespace tintvert::test
