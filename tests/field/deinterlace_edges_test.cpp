// The corners of the deinterlacer: what each mode copies, which lines are neighbours, and the measure to the
// last unit.
#include <gtest/gtest.h>
#include <tintvert/field.h>

#include <vector>

namespace tintvert::test {
namespace {

using Bytes = std::vector<unsigned char>;

Bytes counted(size_t bytes, unsigned char first)
{
    Bytes result;
    for (size_t i = 0; i < bytes; ++i) result.push_back(static_cast<unsigned char>(first + i));
    return result;
}

TEST(DeinterlaceEdges, no_lines_touch_nothing)
{
    for (const int mode : {2, 16, 17, 0}) EXPECT_EQ(tntvt_deinterlace_rgb(nullptr, nullptr, 9, 0, 9, 1, 1, 0, mode), 0);
}

// Lines of 10 bytes with one element, all of one value per channel, so nothing is combed. A whole-line copy
// takes its stride, an element 8 bytes, and `width` 0 leaves the whole-line copies alone.
TEST(DeinterlaceEdges, whole_lines_and_elements)
{
    const Bytes frame(40, 5), none(10, 0xEE), element{5, 5, 5, 5, 5, 5, 5, 5, 0xEE, 0xEE}, line(10, 5);
    const auto expect = [&](int mode, unsigned int width, const Bytes& even, const Bytes& odd) {
        Bytes src = frame, dst(40, 0xEE), expected;
        for (const Bytes* part : {&even, &odd, &even, &odd})
            expected.insert(expected.end(), part->begin(), part->end());
        EXPECT_EQ(tntvt_deinterlace_rgb(dst.data(), src.data(), width, 4, 10, 0, 0, 0, mode), 0);
        EXPECT_EQ(dst, expected) << mode << ", width " << width;
        EXPECT_EQ(src, frame);
    };
    expect(2, 1, element, element);
    expect(16, 1, line, element);
    expect(17, 1, element, line);
    for (const int other : {0, 1, 3, 15, 18, -2, -17}) expect(other, 1, element, element);
    expect(2, 0, none, none);
    expect(16, 0, line, none);
    expect(17, 0, none, line);
    expect(0, 0, none, none);
}

// One element for each of five lines: three channels, then bytes that no one examines.
struct Line {
    unsigned char c0, c1, c2;
};
Bytes frame_of(const std::vector<Line>& lines)
{
    Bytes result;
    for (const Line& line : lines)
        result.insert(result.end(), {line.c0, line.c1, line.c2, 0x11, 0x22, 0x33, 0x44, 0x55});
    return result;
}

// The element of line 3 after a call in mode 2, between `above` and `below`.
Bytes between(Line above, Line here, Line below, int threshold, int softness, int mode = 2)
{
    Bytes src = frame_of({{0, 0, 0}, {0, 0, 0}, above, here, below}), dst(src.size(), 0xEE);
    EXPECT_EQ(tntvt_deinterlace_rgb(dst.data(), src.data(), 1, 5, 8, threshold, softness, 99, mode), 0);
    return {dst.begin() + 24, dst.begin() + 32};
}

bool combed(Line above, Line here, Line below, int threshold, int softness)
{
    const Bytes left = frame_of({here}), result = between(above, here, below, threshold, softness);
    if (result == left) return false;
    EXPECT_EQ(Bytes(result.begin() + 3, result.end()), Bytes(5, 0));
    return true;
}

// A measure of 10 x 10 is not above 10 squared; 11 x 11 is.
TEST(DeinterlaceEdges, measure_is_above_the_threshold_or_not)
{
    EXPECT_FALSE(combed({100, 0, 0}, {110, 0, 0}, {100, 0, 0}, 10, 0));
    EXPECT_TRUE(combed({100, 0, 0}, {111, 0, 0}, {100, 0, 0}, 10, 0));
    EXPECT_FALSE(combed({100, 0, 0}, {110, 0, 0}, {100, 0, 0}, -10, 0));
    EXPECT_TRUE(combed({100, 0, 0}, {111, 0, 0}, {100, 0, 0}, -10, 0));
    EXPECT_FALSE(combed({7, 8, 9}, {7, 8, 9}, {7, 8, 9}, 0, 0));
    EXPECT_FALSE(combed({7, 8, 9}, {7, 8, 9}, {7, 8, 9}, 0, 75));
}

// A difference of 10 in one channel weighs 100, 600 or 300, with and without softness.
TEST(DeinterlaceEdges, channels_weigh_1_6_and_3)
{
    for (const int softness : {0, 10, 75}) {
        EXPECT_TRUE(combed({0, 0, 0}, {10, 0, 0}, {0, 0, 0}, 9, softness));
        EXPECT_FALSE(combed({0, 0, 0}, {10, 0, 0}, {0, 0, 0}, 10, softness));
        EXPECT_TRUE(combed({0, 0, 0}, {0, 10, 0}, {0, 0, 0}, 24, softness));
        EXPECT_FALSE(combed({0, 0, 0}, {0, 10, 0}, {0, 0, 0}, 25, softness));
        EXPECT_TRUE(combed({0, 0, 0}, {0, 0, 10}, {0, 0, 0}, 17, softness));
        EXPECT_FALSE(combed({0, 0, 0}, {0, 0, 10}, {0, 0, 0}, 18, softness));
    }
}

// A value between its neighbours makes a negative term.
TEST(DeinterlaceEdges, a_value_between_its_neighbours_counts_against)
{
    EXPECT_TRUE(combed({0, 0, 0}, {150, 0, 0}, {0, 0, 0}, 149, 0));
    // 22500 - 15000 = 7500, between 86 and 87 squared.
    EXPECT_TRUE(combed({0, 0, 0}, {150, 50, 0}, {0, 100, 0}, 86, 0));
    EXPECT_FALSE(combed({0, 0, 0}, {150, 50, 0}, {0, 100, 0}, 87, 0));
}

// 0, 5, 251: the measure is 614653 for K = 5476 and 614664 for 5500, around 784 squared = 614656.
// 0, 5, 22: it is 3721 for 5500, which is 61 squared, and 3723 for 5625.
// 0, 8, 151: 213444 for 5500, which is 462 squared, and 213446 for 5501. 0, 11, 253: 599080 for 5500, and
// 599076 for 5499, which is 774 squared.
TEST(DeinterlaceEdges, softness_is_capped_at_5500)
{
    EXPECT_FALSE(combed({0, 0, 0}, {151, 151, 151}, {8, 8, 8}, 462, 75));
    EXPECT_TRUE(combed({0, 0, 0}, {253, 253, 253}, {11, 11, 11}, 774, 75));
    for (const int sign : {1, -1}) {
        EXPECT_FALSE(combed({0, 0, 0}, {251, 251, 251}, {5, 5, 5}, 784, 74 * sign));
        EXPECT_TRUE(combed({0, 0, 0}, {251, 251, 251}, {5, 5, 5}, 784, 75 * sign));
        EXPECT_FALSE(combed({0, 0, 0}, {22, 22, 22}, {5, 5, 5}, 61, 75 * sign));
        EXPECT_FALSE(combed({0, 0, 0}, {22, 22, 22}, {5, 5, 5}, 61, 1000 * sign));
        EXPECT_TRUE(combed({0, 0, 0}, {22, 22, 22}, {5, 5, 5}, 60, 1000 * sign));
    }
}

// With K = 1, 9 x 6 x -1 over 101 is 0 and not -1, so the 1 of the first channel remains.
TEST(DeinterlaceEdges, each_division_truncates_toward_zero)
{
    EXPECT_TRUE(combed({0, 0, 0}, {1, 1, 0}, {0, 10, 0}, 0, 1));
    // 11, 66 and 33 over 101 are 0 each; their sum would be 1.
    EXPECT_FALSE(combed({0, 0, 0}, {11, 11, 11}, {10, 10, 10}, 0, 1));
    EXPECT_TRUE(combed({0, 0, 0}, {25, 25, 25}, {10, 10, 10}, 0, 1));
}

// The largest product, 255 x 255 x 6 x 5500, stays below 2^31.
TEST(DeinterlaceEdges, extremes_stay_in_32_bits)
{
    EXPECT_TRUE(combed({0, 0, 0}, {255, 255, 255}, {0, 0, 0}, 806, 75));  // 650250, between 806 and 807 squared
    EXPECT_FALSE(combed({0, 0, 0}, {255, 255, 255}, {0, 0, 0}, 807, 75));
    EXPECT_TRUE(combed({255, 255, 255}, {0, 0, 0}, {255, 255, 255}, 806, 0));
    EXPECT_FALSE(combed({255, 255, 255}, {0, 0, 0}, {255, 255, 255}, 807, 0));
}

// 46341 squared wraps below 0: as a threshold it replaces everything, as a softness nothing, and 65536
// squared is 0 in either place.
TEST(DeinterlaceEdges, keeps_wrapping_squares)
{
    EXPECT_TRUE(combed({7, 8, 9}, {7, 8, 9}, {7, 8, 9}, 46341, 0));
    EXPECT_TRUE(combed({0, 0, 0}, {128, 128, 128}, {255, 255, 255}, 46341, 75));
    EXPECT_FALSE(combed({0, 0, 0}, {255, 255, 255}, {0, 0, 0}, 46340, 0));
    EXPECT_FALSE(combed({0, 0, 0}, {255, 255, 255}, {0, 0, 0}, 46341, 46341));
    EXPECT_TRUE(combed({0, 0, 0}, {255, 255, 255}, {0, 0, 0}, 65536, 65536));
    EXPECT_FALSE(combed({7, 8, 9}, {7, 8, 9}, {7, 8, 9}, 65536, 65536));
}

// Odd sums lose their fraction, and no channel spills into the next.
TEST(DeinterlaceEdges, replaced_channels)
{
    EXPECT_EQ(between({255, 1, 254}, {0, 200, 1}, {254, 2, 255}, 0, 0), (Bytes{127, 100, 127, 0, 0, 0, 0, 0}));
    EXPECT_EQ(between({255, 1, 254}, {0, 200, 1}, {254, 2, 255}, 0, 0, 0), (Bytes{254, 1, 254, 0, 0, 0, 0, 0}));
    EXPECT_EQ(between({255, 1, 254}, {0, 200, 1}, {254, 2, 255}, 0, 0, 16), (Bytes{254, 1, 254, 0, 0, 0, 0, 0}));
    EXPECT_EQ(between({255, 1, 254}, {0, 200, 1}, {254, 2, 255}, 0, 0, 17),
              (Bytes{0, 200, 1, 0x11, 0x22, 0x33, 0x44, 0x55}));
    EXPECT_EQ(between({100, 100, 100}, {200, 200, 200}, {100, 100, 100}, 300, 0),
              (Bytes{150, 150, 150, 0, 0, 0, 0, 0}));
    EXPECT_EQ(between({100, 100, 100}, {200, 200, 200}, {100, 100, 100}, 300, 0, 1),
              (Bytes{100, 100, 100, 0, 0, 0, 0, 0}));
}

// Combed even lines: replaced in mode 2, left in every other.
TEST(DeinterlaceEdges, even_lines_are_repaired_in_mode_2_only)
{
    const Line dark{10, 10, 10}, light{200, 200, 200};
    const std::vector<Line> lines{dark, dark, light, dark, dark};
    for (const int mode : {2, 16, 17, 0, 99}) {
        Bytes src = frame_of(lines), dst(src.size(), 0xEE);
        tntvt_deinterlace_rgb(dst.data(), src.data(), 1, 5, 8, 0, 0, 0, mode);
        const Bytes line(dst.begin() + 16, dst.begin() + 24);
        EXPECT_EQ(line, mode == 2 ? (Bytes{105, 105, 105, 0, 0, 0, 0, 0}) : frame_of({light})) << mode;
    }
}

// Every second 4-byte pixel is carried along unexamined: two elements are four such pixels.
TEST(DeinterlaceEdges, keeps_eight_byte_elements)
{
    const Bytes dark{10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10};
    const Bytes light{10, 10, 10, 200, 200, 200, 200, 200, 10, 200, 10, 200, 200, 200, 200, 200};
    Bytes src, dst(80, 0xEE);
    for (const Bytes* line : {&dark, &dark, &dark, &light, &dark}) src.insert(src.end(), line->begin(), line->end());
    tntvt_deinterlace_rgb(dst.data(), src.data(), 2, 5, 16, 0, 0, 0, 2);
    EXPECT_EQ(Bytes(dst.begin() + 48, dst.begin() + 64),
              (Bytes{10, 10, 10, 200, 200, 200, 200, 200, 10, 105, 10, 0, 0, 0, 0, 0}));
}

// A replaced line reaches as far as its elements; the slack of `dst` stays.
TEST(DeinterlaceEdges, slack_stays)
{
    Bytes src = counted(60, 3), dst(60, 0xEE);
    tntvt_deinterlace_rgb(dst.data(), src.data(), 1, 5, 12, 46341, 0, 0, 2);
    for (size_t line = 0; line < 5; ++line)
        EXPECT_EQ(
            Bytes(dst.begin() + static_cast<long>(12 * line + 8), dst.begin() + static_cast<long>(12 * line + 12)),
            Bytes(4, 0xEE));
}

TEST(DeinterlaceEdges, keeps_empty_deinterlace_yuv)
{
    Bytes frame = counted(80, 1);
    for (const int mode : {0, 2, 16, 17}) {
        EXPECT_EQ(tntvt_deinterlace_yuv(frame.data(), frame.data(), 1, 5, 16, 46341, 0, 0, mode), -1);
        EXPECT_EQ(tntvt_deinterlace_yuv(nullptr, nullptr, 0, 0, 0, 0, 0, 0, mode), -1);
    }
    EXPECT_EQ(frame, counted(80, 1));
}

}  // namespace
}  // namespace tintvert::test
