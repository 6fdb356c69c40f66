#include <gtest/gtest.h>
#include <tintvert.h>

#include <algorithm>
#include <csignal>

#include "places.h"
#include "support/sanitized.h"
#include "support/sparse.h"

namespace tintvert::test {
namespace {

Bytes to_2vuy(decltype(&tntvt_i420_2vuy) routine, Bytes src, unsigned int width, unsigned int height,
              unsigned int stride, size_t bytes)
{
    Bytes dst(bytes, 0xEE);
    routine(dst.data(), src.data(), width, height, stride);
    return dst;
}

void yv12_progressive(unsigned char* dst, unsigned char* src, unsigned int width, unsigned int height,
                      unsigned int stride)
{
    tntvt_yv12_2vuy(dst, src, width, height, stride, 0);
}

void yv12_interlaced(unsigned char* dst, unsigned char* src, unsigned int width, unsigned int height,
                     unsigned int stride)
{
    tntvt_yv12_2vuy(dst, src, width, height, stride, 1);
}

TEST(PlanesEdges, counts_of_luma_make_whole_groups)
{
    const Bytes groups{50, 0, 60, 1, 51, 2, 61, 3, 52, 4, 62, 5};
    for (const unsigned int count : {0u, 1u, 2u, 3u, 4u, 5u}) {
        const unsigned int pairs = count / 2;
        Bytes y = places(6), cb{50, 51, 52}, cr{60, 61, 62}, dst(12, 0xEE), expected = groups;
        std::fill(expected.begin() + 4 * pairs, expected.end(), static_cast<unsigned char>(0xEE));
        tntvt_planar_2vuy(dst.data(), y.data(), cb.data(), cr.data(), 1, 2, 3, count);
        EXPECT_EQ(dst, expected) << count;

        Bytes src = groups, y_out(6, 0xEE), cb_out(3, 0xEE), cr_out(3, 0xEE);
        std::fill(y.begin() + 2 * pairs, y.end(), static_cast<unsigned char>(0xEE));
        std::fill(cb.begin() + pairs, cb.end(), static_cast<unsigned char>(0xEE));
        std::fill(cr.begin() + pairs, cr.end(), static_cast<unsigned char>(0xEE));
        tntvt_2vuy_planar(y_out.data(), cb_out.data(), cr_out.data(), 9, 8, 7, src.data(), count);
        EXPECT_EQ(y_out, y) << count;
        EXPECT_EQ(cb_out, cb) << count;
        EXPECT_EQ(cr_out, cr) << count;
    }
}

// What the three numbers are changes nothing.
TEST(PlanesEdges, keeps_planes_without_lines)
{
    for (const unsigned int number : {0u, 1u, 4u, 0xFFFFFFFFu}) {
        Bytes y1{1, 2, 3, 4}, cb1{5, 6}, cr1{7, 8}, y2{11, 12, 13, 14}, cb2{15, 16}, cr2{17, 18}, dst(18, 0xEE);
        tntvt_planarfields_2vuy(dst.data(), y1.data(), cb1.data(), cr1.data(), y2.data(), cb2.data(), cr2.data(),
                                number, number, number, 1, 4);
        EXPECT_EQ(dst, (Bytes{5, 1, 7, 2, 15, 11, 17, 12, 6, 3, 8, 4, 16, 13, 18, 14, 0xEE, 0xEE}));
    }
}

TEST(PlanesEdges, pairs_of_field_lines)
{
    const auto pairs = [](unsigned int groups, unsigned int total) {
        Bytes plane(64, 1), dst(200, 0xEE);
        tntvt_planarfields_2vuy(dst.data(), plane.data(), plane.data(), plane.data(), plane.data(), plane.data(),
                                plane.data(), 0, 0, 0, groups, total);
        size_t bytes = 0;
        while (bytes < dst.size() && dst[bytes] != 0xEE) ++bytes;
        EXPECT_EQ(bytes % (8 * size_t{groups}), 0u);
        return bytes / 8 / groups;
    };
    EXPECT_EQ(pairs(3, 18), 3u);
    EXPECT_EQ(pairs(3, 17), 2u);  // 17 >> 1 is 8
    EXPECT_EQ(pairs(3, 6), 1u);
    EXPECT_EQ(pairs(3, 5), 0u);
    EXPECT_EQ(pairs(1, 1), 0u);
    EXPECT_EQ(pairs(1, 0), 0u);
    EXPECT_EQ(pairs(0x80000000, 0xFFFFFFFF), 0u);  // unsigned: 0x7FFFFFFF / 0x80000000
    EXPECT_EQ(pairs(0xFFFFFFFF, 0xFFFFFFFE), 0u);
}

// Even with nothing to do: the division comes first.
TEST(PlanesEdgesDeathTest, keeps_fault_of_no_groups)
{
#ifdef TINTVERT_TEST_SANITIZED
    GTEST_SKIP() << "a sanitizer takes the signal";
#else
    for (const unsigned int total : {0u, 8u}) {
        Bytes plane(64), dst(64);
        EXPECT_EXIT(tntvt_planarfields_2vuy(dst.data(), plane.data(), plane.data(), plane.data(), plane.data(),
                                            plane.data(), plane.data(), 0, 0, 0, 0, total),
                    testing::KilledBySignal(SIGFPE), "");
    }
#endif
}

TEST(PlanesEdges, strides_of_420_that_mean_twice_the_width)
{
    for (const unsigned int stride : {0u, 0xFFFFFFFFu, 8u}) {
        EXPECT_EQ(to_2vuy(tntvt_i420_2vuy, places(12), 4, 2, stride, 18),
                  (Bytes{8, 0, 10, 1, 9, 2, 11, 3, 8, 4, 10, 5, 9, 6, 11, 7, 0xEE, 0xEE}));
        EXPECT_EQ(to_2vuy(yv12_progressive, places(12), 4, 2, stride, 18),
                  (Bytes{10, 0, 8, 1, 11, 2, 9, 3, 10, 4, 8, 5, 11, 6, 9, 7, 0xEE, 0xEE}));
        EXPECT_EQ(to_2vuy(yv12_interlaced, places(14), 4, 2, stride, 18),
                  (Bytes{10, 0, 8, 1, 11, 2, 9, 3, 12, 8, 10, 9, 13, 10, 11, 11, 0xEE, 0xEE}));
        Bytes src = places(16), dst(12, 0xEE);
        tntvt_2vuy_i420(dst.data(), src.data(), 4, 2, stride);
        EXPECT_EQ(dst, (Bytes{1, 3, 5, 7, 9, 11, 13, 15, 0, 4, 2, 6}));
        tntvt_2vuy_yv12(dst.data(), src.data(), 4, 2, stride);
        EXPECT_EQ(dst, (Bytes{1, 3, 5, 7, 9, 11, 13, 15, 2, 6, 0, 4}));
    }
}

TEST(PlanesEdges, nothing_to_do)
{
    for (const auto routine : {tntvt_i420_2vuy, yv12_progressive, yv12_interlaced}) {
        for (const unsigned int stride : {0u, 8u}) {
            EXPECT_EQ(to_2vuy(routine, places(64), 4, 0, stride, 16), Bytes(16, 0xEE));
            EXPECT_EQ(to_2vuy(routine, places(64), 0, 4, stride, 16), Bytes(16, 0xEE));
        }
    }
    for (const auto routine : {tntvt_2vuy_i420, tntvt_2vuy_yv12}) {
        Bytes src = places(64), dst(16, 0xEE);
        routine(dst.data(), src.data(), 4, 0, 8);
        routine(dst.data(), src.data(), 0, 4, 0);
        routine(dst.data(), src.data(), 0x80000000, 4, 0);  // twice the width is 0 in 32 bits
        routine(dst.data(), src.data(), 0x80000000, 4, 0xFFFFFFFF);
        EXPECT_EQ(dst, Bytes(16, 0xEE));
    }
}

TEST(PlanesEdges, keeps_long_luma_lines_of_odd_width)
{
    EXPECT_EQ(to_2vuy(tntvt_i420_2vuy, places(16), 3, 2, 8, 16),
              (Bytes{6, 0, 7, 1, 7, 2, 8, 3, 6, 4, 7, 5, 7, 6, 8, 7}));
    EXPECT_EQ(to_2vuy(yv12_progressive, places(16), 3, 2, 8, 16),
              (Bytes{7, 0, 6, 1, 8, 2, 7, 3, 7, 4, 6, 5, 8, 6, 7, 7}));
}

// The second chroma line of 3 pixels begins at sample 3 / 2.
TEST(PlanesEdges, chroma_lines_of_odd_width)
{
    const Bytes dst = to_2vuy(tntvt_i420_2vuy, places(24), 3, 3, 8, 24);
    EXPECT_EQ(Bytes(dst.begin() + 16, dst.end()), (Bytes{10, 8, 12, 9, 11, 10, 13, 11}));
}

// Lines of 8 and rows in the order of the output: luma line, chroma line.
constexpr unsigned int interlaced_lines[][2] = {{0, 0}, {2, 1}, {3, 1}, {2, 0}, {3, 2}, {4, 1},
                                                {5, 3}, {6, 2}, {7, 4}, {8, 3}, {9, 5}, {10, 4}};

TEST(PlanesEdges, keeps_interlaced_line_order)
{
    const Bytes dst = to_2vuy(yv12_interlaced, places(8 * 12 + 2 * 4 * 6), 8, 12, 0, 16 * 12);
    for (unsigned int r = 0; r < 12; ++r) {
        const auto [luma_line, chroma_line] = interlaced_lines[r];
        Bytes line;
        for (unsigned int x = 0; x < 8; x += 2) {
            line.push_back(static_cast<unsigned char>(120 + chroma_line * 4 + x / 2));
            line.push_back(static_cast<unsigned char>(luma_line * 8 + x));
            line.push_back(static_cast<unsigned char>(96 + chroma_line * 4 + x / 2));
            line.push_back(static_cast<unsigned char>(luma_line * 8 + x + 1));
        }
        EXPECT_EQ(Bytes(dst.begin() + 16 * r, dst.begin() + 16 * (r + 1)), line) << "line " << r;
    }
}

TEST(PlanesEdges, interlaced_lines_further_down)
{
    constexpr unsigned int width = 2, height = 60;
    const Bytes dst = to_2vuy(yv12_interlaced, places(width * height * 3 / 2), width, height, 0, 2 * width * height);
    for (unsigned int r = 4; r < height; ++r) {
        const unsigned int luma = (r - 1) * width, chroma = r % 2 == 0 ? r / 2 : (r - 1) / 2 - 1;
        EXPECT_EQ(dst[4 * r], 150 + chroma) << r;
        EXPECT_EQ(dst[4 * r + 1], luma) << r;
        EXPECT_EQ(dst[4 * r + 2], 120 + chroma) << r;
        EXPECT_EQ(dst[4 * r + 3], luma + 1) << r;
    }
}

// Luma line 1 changes nothing, nor does the last one of 5 lines. Of 4 lines the last is read, by line 2.
TEST(PlanesEdges, luma_lines_that_are_not_read)
{
    const auto changes = [](unsigned int height, unsigned int line) {
        Bytes src(4 * height * 3 / 2 + 8, 7);
        const Bytes before = to_2vuy(yv12_interlaced, src, 4, height, 0, 8 * height);
        for (unsigned int x = 0; x < 4; ++x) src[4 * line + x] = 99;
        return to_2vuy(yv12_interlaced, src, 4, height, 0, 8 * height) != before;
    };
    for (unsigned int height = 4; height < 12; ++height) {
        EXPECT_FALSE(changes(height, 1)) << height;
        EXPECT_EQ(changes(height, height - 1), height == 4) << height;
        for (unsigned int line = 2; line < height - 1; ++line)
            EXPECT_TRUE(changes(height, line)) << height << ' ' << line;
    }
}

// Even lines go on where the line before ended, after 4 samples; odd lines start at a multiple of 3. The
// chroma offsets are 0, 3 >> 1, 3 / 2 and 3 / 2 - 1.
TEST(PlanesEdges, interlaced_lines_of_odd_width)
{
    EXPECT_EQ(to_2vuy(yv12_interlaced, places(32), 3, 4, 8, 32),
              (Bytes{15, 0,  12, 1,  16, 2,  13, 3,  16, 6, 13, 7, 17, 8, 14, 9,
                     16, 10, 13, 11, 17, 12, 14, 13, 15, 6, 12, 7, 16, 8, 13, 9}));
}

TEST(PlanesEdges, any_other_value_than_zero_is_interlaced)
{
    for (const int interlaced : {1, 2, 0x80, 0xFF}) {
        Bytes src = places(64), dst(64, 0xEE);
        tntvt_yv12_2vuy(dst.data(), src.data(), 4, 6, 0, static_cast<unsigned char>(interlaced));
        EXPECT_EQ(dst[8 + 1], 8) << interlaced;
    }
}

// Output lines 2 GiB apart: the third is found at 2^32, which is 0.
TEST(PlanesEdges, output_lines_wrap_at_32_bits)
{
    const tintvert::test::Sparse memory;
    if (!memory) GTEST_SKIP() << "no 4 GiB of address space";
    Bytes src = places(16);
    uint8_t* const dst = memory.data();
    tntvt_i420_2vuy(dst, src.data(), 2, 3, 0x80000000);
    EXPECT_EQ(Bytes(dst, dst + 4), (Bytes{7, 4, 8, 5}));
    EXPECT_EQ(Bytes(dst + 0x80000000, dst + 0x80000004), (Bytes{6, 2, 7, 3}));
    EXPECT_EQ(Bytes(dst + 0x100000000, dst + 0x100000004), Bytes(4, 0));
    tntvt_yv12_2vuy(dst, src.data(), 2, 2, 0xFFFFFFFC, 1);  // no stride of -4
    EXPECT_EQ(Bytes(dst + 0xFFFFFFFC, dst + 0x100000000), (Bytes{6, 4, 5, 5}));
}

TEST(PlanesEdges, there_and_back_keeps_luma_and_even_chroma)
{
    const Bytes frame{50, 1, 60, 2, 51, 3, 61, 4, 70, 5, 80, 6, 71, 7, 81, 8};
    const Bytes expected{50, 1, 60, 2, 51, 3, 61, 4, 50, 5, 60, 6, 51, 7, 61, 8};
    Bytes src = frame, planes(12), back(16);
    tntvt_2vuy_i420(planes.data(), src.data(), 4, 2, 0);
    tntvt_i420_2vuy(back.data(), planes.data(), 4, 2, 0);
    EXPECT_EQ(back, expected);
    tntvt_2vuy_yv12(planes.data(), src.data(), 4, 2, 0);
    tntvt_yv12_2vuy(back.data(), planes.data(), 4, 2, 0, 0);
    EXPECT_EQ(back, expected);
}

// Chroma of lines 0 and 2 goes on without a gap; lines 1 and 3 give luma only.
TEST(PlanesEdges, chroma_of_even_lines)
{
    Bytes src = places(16), dst(12, 0xEE);
    tntvt_2vuy_i420(dst.data(), src.data(), 2, 4, 4);
    EXPECT_EQ(dst, (Bytes{1, 3, 5, 7, 9, 11, 13, 15, 0, 8, 2, 10}));
}

// Lines of 6 bytes are two groups each, the second running into the next line. Luma of the second line ends on
// top of the chroma, all but its last byte.
TEST(PlanesEdges, keeps_slack_as_pixels)
{
    Bytes src = places(14), dst(10, 0xEE);
    tntvt_2vuy_i420(dst.data(), src.data(), 3, 2, 6);
    EXPECT_EQ(dst, (Bytes{1, 3, 5, 7, 7, 9, 11, 13, 6, 0xEE}));
    // No pixels and a group of slack: luma, Cb and Cr all begin at byte 0.
    dst.assign(4, 0xEE);
    tntvt_2vuy_i420(dst.data(), src.data(), 0, 1, 4);
    EXPECT_EQ(dst, (Bytes{2, 3, 0xEE, 0xEE}));
}

}  // namespace
}  // namespace tintvert::test
