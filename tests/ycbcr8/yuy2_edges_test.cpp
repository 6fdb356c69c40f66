#include <gtest/gtest.h>
#include <sys/mman.h>
#include <tintvert.h>

#include "places.h"

namespace tintvert::test {
namespace {

TEST(Yuy2Edges, averages_round_up)
{
    Bytes src{1, 10, 2, 254, 3, 13, 4, 255}, y(4), cb(1), cr(1);
    YUY2toYV12(src.data(), y.data(), cb.data(), cr.data(), 2, 2, 2, 2);
    EXPECT_EQ(cb, Bytes{12});
    EXPECT_EQ(cr, Bytes{255});
    src = {1, 13, 2, 0, 3, 10, 4, 1};
    YUY2toYV12(src.data(), y.data(), cb.data(), cr.data(), 2, 2, 2, 2);
    EXPECT_EQ(cb, Bytes{12});
    EXPECT_EQ(cr, Bytes{1});
}

TEST(Yuy2Edges, pitches_of_even_width)
{
    Bytes src = places(24), y(22, 0xEE), cb(5, 0xEE), cr(5, 0xEE);
    YUY2toYV12(src.data(), y.data(), cb.data(), cr.data(), 2, 4, 3, 6);
    EXPECT_EQ(y, (Bytes{0,    2,  0xEE, 0xEE, 0xEE, 0xEE, 6,    8,  0xEE, 0xEE, 0xEE,
                        0xEE, 12, 14,   0xEE, 0xEE, 0xEE, 0xEE, 18, 20,   0xEE, 0xEE}));
    EXPECT_EQ(cb, (Bytes{4, 0xEE, 0xEE, 16, 0xEE}));
    EXPECT_EQ(cr, (Bytes{6, 0xEE, 0xEE, 18, 0xEE}));
}

TEST(Yuy2Edges, an_odd_height_takes_a_line_more)
{
    Bytes src = places(8), y(6, 0xEE), cb(2, 0xEE), cr(2, 0xEE);
    YUY2toYV12(src.data(), y.data(), cb.data(), cr.data(), 2, 1, 2, 2);
    EXPECT_EQ(y, (Bytes{0, 2, 4, 6, 0xEE, 0xEE}));
    EXPECT_EQ(cb, (Bytes{3, 0xEE}));
    EXPECT_EQ(cr, (Bytes{5, 0xEE}));
}

// Two groups for 3 pixels. The second pair is at source byte 18, luma byte 5 and chroma byte 1: a pitch of
// 2 for 3 pixels is one short, and half of that rounds down to -1. Its luma and chroma go over those of the
// first pair.
TEST(Yuy2Edges, keeps_drift_of_odd_width)
{
    Bytes src = places(40), y(12, 0xEE), cb(4, 0xEE), cr(4, 0xEE);
    YUY2toYV12(src.data(), y.data(), cb.data(), cr.data(), 3, 4, 4, 2);
    EXPECT_EQ(y, (Bytes{0, 2, 4, 6, 12, 18, 20, 22, 24, 30, 32, 0xEE}));
    EXPECT_EQ(cb, (Bytes{5, 23, 27, 0xEE}));
    EXPECT_EQ(cr, (Bytes{7, 25, 29, 0xEE}));
}

// Distances are `int`: of 0x40000000 pixels the second line of a pair is 2^31 bytes before the first, and the pairs are
// 0 bytes apart; of 0x7FFFFFFF it is 2 bytes before, and each pair is 4 bytes before the last.
TEST(Yuy2Edges, source_pitches_wrap_at_32_bits)
{
    constexpr size_t half = size_t{1} << 31;
    auto* const memory = static_cast<unsigned char*>(
        mmap(nullptr, 2 * half, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0));
    ASSERT_NE(memory, MAP_FAILED);
    unsigned char* const src = memory + half;
    for (int i = 0; i < 64; ++i) memory[i] = static_cast<uint8_t>(100 + i), src[i] = static_cast<uint8_t>(i);
    Bytes y(8), cb(2), cr(2);
    YUY2toYV12(src, y.data(), cb.data(), cr.data(), 2, 4, 0x40000000, 2);
    EXPECT_EQ(y, (Bytes{0, 2, 100, 102, 0, 2, 100, 102}));
    EXPECT_EQ(cb, (Bytes{51, 51}));
    YUY2toYV12(src + 8, y.data(), cb.data(), cr.data(), 2, 4, 0x7FFFFFFF, 2);
    EXPECT_EQ(y, (Bytes{8, 10, 6, 8, 4, 6, 2, 4}));
    EXPECT_EQ(cb, (Bytes{8, 4}));
    munmap(memory, 2 * half);
}

TEST(Yuy2Edges, nothing_to_do)
{
    const int sizes[][2] = {{0, 4}, {4, 0}, {-1, 4}, {4, -1}, {-4, -4}};
    for (const auto& [width, height] : sizes) {
        Bytes src = places(64), out(64, 0xEE);
        YUY2toYV12(src.data(), out.data(), out.data(), out.data(), width, height, 4, 4);
        EXPECT_EQ(out, Bytes(64, 0xEE)) << width << ' ' << height;
    }
}

}  // namespace
}  // namespace tintvert::test
