#include "c_face.h"

#include <gtest/gtest.h>
#include <tintvert.h>
#include <tintvert_checked.h>
#include <zkutil.h>

#include <cstring>

namespace tintvert::test {
namespace {

bool copies_throw = false;

struct Thrown {};

TEST(CheckedInC, converts_and_refuses)
{
    unsigned char yuv[4] = {};
    char text[80];
    EXPECT_FALSE(convert_in_c(yuv, 3, text, sizeof text));
    EXPECT_STREQ(text, "dst: 3 bytes, needs 4 (bytes 0-3)");
    EXPECT_EQ(yuv[0], 0);
    EXPECT_TRUE(convert_in_c(yuv, 4, text, sizeof text));
    EXPECT_STREQ(text, "ok");
    EXPECT_EQ(yuv[0], 99);
}

TEST(CheckedInC, reports_the_extents_without_a_call)
{
    tntvt_checked_extents extents;
    const tntvt_checked_options options = {0, &extents};
    EXPECT_EQ(checked_bgra_to_2vuy({}, {}, 3, &options).code, TNTVT_CHECKED_OK);
    ASSERT_EQ(extents.count, 2u);
    EXPECT_STREQ(extents.touches[0].buffer, "dst");
    EXPECT_EQ(extents.touches[0].written.to, 8);
    EXPECT_EQ(extents.touches[1].read.to, 15);
}

// In C an exception of a companion ends at the call.
TEST(CheckedInC, lets_no_exception_out)
{
    unsigned char frame[32] = {};
    const tntvt_checked_buffer dst = {frame, 16, 0}, src = {frame + 16, 16, 0};
    copies_throw = true;
    const tntvt_checked_result reported = checked_tntvt_copy_interleaved(dst, 8, src, 8, 0, 2, nullptr);
    EXPECT_THROW(tntvt_copy_interleaved(frame, 8, frame + 16, 8, 0, 2), Thrown);
    copies_throw = false;
    EXPECT_EQ(reported.code, TNTVT_CHECKED_FAILED);
    char text[100];
    tntvt_checked_message(&reported, text, sizeof text);
    EXPECT_STREQ(text, "tntvt_copy_interleaved: a companion library threw an exception");
}

}  // namespace
}  // namespace tintvert::test

// The program's own copy replaces the companion's.
void CopyMemoryFast(void* destination, const void* source, unsigned int bytes)
{
    if (tintvert::test::copies_throw) throw tintvert::test::Thrown{};
    std::memmove(destination, source, bytes);
}
