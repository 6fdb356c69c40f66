// The comparison that the other tests rest on sees every byte.
#include "support/arena.h"

namespace tintvert::test {
namespace {

TEST(Arena, agrees_while_both_copies_hold_the_same)
{
    Random random(1);
    Arena arena(random, 5, 9);
    EXPECT_TRUE(arena.agrees());
    *arena.actual(3) = *arena.expected(3) = 77;
    EXPECT_TRUE(arena.agrees());
}

TEST(Arena, rejects_one_wrong_bit_anywhere)
{
    Random random(2);
    Arena arena(random, 5, 9);
    for (int64_t offset = -5; offset < 9; ++offset) {
        *arena.actual(offset) ^= 0x10;
        EXPECT_FALSE(arena.agrees()) << offset;
        *arena.actual(offset) ^= 0x10;
        EXPECT_TRUE(arena.agrees()) << offset;
    }
}

TEST(Arena, reports_where_and_what)
{
    Random random(3);
    Arena arena(random, 10, 100);
    *arena.actual(27) = 0x12, *arena.expected(27) = 0x34;
    *arena.actual(30) = 0x00, *arena.expected(30) = 0xFF;
    EXPECT_STREQ(arena.agrees(2, 10).message(),
                 "2 bytes differ, from offset 25 to 28; the first is line 2, byte 5; it is 0x12, expected 0x34");
}

}  // namespace
}  // namespace tintvert::test
