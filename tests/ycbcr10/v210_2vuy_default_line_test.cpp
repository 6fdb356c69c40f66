// The default source line of `v210` to `2vuy`, where 16 bytes a pixel do not fit into 32 bits.
#include <gtest/gtest.h>
#include <tintvert/ycbcr10.h>

#include "support/fence.h"
#include "support/repeated.h"

namespace tintvert::test {
namespace {

// 16 x 0x10000800 is 2^32 + 32768, of which a sixth is 5461. Lines are as long as all other numbers say, and so the
// destination is a MiB of memory again and again, but for the page in which line 1 begins.
TEST(V210To2vuyExhaustive, default_line_wraps_at_32_bits)
{
    constexpr unsigned int width = 0x10000800;
    constexpr int64_t line = 2l * width, default_line = 5461, src_bytes = 6 * line;
    const Repeated dst(4 * line, line);
    const FencedBuffer src({0, src_bytes}, src_bytes, Side::above, Closed::wholly);
    uint8_t* const second = dst.begin() + line;

    src.pointer()[default_line] = 0xFC;  // in its first byte the first sample of line 1 begins
    ASSERT_FALSE(faults([&] { tntvt_v210_2vuy(dst.begin(), src.pointer(), width, 2, 0); }));
    EXPECT_EQ(second[0], 0x3F);
    EXPECT_EQ(second[1], 0);
}

}  // namespace
}  // namespace tintvert::test
