// 32-bit orders, narrowing and widening in place: which bytes come out otherwise, and what they are.
#include <gtest/gtest.h>

#include <algorithm>

#include "rgb_8bit_calls.h"

namespace tintvert::test {
namespace {

// A frame converted in place, and with a source apart; all else in the two memories is the same.
struct Conversion {
    Bytes in_place, separate;
};

Conversion convert(const Routine& routine, long dst_stride, long src_stride, long width, long height)
{
    const long size = std::max(dst_stride, src_stride) * (height - 1) + std::max({dst_stride, src_stride, 4 * width});
    Bytes src = counting(size);
    Conversion result{src, src};
    routine.call(result.in_place.data(), dst_stride, result.in_place.data(), src_stride, width, height);
    routine.call(result.separate.data(), dst_stride, src.data(), src_stride, width, height);
    return result;
}

struct Wrong {
    long offset;
    int value;
    bool operator==(const Wrong&) const = default;
};

// The bytes that come out otherwise in place, with what they are there.
std::vector<Wrong> wrong_bytes(const Conversion& conversion)
{
    std::vector<Wrong> result;
    for (size_t i = 0; i < conversion.in_place.size(); ++i)
        if (conversion.in_place[i] != conversion.separate[i])
            result.push_back({static_cast<long>(i), conversion.in_place[i]});
    return result;
}

TEST(Rgb8BitEdges, words_are_the_same_in_place)
{
    for (const Routine& routine : reorder)
        for (long width = 1; width <= 40; ++width)
            for (const long slack : {0, 7})
                EXPECT_TRUE(wrong_bytes(convert(routine, 4 * width + slack, 4 * width + slack, width, 3)).empty())
                    << routine.name << ", width " << width;
}

TEST(Rgb8BitEdges, cut_is_safe_in_place_up_to_equal_strides)
{
    for (const Routine& routine : cut)
        for (const long width : {1, 2, 3, 16, 33})
            for (const long src_stride : {4 * width, 4 * width + 5})
                for (long dst_stride = 0; dst_stride <= src_stride; ++dst_stride)
                    EXPECT_TRUE(wrong_bytes(convert(routine, dst_stride, src_stride, width, 4)).empty())
                        << routine.name << ", width " << width << ", strides " << dst_stride << ", " << src_stride;
}

// Tight, one byte: position 1 of the second pixel in memory is that pixel's b0, byte 4.
TEST(Rgb8BitEdges, keeps_guard_of_first_pixel_only_when_tight)
{
    for (const Routine& routine : cut_reversed)
        for (long width = 1; width <= 40; ++width)
            for (long height = 1; height <= 4; ++height) {
                std::vector<Wrong> expected;
                if (width * height > 1) expected.push_back({4, 4});
                EXPECT_EQ(wrong_bytes(convert(routine, 3 * width, 4 * width, width, height)), expected)
                    << routine.name << ", " << width << " x " << height;
            }
}

// With both strides the same, pixel 1 of each line so, and pixel 0 of each line but the first shows b0 in
// front.
TEST(Rgb8BitEdges, keeps_guard_of_first_pixel_only_with_equal_strides)
{
    for (const Routine& routine : cut_reversed)
        for (long width = 1; width <= 20; ++width)
            for (const long stride : {4 * width, 4 * width + 5}) {
                std::vector<Wrong> expected;
                for (long line = 0; line < 3; ++line) {
                    const long at = line * stride;
                    if (line > 0) expected.push_back({at, static_cast<int>(at % 251)});
                    if (width > 1) expected.push_back({at + 4, static_cast<int>((at + 4) % 251)});
                }
                EXPECT_EQ(wrong_bytes(convert(routine, stride, stride, width, 3)), expected)
                    << routine.name << ", width " << width << ", stride " << stride;
            }
}

// Bytes 1 and 2 of pixel 1 and byte 2 of pixel 2, counted through memory, show b0 of their pixels: bytes 3
// and 6 of the source. At a width of 2 the third of them is in line 1.
TEST(Rgb8BitEdges, keeps_ascending_writes_in_place_at_every_width)
{
    for (const Routine& routine : widen_24)
        for (long width = 1; width <= 40; ++width)
            for (long height = 1; height <= 4; ++height) {
                std::vector<Wrong> expected;
                if (width * height > 1) expected = {{5, 3}, {6, 3}};
                if (width * height > 2) expected.push_back({10, 6});
                EXPECT_EQ(wrong_bytes(convert(routine, 4 * width, 3 * width, width, height)), expected)
                    << routine.name << ", " << width << " x " << height;
            }
}

// Byte 0 of pixels 0 and 1 in memory: s0 of the one, s1 of the other.
TEST(Rgb8BitEdges, keeps_descending_writes_in_place_at_every_width)
{
    for (const Routine& routine : widen_24_reversed)
        for (long width = 1; width <= 40; ++width)
            for (long height = 1; height <= 4; ++height) {
                std::vector<Wrong> expected{{0, 0}};
                if (width * height > 1) expected.push_back({4, 4});
                EXPECT_EQ(wrong_bytes(convert(routine, 4 * width, 3 * width, width, height)), expected)
                    << routine.name << ", " << width << " x " << height;
            }
}

TEST(Rgb8BitEdges, sixteen_bits_and_alpha_first_are_the_same_in_place)
{
    for (const Routine& routine : together(widen_16, alpha_first))
        for (long width = 1; width <= 40; ++width)
            for (long height = 1; height <= 4; ++height)
                EXPECT_TRUE(wrong_bytes(convert(routine, 4 * width, routine.src_bytes * width, width, height)).empty())
                    << routine.name << ", " << width << " x " << height;
}

}  // namespace
}  // namespace tintvert::test
