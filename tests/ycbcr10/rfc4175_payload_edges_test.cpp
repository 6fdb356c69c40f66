#include <gtest/gtest.h>
#include <tintvert.h>

#include <climits>

#include "v210_bytes.h"

namespace tintvert::test {
namespace {

// Groups of `old` after one call.
Bytes unpacked(Bytes payload, long payloadSize, long pgroupCount, long startPhase, uint8_t old = 0xFF,
               size_t groups = 2)
{
    Bytes dst(groups * 16, old);
    EXPECT_EQ(tntvt_4175_to_v210(dst.data(), payload.data(), payloadSize, pgroupCount, startPhase), 0);
    return dst;
}

const Bytes untouched = Bytes(16, 0xFF);

TEST(Rfc4175Payload, three_pgroups_fill_a_group)
{
    EXPECT_EQ(unpacked(three_pgroups, 15, 3, 0), joined({their_group, untouched}));
    EXPECT_EQ(unpacked(three_pgroups, 15, 3, 0, 0), joined({their_group, Bytes(16, 0)}));
}

TEST(Rfc4175Payload, one_pgroup_keeps_the_rest_of_its_group)
{
    EXPECT_EQ(unpacked(three_pgroups, 15, 1, 0),
              joined({v210_words({0x36791523, 0xFFFFFC89, 0xFFFFFFFF, 0xFFFFFFFF}), untouched}));
    EXPECT_EQ(unpacked(three_pgroups, 15, 1, 0, 0), joined({v210_words({0x36791523, 0x00000089, 0, 0}), Bytes(16, 0)}));
}

// Word 2 keeps its top field under pgroup 1 and loses bits 30 and 31.
TEST(Rfc4175Payload, two_pgroups_keep_the_last_four_samples)
{
    EXPECT_EQ(unpacked(three_pgroups, 15, 2, 0),
              joined({v210_words({0x36791523, 0x15AE9489, 0x3FFC3CF0, 0xFFFFFFFF}), untouched}));
}

TEST(Rfc4175Payload, counts_past_one_group)
{
    const Bytes payload = joined({three_pgroups, first_pgroup, second_pgroup, third_pgroup});
    EXPECT_EQ(unpacked(payload, 30, 4, 0),
              joined({their_group, v210_words({0x36791523, 0xFFFFFC89, 0xFFFFFFFF, 0xFFFFFFFF})}));
    EXPECT_EQ(unpacked(payload, 30, 5, 0),
              joined({their_group, v210_words({0x36791523, 0x15AE9489, 0x3FFC3CF0, 0xFFFFFFFF})}));
    EXPECT_EQ(unpacked(payload, 30, 6, 0), joined({their_group, their_group}));
}

TEST(Rfc4175Payload, start_phase_2_reads_two_pgroups_that_are_not_counted)
{
    const Bytes from_pixel_2 = joined({second_pgroup, third_pgroup, three_pgroups});
    const Bytes completed = v210_words({0xFFFFFFFF, 0x15AE97FF, 0x2BDC3CF0, 0x200FF801});
    for (const long none : {0l, -1l, -7l, LONG_MIN, 3l - (1l << 32)})
        EXPECT_EQ(unpacked(from_pixel_2, 25, none, 2), joined({completed, untouched})) << none;
    EXPECT_EQ(unpacked(from_pixel_2, 25, 3, 2), joined({completed, their_group}));
}

TEST(Rfc4175Payload, start_phase_4_reads_one)
{
    const Bytes from_pixel_4 = joined({third_pgroup, three_pgroups});
    const Bytes completed = v210_words({0xFFFFFFFF, 0xFFFFFFFF, 0x2BDFFFFF, 0x200FF801});
    EXPECT_EQ(unpacked(from_pixel_4, 20, 0, 4), joined({completed, untouched}));
    EXPECT_EQ(unpacked(from_pixel_4, 20, -1, 4), joined({completed, untouched}));
    EXPECT_EQ(unpacked(from_pixel_4, 20, 2, 4),
              joined({completed, v210_words({0x36791523, 0x15AE9489, 0x3FFC3CF0, 0xFFFFFFFF})}));
}

TEST(Rfc4175Payload, every_other_start_phase_is_0)
{
    for (const long phase : {1l, 3l, 5l, 6l, 8l, -2l, -4l, (1l << 32) + 2, (1l << 32) + 4, LONG_MIN, LONG_MAX}) {
        EXPECT_EQ(unpacked(three_pgroups, 15, 3, phase), joined({their_group, untouched})) << phase;
        EXPECT_EQ(unpacked(three_pgroups, 15, 0, phase), joined({untouched, untouched})) << phase;
    }
}

TEST(Rfc4175Payload, no_pgroups_are_no_work)
{
    for (const long none : {0l, -1l, LONG_MIN, 3l - (1l << 32)})
        EXPECT_EQ(unpacked(three_pgroups, 15, none, 0), joined({untouched, untouched})) << none;
    EXPECT_EQ(tntvt_4175_to_v210(nullptr, nullptr, 0, 0, 0), 0);
}

TEST(Rfc4175Payload, past_the_payload_all_samples_are_0)
{
    for (const long size : {0l, -1l, -100l})
        EXPECT_EQ(unpacked(three_pgroups, size, 3, 0), joined({v210_words({0, 0, 0, 0}), untouched})) << size;
    // Seven bytes: the second pgroup has Cb whole and the upper six bits of its first Y.
    EXPECT_EQ(unpacked(three_pgroups, 7, 3, 0), joined({v210_words({0x36791523, 0x150E9489, 0, 0}), untouched}));
    EXPECT_EQ(unpacked(joined({second_pgroup, third_pgroup}), 5, 0, 2),
              joined({v210_words({0xFFFFFFFF, 0x15AE97FF, 0x000C3CF0, 0}), untouched}));
    EXPECT_EQ(unpacked(three_pgroups, 1l << 32, 3, 0), joined({their_group, untouched}));
}

}  // namespace
}  // namespace tintvert::test
