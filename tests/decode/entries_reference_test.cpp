// The decode entries by tables, and full-range 4:4:4, against their reference implementation.
#include <gtest/gtest.h>
#include <tintvert.h>

#include "reference/decode/v210_decoders.h"
#include "support/arena.h"

namespace tintvert::test {
namespace {

struct Entry {
    const char* name;
    int (*routine)(void*, long, void*, long, long, long, long);
    bool ten_bits;
    int bytes_a_pixel;
};

const Entry entries[] = {
    {"tntvt_yuv422_10_rgb24", tntvt_yuv422_10_rgb24, true, 3},
    {"tntvt_yuv422_10_rgb32", tntvt_yuv422_10_rgb32, true, 4},
    {"tntvt_yuv422_8_rgb24", tntvt_yuv422_8_rgb24, false, 3},
    {"tntvt_yuv422_8_rgb32", tntvt_yuv422_8_rgb32, false, 4},
};

testing::AssertionResult agree(const Entry& entry, const Entry& expected, Random& random, long dstStride,
                               long srcStride, long width, long height, long scale)
{
    Arena src(random, 16, 9000), dst(random, 16, 16000);
    const int64_t from = random.between(0, 15), to = random.between(0, 15);
    entry.routine(dst.actual(to), dstStride, src.actual(from), srcStride, width, height, scale);
    reference::entry_by_tables(expected.ten_bits, expected.bytes_a_pixel, dst.expected(to), dstStride,
                               src.expected(from), srcStride, width, height, scale);
    const testing::AssertionResult result = dst.agrees(to, dstStride);
    if (result) return src.agrees(from);
    return testing::AssertionFailure() << entry.name << ", width " << width << ", height " << height << ", scale "
                                       << scale << ", strides " << dstStride << ' ' << srcStride << ": "
                                       << result.message();
}

TEST(EntriesReference, random_frames)
{
    Random random(331);
    for (const Entry& entry : entries) {
        for (int round = 0; round < 700; ++round) {
            const long width = random.between(-2, 110);
            const long scale = entry.routine == tntvt_yuv422_10_rgb24 ? random.between(1, 5) : random.between(2, 5);
            const long dstStride = random.between(0, 2) == 0 ? random.between(-3, 0) : random.between(1, 500);
            const long srcStride = random.between(0, 2) == 0 ? random.between(-300, 0) : random.between(1, 400);
            ASSERT_TRUE(agree(entry, entry, random, dstStride, srcStride, width, random.between(-4, 16), scale));
        }
    }
}

TEST(EntriesReference, rejects_a_wrong_form)
{
    Random random(332);
    EXPECT_TRUE(agree(entries[0], entries[0], random, 0, 0, 60, 4, 1));
    EXPECT_FALSE(agree(entries[0], entries[1], random, 0, 0, 60, 4, 1));
    EXPECT_FALSE(agree(entries[0], entries[2], random, 0, 0, 60, 4, 2));
}

testing::AssertionResult jpeg_agrees(Random& random, int64_t from, int64_t to, long dstStride, long srcStride,
                                     long width, long height)
{
    Arena memory(random, 5000, 12000);
    tntvt_yuvijg_rgb32(memory.actual(to), dstStride, memory.actual(from), srcStride, width, height);
    reference::yuvijg_rgb32(memory.expected(to), dstStride, memory.expected(from), srcStride, width, height);
    return memory.agrees(to, dstStride);
}

TEST(YuvijgReference, random_frames)
{
    Random random(333);
    for (int round = 0; round < 2000; ++round) {
        const long width = random.between(-1, 70), height = random.between(-1, 12);
        const long dstStride = random.between(0, 1) == 0 ? width * 4 : random.between(-300, 300);
        const long srcStride = random.between(0, 1) == 0 ? width * 3 : random.between(-90, 300);
        ASSERT_TRUE(jpeg_agrees(random, 7000 + random.between(0, 31), random.between(0, 31), dstStride, srcStride,
                                width, height))
            << width << " x " << height << ", strides " << dstStride << ' ' << srcStride;
    }
}

// A pixel's three bytes are read before its four are written.
TEST(YuvijgReference, overlapping_at_every_offset)
{
    Random random(334);
    for (int64_t offset = -64; offset <= 64; ++offset)
        for (const long width : {1L, 7L, 16L, 33L})
            for (const long stride : {width * 4, width * 3, -width * 4})
                ASSERT_TRUE(jpeg_agrees(random, 0, offset, stride, width * 3, width, 4)) << width << " at " << offset;
}

// All 2^24 pixels.
TEST(YuvijgExhaustive, every_pixel)
{
    std::vector<uint8_t> src(256 * 256 * 3), dst(256 * 256 * 4);
    for (int y = 0; y < 256; ++y) {
        for (size_t i = 0; i < 65536; ++i) {
            src[3 * i] = static_cast<uint8_t>(y);
            src[3 * i + 1] = static_cast<uint8_t>(i / 256);
            src[3 * i + 2] = static_cast<uint8_t>(i % 256);
        }
        tntvt_yuvijg_rgb32(dst.data(), 1024, src.data(), 768, 256, 256);
        for (size_t i = 0; i < 65536; ++i) {
            const auto expected = reference::jpeg_pixel(y, static_cast<int>(i / 256), static_cast<int>(i % 256));
            ASSERT_TRUE(std::equal(expected.begin(), expected.end(), &dst[4 * i]))
                << y << ' ' << i / 256 << ' ' << i % 256;
        }
    }
}

// Blue and red in whole thousandths: nothing in them but a grey is a whole number, so the double arithmetic
// cannot truncate to another byte.
TEST(YuvijgExhaustive, blue_and_red_in_integers)
{
    std::vector<uint8_t> src(256 * 256 * 3), dst(256 * 256 * 4);
    for (size_t i = 0; i < 65536; ++i) {
        src[3 * i] = static_cast<uint8_t>(i / 256);
        src[3 * i + 1] = src[3 * i + 2] = static_cast<uint8_t>(i % 256);
    }
    tntvt_yuvijg_rgb32(dst.data(), 0, src.data(), 0, 65536, 1);
    for (int i = 0; i < 65536; ++i) {
        const int y = i / 256, c = i % 256 - 128;
        const auto at = static_cast<size_t>(4 * i);
        ASSERT_EQ(dst[at], (((y * 1000 + c * 1772) / 1000) & 255)) << y << ' ' << c;
        ASSERT_EQ(dst[at + 2], (((y * 1000 + c * 1402) / 1000) & 255)) << y << ' ' << c;
    }
}

}  // namespace
}  // namespace tintvert::test
