#include "frame/walk.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace tintvert::test {
namespace {

using Places = std::vector<std::pair<long, long>>;  // offsets of (dst, src), in the order of the walk

// A pixel of 3 bytes in and 4 bytes out that notes its place.
struct Notes {
    static constexpr long src_bytes = 3, dst_bytes = 4;
    Places* places;
    const uint8_t *dst_base, *src_base;
    void pixel(uint8_t* dst, const uint8_t* src) { places->emplace_back(dst - dst_base, src - src_base); }
};

struct Buffers {
    uint8_t dst[400], src[400];
    uint8_t *dst_base = dst + 200, *src_base = src + 200;
};

Places forward(long width, long lines, long dst_stride, long src_stride)
{
    Buffers at;
    Places places;
    walk_forward({at.dst_base, dst_stride, at.src_base, src_stride}, width, lines,
                 Notes{&places, at.dst_base, at.src_base});
    return places;
}

Places backward(long width, long lines, long dst_stride, long src_stride)
{
    Buffers at;
    Places places;
    walk_backward({at.dst_base, dst_stride, at.src_base, src_stride}, width, lines,
                  Notes{&places, at.dst_base, at.src_base});
    return places;
}

TEST(WalkForward, begins_a_line_at_the_start_of_its_stride)
{
    EXPECT_EQ(forward(3, 2, 20, 11), (Places{{0, 0}, {4, 3}, {8, 6}, {20, 11}, {24, 14}, {28, 17}}));
}

TEST(WalkForward, takes_strides_as_given)
{
    EXPECT_EQ(forward(2, 3, -8, 0), (Places{{0, 0}, {4, 3}, {-8, 0}, {-4, 3}, {-16, 0}, {-12, 3}}));
    EXPECT_EQ(forward(2, 2, 1, 2), (Places{{0, 0}, {4, 3}, {1, 2}, {5, 5}}));
}

TEST(WalkBackward, ends_a_line_at_the_end_of_its_stride)
{
    EXPECT_EQ(backward(3, 2, 20, 11), (Places{{36, 19}, {32, 16}, {28, 13}, {16, 8}, {12, 5}, {8, 2}}));
}

TEST(WalkBackward, takes_strides_as_given)
{
    EXPECT_EQ(backward(2, 2, -8, 0), (Places{{-20, -3}, {-24, -6}, {-12, -3}, {-16, -6}}));
}

TEST(Walks, do_nothing_without_pixels)
{
    for (const auto& [width, lines] : {std::pair{0L, 3L}, std::pair{-1L, 3L}, std::pair{3L, 0L}, std::pair{3L, -1L}}) {
        EXPECT_EQ(forward(width, lines, 20, 11), Places{});
        EXPECT_EQ(backward(width, lines, 20, 11), Places{});
    }
}

struct CopyByte {
    static constexpr long src_bytes = 1, dst_bytes = 1;
    static void pixel(uint8_t* dst, const uint8_t* src) { *dst = *src; }
};

TEST(Walks, leave_the_slack_alone)
{
    std::vector<uint8_t> src = {1, 2, 3, 4, 5, 6, 7, 8}, dst(8, 0xEE);
    walk_forward<CopyByte>({dst.data(), 4, src.data(), 4}, 3, 2);
    EXPECT_EQ(dst, (std::vector<uint8_t>{1, 2, 3, 0xEE, 5, 6, 7, 0xEE}));
    dst.assign(8, 0xEE);
    walk_backward<CopyByte>({dst.data(), 4, src.data(), 4}, 3, 2);
    EXPECT_EQ(dst, (std::vector<uint8_t>{0xEE, 2, 3, 4, 0xEE, 6, 7, 8}));
}

// A copy by one byte in place smears in the direction of its walk.
TEST(Walks, go_through_overlapping_pixels_in_their_order)
{
    std::vector<uint8_t> line = {1, 2, 3, 4, 5};
    walk_forward<CopyByte>({line.data() + 1, 4, line.data(), 4}, 4, 1);
    EXPECT_EQ(line, (std::vector<uint8_t>{1, 1, 1, 1, 1}));
    line = {1, 2, 3, 4, 5};
    walk_backward<CopyByte>({line.data() + 1, 4, line.data(), 4}, 4, 1);
    EXPECT_EQ(line, (std::vector<uint8_t>{1, 1, 2, 3, 4}));
}

}  // namespace
}  // namespace tintvert::test
