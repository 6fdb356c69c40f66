#include <climits>
#include <cstring>

#include "reference/ycbcr10/rfc4175.h"
#include "rfc4175_former.h"
#include "support/fence.h"

namespace tintvert::test {
namespace {

TEST(Rfc4175Packet, one_line_of_two_pixels)
{
    Bytes frame = frame_of(2, 1, 0x80), expected = frame;
    const Bytes packet = {0x90, 0xE0, 0x12, 0x34, 0xAA, 0xBB, 0xCC, 0xDD, 0x01, 0x02, 0x03, 0x04, 0x55,
                          0x66, 0x00, 0xE0, 0x80, 0x01, 0x80, 0x00, 0x24, 0x09, 0x8D, 0x07, 0xAA};
    std::memcpy(expected.data(), packet.data(), packet.size());
    Former former;
    former.form(frame.data(), 2, 1);
    EXPECT_EQ(frame, expected);
    EXPECT_EQ(former.seq, 0x1235);
}

// Cb 0x090, Y 0x098 and Cr 0x341 are bytes 90 60 12 34, Y 0x3AA is in bytes AA BB: the header, M still clear.
TEST(Rfc4175Packet, keeps_header_over_line_0)
{
    for (const uint8_t filling : Bytes{0x00, 0x55, 0xFF}) {
        Bytes frame = frame_of(2, 1, filling);
        Former().form(frame.data(), 2, 1);
        EXPECT_EQ(part(frame, 20, 25), (Bytes{0x24, 0x09, 0x8D, 0x07, 0xAA}));
        EXPECT_EQ(frame[1], 0xE0);
    }
}

TEST(Rfc4175Packet, no_lines_or_no_pixels_set_the_marker_alone)
{
    for (const auto& [width, height] : {std::pair{1920u, 0u}, {0u, 5u}, {0u, 0u}, {0u, 0xFFFFFFFFu}, {5u, 0u}}) {
        for (const uint8_t old : Bytes{0x12, 0xFF, 0x00}) {
            Bytes frame(1500, old), expected = frame;
            expected[1] = old | 0x80;
            Former former;
            former.form(frame.data(), width, height);
            EXPECT_EQ(frame, expected);
            EXPECT_EQ(former.seq, 0x1234);
        }
    }
}

TEST(Rfc4175Packet, a_frame_of_1920_by_1080)
{
    Bytes frame = frame_of(1920, 1080);
    frame[16] = 0xA0, frame[18] = 0xFF;
    std::memcpy(&frame[5120 * 1079], their_group.data(), 16);
    const Bytes rest = part(frame, 1395, frame.size());
    Former former;
    former.form(frame.data(), 1920, 1080);
    // 0x1234 + 1079 = 0x166B
    EXPECT_EQ(part(frame, 0, 20), (Bytes{0x90, 0xE0, 0x16, 0x6B, 0xAA, 0xBB, 0xCC, 0xDD, 0x01, 0x02,
                                         0x03, 0x04, 0x55, 0x66, 0x05, 0x5F, 0xA7, 0x38, 0xFF, 0x00}));
    EXPECT_EQ(part(frame, 20, 1395), repeated(first_pgroup, 275));
    EXPECT_TRUE(part(frame, 1395, frame.size()) == rest);
    EXPECT_EQ(former.seq, 0x1234 + 1080);
}

TEST(Rfc4175Packet, keeps_or_of_high_bits)
{
    const struct {
        unsigned height;
        uint8_t old, high, low;
    } cases[] = {{255, 0x00, 0x00, 0xFF},   {256, 0x00, 0x01, 0x00},   {300, 0xA8, 0xA9, 0x2C},
                 {300, 0xFF, 0xFF, 0x2C},   {600, 0x00, 0x03, 0x58},   {1080, 0x00, 0x07, 0x38},
                 {32767, 0x00, 0x7F, 0xFF}, {32768, 0x00, 0x7F, 0x00}, {65537, 0x00, 0x7F, 0x01}};
    for (const auto& [height, old, high, low] : cases) {
        for (const uint8_t offset_byte : Bytes{0x00, 0x80, 0x7F}) {
            Bytes frame = frame_of(2, height);
            frame[16] = old;
            frame[18] = offset_byte;
            Former().form(frame.data(), 2, height);
            EXPECT_EQ(part(frame, 16, 20), (Bytes{high, low, offset_byte, 0x00})) << height;
        }
    }
}

TEST(Rfc4175Packet, keeps_fixed_length_224)
{
    for (const unsigned width : {2u, 10u, 90u, 224u, 448u, 548u, 550u, 552u, 554u, 1100u, 1920u}) {
        Bytes frame = frame_of(width, 1);
        Former().form(frame.data(), width, 1);
        EXPECT_EQ(part(frame, 14, 16), width > 550 ? (Bytes{0x05, 0x5F}) : (Bytes{0x00, 0xE0})) << width;
    }
}

// Line 1 has three different pgroups; the payload has the first of them over and over. After it the buffer
// is as it was: after `width` / 2 pgroups, or 275 of them.
TEST(Rfc4175Packet, keeps_place_in_line)
{
    for (const unsigned width : {6u, 12u, 30u, 528u, 548u, 550u, 552u, 554u, 1920u}) {
        const size_t line = line_bytes(width);
        Bytes frame = frame_of(width, 2, 0x11);
        std::memcpy(&frame[line], their_group.data(), 16);
        const Bytes before = frame;
        Former().form(frame.data(), width, 2);
        const int copies = static_cast<int>(std::min(275u, width / 2));
        const size_t end = 20 + 5 * static_cast<size_t>(copies);
        EXPECT_EQ(part(frame, 20, end), repeated(first_pgroup, copies)) << width;
        EXPECT_EQ(part(frame, end, frame.size()), part(before, end, frame.size())) << width;
    }
}

// With 24 pgroups, bytes 20 to 139, the packet of line 0 covers the start of line 1 at byte 128: 128 to 133
// are bytes 3, 4, 0, 1, 2, 3 of its pgroup. Line 1 reads its samples there, 07 AA 24 09 as 0x207 0x12A 0x092
// and 8D 07 as 0x38D, for 22 passes; the last of these writes bytes 125 to 129, and the next reads others.
TEST(Rfc4175Packet, lines_below_1395_are_read_as_packets_left_them)
{
    Bytes one = frame_of(48, 2, 0x33), two = one;
    Former().form(one.data(), 48, 1);
    EXPECT_EQ(part(one, 128, 134), (Bytes{0x07, 0xAA, 0x24, 0x09, 0x8D, 0x07}));
    Former().form(two.data(), 48, 2);
    const unsigned word = 0x0924AA07, cb = word & 0x3FF, y0 = word >> 10 & 0x3FF, cr = word >> 20 & 0x3FF;
    Bytes expected(5);
    reference::write_pgroup(expected.data(), 5, 0, {cb, y0, cr, 0x38D});
    EXPECT_EQ(part(two, 20, 130), repeated(expected, 22));
    EXPECT_NE(part(two, 130, 135), expected);
}

TEST(Rfc4175Packet, the_sequence_counter_wraps_and_the_extension_stays)
{
    Bytes frame = frame_of(2, 3);
    Former former;
    former.seq = 65535;
    former.form(frame.data(), 2, 3);
    EXPECT_EQ(part(frame, 2, 4), (Bytes{0x00, 0x01}));
    EXPECT_EQ(part(frame, 12, 14), (Bytes{0x55, 0x66}));
    EXPECT_EQ(former.seq, 2);
    former.form(frame.data(), 2, 1);
    EXPECT_EQ(part(frame, 2, 4), (Bytes{0x00, 0x02}));
    EXPECT_EQ(former.seq, 3);

    Bytes tall = frame_of(2, 65537);
    former.form(tall.data(), 2, 65537);
    EXPECT_EQ(former.seq, 4);
}

TEST(Rfc4175Packet, its_size_limits_nothing)
{
    Bytes expected = frame_of(552, 2, 0x5A);
    Former().form(expected.data(), 552, 2);
    for (const long size : {0l, -1l, 1l, 20l, 100000l, LONG_MIN, LONG_MAX}) {
        Bytes frame = frame_of(552, 2, 0x5A);
        Former former;
        former.packetSize = size;
        former.form(frame.data(), 552, 2);
        EXPECT_EQ(frame, expected) << size;
    }
}

TEST(Rfc4175Packet, the_ignored_pointer_may_be_null)
{
    Bytes frame = frame_of(2, 1);
    unsigned short seq = 0;
    unsigned outA = 1, outB = 1;
    EXPECT_EQ(tntvt_v210_frame_to_rtp_4175(frame.data(), 0, &seq, 0, 0, 0, nullptr, 2, 1, &outA, &outB), 0);
    EXPECT_EQ(outA + outB, 0u);
}

// The reader gets back sample for sample what the former has written. Only position 0 is ever written; the
// payloads of positions 2 and 4 are put together here from the fields that those positions name.
TEST(Rfc4175Packet, payload_is_read_back_by_the_reader)
{
    using reference::load_place;
    for (const unsigned width : {6u, 30u, 550u, 1920u}) {
        Bytes frame = frame_of(width, 2);
        std::memcpy(&frame[line_bytes(width)], their_group.data(), 16);
        Former().form(frame.data(), width, 2);
        const long count = std::min(275u, width / 2);
        Bytes groups(16 * 92, 0xFF);
        EXPECT_EQ(tntvt_4175_to_v210(groups.data(), &frame[20], 1375, count, 0), 0);
        for (long i = 0; i < count; ++i)
            EXPECT_EQ(load_place(&groups[static_cast<size_t>(i / 3 * 16)], static_cast<int>(i % 3)),
                      (reference::Pgroup{0x123, 0x245, 0x367, 0x089}));
    }
    for (const int place : {1, 2}) {
        Bytes payload(10), group(32, 0);
        for (int i = place; i < 3; ++i)
            reference::write_pgroup(payload.data(), 10, i - place, load_place(their_group.data(), i));
        EXPECT_EQ(tntvt_4175_to_v210(group.data(), payload.data(), 10, 0, 2 * place), 0);
        for (int i = 0; i < 3; ++i)
            EXPECT_EQ(load_place(group.data(), i), i < place ? reference::Pgroup{} : load_place(their_group.data(), i));
    }
}

// Line 2^25 at 128 bytes a line is line 0 again: its samples come from the header, which has the low byte 1
// of its number and the sequence number 0. After 4 GiB there is a fence.
TEST(Rfc4175PacketExhaustive, line_offsets_wrap_at_32_bits)
{
    constexpr long span = 1l << 32;
    const FencedBuffer frame({0, span}, span, Side::above, Closed::wholly);
    Former former;
    former.seq = 0;
    ASSERT_FALSE(faults([&] { former.form(frame.pointer(), 2, (1u << 25) + 1); }));
    EXPECT_EQ(Bytes(frame.pointer(), frame.pointer() + 26),
              (Bytes{0x90, 0xE0, 0x00, 0x00, 0xAA, 0xBB, 0xCC, 0xDD, 0x01, 0x02, 0x03, 0x04, 0x55,
                     0x66, 0x00, 0xE0, 0x7F, 0x01, 0x00, 0x00, 0x24, 0x01, 0x80, 0x03, 0xAA, 0x00}));
    EXPECT_EQ(former.seq, 1);
}

}  // namespace
}  // namespace tintvert::test
