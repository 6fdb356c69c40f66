// The default source line of `v210` to `2vuy`, where 16 bytes a pixel do not fit into 32 bits.
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <tintvert/ycbcr10.h>
#include <unistd.h>

#include <algorithm>

#include "support/fence.h"

namespace tintvert::test {
namespace {

// 16 x 0x10000800 is 2^32 + 32768, of which a sixth is 5461. Lines are as long as all other numbers say, and so the
// destination is a MiB of memory again and again, but for the page in which line 1 begins.
TEST(V210To2vuyExhaustive, default_line_wraps_at_32_bits)
{
    constexpr unsigned int width = 0x10000800;
    constexpr size_t mebibyte = 1u << 20, line = 2 * size_t{width}, default_line = 5461;
    constexpr size_t dst_bytes = 4 * line, src_bytes = 2 * (size_t{width} / 3 * 16 + mebibyte);
    const FencedBuffer dst({0, dst_bytes}, dst_bytes, Side::above, Closed::wholly);
    const FencedBuffer src({0, src_bytes}, src_bytes, Side::above, Closed::wholly);
    const int file = memfd_create("lines", 0);
    ASSERT_EQ(ftruncate(file, mebibyte), 0);
    for (size_t at = 0; at < dst_bytes; at += mebibyte)
        ASSERT_NE(mmap(dst.pointer() + at, std::min(mebibyte, dst_bytes - at), PROT_READ | PROT_WRITE,
                       MAP_SHARED | MAP_FIXED, file, 0),
                  MAP_FAILED);
    close(file);
    uint8_t* const second = dst.pointer() + line;
    ASSERT_NE(mmap(second, 4096, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_FIXED | MAP_ANONYMOUS, -1, 0), MAP_FAILED);

    src.pointer()[default_line] = 0xFC;  // in its first byte the first sample of line 1 begins
    ASSERT_FALSE(faults([&] { tntvt_v210_2vuy(dst.pointer(), src.pointer(), width, 2, 0); }));
    EXPECT_EQ(second[0], 0x3F);
    EXPECT_EQ(second[1], 0);
}

}  // namespace
}  // namespace tintvert::test
