// The corners of flips, mixing, interleaved copy and dissolve.
#include <gtest/gtest.h>
#include <tintvert/field.h>

#include <cstdint>
#include <vector>

namespace tintvert::test {
namespace {

using Bytes = std::vector<unsigned char>;
using Pixels = std::vector<uint32_t>;

Bytes counted(size_t bytes, unsigned char first)
{
    Bytes result;
    for (size_t i = 0; i < bytes; ++i) result.push_back(static_cast<unsigned char>(first + i));
    return result;
}

unsigned char* bytes(Pixels& pixels) { return reinterpret_cast<unsigned char*>(pixels.data()); }

TEST(FlipVertEdges, no_lines_touch_nothing)
{
    unsigned char one = 9, other = 8;
    for (const int height : {0, -1, -2147483647 - 1}) {
        tntvt_flip_vert(&one, &other, 7, height, 100);
        tntvt_flip_vert_flags(&one, &other, 7, 7, height, 100, 50, 0x1000000, 0);
    }
    for (const int height : {0, 1}) {
        tntvt_flip_vert(&one, &one, 7, height, 100);
        tntvt_flip_vert_flags(&one, &one, 7, 7, height, 100, 50, 0x1000000, 0);
    }
    EXPECT_EQ(one, 9);
    EXPECT_EQ(other, 8);
}

TEST(FlipVertEdges, slack_is_part_of_the_line)
{
    Bytes frame = counted(12, 1);
    tntvt_flip_vert(frame.data(), frame.data(), 1, 4, 3);
    EXPECT_EQ(frame, (Bytes{10, 11, 12, 7, 8, 9, 4, 5, 6, 1, 2, 3}));
}

// A single line, margin 4, of a pitch of 6.
TEST(FlipVertFlagsEdges, left_and_right)
{
    const auto placed = [](unsigned int flags, int keep) {
        Bytes src{1, 2}, dst(6, 0xEE);
        tntvt_flip_vert_flags(dst.data(), src.data(), 0, 0, 1, 6, 2, flags, keep);
        return dst;
    };
    for (const int keep : {0, 1, -1}) {
        const unsigned char e = keep == 0 ? 0 : 0xEE;
        EXPECT_EQ(placed(0x1000000, keep), (Bytes{e, e, e, e, 1, 2}));
        EXPECT_EQ(placed(0x2000000, keep), (Bytes{1, 2, e, e, e, e}));
        EXPECT_EQ(placed(0x4000000, keep), (Bytes{e, e, 1, 2, e, e}));
        EXPECT_EQ(placed(0x8FFFFFF, keep), (Bytes{e, e, 1, 2, e, e}));
        for (const unsigned int none : {0u, 0x10000000u, 0xF0FFFFFFu, 0x3000000u, 0xC000000u, 0xF000000u})
            EXPECT_EQ(placed(none, keep), (Bytes{1, 2, 0xEE, 0xEE, 0xEE, 0xEE})) << std::hex << none;
    }
}

// No margin: whatever the flags say, nothing is cleared, before or after the lines.
TEST(FlipVertFlagsEdges, equal_pitches_have_no_margin)
{
    for (const unsigned int flags : {0u, 0x1000000u, 0x2000000u, 0x4000000u, 0x8000000u}) {
        Bytes src = counted(6, 1), dst(8, 0xEE);
        tntvt_flip_vert_flags(&dst[1], src.data(), 0, 0, 2, 3, 3, flags, 0);
        EXPECT_EQ(dst, (Bytes{0xEE, 4, 5, 6, 1, 2, 3, 0xEE}));
        tntvt_flip_vert_flags(&dst[1], &dst[1], 0, 0, 2, 3, 3, flags, 0);
        EXPECT_EQ(dst, (Bytes{0xEE, 1, 2, 3, 4, 5, 6, 0xEE}));
    }
}

// Lines of 4 bytes into a pitch of 2: each overruns into the next, and the last past the frame.
TEST(FlipVertFlagsEdges, pitch_below_the_line)
{
    for (const unsigned int flags : {0u, 0x1000000u, 0x8000000u}) {
        Bytes src = counted(12, 1), dst(10, 0xEE);
        tntvt_flip_vert_flags(dst.data(), src.data(), 0, 0, 3, 2, 4, flags, 0);
        EXPECT_EQ(dst, (Bytes{9, 10, 5, 6, 1, 2, 3, 4, 0xEE, 0xEE}));
    }
    // In place both lines are at the pitch of 2: four bytes come up, two go down.
    Bytes frame = counted(8, 1);
    tntvt_flip_vert_flags(frame.data(), frame.data(), 0, 0, 3, 2, 4, 0x1000000, 0);
    EXPECT_EQ(frame, (Bytes{5, 6, 7, 8, 1, 2, 7, 8}));
}

// Five lines of 1 to 4, 11 to 14 ... in place: the top two are cleared and go down whole, the middle one is
// neither moved nor cleared, and the last byte of a bottom line stays below.
TEST(FlipVertFlagsEdges, keeps_lines_unplaced_in_place)
{
    const auto turned = [](unsigned int flags) {
        Bytes frame;
        for (const Bytes& line : {counted(4, 1), counted(4, 11), counted(4, 21), counted(4, 31), counted(4, 41)})
            frame.insert(frame.end(), line.begin(), line.end());
        tntvt_flip_vert_flags(frame.data(), frame.data(), 0, 0, 5, 4, 1, flags, 0);
        return frame;
    };
    EXPECT_EQ(turned(0x1000000), (Bytes{41, 0, 0, 4, 31, 0, 0, 14, 21, 22, 23, 24, 0, 0, 0, 14, 0, 0, 0, 4}));
    EXPECT_EQ(turned(0x2000000), (Bytes{41, 0, 0, 0, 31, 0, 0, 0, 21, 22, 23, 24, 11, 0, 0, 0, 1, 0, 0, 0}));
    EXPECT_EQ(turned(0x4000000), (Bytes{41, 0, 3, 0, 31, 0, 13, 0, 21, 22, 23, 24, 0, 0, 13, 0, 0, 0, 3, 0}));
    EXPECT_EQ(turned(0x8000000), (Bytes{41, 2, 0, 0, 31, 12, 0, 0, 21, 22, 23, 24, 0, 12, 0, 0, 0, 2, 0, 0}));
    EXPECT_EQ(turned(0), (Bytes{41, 2, 3, 4, 31, 12, 13, 14, 21, 22, 23, 24, 11, 12, 13, 14, 1, 2, 3, 4}));
}

TEST(FlipHorzEdges, no_pixels_touch_nothing)
{
    unsigned char one = 9, other = 8;
    for (const auto& [width, height] : {std::pair{0, 5}, {-1, 5}, {5, 0}, {5, -1}, {0, 0}, {-5, -5}})
        tntvt_flip_horz(&one, &other, width, height, 4);
    for (const auto& [width, height] : {std::pair{0, 5}, {1, 5}, {5, 0}, {5, -1}, {-5, 0}, {-5, -5}})
        tntvt_flip_horz(&one, &one, width, height, 4);
    EXPECT_EQ(one, 9);
    EXPECT_EQ(other, 8);
}

TEST(FlipHorzEdges, keeps_mirror_past_the_line)
{
    // Width 1 takes source pixel 1; source pixel 0 is not read.
    Pixels src{1, 2}, one{9, 9};
    tntvt_flip_horz(bytes(one), bytes(src), 1, 1, 4);
    EXPECT_EQ(one, (Pixels{2, 9}));
    // Two lines of three pixels and one of slack, which is the pixel past the line.
    Pixels frame{1, 2, 3, 4, 5, 6, 7, 8}, dst(8, 9);
    tntvt_flip_horz(bytes(dst), bytes(frame), 3, 2, 16);
    EXPECT_EQ(dst, (Pixels{4, 3, 2, 9, 8, 7, 6, 9}));
    // In place pixel 0 goes past the line. An odd width has no pixel that stays.
    tntvt_flip_horz(bytes(frame), bytes(frame), 3, 2, 16);
    EXPECT_EQ(frame, (Pixels{4, 2, 3, 1, 8, 6, 7, 5}));
    // Tight lines: pixel 0 of line 0 becomes pixel 0 of line 1, which goes on to line 2.
    frame = {1, 2, 3, 4, 5, 6, 7};
    tntvt_flip_horz(bytes(frame), bytes(frame), 2, 3, 8);
    EXPECT_EQ(frame, (Pixels{3, 2, 5, 4, 7, 6, 1}));
}

TEST(FlipHorzEdges, four_pixels_in_place)
{
    Pixels frame{0, 1, 2, 3, 4, 5};
    tntvt_flip_horz(bytes(frame), bytes(frame), 4, 1, 16);
    EXPECT_EQ(frame, (Pixels{4, 3, 2, 1, 0, 5}));
}

// An odd height: two lines in the first field, one in the second, each at the pitch of its own.
TEST(FieldMixingEdges, three_lines)
{
    Bytes first = counted(10, 1), second = counted(10, 101), frame(15, 0xEE);
    tntvt_fld_sep_to_mix32(frame.data(), 5, first.data(), second.data(), 6, 1, 3);
    EXPECT_EQ(frame, (Bytes{1, 2, 3, 4, 0xEE, 101, 102, 103, 104, 0xEE, 7, 8, 9, 10, 0xEE}));
    Bytes even(10, 0xEE), odd(10, 0xEE);
    tntvt_fld_mix_to_sep32(even.data(), odd.data(), 6, frame.data(), 5, 1, 3);
    EXPECT_EQ(even, (Bytes{1, 2, 3, 4, 0xEE, 0xEE, 7, 8, 9, 10}));
    EXPECT_EQ(odd, (Bytes{101, 102, 103, 104, 0xEE, 0xEE, 0xEE, 0xEE, 0xEE, 0xEE}));
}

TEST(FieldMixingEdges, no_lines_and_the_sign_of_pitches)
{
    tntvt_fld_sep_to_mix32(nullptr, 8, nullptr, nullptr, 8, 2, 0);
    tntvt_fld_mix_to_sep32(nullptr, nullptr, 8, nullptr, 8, 2, 0);
    Pixels frame{1, 2, 3, 4}, first(2), second(2);
    tntvt_fld_mix_to_sep32(bytes(first) + 4, bytes(second) + 4, -4, bytes(frame) + 12, -4, 1, 4);
    EXPECT_EQ(first, (Pixels{2, 4}));
    EXPECT_EQ(second, (Pixels{1, 3}));
    // 0x40000001 pixels are 4 bytes in 32 bits.
    tntvt_fld_sep_to_mix32(bytes(frame), 4, bytes(second), bytes(first), 4, 0x40000001, 4);
    EXPECT_EQ(frame, (Pixels{1, 2, 3, 4}));
}

TEST(CopyInterleavedEdges, strides_100_and_80)
{
    Bytes wide = counted(200, 1), narrow(160, 0xEE);
    tntvt_copy_interleaved(narrow.data(), 80, wide.data(), 100, 7, 2);
    for (size_t i = 0; i < 160; ++i) EXPECT_EQ(narrow[i], wide[i / 80 * 100 + i % 80]);
    Bytes back(200, 0xEE);
    tntvt_copy_interleaved(back.data(), 100, narrow.data(), 80, 7, 2);
    for (size_t i = 0; i < 200; ++i) EXPECT_EQ(back[i], i % 100 < 80 ? wide[i] : 0xEE);
    for (const long height : {0L, -1L}) tntvt_copy_interleaved(nullptr, 100, nullptr, 80, 7, height);
    tntvt_copy_interleaved(back.data(), 100, back.data(), 100, 7, 1 << 20);
}

// The product of 2^32 + 2 lines and a stride of 3 is 6 in 32 bits, and so is that of -2 and -3.
TEST(CopyInterleavedEdges, keeps_whole_copy_without_guard)
{
    Bytes src = counted(8, 1), dst(8, 0xEE);
    tntvt_copy_interleaved(dst.data(), 3, src.data(), 3, 0, 0x100000002);
    EXPECT_EQ(dst, (Bytes{1, 2, 3, 4, 5, 6, 0xEE, 0xEE}));
    dst.assign(8, 0xEE);
    tntvt_copy_interleaved(dst.data(), -3, src.data(), -3, 0, -2);
    EXPECT_EQ(dst, (Bytes{1, 2, 3, 4, 5, 6, 0xEE, 0xEE}));
}

constexpr unsigned int code_2vuy = 0x79757632, code_v210 = 0x30313276, code_r210 = 0x30313272, code_BGRA = 0x41524742;

TEST(CopyDissolveEdges, class_is_asked_before_the_size)
{
    for (const long height : {0L, -1L, 5L})
        for (const long width : {0L, -1L}) {
            EXPECT_EQ(tntvt_copy_dissolve(nullptr, nullptr, 9, width, height, 0x12345678), -1);
            for (const unsigned int fourcc : {code_2vuy, code_v210, code_r210, code_BGRA})
                EXPECT_EQ(tntvt_copy_dissolve(nullptr, nullptr, 9, width, height, fourcc), 0);
        }
    for (const unsigned int fourcc : {code_2vuy, code_v210, code_r210, code_BGRA})
        EXPECT_EQ(tntvt_copy_dissolve(nullptr, nullptr, 9, 9, 0, fourcc), 0);
    Bytes frame(16, 0xEE);
    EXPECT_EQ(tntvt_copy_dissolve(frame.data(), frame.data(), 4, 1, 4, 0x12345678), -1);
    EXPECT_EQ(frame, Bytes(16, 0xEE));
}

// Two lines at a pitch of 6, of `width` 1: 2 bytes of `2vuy`, 4 of RGB, no word, and with `width` 2 one word.
TEST(CopyDissolveEdges, bytes_and_words_a_line)
{
    const auto mixed = [](unsigned int fourcc, long width) {
        Bytes dst(12, 100), src(12, 50);
        EXPECT_EQ(tntvt_copy_dissolve(dst.data(), src.data(), 6, width, 2, fourcc), 0);
        EXPECT_EQ(src, Bytes(12, 50));
        return dst;
    };
    EXPECT_EQ(mixed(code_2vuy, 1), (Bytes{75, 75, 100, 100, 100, 100, 75, 75, 100, 100, 100, 100}));
    EXPECT_EQ(mixed(code_BGRA, 1), (Bytes{75, 75, 75, 75, 100, 100, 75, 75, 75, 75, 100, 100}));
    for (const unsigned int fourcc : {code_v210, code_r210}) {
        EXPECT_EQ(mixed(fourcc, 1), Bytes(12, 100));
        // 0x64646464 has the fields 100, 281, 582, and 0x32323232 562, 140, 803: the halves are 331, 210, 692.
        EXPECT_EQ(mixed(fourcc, 2), (Bytes{0x4B, 0x49, 0x43, 0x2B, 100, 100, 0x4B, 0x49, 0x43, 0x2B, 100, 100}));
    }
}

TEST(CopyDissolveEdges, expected_values)
{
    const auto mixed = [](unsigned int fourcc, long width, Pixels dst, Pixels src) {
        EXPECT_EQ(tntvt_copy_dissolve(bytes(dst), bytes(src), 64, width, 1, fourcc), 0);
        return dst;
    };
    // 1 and 1 give 0, 255 and 255 give 254, alpha like the others.
    EXPECT_EQ(mixed(code_BGRA, 2, {0x01FF01FF, 0xFF000001}, {0x01FF01FF, 0xFF0100FF}),
              (Pixels{0x00FE00FE, 0xFE00007F}));
    EXPECT_EQ(mixed(code_2vuy, 2, {0x01FF01FF}, {0x01FF01FF}), (Pixels{0x00FE00FE}));
    // 1023 and 1023 give 1023, 1 and 1 give 1, 1 and 0 give 0, and bits 30 and 31 go.
    const uint32_t ones = 1 | 1 << 10 | 1 << 20;
    EXPECT_EQ(mixed(code_v210, 6, {0xFFFFFFFF, ones, ones, 0xC0000000}, {0xFFFFFFFF, ones, 0, 0xC0000000}),
              (Pixels{0x3FFFFFFF, ones, 0, 0}));
    // No field's carry reaches its neighbour: 1023 and 1 give 512 beside 0 and 0.
    for (const int shift : {0, 10, 20})
        EXPECT_EQ(mixed(code_r210, 2, {1023u << shift}, {1u << shift}), (Pixels{512u << shift}));
}

}  // namespace
}  // namespace tintvert::test
