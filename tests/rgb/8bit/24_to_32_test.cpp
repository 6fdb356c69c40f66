#include <gtest/gtest.h>
#include <tintvert.h>

#include <vector>

namespace {

using Bytes = std::vector<unsigned char>;

constexpr long width = 3, height = 2;

// Bytes 1, 2, 3, ... in `count` bytes of room.
Bytes frame24(size_t count = width * 3 * height)
{
    Bytes frame(count, 0xEE);
    for (size_t i = 0; i < width * 3 * height; ++i) frame[i] = static_cast<unsigned char>(i + 1);
    return frame;
}

constexpr unsigned char A = 255, none = 0xEE;

TEST(From24To32, slack_in_front_of_the_pixels)
{
    for (auto* routine :
         {tntvt_rgb24_rgba32_inplace, tntvt_rgb24_rgba32, tntvt_rgb24_rgb32_inplace, tntvt_rgb24_rgb32}) {
        Bytes src = frame24(), dst(12, none);
        routine(dst.data(), 6, src.data(), 5, 1, -2);
        EXPECT_EQ(dst, (Bytes{none, none, 3, 4, 5, A, none, none, 8, 9, 10, A}));
    }
}

TEST(From24To32, reversed)
{
    for (auto* routine : {tntvt_rgb24_bgra32_inplace, tntvt_rgb24_bgr32_inplace}) {
        Bytes src = frame24(), dst(8, none);
        routine(dst.data(), 4, src.data(), 3, 1, -2);
        EXPECT_EQ(dst, (Bytes{3, 2, 1, A, 6, 5, 4, A}));
    }
}

TEST(From24To32, keeps_ascending_writes_in_place)
{
    for (auto* routine :
         {tntvt_rgb24_rgba32_inplace, tntvt_rgb24_rgba32, tntvt_rgb24_rgb32_inplace, tntvt_rgb24_rgb32}) {
        Bytes frame = frame24(width * 4 * height);
        routine(frame.data(), 12, frame.data(), 9, width, height);
        EXPECT_EQ(frame, (Bytes{1,  2,  3,  A, 4,  4,  4,  A, 7,  8,  7,  A,  //
                                10, 11, 12, A, 13, 14, 15, A, 16, 17, 18, A}));
    }
}

TEST(From24To32, keeps_descending_writes_in_place)
{
    for (auto* routine : {tntvt_rgb24_bgra32_inplace, tntvt_rgb24_bgr32_inplace}) {
        Bytes frame = frame24(width * 4 * height);
        routine(frame.data(), 12, frame.data(), 9, width, height);
        EXPECT_EQ(frame, (Bytes{1,  2,  1,  A, 5,  5,  4,  A, 9,  8,  7,  A,  //
                                12, 11, 10, A, 15, 14, 13, A, 18, 17, 16, A}));
    }
}

TEST(From24To32, alpha_first_in_place)
{
    Bytes frame = frame24(width * 4 * height);
    tntvt_macbgr24_macargb32_inplace(frame.data(), 12, frame.data(), 9, width, height);
    EXPECT_EQ(frame, (Bytes{A, 1,  2,  3,  A, 4,  5,  6,  A, 7,  8,  9,  //
                            A, 10, 11, 12, A, 13, 14, 15, A, 16, 17, 18}));
    const Bytes before = frame;
    tntvt_macbgr24_macargb32_inplace(frame.data(), 12, frame.data(), 9, width, -height);
    EXPECT_EQ(frame, before);
}

// Two lines of one pixel. The written lines end at `dst` and 4 bytes on, the lines read 3 bytes on from
// `src` and at `src`.
TEST(From24To32, keeps_crossed_pointers)
{
    Bytes src = frame24(), dst(8, none);
    tntvt_rgba24_rgb32_invert(src.data() + 3, 4, dst.data() + 4, 3, 1, 2);
    EXPECT_EQ(dst, (Bytes{4, 5, 6, A, 1, 2, 3, A}));

    // At a height of -2 they end 9 and 12 bytes before `src`.
    Bytes negative(8, none);
    tntvt_rgba24_rgb32_invert(src.data() + 18, 4, negative.data() + 4, 3, 1, -2);
    EXPECT_EQ(negative, (Bytes{7, 8, 9, A, 4, 5, 6, A}));
}

}  // namespace
