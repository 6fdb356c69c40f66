// `v210` to RGB by ten bits against its reference implementation: random frames and overlapping memory.
#include <gtest/gtest.h>
#include <tintvert.h>

#include <algorithm>
#include <climits>
#include <cstdlib>
#include <ostream>

#include "reference/decode/v210_decoders.h"
#include "support/arena.h"
#include "support/strided.h"

namespace tintvert::test {
namespace {

struct Frame {
    int width, height, dstStride, bgraOrder;
};

std::ostream& operator<<(std::ostream& out, const Frame& frame)
{
    return out << "width " << frame.width << ", height " << frame.height << ", stride " << frame.dstStride << ", order "
               << frame.bgraOrder;
}

testing::AssertionResult agree(Random& random, const Frame& frame, int64_t from, int64_t to, const Frame& expected)
{
    Arena memory(random, 6000, 12000);
    _v210_to_rgb(memory.actual(from), memory.actual(to), frame.width, frame.height, frame.dstStride, frame.bgraOrder);
    reference::v210_to_rgb(memory.expected(from), memory.expected(to), expected.width, expected.height,
                           expected.dstStride, expected.bgraOrder != 0);
    const testing::AssertionResult result = memory.agrees(to, frame.dstStride);
    return result ? result : testing::AssertionFailure() << frame << ": " << result.message();
}

TEST(V210ToRgbReference, random_frames)
{
    Random random(341);
    for (int round = 0; round < 2500; ++round) {
        Frame frame{static_cast<int>(random.between(-2, 40)), static_cast<int>(random.between(-2, 12)), 0,
                    static_cast<int>(random.between(-1, 2))};
        frame.dstStride = static_cast<int>(any_stride(random, std::abs(frame.width * 4)));
        ASSERT_TRUE(agree(random, frame, 7000 + random.between(0, 15), random.between(0, 15), frame));
    }
}

// The product of two negative sizes is a frame, whose lines go by the quotient's sign.
TEST(V210ToRgbReference, two_negative_sizes)
{
    Random random(342);
    for (int round = 0; round < 300; ++round) {
        const Frame frame{static_cast<int>(random.between(-20, -1)), static_cast<int>(random.between(-12, -1)),
                          static_cast<int>(random.between(-100, 100)), 1};
        ASSERT_TRUE(agree(random, frame, 7000, 0, frame));
    }
}

// A group is read whole before its pixels are written.
TEST(V210ToRgbReference, overlapping_at_every_offset)
{
    Random random(343);
    for (int64_t offset = -64; offset <= 64; ++offset)
        for (const int width : {6, 7, 12, 18})
            for (const int stride : {24, 28, 48, 90, -24}) {
                const Frame frame{width, 6, stride, 1};
                ASSERT_TRUE(agree(random, frame, 0, offset, frame));
            }
}

TEST(V210ToRgbReference, rejects_a_wrong_form)
{
    Random random(344);
    const Frame right{12, 4, 50, 1};
    EXPECT_TRUE(agree(random, right, 7000, 0, right));
    EXPECT_FALSE(agree(random, right, 7000, 0, {12, 4, 50, 0}));
    EXPECT_FALSE(agree(random, right, 7000, 0, {12, 4, 48, 1}));
    EXPECT_FALSE(agree(random, right, 7000, 0, {11, 4, 50, 1}));
    EXPECT_FALSE(agree(random, right, 7004, 0, {12, 5, 50, 1}));
}

TEST(V210ToRgbReference, bounds_of_the_sums)
{
    int low = INT_MAX, high = INT_MIN;
    for (const int cb : {0, 1023}) {
        for (const int cr : {0, 1023}) {
            for (const int y : {0, 1023}) {
                const reference::Sums sums = reference::sums_of_10(cb, y, cr);
                low = std::min({low, sums.blue, sums.green, sums.red});
                high = std::max({high, sums.blue, sums.green, sums.red});
            }
        }
    }
    EXPECT_EQ(low >> 6, -277);
    EXPECT_EQ(high, 34358);
    EXPECT_EQ(high >> 6, 536);
}

}  // namespace
}  // namespace tintvert::test
