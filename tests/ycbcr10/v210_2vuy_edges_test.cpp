// `v210` to and from `2vuy`: bytes in, bytes out.
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <tintvert.h>

#include <algorithm>
#include <utility>

#include "support/fence.h"
#include "support/random.h"
#include "support/v210.h"

namespace tintvert::test {
namespace {

using Routine = void (*)(unsigned char*, unsigned char*, unsigned int, unsigned int, unsigned int);
constexpr Routine ups[] = {tntvt_2vuy_v210, tntvt_yuv422_8_yuv422_10};
constexpr Routine downs[] = {tntvt_v210_2vuy, tntvt_yuv422_10_yuv422_8};

Memory convert(Routine routine, Memory src, size_t bytes, unsigned width, unsigned height, unsigned stride)
{
    Memory dst(bytes, 0xEE);
    routine(dst.data(), src.data(), width, height, stride);
    return dst;
}

const Memory slack(1, 0xEE);

TEST(V210From2vuyEdges, samples_times_four_in_the_low_to_high_fields)
{
    const Memory src{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 0, 255};
    for (const Routine up : ups)
        EXPECT_EQ(convert(up, src, 17, 6, 1, 16), v210({4, 8, 12, 16, 20, 24, 28, 32, 36, 40, 0, 1020}) + slack);
}

TEST(V210From2vuyEdges, every_bit_that_is_not_a_sample_is_0)
{
    const Memory dst = convert(tntvt_2vuy_v210, Memory(12, 255), 16, 6, 1, 16);
    EXPECT_EQ(dst, (4 * Memory{0xFC, 0xF3, 0xCF, 0x3F}));
}

// The numbers of pixels next to a change of the default line: 24 pixels are 64 bytes.
TEST(V210From2vuyEdges, default_lines)
{
    for (const auto& [width, line] : {std::pair{1920u, 5120u},
                                      {1280u, 3456u},
                                      {720u, 1920u},
                                      {100u, 320u},
                                      {48u, 128u},
                                      {25u, 128u},
                                      {24u, 64u},
                                      {6u, 64u},
                                      {1u, 64u}}) {
        const size_t groups = (width + 5) / 6, tail = line > groups * 16 ? line - groups * 16 : 0;
        const Memory src = Memory(width * 2, 1) + Memory(width * 2 + 12, 2);
        Memory dst = convert(tntvt_2vuy_v210, src, line + groups * 16 + 1, width, 2, 0);
        EXPECT_EQ(dst.back(), 0xEE);
        EXPECT_EQ(dst[0], 4) << width;
        EXPECT_EQ(dst[line], 8) << width;
        for (size_t i = 0; i < tail; ++i) ASSERT_EQ(dst[groups * 16 + i], 0xEE) << width;
    }
}

// The last group of line 0 takes 4 pixels of line 1, the one of line 1 what is past the end of the frame.
TEST(V210From2vuyEdges, odd_width_reads_and_writes_a_whole_last_group)
{
    const Memory src = Memory(16, 1) + Memory(16, 2) + Memory(8, 3);
    const Memory dst = convert(tntvt_2vuy_v210, src, 2 * 40 + 1, 8, 2, 40);
    const Memory ones = v210({4, 4, 4, 4, 4, 4, 4, 4, 4, 4, 4, 4}), twos = v210({8, 8, 8, 8, 8, 8, 8, 8, 8, 8, 8, 8});
    EXPECT_EQ(dst, ones + v210({4, 4, 4, 4, 8, 8, 8, 8, 8, 8, 8, 8}) + Memory(8, 0xEE) + twos +
                       v210({8, 8, 8, 8, 12, 12, 12, 12, 12, 12, 12, 12}) + Memory(8, 0xEE) + slack);
}

// Lines written over each other: the one that comes later is the upper one.
TEST(V210From2vuyEdges, last_line_is_written_first)
{
    const Memory src = Memory(12, 1) + Memory(12, 2) + Memory(12, 3);
    const Memory dst = convert(tntvt_2vuy_v210, src, 25, 6, 3, 4);
    EXPECT_EQ(dst, v210({4, 4, 4, 4, 4, 4, 4, 4, 4, 4, 4, 4, 8, 8, 8, 12, 12, 12}) + slack);
}

TEST(V210From2vuyEdges, no_width_is_no_work)
{
    for (const Routine up : ups)
        for (const unsigned height : {0u, 1u, 0xFFFFFFFFu}) up(nullptr, nullptr, 0, height, 0);
}

// Memory that is not there but for the two pages from the one of its byte `offset`.
class FarPage {
public:
    explicit FarPage(size_t offset) : bytes_(offset + 8192)
    {
        map_ =
            static_cast<uint8_t*>(mmap(nullptr, bytes_, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0));
        if (map_ == MAP_FAILED) throw std::bad_alloc();
        mprotect(map_ + offset / 4096 * 4096, 8192, PROT_READ | PROT_WRITE);
    }
    ~FarPage() { munmap(map_, bytes_); }
    FarPage(const FarPage&) = delete;
    FarPage& operator=(const FarPage&) = delete;
    uint8_t* base() const { return map_; }

private:
    size_t bytes_;
    uint8_t* map_;
};

// With no lines the first one is line 4294967295, and the walk goes down from there until memory ends.
TEST(V210From2vuyEdges, keeps_last_line_first_without_guard)
{
    constexpr size_t last = 0xFFFFFFFF;
    const FarPage src(last * 2), dst(last * 16);
    src.base()[last * 2] = 255;
    src.base()[last * 2 + 11] = 1;
    EXPECT_TRUE(faults([&] { tntvt_2vuy_v210(dst.base(), src.base(), 1, 0, 16); }));
    const uint8_t* const first = dst.base() + last * 16;
    EXPECT_EQ(Memory(first, first + 16), v210({1020, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 4}));
}

// Line starts upwards are products of 64 bits: line 3 of 2^31 bytes each is beyond 2^32.
TEST(V210From2vuyEdges, line_starts_have_64_bits)
{
    constexpr size_t stride = 0x80000000;
    const FarPage dst(stride * 3);
    Memory src(12 + 3 * 2, 1);
    EXPECT_TRUE(faults([&] { tntvt_2vuy_v210(dst.base(), src.data(), 1, 4, stride); }));
    const uint8_t* const line = dst.base() + stride * 3;
    EXPECT_EQ(Memory(line, line + 17), (4 * Memory{0x04, 0x10, 0x40, 0x00} + Memory(1, 0)));
}

TEST(V210To2vuyEdges, two_low_bits_are_dropped)
{
    const Memory src = v210({0, 3, 4, 7, 512, 515, 1020, 1023, 940, 943, 64, 67}) + Memory(16, 0);
    Memory marked = src;
    for (size_t word = 0; word < 4; ++word) marked[4 * word + 3] |= 0xC0;
    for (const Routine down : downs) {
        const Memory expected = Memory{0, 0, 1, 1, 128, 128, 255, 255, 235, 235, 16, 16} + Memory(12, 0) + slack;
        EXPECT_EQ(convert(down, src, 25, 6, 1, 16), expected);
        EXPECT_EQ(convert(down, marked, 25, 6, 1, 16), expected);
    }
}

// Steps of three words up to the width: 1 to 3 pixels make one, 4 to 6 two.
TEST(V210To2vuyEdges, lines_run_to_twice_their_length)
{
    for (unsigned width = 1; width <= 24; ++width) {
        const size_t steps = (width + 2) / 3;
        EXPECT_EQ(convert(tntvt_v210_2vuy, Memory(16 * steps, 0xFF), 12 * steps + 1, width, 1, 999),
                  Memory(12 * steps, 0xFF) + slack)
            << width;
    }
    // 640 steps for 1920 pixels, which are 320 groups.
    EXPECT_EQ(convert(tntvt_v210_2vuy, Memory(10240, 0xFF), 7681, 1920, 1, 0), Memory(7680, 0xFF) + slack);
}

// Each line goes over the surplus of the one before; that of the last stays, past the end of the frame.
TEST(V210To2vuyEdges, surplus_is_the_next_groups_and_is_overwritten)
{
    const Memory ones = v210({4, 4, 4, 4, 4, 4, 4, 4, 4, 4, 4, 4}), twos = v210({8, 8, 8, 8, 8, 8, 8, 8, 8, 8, 8, 8}),
                 threes = v210({12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12});
    EXPECT_EQ(convert(tntvt_v210_2vuy, ones + twos + threes, 37, 6, 2, 16),
              Memory(12, 1) + Memory(12, 2) + Memory(12, 3) + slack);
    EXPECT_EQ(convert(tntvt_v210_2vuy, ones + threes + twos + threes, 37, 6, 2, 32),
              Memory(12, 1) + Memory(12, 2) + Memory(12, 3) + slack);
}

TEST(V210To2vuyEdges, default_lines_are_not_rounded_up)
{
    for (const auto& [width, line] :
         {std::pair{1920u, 5120u}, {1280u, 3413u}, {100u, 266u}, {6u, 16u}, {3u, 8u}, {1u, 2u}}) {
        Memory src(line + (width + 2) / 3 * 16, 0);
        src[line] = 0xFC;  // the first sample of line 1 begins in its first byte
        const size_t bytes = width * 2 + (width + 2) / 3 * 12 + 1;
        const Memory dst = convert(tntvt_v210_2vuy, src, bytes, width, 2, 0);
        EXPECT_EQ(dst[width * 2], 0x3F) << width;
        EXPECT_EQ(dst.back(), 0xEE) << width;
    }
}

TEST(V210To2vuyEdges, no_size_is_no_work)
{
    for (const Routine down : downs) {
        down(nullptr, nullptr, 0, 5, 0);
        down(nullptr, nullptr, 5, 0, 0);
        down(nullptr, nullptr, 0, 0, 16);
    }
}

// Line starts downwards are sums of 32 bits: with lines of 2^31 bytes line 2 is at line 0 again, and with
// lines of -16 bytes line 1 is at 4294967280.
TEST(V210To2vuyEdges, line_starts_wrap_at_32_bits)
{
    constexpr size_t stride = 0x80000000;
    const FarPage far(stride);
    mprotect(far.base(), 4096, PROT_READ | PROT_WRITE);
    std::fill_n(far.base(), 16, uint8_t{0xFF});
    Memory dst(1 * 2 * 2 + 13, 0xEE);
    tntvt_v210_2vuy(dst.data(), far.base(), 1, 3, stride);
    EXPECT_EQ(dst, Memory(2, 0xFF) + Memory(2, 0) + Memory(12, 0xFF) + slack);

    Memory line(16, 0xFF);
    EXPECT_TRUE(faults([&] {
        const FarPage none(0);
        tntvt_v210_2vuy(dst.data(), none.base() + 4096, 1, 2, static_cast<unsigned>(-16));
    }));
}

// Matching strides: the frame comes back for any width, and what was past its end does not.
TEST(V210To2vuyEdges, gives_back_what_went_up_at_any_width)
{
    Random random(1);
    for (unsigned width = 1; width <= 60; ++width) {
        const unsigned height = 4, groups = (width + 5) / 6, stride = groups * 16;
        const Memory picture = random.bytes(width * 2 * height + 12);
        const Memory up = convert(tntvt_2vuy_v210, picture, stride * height, width, height, stride);
        Memory down = convert(tntvt_v210_2vuy, up + Memory(width / 3 * 16 + 16, 0), width * 2 * height + width * 4 + 24,
                              width, height, stride);
        down.resize(width * 2 * height);
        EXPECT_EQ(down, Memory(picture.begin(), picture.begin() + static_cast<long>(down.size()))) << width;
    }
}

}  // namespace
}  // namespace tintvert::test
