// Frames of lines of 8 bytes, each line filled with one value unless a test says otherwise.
#include <gtest/gtest.h>
#include <tintvert/field.h>

#include <cstring>
#include <vector>

namespace {

using Bytes = std::vector<unsigned char>;

constexpr unsigned int stride = 8;

Bytes frame(const Bytes& lines)
{
    Bytes result;
    for (const unsigned char line : lines) result.insert(result.end(), stride, line);
    return result;
}

// The frame after a call on `dst` lines, with `src` lines if there are any.
Bytes changed(unsigned int mode, const Bytes& dst, Bytes src = {}, unsigned int height = 4, int status = 0)
{
    Bytes result = frame(dst), other = frame(src);
    const int answer = tntvt_change_field_rgb(result.data(), mode, stride / 4, height, stride,
                                              src.empty() ? nullptr : other.data(), 0);
    EXPECT_EQ(answer, status);
    return result;
}

TEST(ChangeField, other_modes_do_nothing)
{
    const Bytes lines{1, 2, 3, 4};
    for (const unsigned int mode : {0u, 15u, 0xFFFFFFFFu}) EXPECT_EQ(changed(mode, lines, lines), frame(lines));
}

TEST(ChangeField, doubles_a_field_and_leaves_an_odd_last_line)
{
    EXPECT_EQ(changed(1, {1, 2, 3, 4, 5}, {}, 5), frame({1, 1, 3, 3, 5}));
    EXPECT_EQ(changed(2, {1, 2, 3, 4, 5}, {}, 5), frame({2, 2, 4, 4, 5}));
    EXPECT_EQ(changed(1, {1, 2}, {}, 1), frame({1, 2}));
}

TEST(ChangeField, exchanges_the_fields) { EXPECT_EQ(changed(3, {1, 2, 3, 4, 5}, {}, 5), frame({2, 1, 4, 3, 5})); }

TEST(ChangeField, copies_a_field)
{
    const Bytes dst{1, 2, 3, 4}, src{10, 20, 30, 40};
    EXPECT_EQ(changed(5, dst, src), frame({1, 20, 3, 40}));
    EXPECT_EQ(changed(6, dst, src), frame({1, 10, 3, 30}));
    EXPECT_EQ(changed(7, dst, src), frame({20, 2, 40, 4}));
    EXPECT_EQ(changed(8, dst, src), frame({10, 2, 30, 4}));
    EXPECT_EQ(changed(8, dst, src, 0), frame(dst));
    for (const unsigned int mode : {5u, 6u, 7u, 8u}) EXPECT_EQ(changed(mode, dst, {}, 0, -2), frame(dst));
}

// Twice 0x80000004 is 8 in 32 bits.
TEST(ChangeField, doubled_pitches_wrap)
{
    Bytes src{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}, dst(12, 0xEE);
    EXPECT_EQ(tntvt_change_field_rgb(dst.data(), 8, 0, 4, 0x80000004, src.data(), 4), 0);
    EXPECT_EQ(dst, (Bytes{1, 2, 3, 4, 0xEE, 0xEE, 0xEE, 0xEE, 9, 10, 11, 12}));
}

TEST(ChangeField, repeats_lines)
{
    EXPECT_EQ(changed(9, {0, 0, 0, 0, 0}, {1, 2, 3, 4, 5}, 5), frame({1, 1, 3, 3, 0}));
    EXPECT_EQ(changed(10, {0, 0, 0, 0, 0}, {1, 2, 3, 4, 5}, 5), frame({2, 2, 4, 4, 0}));
}

TEST(ChangeField, keeps_low_byte_of_halves)
{
    const auto mean = [](unsigned int one, unsigned int other) {
        unsigned char lines[4][4] = {};
        std::memcpy(lines[0], &one, 4);
        std::memcpy(lines[2], &other, 4);
        unsigned char dst[4][4] = {};
        EXPECT_EQ(tntvt_change_field_rgb(dst[0], 11, 0, 4, 4, lines[0], 4), 0);
        unsigned int result;
        std::memcpy(&result, dst[1], 4);
        return result;
    };
    EXPECT_EQ(mean(0x01010101, 0x01010101), 0x01010100u);
    EXPECT_EQ(mean(0xFFFFFFFF, 0xFFFFFFFF), 0xFFFFFFFEu);
    EXPECT_EQ(mean(0x02020202, 0x00000000), 0x01010101u);
    EXPECT_EQ(mean(0xFF00FF01, 0x00FF0002), 0x7F7F7F01u);
}

// All values even, so that a mean of a line with itself is the line.
TEST(ChangeField, interpolates_the_first_field)
{
    EXPECT_EQ(changed(11, {0, 0, 0, 0, 9}, {10, 2, 30, 4, 50}, 5), frame({10, 20, 30, 30, 9}));
}

TEST(ChangeField, interpolates_the_second_field)
{
    EXPECT_EQ(changed(12, {0, 0, 0, 0, 9}, {2, 10, 4, 30, 50}, 5), frame({10, 10, 20, 30, 9}));
}

TEST(ChangeField, keeps_entry_copy)
{
    EXPECT_EQ(changed(12, {0, 0}, {1, 7}, 0), frame({7, 0}));
    EXPECT_EQ(changed(12, {0, 0}, {1, 7}, 1), frame({7, 0}));
    Bytes one = frame({2, 10, 4, 30});
    EXPECT_EQ(tntvt_change_field_rgb(one.data(), 12, 0, 4, stride, one.data(), 0), 0);
    EXPECT_EQ(one, frame({2, 10, 20, 30}));
}

TEST(ChangeField, keeps_average_with_itself)
{
    const Bytes lines{1, 2, 3, 255, 5};
    EXPECT_EQ(changed(4, lines, {}, 5), frame(lines));
    EXPECT_EQ(changed(4, lines, {}, 1, -1), frame(lines));
    EXPECT_EQ(changed(4, lines, {}, 0, -1), frame(lines));
    // A source pitch of half a line: line 1 meets the second half of line 0 and its own first half, line 2
    // meets line 1 as it has become.
    Bytes three = frame({0, 100, 200});
    EXPECT_EQ(tntvt_change_field_rgb(three.data(), 4, 2, 3, 8, nullptr, 4), 0);
    EXPECT_EQ(three,
              (Bytes{0, 0, 0, 0, 0, 0, 0, 0, 50, 50, 50, 50, 75, 75, 75, 75, 125, 125, 125, 125, 137, 137, 137, 137}));
}

TEST(ChangeField, keeps_source_pitch_on_dst)
{
    Bytes lines = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16};
    EXPECT_EQ(tntvt_change_field_rgb(lines.data(), 1, 0, 4, 4, nullptr, 2), 0);
    EXPECT_EQ(lines, (Bytes{1, 2, 3, 4, 1, 2, 7, 8, 9, 10, 11, 12, 1, 2, 15, 16}));
}

TEST(ChangeField, keeps_split_asymmetry)
{
    const Bytes dst(8, 0xEE), src{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12};
    Bytes first = dst, second = dst, other = src;
    EXPECT_EQ(tntvt_change_field_rgb(first.data(), 13, 0, 4, 2, other.data(), 3), 0);
    EXPECT_EQ(first, (Bytes{1, 2, 7, 8, 4, 5, 10, 11}));
    // Three bytes a line into lines of two: each copy runs into the next line, and the last past the frame.
    second.push_back(0xEE);
    EXPECT_EQ(tntvt_change_field_rgb(second.data(), 14, 0, 4, 2, other.data(), 3), 0);
    EXPECT_EQ(second, (Bytes{4, 5, 10, 11, 12, 2, 7, 8, 9}));
}

TEST(ChangeField, keeps_one_field_in_place)
{
    EXPECT_EQ(changed(13, {1, 2, 3, 4, 5}, {}, 5), frame({1, 3, 3, 4, 5}));
    EXPECT_EQ(changed(14, {1, 2, 3, 4, 5}, {}, 5), frame({2, 4, 3, 4, 5}));
}

TEST(ChangeField, keeps_samples_uncomputed)
{
    const auto changed_yuv = [](unsigned int mode) {
        Bytes dst = frame({0, 50, 60, 70}), src = frame({10, 2, 30, 4});
        EXPECT_EQ(tntvt_change_field_yuv(dst.data(), mode, 2, 4, stride, src.data(), 0), 0);
        return dst;
    };
    EXPECT_EQ(changed_yuv(4), frame({0, 0, 60, 60}));
    EXPECT_EQ(changed_yuv(11), frame({10, 10, 30, 30}));
    EXPECT_EQ(changed_yuv(12), frame({2, 2, 4, 4}));
    EXPECT_EQ(changed_yuv(13), frame({10, 30, 2, 4}));
}

}  // namespace
