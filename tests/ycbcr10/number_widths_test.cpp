// How wide the numbers of the 10-bit routines are: counts of 32 bits that are not signed, counts and strides of 64
// bits, and default lines that wrap at 32.
#include <gtest/gtest.h>
#include <tintvert/ycbcr10.h>

#include <climits>
#include <functional>
#include <vector>

#include "support/fence.h"
#include "support/lone_page.h"

namespace tintvert::test {
namespace {

using Bytes = std::vector<uint8_t>;

constexpr long whole = 1l << 32;

class Ycbcr10NumberWidths : public testing::Test {
protected:
    // A call that ends in a fault, since it is more work than two pages hold.
    void expect_work(const char* name, const std::function<void(uint8_t* dst, uint8_t* src)>& call)
    {
        EXPECT_TRUE(faults([&] { call(dst.begin(), src.begin()); })) << name;
    }

    LonePage dst, src;
};

unsigned int* words(uint8_t* bytes) { return reinterpret_cast<unsigned int*>(bytes); }

TEST_F(Ycbcr10NumberWidths, runs_of_2_to_the_31_less_1_pixels_are_work)
{
    for (const int alpha : {0, 1})
        expect_work("argb_to_v210", [&](uint8_t* to, uint8_t* from) { argb_to_v210(from, words(to), INT_MAX, alpha); });
    expect_work("bgra_to_v210", [](uint8_t* to, uint8_t* from) { bgra_to_v210(from, words(to), INT_MAX); });
    expect_work("yuv2_to_v210", [](uint8_t* to, uint8_t* from) { yuv2_to_v210(from, to, INT_MAX); });
    expect_work("yuvs_to_v210", [](uint8_t* to, uint8_t* from) { yuvs_to_v210(from, to, INT_MAX); });
    expect_work("tntvt_rgb32_v210", [](uint8_t* to, uint8_t* from) { tntvt_rgb32_v210(to, 0, from, 0, INT_MAX, 1); });
    expect_work("tntvt_rgb32_v210", [](uint8_t* to, uint8_t* from) { tntvt_rgb32_v210(to, 0, from, 0, 1, INT_MAX); });
}

TEST_F(Ycbcr10NumberWidths, counts_from_2_to_the_31_are_work)
{
    for (const unsigned int many : {0x80000001u, 0xFFFFFFFFu}) {
        for (auto* const convert :
             {tntvt_2vuy_v210, tntvt_v210_2vuy, tntvt_yuv422_8_yuv422_10, tntvt_yuv422_10_yuv422_8})
            expect_work("width", [&](uint8_t* to, uint8_t* from) { convert(to, from, many, 1, 64); });
        for (auto* const narrow : {tntvt_v210_2vuy, tntvt_yuv422_10_yuv422_8})
            expect_work("height", [&](uint8_t* to, uint8_t* from) { narrow(to, from, 6, many, 64); });
        expect_work("packed width",
                    [&](uint8_t* to, uint8_t* from) { tntvt_YCbCr10Packed_to_v210(to, from, many, 1); });
        expect_work("packed height",
                    [&](uint8_t* to, uint8_t* from) { tntvt_YCbCr10Packed_to_v210(to, from, 2, many); });
        expect_work("packets", [&](uint8_t* frame, uint8_t* numbers) {
            auto* const seq = reinterpret_cast<unsigned short*>(numbers);
            tntvt_v210_frame_to_rtp_4175(frame, 4096, seq, 0, 0, 0, nullptr, 2, many, words(numbers + 4),
                                         words(numbers + 8));
        });
    }
}

TEST_F(Ycbcr10NumberWidths, payloads_of_2_to_the_32_pgroups_are_work)
{
    for (const long count : {whole, LONG_MAX})
        for (const long phase : {0l, 2l, 4l})
            expect_work("payload",
                        [&](uint8_t* to, uint8_t* from) { tntvt_4175_to_v210(to, from, 100, count, phase); });
}

// 16 x 0x10000004 is 2^32 + 64, of which 64 / 6 + 63 is 73, and the default line is 64 bytes. The last line is the
// first to be written: it begins at byte 64 and goes on until memory ends. It overlaps what it is made from, and so its
// first group is the first to be done.
TEST_F(Ycbcr10NumberWidths, default_line_of_v210_wraps_at_32_bits)
{
    constexpr unsigned int width = 0x10000004;
    constexpr long line = 2l * width;
    for (auto* const widen : {tntvt_2vuy_v210, tntvt_yuv422_8_yuv422_10}) {
        const FencedBuffer memory({0, 2 * line}, 2 * line - 4096, Side::above, Closed::wholly);
        uint8_t *const picture = memory.pointer(), *const frame = memory.pointer() + 2 * line - 8192;
        std::fill_n(picture + line, 12, uint8_t{255});
        std::fill_n(frame, 4096, uint8_t{0xEE});
        EXPECT_TRUE(faults([&] { widen(frame, picture, width, 2, 0); }));
        EXPECT_EQ(frame[63], 0xEE);
        for (long word = 64; word < 80; word += 4)
            EXPECT_EQ(Bytes(frame + word, frame + word + 4), (Bytes{0xFC, 0xF3, 0xCF, 0x3F})) << word;
        EXPECT_EQ(Bytes(frame + 80, frame + 84), Bytes(4, 0));
    }
}

// Two lines of two white and two black groups, at strides beyond 2^32.
TEST_F(Ycbcr10NumberWidths, line_starts_of_rgb32_v210_are_at_the_whole_stride)
{
    constexpr long dst_stride = whole + 4096, src_stride = whole + 8192;
    const FencedBuffer to({0, 2 * whole}, 2 * whole, Side::above, Closed::wholly);
    const FencedBuffer from({0, 2 * whole}, 2 * whole, Side::above, Closed::wholly);
    std::fill_n(from.pointer() + src_stride, 48, uint8_t{255});
    tntvt_rgb32_v210(to.pointer(), dst_stride, from.pointer(), src_stride, 12, 2);
    const auto second_luma = [&](long line, long group) {
        const uint8_t* const word = to.pointer() + line * dst_stride + 16 * group + 4;
        return (word[0] | word[1] << 8) & 1023;
    };
    EXPECT_EQ(second_luma(0, 0), 64);
    EXPECT_EQ(second_luma(0, 1), 64);
    EXPECT_EQ(second_luma(1, 0), 283);
    EXPECT_EQ(second_luma(1, 1), 283);
    EXPECT_EQ(to.pointer()[4096], 0);
}

}  // namespace
}  // namespace tintvert::test
