// A comparison that cannot fail proves nothing, so each of them is shown a wrong value.
#include "peers/compare.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "peers/program.h"
#include "support/random.h"

namespace tintvert::test {
namespace {

TEST(PeersCompare, one_wrong_value_is_seen)
{
    const Bytes frame = Random(1).bytes(192 * 64 * 2);
    EXPECT_TRUE(same(frame, frame));
    for (const size_t at : {size_t{0}, frame.size() / 2, frame.size() - 1}) {
        Bytes wrong = frame;
        wrong[at] ^= 1;
        EXPECT_FALSE(same(frame, wrong)) << at;
        EXPECT_TRUE(within(1, 0.001, frame, wrong)) << at;
        EXPECT_FALSE(within(0, 0.001, frame, wrong)) << at;
    }
}

TEST(PeersCompare, many_small_distances_are_seen)
{
    const std::vector<uint16_t> black(100, 64), lifted(100, 65);
    EXPECT_TRUE(within(1, 1, black, lifted));
    EXPECT_FALSE(within(1, 0.99, black, lifted));
}

TEST(PeersCompare, a_missing_value_is_seen)
{
    const Bytes frame(10), shorter(9);
    EXPECT_FALSE(same(frame, shorter));
    EXPECT_FALSE(within(255, 255, frame, shorter));
    EXPECT_FALSE(same(Bytes{}, Bytes{}));
    EXPECT_FALSE(within(255, 255, Bytes{}, Bytes{}));
}

TEST(PeersCompare, a_program_that_fails_is_seen)
{
    EXPECT_EQ(through({"cp", "{in}", "{out}"}, {1, 2, 3}), (Bytes{1, 2, 3}));
    EXPECT_EQ(through({"cp", "{in2}", "{out}.raw"}, {}, {4, 5}), (Bytes{4, 5}));
    EXPECT_THROW(through({"cp", "{in}/no", "{out}"}, {1}), std::runtime_error);
    EXPECT_THROW(through({"true"}, {1}), std::runtime_error);
    EXPECT_THROW(through({"tintvert-no-such-program"}, {1}), std::runtime_error);
    EXPECT_FALSE(installed("tintvert-no-such-program"));
}

}  // namespace
}  // namespace tintvert::test
