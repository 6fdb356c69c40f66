// Every copy of the vertical flips by name, size and order.
#include <sys/mman.h>

#include "field_copies.h"

namespace tintvert::test {
namespace {

// Offsets that pass 2^32 go on at 0. Two lines of 0xFFFFFFF8 bytes, eight of which are margin. Nothing is copied.
TEST_F(FieldCopies, of_lines_beside_a_margin_wrap)
{
    constexpr size_t most = size_t{9} << 30;
    auto* const frame = static_cast<unsigned char*>(
        mmap(nullptr, most, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0));
    ASSERT_NE(frame, MAP_FAILED);
    calls().name("frame", frame, most);
    calls().copies = false;
    const auto set = [&] { frame[0] = frame[0xFFFFFFF0] = frame[0xFFFFFFE8] = frame[0xFFFFFFF8] = 0xEE; };
    const auto flip = [&](unsigned int flags) {
        set();
        calls().log.clear();
        tntvt_flip_vert_flags(frame, src.data(), 0, 0, 2, 0xFFFFFFF8, 0xFFFFFFF0, flags, 0);
    };
    flip(0x1000000);
    ASSERT_EQ(calls().log.size(), 2u);
    EXPECT_EQ(calls().log[0].substr(0, 24), "CopyMemoryFast(frame+8, ");
    EXPECT_EQ(calls().log[1].substr(0, 22), "CopyMemoryFast(frame, ");
    EXPECT_EQ(frame[0], 0);
    EXPECT_EQ(frame[0xFFFFFFF8], 0);
    EXPECT_EQ(frame[0xFFFFFFF0], 0xEE);
    flip(0x2000000);
    EXPECT_EQ(calls().log[1].substr(0, 33), "CopyMemoryFast(frame+4294967288, ");
    EXPECT_EQ(frame[0xFFFFFFF0], 0);
    EXPECT_EQ(frame[0xFFFFFFE8], 0);
    EXPECT_EQ(frame[0xFFFFFFF8], 0xEE);
    munmap(frame, most);
}

TEST_F(FieldCopies, flips)
{
    tntvt_flip_vert(dst.data(), src.data(), 0, 3, 9);
    EXPECT_EQ(calls().log, (Log{copy("dst", "src+18", 9), copy("dst+9", "src+9", 9), copy("dst+18", "src", 9)}));
    SetUp();
    tntvt_flip_vert(dst.data(), dst.data(), 0, 5, 9);
    EXPECT_EQ(calls().log, (Log{"ZKAlloc(10)", copy("block1", "dst", 9), copy("dst", "dst+36", 9),
                                copy("dst+36", "block1", 9), copy("block1", "dst+9", 9), copy("dst+9", "dst+27", 9),
                                copy("dst+27", "block1", 9), "ZKFree(block1)"}));
    SetUp();
    tntvt_flip_vert_flags(dst.data(), src.data(), 0, 0, 2, 10, 7, 0x4000000, 0);
    EXPECT_EQ(calls().log, (Log{copy("dst+2", "src+7", 7), copy("dst+12", "src", 7)}));
    SetUp();
    tntvt_flip_vert_flags(dst.data(), src.data(), 0, 0, 2, 10, 7, 0x8000000, 1);
    EXPECT_EQ(calls().log, (Log{copy("dst+1", "src+7", 7), copy("dst+11", "src", 7)}));
    SetUp();
    tntvt_flip_vert_flags(dst.data(), src.data(), 0, 0, 2, 7, 10, 0x1000000, 0);
    EXPECT_EQ(calls().log, (Log{copy("dst", "src+10", 10), copy("dst+7", "src", 10)}));
    SetUp();
    tntvt_flip_vert_flags(dst.data(), dst.data(), 0, 0, 5, 10, 7, 0x1000000, 0);
    EXPECT_EQ(calls().log, (Log{"ZKAlloc(11)", copy("block1", "dst", 10), copy("dst", "dst+40", 7),
                                copy("dst+40", "block1", 10), copy("block1", "dst+10", 10), copy("dst+10", "dst+30", 7),
                                copy("dst+30", "block1", 10), "ZKFree(block1)"}));
    SetUp();
    tntvt_flip_horz(dst.data(), src.data(), 3, 3, 12);
    tntvt_flip_horz(dst.data(), dst.data(), 3, 3, 12);
    EXPECT_EQ(calls().log, Log{});
}

// The request is a 32-bit count: a byte more than 0xFFFFFFFF is 0.
TEST_F(FieldCopies, keeps_spare_byte)
{
    for (const int height : {0, 1}) {
        tntvt_flip_vert(dst.data(), dst.data(), 0, height, 0xFFFFFFFF);
        tntvt_flip_vert_flags(dst.data(), dst.data(), 0, 0, height, 0xFFFFFFFF, 7, 0x1000000, 0);
    }
    EXPECT_EQ(calls().log, (Log{"ZKAlloc(0)", "ZKFree(block1)", "ZKAlloc(0)", "ZKFree(block2)", "ZKAlloc(0)",
                                "ZKFree(block3)", "ZKAlloc(0)", "ZKFree(block4)"}));
}

}  // namespace
}  // namespace tintvert::test
