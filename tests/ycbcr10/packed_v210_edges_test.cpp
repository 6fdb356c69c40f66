#include <gtest/gtest.h>
#include <sys/mman.h>
#include <tintvert.h>
#include <unistd.h>

#include <cstring>

#include "support/fence.h"
#include "v210_bytes.h"

namespace tintvert::test {
namespace {

// Destination lines of 128 bytes of `old` after one call.
Bytes unpacked(Bytes src, unsigned width, unsigned height, uint8_t old = 0xFF)
{
    Bytes dst(128 * (height + 1), old);
    EXPECT_EQ(tntvt_YCbCr10Packed_to_v210(dst.data(), src.data(), width, height), 0);
    return dst;
}

// A line that begins with these words and has kept 0xFF after them.
Bytes line_of(const Bytes& words)
{
    Bytes line = words;
    line.resize(128, 0xFF);
    return line;
}

const Bytes kept_line = Bytes(128, 0xFF);

TEST(PackedFrame, no_lines_or_no_pixels_write_nothing)
{
    EXPECT_EQ(unpacked(three_pgroups, 6, 0), kept_line);
    EXPECT_EQ(unpacked(three_pgroups, 0, 3), Bytes(4 * 128, 0xFF));
    EXPECT_EQ(tntvt_YCbCr10Packed_to_v210(nullptr, nullptr, 6, 0), 0);
    EXPECT_EQ(tntvt_YCbCr10Packed_to_v210(nullptr, nullptr, 0, 6), 0);
}

TEST(PackedFrame, width_2_changes_word_0_and_a_field)
{
    EXPECT_EQ(unpacked(joined({first_pgroup, first_pgroup}), 2, 2),
              joined({line_of(v210_words({0x36791523, 0xFFFFFC89})), line_of(v210_words({0x36791523, 0xFFFFFC89})),
                      kept_line}));
    EXPECT_EQ(unpacked(first_pgroup, 2, 1, 0), joined({v210_words({0x36791523, 0x00000089}), Bytes(248, 0)}));
}

TEST(PackedFrame, width_4_keeps_the_top_field_of_word_2)
{
    const Bytes line = line_of(v210_words({0x36791523, 0x15AE9489, 0x3FFC3CF0}));
    EXPECT_EQ(unpacked(joined({first_pgroup, second_pgroup, first_pgroup, second_pgroup}), 4, 2),
              joined({line, line, kept_line}));
}

TEST(PackedFrame, the_group_moves_on_at_6_pixels)
{
    EXPECT_EQ(unpacked(three_pgroups, 6, 1), joined({line_of(their_group), kept_line}));
    EXPECT_EQ(unpacked(joined({three_pgroups, first_pgroup}), 8, 1),
              joined({line_of(joined({their_group, v210_words({0x36791523, 0xFFFFFC89})})), kept_line}));
    EXPECT_EQ(unpacked(joined({three_pgroups, three_pgroups}), 12, 1),
              joined({line_of(joined({their_group, their_group})), kept_line}));
}

// `width` 5 is 12 bytes: the third pair has Cb whole and six bits of its first Y. 3 is 7 bytes, 1 is 2.
TEST(PackedFrame, keeps_pair_past_odd_width)
{
    const Bytes five = line_of(v210_words({0x3FFFFFFF, 0x3FFFFFFF, 0x3FFFFFFF, 0x000003F0}));
    EXPECT_EQ(unpacked(Bytes(30, 0xFF), 5, 1), joined({five, kept_line}));
    const Bytes three = line_of(v210_words({0x3FFFFFFF, 0x3F0FFFFF, 0x3FF00000}));
    EXPECT_EQ(unpacked(Bytes(30, 0xFF), 3, 1), joined({three, kept_line}));
    const Bytes one = line_of(v210_words({0x000FC3FF, 0xFFFFFC00}));
    EXPECT_EQ(unpacked(Bytes(30, 0xFF), 1, 1), joined({one, kept_line}));

    // The next line starts after the bytes of this one, not after its pairs.
    Bytes lines(24, 0xFF);
    std::memset(&lines[12], 0, 12);
    EXPECT_EQ(unpacked(lines, 5, 2), joined({five, line_of(v210_words({0, 0, 0, 0})), kept_line}));
}

TEST(PackedFrame, lines_of_1920_are_4800_and_5120_bytes)
{
    Bytes src(4800 * 1080, 0), dst(5120 * 1080, 0);
    for (const size_t line : {1u, 1079u}) {
        std::memcpy(&src[4800 * line], three_pgroups.data(), 15);
        std::memcpy(&src[4800 * line + 4785], three_pgroups.data(), 15);
    }
    Bytes expected = dst;
    for (const size_t line : {1u, 1079u}) {
        std::memcpy(&expected[5120 * line], their_group.data(), 16);
        std::memcpy(&expected[5120 * line + 5104], their_group.data(), 16);
    }
    EXPECT_EQ(tntvt_YCbCr10Packed_to_v210(dst.data(), src.data(), 1920, 1080), 0);
    EXPECT_TRUE(dst == expected);
}

// 1280 is rounded up to 1296: 3456 bytes, of which the last group's two pixels end at 3424.
TEST(PackedFrame, lines_of_1280_are_3200_and_3456_bytes)
{
    Bytes src(3200 * 2, 0), dst(3456 * 2, 0xFF), expected(3456 * 2, 0xFF);
    std::memcpy(&src[3200], three_pgroups.data(), 15);
    std::memcpy(&src[6395], first_pgroup.data(), 5);
    for (const size_t line : {0u, 3456u}) {
        std::memset(&expected[line], 0, 213 * 16);
        const Bytes last = v210_words({0, 0xFFFFFC00});
        std::memcpy(&expected[line + 3408], last.data(), 8);
    }
    std::memcpy(&expected[3456], their_group.data(), 16);
    const Bytes last = v210_words({0x36791523, 0xFFFFFC89});
    std::memcpy(&expected[3456 + 3408], last.data(), 8);
    EXPECT_EQ(tntvt_YCbCr10Packed_to_v210(dst.data(), src.data(), 1280, 2), 0);
    EXPECT_EQ(dst, expected);
}

// 214748366 x 20 is 2^32 + 24, so the source line has 3 bytes; the fence ends the call.
TEST(PackedFrame, source_line_wraps_at_32_bits)
{
    Bytes src(4096, 0xFF);
    const FencedBuffer dst({0, 4096}, 4096, Side::above, Closed::wholly);
    std::memset(dst.pointer(), 0xFF, 4096);
    EXPECT_TRUE(faults([&] { tntvt_YCbCr10Packed_to_v210(dst.pointer(), src.data(), 214748366, 1); }));
    Bytes expected = v210_words({0x3C0FFFFF});
    expected.resize(4096, 0);
    EXPECT_EQ(Bytes(dst.pointer(), dst.pointer() + 4096), expected);
}

// 4 GiB of addresses over one MiB of memory, with a fence after it. Line 2^25 at 128 bytes a line would be
// on the fence and is at the start.
TEST(PackedFrameExhaustive, line_offsets_wrap_at_32_bits)
{
    constexpr size_t mebibyte = 1u << 20, span = 1ul << 32;
    const FencedBuffer dst({0, span}, span, Side::above, Closed::wholly);
    const int file = memfd_create("lines", 0);
    ASSERT_EQ(ftruncate(file, mebibyte), 0);
    for (size_t at = 0; at < span; at += mebibyte)
        ASSERT_NE(mmap(dst.pointer() + at, mebibyte, PROT_READ | PROT_WRITE, MAP_SHARED | MAP_FIXED, file, 0),
                  MAP_FAILED);
    close(file);

    constexpr unsigned lines = (1u << 25) + 1;
    Bytes src(2ul * lines, 0);
    src[src.size() - 2] = src[src.size() - 1] = 0xFF;
    ASSERT_FALSE(faults([&] { tntvt_YCbCr10Packed_to_v210(dst.pointer(), src.data(), 1, lines); }));
    EXPECT_EQ(Bytes(dst.pointer(), dst.pointer() + 8), v210_words({0x000FC3FF, 0}));
    EXPECT_EQ(Bytes(dst.pointer() + 128, dst.pointer() + 136), v210_words({0, 0}));
}

}  // namespace
}  // namespace tintvert::test
