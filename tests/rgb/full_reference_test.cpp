#include <gtest/gtest.h>
#include <tintvert.h>

#include "reference/rgba_full.h"
#include "rgb/one_memory.h"

namespace tintvert::test {
namespace {

long any_size(Random& random)
{
    constexpr long sizes[] = {3, 3, 3, 4, 4, 4, 0, 1, 2, 5, 8, -3, -4};
    return sizes[random.between(0, 12)];
}

// A stride of `size` bytes a pixel and less than one more a line, by truncation.
long any_stride(Random& random, long size, long width)
{
    const long slack = random.between(0, 1) == 0 ? 0 : random.between(0, std::labs(width) - 1);
    return size * width + (size * width < 0 ? -slack : slack);
}

TEST(RgbaFullReference, agrees_with_different_strides)
{
    Random random(571);
    at_every_distance(random, 16, [&](long distance) {
        const long width = random.between(0, 9) == 0 ? random.between(-3, -1) : random.between(1, 17);
        const long to = any_stride(random, any_size(random), width), from = any_stride(random, any_size(random), width);
        if (to == from) return;
        ASSERT_TRUE(
            agree(random, {to, from, width, random.between(-2, 4)}, distance, tntvt_rgba_full, reference::rgba_full));
    });
}

// The block copy is of another's making where its two blocks overlap, so these lie apart or are one.
TEST(RgbaFullReference, agrees_with_equal_strides)
{
    Random random(572);
    for (int i = 0; i < 2000; ++i) {
        const long width = random.between(1, 17), size = std::labs(any_size(random));
        const long stride = any_stride(random, size, width), distance = random.between(-1, 1) * 2100;
        ASSERT_TRUE(agree(random, {stride, stride, width, random.between(0, 4)}, distance, tntvt_rgba_full,
                          reference::rgba_full));
    }
}

TEST(RgbaFullReference, does_not_agree_one_line_short)
{
    Random random(573);
    const auto short_of_a_line = [](uint8_t* dst, long ds, const uint8_t* src, long ss, long w, long h) {
        reference::rgba_full(dst, ds, src, ss, w, h - 1);
    };
    for (const Geometry& geometry :
         {Geometry{9, 12, 3, 2}, {12, 9, 3, 2}, {9, 10, 3, 2}, {12, 12, 3, 2}, {16, 12, 3, 2}})
        EXPECT_FALSE(agree(random, geometry, 2100, tntvt_rgba_full, short_of_a_line));
}

}  // namespace
}  // namespace tintvert::test
