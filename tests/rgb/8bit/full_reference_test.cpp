#include <gtest/gtest.h>
#include <tintvert.h>

#include <cstdlib>

#include "reference/rgb/rgba_full.h"
#include "support/strided.h"

namespace tintvert::test {
namespace {

long any_size(Random& random)
{
    constexpr long sizes[] = {3, 3, 3, 4, 4, 4, 0, 1, 2, 5, 8, -3, -4};
    return sizes[random.between(0, 12)];
}

// A stride of `size` bytes a pixel and less than one more a line, by truncation.
long stride_of(Random& random, long size, long width)
{
    const long slack = random.between(0, 1) == 0 ? 0 : random.between(0, std::labs(width) - 1);
    return size * width + (size * width < 0 ? -slack : slack);
}

const Twins full = {"tntvt_rgba_full", {32, 32}, calling(tntvt_rgba_full), calling(reference::rgba_full)};

TEST(RgbaFullReference, agrees_with_different_strides)
{
    Random random(571);
    for (int round = 0; round < 16; ++round)
        for (long overlap = -64; overlap <= 64; ++overlap)
            for (const long distance : {overlap, random.between(0, 1) * 4200 - 2100 + overlap}) {
                const long width = random.between(0, 9) == 0 ? random.between(-3, -1) : random.between(1, 17);
                const long to = stride_of(random, any_size(random), width);
                const long from = stride_of(random, any_size(random), width);
                if (to == from) continue;
                ASSERT_TRUE(agree(random, full, {nullptr, to, nullptr, from, width, random.between(-2, 4)}, distance));
            }
}

// The block copy is of another's making where its two blocks overlap, so these are apart or one.
TEST(RgbaFullReference, agrees_with_equal_strides)
{
    Random random(572);
    for (int i = 0; i < 2000; ++i) {
        const long width = random.between(1, 17), size = std::labs(any_size(random));
        const long stride = stride_of(random, size, width), distance = random.between(-1, 1) * 2100;
        ASSERT_TRUE(agree(random, full, {nullptr, stride, nullptr, stride, width, random.between(0, 4)}, distance));
    }
}

TEST(RgbaFullReference, does_not_agree_one_line_short)
{
    Random random(573);
    Twins wrong = full;
    wrong.reference = [](StridedFrame f) {
        --f.height;
        full.reference(f);
    };
    for (const auto& [to, from] : {std::pair{9L, 12L}, {12L, 9L}, {9L, 10L}, {12L, 12L}, {16L, 12L}})
        EXPECT_FALSE(agree(random, wrong, {nullptr, to, nullptr, from, 3, 2}, 2100));
}

}  // namespace
}  // namespace tintvert::test
