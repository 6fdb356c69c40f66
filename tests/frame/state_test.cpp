#include "frame/state.h"

#include <gtest/gtest.h>
#include <tintvert/frame.h>
#include <zkutil.h>

#include "frame/failure.h"

namespace tintvert::test {
namespace {

TEST(State, opens_with_bit_0x20_noted_as_0_or_1)
{
    EXPECT_EQ(tnvtt_open(1, 2, 3, 4), 0);
    EXPECT_EQ(use_MMX, (CPUFeatureFlags() & 0x20) != 0 ? 1 : 0);
}

// Any number but 0 says that it is open; it is left as it is, and nobody is asked.
TEST(State, is_open_by_any_number)
{
    for (const uint8_t noted : {uint8_t{2}, uint8_t{0x80}, uint8_t{0xFF}}) {
        use_MMX = noted;
        EXPECT_EQ(tnvtt_open(0, 0, 0, 0), 0);
        EXPECT_EQ(use_MMX, noted);
    }
    use_MMX = 0;
}

TEST(State, has_an_opaque_default_alpha) { EXPECT_EQ(a, 255); }

TEST(Failure, keeps_line_feed_before_carriage_return)
{
    testing::internal::CaptureStderr();
    report_failure("exception-somewhere() ");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "ERROR(Tintvert): exception-somewhere() \n\r");
}

}  // namespace
}  // namespace tintvert::test
