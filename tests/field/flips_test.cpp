#include <gtest/gtest.h>
#include <tintvert/field.h>

#include <cstdint>
#include <vector>

namespace {

using Bytes = std::vector<unsigned char>;
using Pixels = std::vector<uint32_t>;

TEST(FlipVert, turns_two_frames_and_one)
{
    Bytes src{1, 2, 3, 4, 5, 6}, dst(6);
    tntvt_flip_vert(dst.data(), src.data(), 0, 3, 2);
    EXPECT_EQ(dst, (Bytes{5, 6, 3, 4, 1, 2}));
    tntvt_flip_vert(src.data(), src.data(), 0, 3, 2);
    EXPECT_EQ(src, dst);
    tntvt_flip_vert(src.data(), src.data(), 0, 1, 2);
    tntvt_flip_vert(src.data(), dst.data(), 0, 0, 2);
    tntvt_flip_vert(src.data(), dst.data(), 0, -1, 2);
    EXPECT_EQ(src, dst);
    tntvt_flip_vert(src.data(), &dst[4], 0, 1, 2);
    EXPECT_EQ(src, (Bytes{1, 2, 3, 4, 1, 2}));
}

Bytes placed(unsigned int flags, int keep)
{
    Bytes src{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14}, dst(20, 0xEE);
    tntvt_flip_vert_flags(dst.data(), src.data(), 0, 0, 2, 10, 7, flags, keep);
    return dst;
}

TEST(FlipVertFlags, places_lines)
{
    EXPECT_EQ(placed(0x4000000, 0), (Bytes{0, 0, 8, 9, 10, 11, 12, 13, 14, 0, 0, 0, 1, 2, 3, 4, 5, 6, 7, 0}));
    EXPECT_EQ(placed(0x8000000, 0), (Bytes{0, 8, 9, 10, 11, 12, 13, 14, 0, 0, 0, 1, 2, 3, 4, 5, 6, 7, 0, 0}));
    EXPECT_EQ(placed(0xF1FFFFFF, 0), (Bytes{0, 0, 0, 8, 9, 10, 11, 12, 13, 14, 0, 0, 0, 1, 2, 3, 4, 5, 6, 7}));
    EXPECT_EQ(placed(0x2000000, 0), (Bytes{8, 9, 10, 11, 12, 13, 14, 0, 0, 0, 1, 2, 3, 4, 5, 6, 7, 0, 0, 0}));
    EXPECT_EQ(placed(0x3000000, 0),
              (Bytes{8, 9, 10, 11, 12, 13, 14, 0xEE, 0xEE, 0xEE, 1, 2, 3, 4, 5, 6, 7, 0xEE, 0xEE, 0xEE}));
    EXPECT_EQ(placed(0x1000000, 1),
              (Bytes{0xEE, 0xEE, 0xEE, 8, 9, 10, 11, 12, 13, 14, 0xEE, 0xEE, 0xEE, 1, 2, 3, 4, 5, 6, 7}));
}

TEST(FlipVertFlags, keeps_lines_unplaced_in_place)
{
    const auto turned = [](unsigned int flags, int keep) {
        Bytes frame{1, 2, 3, 4, 11, 12, 13, 14, 21, 22, 23, 24};
        tntvt_flip_vert_flags(frame.data(), frame.data(), 0, 0, 3, 4, 3, flags, keep);
        return frame;
    };
    EXPECT_EQ(turned(0x1000000, 1), (Bytes{21, 22, 23, 4, 11, 12, 13, 14, 1, 2, 3, 4}));
    EXPECT_EQ(turned(0x1000000, 0), (Bytes{21, 22, 23, 4, 11, 12, 13, 14, 0, 2, 3, 4}));
    EXPECT_EQ(turned(0x2000000, 0), (Bytes{21, 22, 23, 0, 11, 12, 13, 14, 1, 2, 3, 0}));
}

TEST(FlipHorz, keeps_mirror_past_the_line)
{
    Pixels src{10, 11, 12, 13, 14, 15, 16, 17, 18}, dst(8);
    const auto bytes = [](Pixels& pixels) { return reinterpret_cast<unsigned char*>(pixels.data()); };
    tntvt_flip_horz(bytes(dst), bytes(src), 4, 2, 16);
    EXPECT_EQ(dst, (Pixels{14, 13, 12, 11, 18, 17, 16, 15}));
    tntvt_flip_horz(bytes(dst), bytes(src), 1, 1, 0);
    EXPECT_EQ(dst[0], 11u);

    Pixels line{10, 11, 12, 13, 14};
    tntvt_flip_horz(bytes(line), bytes(line), 4, 1, 16);
    EXPECT_EQ(line, (Pixels{14, 13, 12, 11, 10}));
    tntvt_flip_horz(bytes(line), bytes(line), 3, 1, 16);
    EXPECT_EQ(line, (Pixels{11, 13, 12, 14, 10}));
    tntvt_flip_horz(bytes(line), bytes(line), 1, 1, 16);
    EXPECT_EQ(line, (Pixels{11, 13, 12, 14, 10}));
}

}  // namespace
