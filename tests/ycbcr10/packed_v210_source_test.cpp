// Where the source lines of a packed 10-bit frame begin.
#include <gtest/gtest.h>
#include <tintvert/ycbcr10.h>

#include <algorithm>

#include "support/fence.h"
#include "support/repeated.h"

namespace tintvert::test {
namespace {

// 205 pixels are 512 bytes, and 640 of `v210`. Line 2^23 of the source is at 2^32, which is line 0, and that of the
// destination at 5 x 2^30, which is 2^30.
TEST(PackedFrameExhaustive, source_line_offsets_wrap_at_32_bits)
{
    constexpr int64_t span = 1l << 32, place = 1l << 30;
    const Repeated src(span, 0), dst(span + 4096, place);  // lines of 640 bytes end beyond 2^32
    std::fill_n(src.begin(), 5, uint8_t{0xFF});
    ASSERT_FALSE(faults([&] { tntvt_YCbCr10Packed_to_v210(dst.begin(), src.begin(), 205, (1u << 23) + 1); }));
    const uint8_t expected[] = {0xFF, 0xFF, 0xFF, 0x3F, 0xFF, 0x03, 0, 0, 0, 0, 0, 0};
    EXPECT_TRUE(std::equal(std::begin(expected), std::end(expected), dst.begin() + place));
}

}  // namespace
}  // namespace tintvert::test
