// The six conversions in literal bytes, and the arithmetic of their lines. Forward entries 0, 1, 2, 3 are 0,
// 106, 123, 134; reverse entries 21, 128 and 129 are 17, 231 and 235.
#include <gtest/gtest.h>
#include <tintvert.h>

#include <climits>
#include <cstring>
#include <vector>

#include "support/fence.h"

namespace tintvert::test {
namespace {

using Bytes = std::vector<uint8_t>;
using Conversion = decltype(&tntvt_rgb_to_st2084);

constexpr Conversion conversions[] = {tntvt_rgb_to_st2084,  tntvt_st2084_to_rgb,  tntvt_yuv2_to_st2084,
                                      tntvt_st2084_to_yuv2, tntvt_v210_to_st2084, tntvt_st2084_to_v210};

// The destination after a call, from `size` bytes of 0xEE.
Bytes converted(Conversion conversion, Bytes src, size_t size, unsigned dstStride, unsigned srcStride, int height)
{
    Bytes dst(size, 0xEE);
    EXPECT_EQ(conversion(dst.data(), src.data(), dstStride, srcStride, height), 0);
    return dst;
}

void append_word(Bytes& bytes, uint32_t word)
{
    for (int shift = 0; shift < 32; shift += 8) bytes.push_back(static_cast<uint8_t>(word >> shift));
}

// A line of one group of words, one byte on.
Bytes one_byte_on(uint8_t first, const uint32_t (&words)[4], uint8_t last)
{
    Bytes line = {first};
    for (const uint32_t word : words) append_word(line, word);
    line.push_back(last);
    return line;
}

Bytes words_converted(Conversion conversion, const uint32_t (&words)[4])
{
    return converted(conversion, one_byte_on(0x11, words, 0x22), 18, 16, 16, 1);
}

TEST(St2084Bytes, every_byte_goes_through_the_table_alpha_too)
{
    EXPECT_EQ(converted(tntvt_rgb_to_st2084, {1, 2, 64, 128, 192, 255, 0, 3}, 9, 8, 8, 1),
              (Bytes{106, 123, 218, 237, 248, 255, 0, 134, 0xEE}));
    EXPECT_EQ(converted(tntvt_st2084_to_rgb, {16, 20, 21, 64, 128, 129, 255, 0}, 9, 8, 8, 1),
              (Bytes{16, 16, 17, 59, 231, 235, 235, 0, 0xEE}));
}

TEST(St2084Bytes, from_129_up_all_is_235)
{
    for (int byte = 129; byte < 256; ++byte)
        EXPECT_EQ(converted(tntvt_st2084_to_rgb, {static_cast<uint8_t>(byte)}, 1, 1, 1, 1), Bytes{235}) << byte;
}

TEST(St2084Bytes, forward_first_reaches_255_at_247)
{
    for (int byte = 0; byte < 256; ++byte) {
        const Bytes dst = converted(tntvt_rgb_to_st2084, {static_cast<uint8_t>(byte)}, 1, 1, 1, 1);
        EXPECT_EQ(dst[0] == 255, byte >= 247) << byte;
    }
}

TEST(St2084Lines, a_line_is_the_shorter_stride)
{
    for (const auto& [dstStride, srcStride] : {std::pair{100u, 60u}, {60u, 100u}}) {
        Bytes expected(200, 0xEE);
        std::memset(&expected[0], 106, 60);
        std::memset(&expected[dstStride], 106, 60);
        EXPECT_EQ(converted(tntvt_rgb_to_st2084, Bytes(200, 1), 200, dstStride, srcStride, 2), expected) << dstStride;
    }
}

// The shorter of two unsigned numbers: 0xFFFFFFFF is not below 3.
TEST(St2084Lines, strides_are_unsigned)
{
    EXPECT_EQ(converted(tntvt_rgb_to_st2084, {1, 2, 3, 1}, 4, 0xFFFFFFFF, 3, 1), (Bytes{106, 123, 134, 0xEE}));
    EXPECT_EQ(converted(tntvt_rgb_to_st2084, {1, 2, 3, 1}, 4, 3, 0xFFFFFFFF, 1), (Bytes{106, 123, 134, 0xEE}));
}

TEST(St2084Lines, nothing_to_do_is_nothing_done)
{
    for (const Conversion conversion : conversions) {
        EXPECT_EQ(converted(conversion, Bytes(64, 1), 64, 16, 16, 0), Bytes(64, 0xEE));
        EXPECT_EQ(converted(conversion, Bytes(64, 1), 64, 0, 16, 2), Bytes(64, 0xEE));
        EXPECT_EQ(converted(conversion, Bytes(64, 1), 64, 16, 0, 2), Bytes(64, 0xEE));
        EXPECT_EQ(converted(conversion, Bytes(64, 1), 64, 0, 0, -1), Bytes(64, 0xEE));
        EXPECT_EQ(conversion(nullptr, nullptr, 16, 16, 0), 0);
    }
}

// Two strides of 2^31 and more are a long line, not one below 0: it runs into the fence.
TEST(St2084Lines, lines_of_2_to_the_31_bytes_are_work)
{
    const FencedBuffer buffer({0, (1l << 32) + 4096}, 4096, Side::above, Closed::wholly);
    for (const Conversion conversion : conversions)
        for (const unsigned stride : {0x80000000u, 0xFFFFFFFFu})
            EXPECT_TRUE(faults([&] { conversion(buffer.pointer(), buffer.pointer(), stride, stride, 1); })) << stride;
}

// Lines 0 and 2 of the side with a stride of 2^31 are at the same place.
TEST(St2084Lines, offsets_are_32_bit_products)
{
    constexpr unsigned half = 0x80000000;
    const catalog::Range far_lines = {0, half + 32l};
    for (const Conversion conversion : conversions) {
        const FencedBuffer far(far_lines, far_lines.end, Side::above, Closed::wholly);
        Bytes near(96);
        for (size_t i = 0; i < near.size(); ++i) near[i] = static_cast<uint8_t>(i * 37);
        ASSERT_FALSE(faults([&] { conversion(far.pointer(), near.data(), half, 16, 3); }));
        for (const unsigned line : {0u, 1u}) {
            Bytes expected(32, 0);
            if (line == 0) conversion(expected.data(), near.data(), 16, 16, 1);
            conversion(expected.data(), near.data() + (line == 0 ? 32 : 16), 16, 16, 1);
            EXPECT_EQ(Bytes(far.pointer() + line * half, far.pointer() + line * half + 32), expected);
        }

        Bytes dst(96, 0xEE), expected(96, 0xEE);
        std::memcpy(far.pointer(), near.data(), 32);
        std::memcpy(far.pointer() + half, near.data() + 40, 32);
        ASSERT_FALSE(faults([&] { conversion(dst.data(), far.pointer(), 16, half, 3); }));
        for (const unsigned line : {0u, 1u, 2u})
            conversion(&expected[line * 16], far.pointer() + line % 2 * half, 16, 16, 1);
        EXPECT_EQ(dst, expected);
    }
}

// -1 is 2^32 - 1 lines, the most negative number 2^31: both run into whatever is after the buffer.
TEST(St2084Lines, a_negative_height_is_a_large_count)
{
    for (const Conversion conversion : conversions) {
        for (const int height : {-1, INT_MIN}) {
            const FencedBuffer buffer({0, 16384}, 16384, Side::above, Closed::wholly);
            EXPECT_TRUE(faults([&] { conversion(buffer.pointer(), buffer.pointer(), 4096, 4096, height); }));
        }
    }
}

TEST(St2084Pairs, bytes_1_and_3_of_whole_groups)
{
    const Bytes src = {1, 1, 1, 1, 2, 2, 2, 2};
    EXPECT_EQ(converted(tntvt_yuv2_to_st2084, src, 8, 3, 3, 1), Bytes(8, 0xEE));
    EXPECT_EQ(converted(tntvt_yuv2_to_st2084, src, 8, 7, 8, 1), (Bytes{0xEE, 106, 0xEE, 106, 0xEE, 0xEE, 0xEE, 0xEE}));
    EXPECT_EQ(converted(tntvt_yuv2_to_st2084, src, 8, 8, 8, 1), (Bytes{0xEE, 106, 0xEE, 106, 0xEE, 123, 0xEE, 123}));
    EXPECT_EQ(converted(tntvt_yuv2_to_st2084, src, 9, 5, 4, 2),
              (Bytes{0xEE, 106, 0xEE, 106, 0xEE, 0xEE, 123, 0xEE, 123}));
}

TEST(St2084Pairs, keeps_copy_of_bytes_1_to_4)
{
    const Bytes src = {40, 21, 77, 128, 88, 129, 99, 20, 111, 122};
    EXPECT_EQ(converted(tntvt_st2084_to_yuv2, src, 10, 3, 3, 1), Bytes(10, 0xEE));
    EXPECT_EQ(converted(tntvt_st2084_to_yuv2, src, 10, 7, 7, 1),
              (Bytes{0xEE, 17, 77, 231, 88, 0xEE, 0xEE, 0xEE, 0xEE, 0xEE}));
    EXPECT_EQ(converted(tntvt_st2084_to_yuv2, src, 10, 8, 8, 1),
              (Bytes{0xEE, 17, 77, 231, 88, 235, 99, 16, 111, 0xEE}));
    // The forward twin writes the two bytes alone.
    EXPECT_EQ(converted(tntvt_yuv2_to_st2084, {9, 1, 9, 2, 9, 3, 9, 1, 9, 9}, 10, 8, 8, 1),
              (Bytes{0xEE, 106, 0xEE, 123, 0xEE, 134, 0xEE, 106, 0xEE, 0xEE}));
}

// Byte 4 of a line of four is byte 0 of the next line in the destination, which no later line writes.
TEST(St2084Pairs, the_copy_reaches_into_the_next_line)
{
    EXPECT_EQ(converted(tntvt_st2084_to_yuv2, {1, 2, 3, 4, 5, 6, 7, 8, 9}, 9, 4, 4, 2),
              (Bytes{0xEE, 2, 3, 4, 5, 6, 7, 8, 9}));
}

// The index of words 0 and 2 is bits 12 to 21, of which 20 and 21 are also kept; that of words 1 and 3 is bits
// 22 to 31 and 2 to 11, of which 10 and 11 are also kept. From the forward table on, 600 finds entry 88 of the
// forward 12-bit table, 2402 = 0x962.
TEST(St2084Words, keeps_10_bit_index_into_8_bit_table)
{
    EXPECT_EQ(words_converted(tntvt_v210_to_st2084, {600u << 12, 0, 0, 0}),
              one_byte_on(0xEE, {0x962u << 12 | 0x200000, 0, 0, 0}, 0xEE));
    EXPECT_EQ(words_converted(tntvt_v210_to_st2084, {0, 0, 600u << 12, 0}),
              one_byte_on(0xEE, {0, 0, 0x00B62000, 0}, 0xEE));
    // 300 is entry 44 of the reverse 8-bit table, 31, from the forward one on ...
    EXPECT_EQ(words_converted(tntvt_v210_to_st2084, {300u << 12, 0, 0, 300u << 2}),
              one_byte_on(0xEE, {31u << 12 | 0x100000, 0, 0, 31u << 2 | 0x400}, 0xEE));
    // ... and entry 44 of the forward 12-bit table, 2110 = 0x83E, from the reverse one on.
    EXPECT_EQ(words_converted(tntvt_st2084_to_v210, {300u << 12, 300u << 2, 0, 0}),
              one_byte_on(0xEE, {0x0093E000, 0x83Eu << 2 | 0x400, 0, 0}, 0xEE));
    // Below 256 the table itself answers: 128 to 237, 128 to 231.
    EXPECT_EQ(words_converted(tntvt_v210_to_st2084, {0, 128u << 22, 128u << 12, 128u << 2}),
              one_byte_on(0xEE, {0, 237u << 22, 237u << 12, 237u << 2}, 0xEE));
    EXPECT_EQ(words_converted(tntvt_st2084_to_v210, {128u << 12, 128u << 2, 0, 128u << 22}),
              one_byte_on(0xEE, {231u << 12, 231u << 2, 0, 231u << 22}, 0xEE));
}

// 2402 has twelve bits. From bit 2 on they reach bit 13, into the kept bits 10 to 19; from bit 22 on the upper
// two fall out of the word.
TEST(St2084Words, keeps_unmasked_entries)
{
    EXPECT_EQ(words_converted(tntvt_v210_to_st2084, {0, 600u << 2, 0, 600u << 22}),
              one_byte_on(0xEE, {0, 0x00002D88, 0, 0x58800000}, 0xEE));
    EXPECT_EQ(words_converted(tntvt_v210_to_st2084, {0, 600u << 2 | 0x4000, 0, 600u << 2 | 0x2000}),
              one_byte_on(0xEE, {0, 0x00006D88, 0, 0x00002D88}, 0xEE));
    EXPECT_EQ(words_converted(tntvt_v210_to_st2084, {0, 600u << 22 | 300u << 2, 0, 0}),
              one_byte_on(0xEE, {0, 0x5880047C, 0, 0}, 0xEE));
    // Bits that no index covers: 0 to 9 and 20 to 29 of words 0 and 2, 10 to 19 of words 1 and 3.
    EXPECT_EQ(words_converted(tntvt_v210_to_st2084, {0xFFC003FF, 0x000FF000, 0xC0000C00, 0x003FF003}),
              one_byte_on(0xEE, {0x3FC003FF, 0x000FF000, 0, 0x000FF000}, 0xEE));
}

TEST(St2084Words, keeps_words_one_byte_on)
{
    for (const Conversion conversion : {tntvt_v210_to_st2084, tntvt_st2084_to_v210}) {
        // m of 1 to 16 is one group, 17 to 32 are two: always bytes 1 to 16 or 1 to 32.
        for (unsigned m = 1; m <= 32; ++m) {
            Bytes expected(40, 0xEE);
            std::memset(&expected[1], 0, m <= 16 ? 16 : 32);
            EXPECT_EQ(converted(conversion, Bytes(40, 0), 40, m, 32, 1), expected) << m;
            EXPECT_EQ(converted(conversion, Bytes(40, 0), 40, 32, m, 1), expected) << m;
        }
        // A field at its own place, bits 10 to 19 of word 0, is split between the words that are read.
        Bytes src(18, 0);
        src[1] = 0xFC, src[2] = 0x0F;
        Bytes expected(18, 0);
        expected[0] = expected[17] = 0xEE;
        expected[1] = 0xFC, expected[2] = 0x03;
        EXPECT_EQ(converted(conversion, src, 18, 16, 16, 1), expected);
    }
}

// The tables are data of the process like any other: writing does not fault. They get back what they held.
TEST(St2084Tables, are_in_writable_memory)
{
    unsigned* const tables[] = {get_ardwRGB_to_SMPTE2048_8Bit(),  get_ardwSMPTE2048_to_RGB_8Bit(),
                                get_ardwRGB_to_SMPTE2048_12Bit(), get_ardwRGB_to_SMPTE2048_10Bit(),
                                get_ardwSMPTE2048_to_RGB_12Bit(), get_ardwSMPTE2048_to_RGB_10Bit()};
    const int sizes[] = {256, 256, 4096, 1024, 4096, 1024};
    for (int table = 0; table < 6; ++table) {
        for (volatile unsigned* entry : {tables[table], tables[table] + sizes[table] - 1})
            EXPECT_FALSE(faults([&] { *entry = *entry; })) << table;
    }
}

}  // namespace
}  // namespace tintvert::test
