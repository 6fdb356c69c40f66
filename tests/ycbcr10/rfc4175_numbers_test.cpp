// The three numbers that the packet routine gives back, and where they meet each other and the packet: they are stored
// last, the sequence number before the two zeroes.
#include <gtest/gtest.h>
#include <tintvert/ycbcr10.h>

#include <cstring>
#include <vector>

namespace tintvert::test {
namespace {

using Bytes = std::vector<uint8_t>;

unsigned short* number_16(uint8_t* at) { return reinterpret_cast<unsigned short*>(at); }
unsigned int* number_32(uint8_t* at) { return reinterpret_cast<unsigned int*>(at); }

// A frame of two pixels by 12 lines, and its packets with all other numbers 0xFF.
struct Frame {
    alignas(8) uint8_t bytes[12 * 128] = {};

    void form(unsigned int height, unsigned short* seq, unsigned int* outA, unsigned int* outB)
    {
        EXPECT_EQ(tntvt_v210_frame_to_rtp_4175(bytes, 1395, seq, 0xFFFFFFFF, 0xFFFFFFFF, 0xFFFF, nullptr, 2, height,
                                               outA, outB),
                  0);
    }
    Bytes part(size_t begin, size_t end) const { return {bytes + begin, bytes + end}; }
};

TEST(Rfc4175Numbers, zeroes_are_stored_after_the_sequence_number)
{
    for (const unsigned int height : {0u, 3u})
        for (const bool first : {false, true}) {
            Frame frame;
            alignas(4) uint8_t shared[4] = {5, 6, 7, 8};
            unsigned int other = 9;
            frame.form(height, number_16(shared), first ? number_32(shared) : &other,
                       first ? &other : number_32(shared));
            EXPECT_EQ(Bytes(shared, shared + 4), Bytes(4, 0));
            EXPECT_EQ(other, 0u);
        }
}

// The first number is read before a header is stamped over it, and counts on by itself.
TEST(Rfc4175Numbers, sequence_number_inside_the_header_is_read_once)
{
    for (const size_t at : {size_t{2}, size_t{4}, size_t{8}, size_t{12}}) {
        Frame frame;
        frame.bytes[at] = 5;
        unsigned int outA = 1, outB = 2;
        frame.form(3, number_16(frame.bytes + at), &outA, &outB);
        EXPECT_EQ(frame.part(at, at + 2), (Bytes{8, 0})) << at;
        if (at == 2) continue;
        EXPECT_EQ(frame.part(2, 4), (Bytes{0, 7})) << at;
    }
}

// The marker goes into byte 1 before the sequence number goes over it.
TEST(Rfc4175Numbers, sequence_number_is_stored_after_the_marker)
{
    for (const unsigned int height : {0u, 2u}) {
        Frame frame;
        frame.bytes[0] = 5;
        unsigned int outA = 1, outB = 2;
        frame.form(height, number_16(frame.bytes), &outA, &outB);
        EXPECT_EQ(frame.part(0, 2), (Bytes{static_cast<uint8_t>(5 + height), 0})) << height;
    }
}

TEST(Rfc4175Numbers, zeroes_are_stored_over_the_header)
{
    Frame frame;
    unsigned short seq = 0;
    frame.form(1, &seq, number_32(frame.bytes), number_32(frame.bytes + 8));
    EXPECT_EQ(frame.part(0, 12), (Bytes{0, 0, 0, 0, 0xFF, 0xFF, 0xFF, 0xFF, 0, 0, 0, 0}));
    EXPECT_EQ(seq, 1);
}

}  // namespace
}  // namespace tintvert::test
