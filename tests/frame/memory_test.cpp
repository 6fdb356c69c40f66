#include "frame/memory.h"

#include <gtest/gtest.h>

#include <array>

namespace tintvert::test {
namespace {

TEST(Memory, loads_little_endian_words_at_any_address)
{
    const uint8_t bytes[] = {0x00, 0x01, 0x02, 0x03, 0x04, 0x05, 0x06, 0x07, 0x08};
    EXPECT_EQ(load<uint16_t>(bytes + 1), 0x0201);
    EXPECT_EQ(load<uint32_t>(bytes + 1), 0x04030201u);
    EXPECT_EQ(load<uint64_t>(bytes + 1), 0x0807060504030201u);
}

TEST(Memory, stores_little_endian_words_at_any_address)
{
    std::array<uint8_t, 6> bytes{};
    store<uint32_t>(&bytes[1], 0x04030201);
    EXPECT_EQ(bytes, (std::array<uint8_t, 6>{0, 1, 2, 3, 4, 0}));
    store<uint16_t>(&bytes[4], 0xAABB);
    EXPECT_EQ(bytes, (std::array<uint8_t, 6>{0, 1, 2, 3, 0xBB, 0xAA}));
}

TEST(Memory, reverses_bytes)
{
    EXPECT_EQ(byte_reverse(uint16_t{0x1234}), 0x3412);
    EXPECT_EQ(byte_reverse(uint32_t{0x12345678}), 0x78563412u);
    EXPECT_EQ(byte_reverse(uint64_t{0x0102030405060708}), 0x0807060504030201u);
}

TEST(Memory, advances_in_bytes_in_both_directions)
{
    uint32_t words[4];
    EXPECT_EQ(advance(&words[2], -4), &words[1]);
    EXPECT_EQ(advance(&words[0], 12), &words[3]);
    EXPECT_EQ(advance(bytes(words), 5), bytes(words) + 5);
}

}  // namespace
}  // namespace tintvert::test
