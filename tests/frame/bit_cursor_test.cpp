#include "frame/bit_cursor.h"

#include <gtest/gtest.h>

#include <vector>

#include "support/random.h"

namespace tintvert::test {
namespace {

TEST(BitCursor, starts_with_a_fresh_byte)
{
    uint8_t byte[2] = {};
    BitCursor bits = {nullptr, nullptr, nullptr, 3};
    restart(&bits, byte, byte + 2);
    EXPECT_EQ(bits.lineStart, byte);
    EXPECT_EQ(bits.cursor, byte);
    EXPECT_EQ(bits.limit, byte + 2);
    EXPECT_EQ(bits.bitsLeft, 8u);
}

TEST(BitCursor, reads_the_highest_bit_first)
{
    uint8_t bytes[] = {0b10110010, 0b01000001};
    BitCursor bits;
    restart(&bits, bytes, bytes + 2);
    for (const uint32_t bit : {1u, 0u, 1u, 1u, 0u, 0u, 1u, 0u, 0u, 1u, 0u, 0u, 0u, 0u, 0u, 1u})
        EXPECT_EQ(read_bit(&bits), bit);
}

TEST(BitCursor, writes_the_highest_bit_first_and_keeps_the_others)
{
    uint8_t byte = 0b01010101;
    BitCursor bits;
    restart(&bits, &byte, &byte + 1);
    write_bit(&bits, 1);
    EXPECT_EQ(byte, 0b11010101);
    write_bit(&bits, 0);
    EXPECT_EQ(byte, 0b10010101);
    write_bit(&bits, 0);
    EXPECT_EQ(byte, 0b10010101);
    write_bit(&bits, 1);
    EXPECT_EQ(byte, 0b10010101);
    EXPECT_EQ(bits.bitsLeft, 4u);
    EXPECT_EQ(bits.cursor, &byte);
}

// The bound is tested at each bit: `limit` may even be moved while a byte is half done.
TEST(BitCursor, tests_the_limit_at_every_bit)
{
    uint8_t byte = 0xFF;
    BitCursor bits;
    restart(&bits, &byte, &byte + 1);
    EXPECT_EQ(read_bit(&bits), 1u);
    bits.limit = &byte;
    EXPECT_EQ(read_bit(&bits), 0u);
    write_bit(&bits, 0);
    EXPECT_EQ(byte, 0xFF);
    bits.limit = &byte + 1;
    EXPECT_EQ(read_bit(&bits), 1u);
    write_bit(&bits, 0);
    EXPECT_EQ(byte, 0xF7);
    EXPECT_EQ(bits.bitsLeft, 3u);
}

TEST(BitCursor, counts_on_past_the_limit)
{
    uint8_t bytes[8] = {0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF};
    BitCursor reader, writer;
    restart(&reader, bytes, bytes + 1);
    restart(&writer, bytes, bytes + 1);
    for (uint32_t n = 1; n <= 40; ++n) {
        EXPECT_EQ(read_bit(&reader), n <= 8 ? 1u : 0u);
        write_bit(&writer, 0);
        for (const BitCursor& bits : {reader, writer}) {
            EXPECT_EQ(bits.bitsLeft, 8 - n % 8);
            EXPECT_EQ(bits.cursor, bytes + n / 8);
        }
        if (n == 8) bytes[0] = 0xFF;
    }
    for (size_t i = 1; i < 8; ++i) EXPECT_EQ(bytes[i], 0xFF) << i;
}

// Random reads and writes through one cursor against an array of bits.
TEST(BitCursor, agrees_with_an_array_of_bits)
{
    Random random(1);
    for (int round = 0; round < 200; ++round) {
        std::vector<uint8_t> bytes = random.bytes(16);
        const size_t start = static_cast<size_t>(random.between(0, 8)),
                     limit = static_cast<size_t>(random.between(0, 16));
        std::vector<uint32_t> model;
        for (const uint8_t byte : bytes)
            for (int bit = 7; bit >= 0; --bit) model.push_back((byte >> bit) & 1u);
        BitCursor bits;
        restart(&bits, bytes.data() + start, bytes.data() + limit);
        for (size_t place = 8 * start; place < 8 * 16; ++place) {
            const bool inside = place < 8 * limit;
            if (random.between(0, 1) == 0) {
                EXPECT_EQ(read_bit(&bits), inside ? model[place] : 0u);
            } else {
                const auto value = static_cast<uint32_t>(random.between(0, 1));
                write_bit(&bits, value);
                if (inside) model[place] = value;
            }
        }
        for (size_t place = 0; place < model.size(); ++place)
            ASSERT_EQ((bytes[place / 8] >> (7 - place % 8)) & 1u, model[place]) << place;
    }
}

}  // namespace
}  // namespace tintvert::test
