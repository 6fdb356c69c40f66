#include <gtest/gtest.h>
#include <tintvert.h>

#include <numeric>
#include <vector>

namespace {

using Bytes = std::vector<unsigned char>;

Bytes counting(size_t count, int first = 0)
{
    Bytes result(count);
    std::iota(result.begin(), result.end(), static_cast<unsigned char>(first));
    return result;
}

TEST(Planar, keeps_planes_without_lines)
{
    Bytes y{1, 2, 3, 4}, cb{101, 102}, cr{201, 202}, dst(8, 0xEE);
    tntvt_planar_2vuy(dst.data(), y.data(), cb.data(), cr.data(), 7, 8, 9, 4);
    EXPECT_EQ(dst, (Bytes{101, 1, 201, 2, 102, 3, 202, 4}));
    Bytes y2(4), cb2(2), cr2(2);
    tntvt_2vuy_planar(y2.data(), cb2.data(), cr2.data(), 7, 8, 9, dst.data(), 4);
    EXPECT_EQ(y2, y);
    EXPECT_EQ(cb2, cb);
    EXPECT_EQ(cr2, cr);
}

TEST(Planar, odd_sample_is_dropped)
{
    Bytes y{1, 2, 3, 4}, cb{101, 102}, cr{201, 202}, dst(8, 0xEE);
    tntvt_planar_2vuy(dst.data(), y.data(), cb.data(), cr.data(), 0, 0, 0, 1);
    EXPECT_EQ(dst, Bytes(8, 0xEE));
    tntvt_planar_2vuy(dst.data(), y.data(), cb.data(), cr.data(), 0, 0, 0, 3);
    EXPECT_EQ(dst, (Bytes{101, 1, 201, 2, 0xEE, 0xEE, 0xEE, 0xEE}));
}

// Two groups a line; five groups make one pair of lines.
TEST(PlanarFields, lines_alternate)
{
    Bytes y1 = counting(8), cb1 = counting(4, 20), cr1 = counting(4, 30);
    Bytes y2 = counting(8, 100), cb2 = counting(4, 120), cr2 = counting(4, 130);
    const auto weave = [&](unsigned int groups, unsigned int total) {
        Bytes dst(32, 0xEE);
        tntvt_planarfields_2vuy(dst.data(), y1.data(), cb1.data(), cr1.data(), y2.data(), cb2.data(), cr2.data(), 1, 2,
                                3, groups, total);
        return dst;
    };
    EXPECT_EQ(weave(2, 8), (Bytes{20, 0, 30, 1, 21, 2, 31, 3, 120, 100, 130, 101, 121, 102, 131, 103,
                                  22, 4, 32, 5, 23, 6, 33, 7, 122, 104, 132, 105, 123, 106, 133, 107}));
    const Bytes one_pair = weave(2, 7);
    EXPECT_EQ(one_pair[15], 103);
    EXPECT_EQ(one_pair[16], 0xEE);
    EXPECT_EQ(weave(2, 3), Bytes(32, 0xEE));
}

TEST(I420, chroma_line_serves_two_lines)
{
    Bytes src = counting(12), dst(16, 0xEE);
    for (const unsigned int stride : {0u, 0xFFFFFFFFu, 8u}) {
        dst.assign(16, 0xEE);
        tntvt_i420_2vuy(dst.data(), src.data(), 4, 2, stride);
        EXPECT_EQ(dst, (Bytes{8, 0, 10, 1, 9, 2, 11, 3, 8, 4, 10, 5, 9, 6, 11, 7}));
    }
    tntvt_yv12_2vuy(dst.data(), src.data(), 4, 2, 0, 0);
    EXPECT_EQ(dst, (Bytes{10, 0, 8, 1, 11, 2, 9, 3, 10, 4, 8, 5, 11, 6, 9, 7}));
}

TEST(I420, keeps_long_luma_lines_of_odd_width)
{
    Bytes src = counting(16), dst(20, 0xEE);
    tntvt_i420_2vuy(dst.data(), src.data(), 3, 2, 10);
    EXPECT_EQ(dst, (Bytes{6, 0, 7, 1, 7, 2, 8, 3, 0xEE, 0xEE, 6, 4, 7, 5, 7, 6, 8, 7, 0xEE, 0xEE}));
}

// Every sample shows its line: luma lines 0 to 11, chroma lines from 100 (Cr) and 200 (Cb).
TEST(Yv12, keeps_interlaced_line_order)
{
    constexpr int width = 8, height = 12;
    Bytes src;
    for (int line = 0; line < height; ++line) src.insert(src.end(), width, static_cast<unsigned char>(line));
    for (const int plane : {100, 200})
        for (int line = 0; line < height / 2; ++line)
            src.insert(src.end(), width / 2, static_cast<unsigned char>(plane + line));
    Bytes dst(2 * width * height), luma, cb, cr;
    tntvt_yv12_2vuy(dst.data(), src.data(), width, height, 0, 1);
    for (size_t line = 0; line < height; ++line) {
        cb.push_back(dst[line * 16 + 12]);
        luma.push_back(dst[line * 16 + 15]);
        cr.push_back(dst[line * 16 + 14]);
    }
    EXPECT_EQ(luma, (Bytes{0, 2, 3, 2, 3, 4, 5, 6, 7, 8, 9, 10}));
    EXPECT_EQ(cr, (Bytes{100, 101, 101, 100, 102, 101, 103, 102, 104, 103, 105, 104}));
    EXPECT_EQ(cb, (Bytes{200, 201, 201, 200, 202, 201, 203, 202, 204, 203, 205, 204}));
}

TEST(To420, odd_lines_lose_their_chroma)
{
    Bytes src{50, 1, 60, 2, 51, 3, 61, 4, 70, 5, 80, 6, 71, 7, 81, 8}, dst(12);
    tntvt_2vuy_i420(dst.data(), src.data(), 4, 2, 0);
    EXPECT_EQ(dst, (Bytes{1, 2, 3, 4, 5, 6, 7, 8, 50, 51, 60, 61}));
    tntvt_2vuy_yv12(dst.data(), src.data(), 4, 2, 0xFFFFFFFF);
    EXPECT_EQ(dst, (Bytes{1, 2, 3, 4, 5, 6, 7, 8, 60, 61, 50, 51}));
}

// Two pixels and a group of slack: four luma bytes a line, those of the second line on top of the chroma.
TEST(To420, keeps_slack_as_pixels)
{
    Bytes src{50, 1, 60, 2, 51, 3, 61, 4, 70, 5, 80, 6, 71, 7, 81, 8}, dst(10, 0xEE);
    tntvt_2vuy_i420(dst.data(), src.data(), 2, 2, 8);
    EXPECT_EQ(dst, (Bytes{1, 2, 3, 4, 5, 6, 7, 8, 0xEE, 0xEE}));
}

// Both chroma planes of a single line of 2 pixels begin at byte 2. The second group's luma goes over the first
// group's chroma, and its own chroma, Cb and then Cr, over its second luma.
TEST(To420, chroma_of_a_group_is_stored_after_its_luma)
{
    Bytes src{50, 1, 60, 2, 51, 3, 61, 4}, dst(6, 0xEE);
    tntvt_2vuy_i420(dst.data(), src.data(), 2, 1, 8);
    EXPECT_EQ(dst, (Bytes{1, 2, 3, 61, 0xEE, 0xEE}));
    tntvt_2vuy_yv12(dst.data(), src.data(), 2, 1, 8);
    EXPECT_EQ(dst, (Bytes{1, 2, 3, 61, 0xEE, 0xEE}));
}

TEST(Yuy2ToYv12, chroma_is_averaged_and_halves_go_up)
{
    Bytes src{1, 10, 2, 20, 3, 13, 4, 20}, y(4), cb(1), cr(1);
    YUY2toYV12(src.data(), y.data(), cb.data(), cr.data(), 2, 2, 2, 2);
    EXPECT_EQ(y, (Bytes{1, 2, 3, 4}));
    EXPECT_EQ(cb, Bytes{12});
    EXPECT_EQ(cr, Bytes{20});
}

// One group a line, lines of 8 bytes: the second pair is read from byte 18 on instead of 16, and its luma goes
// to byte 5 on instead of 4.
TEST(Yuy2ToYv12, keeps_drift_of_odd_width)
{
    Bytes src = counting(32), y(16, 0xEE), cb(4, 0xEE), cr(4, 0xEE);
    YUY2toYV12(src.data(), y.data(), cb.data(), cr.data(), 1, 3, 4, 2);
    EXPECT_EQ(y, (Bytes{0, 2, 8, 10, 0xEE, 18, 20, 26, 28, 0xEE, 0xEE, 0xEE, 0xEE, 0xEE, 0xEE, 0xEE}));
    EXPECT_EQ(cb, (Bytes{5, 23, 0xEE, 0xEE}));
    EXPECT_EQ(cr, (Bytes{7, 25, 0xEE, 0xEE}));
}

// A `dstPitch` 3 below the width moves chroma back by 2 from the end of its groups.
TEST(Yuy2ToYv12, narrow_pitch_shifts_arithmetically)
{
    Bytes src = counting(64), y(24, 0xEE), cb(8, 0xEE), cr(8, 0xEE);
    YUY2toYV12(src.data(), y.data(), cb.data(), cr.data(), 8, 4, 8, 5);
    EXPECT_EQ(cb, (Bytes{9, 13, 41, 45, 49, 53, 0xEE, 0xEE}));
}

}  // namespace
