// The open call notes what it learns for the life of the process, so each of these tests has a process of
// its own and nothing else in this program opens the library.
#include <gtest/gtest.h>
#include <tintvert.h>

#include <cstdlib>
#include <functional>
#include <vector>

#include "recorder.h"
#include "support/random.h"

namespace tintvert::test {
namespace {

class Open : public Imports {};

// Runs `work` in a child, whose failures are printed and fail the test here.
void in_a_fresh_process(const std::function<void()>& work)
{
    EXPECT_EXIT(
        {
            work();
            std::_Exit(testing::Test::HasFailure() ? 1 : 0);
        },
        testing::ExitedWithCode(0), "");
}

TEST_F(Open, asks_once_on_a_processor_with_the_bit)
{
    in_a_fresh_process([] {
        calls().features = 0x20;
        EXPECT_EQ(tnvtt_open(0, 0, 0, 0), 0);
        EXPECT_EQ(calls().log, Log{"CPUFeatureFlags()"});
        calls().features = 0;
        EXPECT_EQ(tnvtt_open(1, 2, 3, 4), 0);
        EXPECT_EQ(tnvtt_open(~0u, ~0u, ~0u, ~0u), 0);
        EXPECT_EQ(calls().log, Log{"CPUFeatureFlags()"});
    });
}

TEST_F(Open, asks_on_every_open_on_a_processor_without_the_bit)
{
    in_a_fresh_process([] {
        calls().features = ~0x20u;
        for (long opened = 1; opened <= 3; ++opened) {
            EXPECT_EQ(tnvtt_open(~0u, 0, 7, 0x20), 0);
            EXPECT_EQ(calls().count("CPUFeatureFlags"), opened);
        }
        calls().features = 0xFFFFFFFF;
        EXPECT_EQ(tnvtt_open(0, 0, 0, 0), 0);
        EXPECT_EQ(tnvtt_open(0, 0, 0, 0), 0);
        EXPECT_EQ(calls().count("CPUFeatureFlags"), 4);
    });
}

TEST_F(Open, lets_an_exception_through_and_asks_again)
{
    in_a_fresh_process([] {
        calls().features = 0x20;
        calls().throw_at("CPUFeatureFlags", 1);
        EXPECT_THROW(tnvtt_open(0, 0, 0, 0), Thrown);
        EXPECT_EQ(tnvtt_open(0, 0, 0, 0), 0);
        EXPECT_EQ(tnvtt_open(0, 0, 0, 0), 0);
        EXPECT_EQ(calls().count("CPUFeatureFlags"), 2);
    });
}

// One conversion by formula and one by first-use tables.
std::vector<uint8_t> converted()
{
    std::vector<uint8_t> src = Random(1).bytes(4 * 64), ycbcr(2 * 64), rgb(4 * 64);
    bgra_to_2vuy(src.data(), ycbcr.data(), 64);
    tntvt_yuv422_rgb24(rgb.data(), 64, ycbcr.data(), 32, 16, 4, 1);
    ycbcr.insert(ycbcr.end(), rgb.begin(), rgb.end());
    return ycbcr;
}

TEST_F(Open, changes_no_conversion)
{
    for (const unsigned int features : {0u, 0x20u}) {
        in_a_fresh_process([features] {
            calls().features = features;
            const std::vector<uint8_t> before = converted();
            EXPECT_EQ(calls().log, Log{});
            tnvtt_open(0, 0, 0, 0);
            EXPECT_EQ(converted(), before);
            EXPECT_EQ(converted(), before);
        });
    }
}

// The way out of the child fails the test in the parent.
TEST_F(Open, fails_with_its_child)
{
    EXPECT_EXIT(std::_Exit(1), testing::ExitedWithCode(1), "");
    EXPECT_EXIT(
        {
            ADD_FAILURE() << "on purpose, in the child";
            std::_Exit(testing::Test::HasFailure() ? 1 : 0);
        },
        testing::ExitedWithCode(1), "");
}

}  // namespace
}  // namespace tintvert::test
