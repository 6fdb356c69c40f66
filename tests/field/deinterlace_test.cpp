#include <gtest/gtest.h>
#include <tintvert/field.h>

#include <vector>

namespace {

using Bytes = std::vector<unsigned char>;

// Lines of one element of 8 bytes: three channels of one value, then 1, 2, 3, 4, 5.
Bytes frame(const Bytes& lines)
{
    Bytes result;
    for (const unsigned char line : lines) result.insert(result.end(), {line, line, line, 1, 2, 3, 4, 5});
    return result;
}

Bytes element(unsigned char value) { return {value, value, value, 0, 0, 0, 0, 0}; }

Bytes line_of(const Bytes& frame_bytes, size_t line)
{
    return {frame_bytes.begin() + static_cast<long>(line * 8), frame_bytes.begin() + static_cast<long>(line * 8 + 8)};
}

Bytes deinterlaced(int mode, int threshold, int softness, const Bytes& lines)
{
    Bytes src = frame(lines), dst(src.size(), 0xEE);
    EXPECT_EQ(tntvt_deinterlace_rgb(dst.data(), src.data(), 1, static_cast<unsigned int>(lines.size()), 8, threshold,
                                    softness, 0, mode),
              0);
    return dst;
}

const Bytes comb{100, 100, 100, 200, 100};

TEST(Deinterlace, keeps_eight_byte_elements)
{
    EXPECT_EQ(line_of(deinterlaced(2, 300, 0, comb), 3), element(150));
    EXPECT_EQ(line_of(deinterlaced(0, 300, 0, comb), 3), element(100));
    EXPECT_EQ(line_of(deinterlaced(16, 300, 0, comb), 3), element(100));
}

// The measure is 10 x 100 x 100: 316 squared is 99856 and 317 squared 100489.
TEST(Deinterlace, replaces_above_the_threshold_only)
{
    EXPECT_EQ(line_of(deinterlaced(2, 316, 0, comb), 3), element(150));
    EXPECT_EQ(deinterlaced(2, 317, 0, comb), frame(comb));
    EXPECT_EQ(deinterlaced(2, 0, 0, {7, 7, 7, 7}), frame({7, 7, 7, 7}));
    EXPECT_EQ(deinterlaced(2, 0, 75, {7, 7, 7, 7}), frame({7, 7, 7, 7}));
}

// a = 0, b = 100, c = 200: with K = 0 the measure is 10 x 20000, between 447 and 448 squared. With K = 5500,
// where 75 is capped, it is 7096 + 42580 + 21290 = 70966, between 266 and 267 squared, and with K = 100 it is
// 198 + 1188 + 594 = 1980, between 44 and 45 squared.
TEST(Deinterlace, counts_less_where_neighbours_differ)
{
    const Bytes slope{0, 0, 0, 200, 100};
    EXPECT_EQ(line_of(deinterlaced(18, 447, 0, slope), 3), element(50));
    EXPECT_EQ(deinterlaced(18, 448, 0, slope), frame(slope));
    EXPECT_EQ(line_of(deinterlaced(18, 266, 75, slope), 3), element(50));
    EXPECT_EQ(deinterlaced(18, 267, 75, slope), frame(slope));
    EXPECT_EQ(line_of(deinterlaced(18, 44, 10, slope), 3), element(50));
    EXPECT_EQ(deinterlaced(18, 45, 10, slope), frame(slope));
}

TEST(Deinterlace, keeps_plain_copy_of_mode_17) { EXPECT_EQ(deinterlaced(17, 0, 0, comb), frame(comb)); }

TEST(Deinterlace, keeps_next_line_for_first_two)
{
    // Line 1 differs from line 2, and line 0 is not asked.
    EXPECT_EQ(line_of(deinterlaced(2, 300, 0, {200, 200, 100, 100}), 1), element(150));
    // The second of two lines has itself, and so has a single line.
    EXPECT_EQ(line_of(deinterlaced(2, 300, 0, {100, 200}), 0), element(100 * 3 / 2));
    EXPECT_EQ(line_of(deinterlaced(2, 300, 0, {100, 200}), 1), frame({200}));
    EXPECT_EQ(deinterlaced(2, 0, 0, {100}), frame({100}));
    // The last line of three has the one above.
    EXPECT_EQ(line_of(deinterlaced(2, 300, 0, {200, 200, 100}), 2), element(150));
}

TEST(Deinterlace, keeps_changed_line_above)
{
    // Line 3 becomes 150, and line 4 has that above; with two frames it has 200.
    const Bytes lines{100, 100, 100, 200, 100, 130};
    Bytes one = frame(lines);
    EXPECT_EQ(tntvt_deinterlace_rgb(one.data(), one.data(), 1, 6, 8, 120, 0, 0, 2), 0);
    EXPECT_EQ(line_of(one, 3), element(150));
    EXPECT_EQ(line_of(one, 4), element((150 + 130 + 200) / 4));
    EXPECT_EQ(line_of(deinterlaced(2, 120, 0, lines), 4), element((200 + 130 + 200) / 4));
}

// 46341 squared is 2147488281, which is -2147479015; 65536 squared is 0.
TEST(Deinterlace, keeps_wrapping_squares)
{
    EXPECT_EQ(deinterlaced(2, 300, 46341, comb), frame(comb));
    EXPECT_EQ(line_of(deinterlaced(2, 300, 65536, comb), 3), element(150));
    EXPECT_EQ(line_of(deinterlaced(2, 46341, 0, {7, 7, 7}), 1), element(7));
}

TEST(Deinterlace, keeps_empty_deinterlace_yuv)
{
    EXPECT_EQ(tntvt_deinterlace_yuv(nullptr, nullptr, 9, 9, 9, 9, 9, 9, 2), -1);
}

}  // namespace
