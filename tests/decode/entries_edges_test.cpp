// The decode entries where they take the tables, and full-range 4:4:4: bytes in, bytes out. Which calls go to
// libycbcr is told in tests/imports.
#include <gtest/gtest.h>
#include <tintvert.h>

#include <csignal>
#include <utility>

#include "support/sanitized.h"
#include "support/v210.h"

namespace tintvert::test {
namespace {

using Entry = int (*)(void*, long, void*, long, long, long, long);

struct Geometry {
    long dstStride, srcStride, width, height, scale;
};

Memory decode(Entry entry, Memory src, size_t bytes, const Geometry& g)
{
    Memory dst(bytes, 0xEE);
    entry(dst.data(), g.dstStride, src.data(), g.srcStride, g.width, g.height, g.scale);
    return dst;
}

TEST(EntriesEdges, default_line_of_v210_is_128_bytes_for_48_pixels)
{
    const Memory black = v210({512, 64, 512, 64, 512, 64}), white = v210({512, 940, 512, 940, 512, 940});
    for (const auto& [width, line] :
         {std::pair{1L, 128u}, {2L, 128u}, {47L, 128u}, {48L, 128u}, {49L, 256u}, {96L, 256u}}) {
        const Memory pad(line - 8, 0x33);
        const Memory src = black + pad + white + pad + black + Memory(256, 0x33);
        const auto pixels = static_cast<size_t>((width + 1) / 2 * 2), tight = static_cast<size_t>(width * 3);
        const Memory dst = decode(tntvt_yuv422_10_rgb24, src, 2 * tight + pixels * 3, {0, 0, width, 3, 1});
        EXPECT_EQ(dst[0], 0) << width;
        EXPECT_EQ(dst[tight], 254) << width;
        EXPECT_EQ(dst[2 * tight], 0) << width;
        const Memory reduced = decode(tntvt_yuv422_10_rgb32, src + src, 1000, {0, 0, width, 4, 2});
        EXPECT_EQ(reduced[0], 0) << width;
        EXPECT_EQ(reduced[static_cast<size_t>(width * 4)], 0) << width;  // line 2 of the source
    }
}

// Any stride below 1 takes the default, and one of 1 stands.
TEST(EntriesEdges, strides_of_0_and_below_are_replaced)
{
    const Memory src = 400 * Memory{128, 16, 128, 235};
    for (const Entry entry : {tntvt_yuv422_8_rgb24, tntvt_yuv422_8_rgb32}) {
        const Memory defaulted = decode(entry, src, 1000, {0, 0, 20, 8, 2});
        EXPECT_EQ(decode(entry, src, 1000, {-1, -1, 20, 8, 2}), defaulted);
        EXPECT_EQ(decode(entry, src, 1000, {INT64_MIN, -1000, 20, 8, 2}), defaulted);
        EXPECT_EQ(decode(entry, src, 1000, {entry == tntvt_yuv422_8_rgb24 ? 60 : 80, 40, 20, 8, 2}), defaulted);
        const Memory of_1 = decode(entry, src, 40, {1, 0, 20, 8, 2});
        EXPECT_EQ(of_1, 33 * Memory{0} + Memory(7, 0xEE));
        const Memory byte_on = decode(entry, src, 1000, {0, 1, 2, 4, 2});  // source line 2 begins at byte 2
        EXPECT_EQ(byte_on[entry == tntvt_yuv422_8_rgb24 ? 6 : 8], 254);
    }
}

const Memory bgra_white{254, 254, 254, 255};

// Lines 400 bytes apart, of which the first 200 are written.
TEST(EntriesEdges, reduced_rgb32_leaves_the_second_half_of_its_lines)
{
    const Memory src = 4 * (50 * Memory{128, 235, 128, 16});
    const Memory line = 50 * bgra_white + Memory(200, 0xEE);
    EXPECT_EQ(decode(tntvt_yuv422_8_rgb32, src, 800, {0, 0, 100, 4, 2}), line + line);
}

// The entry's name has no say in the form.
TEST(EntriesEdges, reduced_rgb24_is_32_bit_with_its_default_stride)
{
    const Memory src = 4 * (50 * Memory{128, 235, 128, 16});
    const Memory as_32 = 50 * bgra_white + Memory(100, 0xEE);
    EXPECT_EQ(decode(tntvt_yuv422_8_rgb24, src, 600, {0, 0, 100, 4, 2}), as_32 + as_32);
    EXPECT_EQ(decode(tntvt_yuv422_8_rgb24, src, 310, {150, 0, 100, 4, 2}), Memory(300, 254) + Memory(10, 0xEE));
    EXPECT_EQ(decode(tntvt_yuv422_8_rgb32, src, 350, {199, 0, 100, 4, 2}),
              Memory(150, 254) + Memory(49, 0xEE) + Memory(150, 254) + Memory(1, 0xEE));
    EXPECT_EQ(decode(tntvt_yuv422_8_rgb24, src, 101, {0, 0, 100, 4, 4}), 25 * bgra_white + Memory(1, 0xEE));

    const Memory white = v210({512, 940, 512, 940, 512, 940, 512, 940, 512, 940, 512, 940});
    for (const Entry entry : {tntvt_yuv422_10_rgb24, tntvt_yuv422_10_rgb32})
        EXPECT_EQ(decode(entry, 24 * white, 97, {0, 0, 48, 2, 2}), 24 * bgra_white + Memory(1, 0xEE));
    EXPECT_EQ(decode(tntvt_yuv422_10_rgb24, 24 * white, 145, {0, 0, 48, 1, 1}), Memory(144, 254) + Memory(1, 0xEE));
    EXPECT_EQ(decode(tntvt_yuv422_10_rgb24, 24 * white, 193, {192, 0, 48, 1, 1}), 48 * bgra_white + Memory(1, 0xEE));
    EXPECT_EQ(decode(tntvt_yuv422_10_rgb32, 24 * white, 73, {95, 0, 48, 2, 2}), Memory(72, 254) + Memory(1, 0xEE));
}

const Entry entries[] = {tntvt_yuv422_10_rgb24, tntvt_yuv422_10_rgb32, tntvt_yuv422_8_rgb24, tntvt_yuv422_8_rgb32};

TEST(EntriesEdges, negative_height_is_no_work_for_the_tables)
{
    for (const Entry entry : entries)
        for (const long scale : {2L, 3L, 4L}) entry(nullptr, 0, nullptr, 0, 48, -4, scale);
    tntvt_yuv422_10_rgb24(nullptr, 0, nullptr, 0, 48, -4, 1);
    tntvt_yuv422_10_rgb24(nullptr, 0, nullptr, 0, 0, 4, 1);
}

TEST(EntriesEdgesDeathTest, scale_0_divides_by_zero)
{
    if (sanitized) GTEST_SKIP() << "sanitizers report the division in their own way";
    Memory src(512), dst(512);
    for (const Entry entry : entries)
        EXPECT_EXIT(entry(dst.data(), 0, src.data(), 0, 48, 2, 0), testing::KilledBySignal(SIGFPE), "");
}

Memory from_jpeg(Memory src)
{
    Memory dst(src.size() / 3 * 4, 0xEE);
    tntvt_yuvijg_rgb32(dst.data(), 0, src.data(), 0, static_cast<long>(src.size() / 3), 1);
    return dst;
}

TEST(YuvijgRgb32Edges, inside_the_cube)
{
    EXPECT_EQ(from_jpeg({128, 128, 128, 0, 128, 128, 255, 128, 128}),
              (Memory{128, 128, 128, 0, 0, 0, 0, 0, 255, 255, 255, 0}));
    EXPECT_EQ(from_jpeg({76, 85, 255, 150, 44, 21, 29, 255, 107}), (Memory{0, 0, 254, 0, 1, 255, 0, 0, 254, 0, 0, 0}));
}

// 480, -226, -179, -90, 433 and 346 keep their low eight bits, truncated toward zero first.
TEST(YuvijgRgb32Edges, keeps_wrap_outside_the_cube)
{
    EXPECT_EQ(from_jpeg({255, 255, 128, 0, 0, 128}), (Memory{224, 211, 255, 0, 30, 44, 0, 0}));
    EXPECT_EQ(from_jpeg({0, 128, 0, 0, 128, 255}), (Memory{0, 91, 77, 0, 0, 166, 178, 0}));
    EXPECT_EQ(from_jpeg({255, 128, 0, 255, 128, 255}), (Memory{255, 90, 75, 0, 255, 164, 177, 0}));
}

TEST(YuvijgRgb32Edges, keeps_alpha_0_of_yuvijg)
{
    Memory src = 256 * Memory{255, 255, 255};
    for (size_t i = 0; i < src.size(); ++i) src[i] = static_cast<uint8_t>(i * 7);
    const Memory dst = from_jpeg(src);
    for (size_t i = 3; i < dst.size(); i += 4) EXPECT_EQ(dst[i], 0);
}

// Both strides stand as they are: 0 is no default, and slack is left alone.
TEST(YuvijgRgb32Edges, lines_stand_at_their_strides)
{
    Memory src{10, 128, 128, 9, 9, 20, 128, 128, 9, 9, 30, 128, 128}, dst(17, 0xEE);
    tntvt_yuvijg_rgb32(dst.data() + 12, -6, src.data(), 5, 1, 3);
    EXPECT_EQ(dst, (Memory{30, 30, 30, 0, 0xEE, 0xEE, 20, 20, 20, 0, 0xEE, 0xEE, 10, 10, 10, 0, 0xEE}));
    tntvt_yuvijg_rgb32(dst.data(), 0, src.data(), 5, 1, 3);
    EXPECT_EQ(dst[0], 30);
    tntvt_yuvijg_rgb32(dst.data(), 4, src.data(), 0, 1, 2);
    EXPECT_EQ(Memory(dst.begin(), dst.begin() + 8), (Memory{10, 10, 10, 0, 10, 10, 10, 0}));
}

TEST(YuvijgRgb32Edges, no_work_touches_no_memory)
{
    for (const long size : {0L, -1L, static_cast<long>(INT64_MIN)}) {
        tntvt_yuvijg_rgb32(nullptr, 4, nullptr, 3, size, 1);
        tntvt_yuvijg_rgb32(nullptr, 4, nullptr, 3, 1, size);
    }
}

}  // namespace
}  // namespace tintvert::test
