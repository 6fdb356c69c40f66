// How wide the numbers of the 8-bit routines are: counts of 32 bits that are not signed, counts of 64 bits, and planes
// that begin at a product of 32 bits.
#include <gtest/gtest.h>
#include <tintvert/ycbcr8.h>

#include <climits>
#include <functional>
#include <numeric>
#include <string>
#include <vector>

#include "support/fence.h"
#include "support/lone_page.h"

namespace tintvert::test {
namespace {

using Bytes = std::vector<uint8_t>;

constexpr long whole = 1l << 32;

class Ycbcr8NumberWidths : public testing::Test {
protected:
    // Calls that end in a fault, since they are more work than two pages hold.
    void expect_work(const std::string& name, const std::function<void(uint8_t* dst, uint8_t* src)>& call)
    {
        EXPECT_TRUE(faults([&] { call(dst.begin(), src.begin()); })) << name;
    }
    void expect_none(const std::string& name, const std::function<void(uint8_t* dst, uint8_t* src)>& call)
    {
        EXPECT_FALSE(faults([&] { call(dst.closed(), src.closed()); })) << name;
    }

    LonePage dst, src;
};

using Line = void (*)(unsigned char*, unsigned char*, int);

TEST_F(Ycbcr8NumberWidths, runs_of_2_to_the_31_less_1_pixels_are_work)
{
    for (const Line run : {argb_to_2vuy, bgra_to_2vuy, yuv2_to_2vuy, yuvs_to_2vuy})
        expect_work("run", [&](uint8_t* to, uint8_t* from) { run(from, to, INT_MAX); });
    for (const int bgra : {0, 1})
        expect_work("hd_rgb_to_2vuy", [&](uint8_t* to, uint8_t* from) { hd_rgb_to_2vuy(from, to, INT_MAX, bgra); });
    expect_work("tntvt_rgb32_2vuy", [](uint8_t* to, uint8_t* from) { tntvt_rgb32_2vuy(to, 0, from, 0, INT_MAX, 1); });
    for (auto* const frame : {tntvt_yuv2_2vuy, tntvt_yuvu_2vuy, tntvt_yuvs_2vuy})
        expect_work("frame", [&](uint8_t* to, uint8_t* from) { frame(to, from, 1, INT_MAX); });
}

// Three times the product: 0x80000001 and 0xFFFFFFFF bytes.
TEST_F(Ycbcr8NumberWidths, frames_of_444_of_2_to_the_31_bytes_are_work)
{
    for (auto* const routine : {tntvt_yuv444_yuv422_8, tntvt_yuv422_yuv444_8})
        for (const unsigned int width : {0x2AAAAAABu, 0x55555555u})
            expect_work("4:4:4", [&](uint8_t* to, uint8_t* from) { routine(to, from, width, 1, 0); });
}

TEST_F(Ycbcr8NumberWidths, planes_of_2_to_the_31_samples_are_work)
{
    for (const unsigned int count : {0x80000000u, 0xFFFFFFFFu}) {
        expect_work("tntvt_planar_2vuy",
                    [&](uint8_t* to, uint8_t* from) { tntvt_planar_2vuy(to, from, from, from, 0, 0, 0, count); });
        expect_work("tntvt_2vuy_planar",
                    [&](uint8_t* to, uint8_t* from) { tntvt_2vuy_planar(to, to, to, 0, 0, 0, from, count); });
    }
    // 0x7FFFFFFF / 0x7FFFFFFF is a pair of lines. As signed numbers -1 / 0x7FFFFFFF is none.
    for (const auto& [groups, total] : {std::pair{0x7FFFFFFFu, 0xFFFFFFFEu}, {1u, 0xFFFFFFFFu}, {1u, 0x80000000u}})
        expect_work("tntvt_planarfields_2vuy", [groups = groups, total = total](uint8_t* to, uint8_t* from) {
            tntvt_planarfields_2vuy(to, from, from, from, from, from, from, 0, 0, 0, groups, total);
        });
}

void yv12_2vuy(unsigned char* dst, unsigned char* src, unsigned int width, unsigned int height, unsigned int stride)
{
    tntvt_yv12_2vuy(dst, src, width, height, stride, 0);
}
void yv12_2vuy_interlaced(unsigned char* dst, unsigned char* src, unsigned int width, unsigned int height,
                          unsigned int stride)
{
    tntvt_yv12_2vuy(dst, src, width, height, stride, 1);
}

TEST_F(Ycbcr8NumberWidths, frames_of_420_of_2_to_the_31_pixels_or_lines_are_work)
{
    for (auto* const join : {tntvt_i420_2vuy, yv12_2vuy, yv12_2vuy_interlaced})
        for (const unsigned int many : {0x80000000u, 0xFFFFFFFFu}) {
            expect_work("width", [&](uint8_t* to, uint8_t* from) { join(to, from, many, 1, 8); });
            expect_work("height", [&](uint8_t* to, uint8_t* from) { join(to, from, 2, many, 4096); });
        }
    // A line is as long as its stride.
    for (auto* const part : {tntvt_2vuy_i420, tntvt_2vuy_yv12})
        for (const unsigned int many : {0x80000000u, 0xFFFFFFFEu}) {
            expect_work("stride", [&](uint8_t* to, uint8_t* from) { part(to, from, 2, 1, many); });
            expect_work("height", [&](uint8_t* to, uint8_t* from) { part(to, from, 2, many, 4096); });
        }
    expect_work("width", [](uint8_t* to, uint8_t* from) { YUY2toYV12(from, to, to, to, INT_MAX, 1, 8, 8); });
    expect_work("height", [](uint8_t* to, uint8_t* from) { YUY2toYV12(from, to, to, to, 2, INT_MAX, 4096, 8192); });
}

TEST_F(Ycbcr8NumberWidths, lines_of_2_to_the_31_bytes_are_work)
{
    for (const unsigned int bytes : {0x80000000u, 0xFFFFFFFFu}) {
        for (const unsigned int up : {0u, 1u})
            expect_work("tntvt_2vuy_scale", [&](uint8_t* to, uint8_t*) { tntvt_2vuy_scale(to, bytes, up); });
        for (int mode = 1; mode <= 6; ++mode)
            expect_work("tntvt_2yuv_average_2y",
                        [&](uint8_t* to, uint8_t*) { tntvt_2yuv_average_2y(to, bytes, mode); });
    }
}

// With the arguments of the strided routines.
int alpha_to_rgba(void* dst, long stride, void* src, long, long width, long height)
{
    return tntvt_alpha_to_rgba(dst, 0, src, stride, width, height);
}
int rgba_setalpha(void* dst, long stride, void*, long, long width, long height)
{
    return tntvt_rgba_setalpha(dst, stride, 7, width, height);
}

using Strided = int (*)(void*, long, void*, long, long, long);

constexpr Strided strided[] = {tntvt_alphay_to_2yuv, tntvt_2yuv_to_alphay, tntvt_2yuv_strip_chroma,
                               alpha_to_rgba,        tntvt_rgba_to_alpha,  rgba_setalpha};

TEST_F(Ycbcr8NumberWidths, counts_of_2_to_the_32_are_work)
{
    for (const Strided routine : strided) {
        for (const long width : {whole, 2 * whole})
            expect_work("width", [&](uint8_t* to, uint8_t* from) { routine(to, 64, from, 64, width, 1); });
        expect_work("height", [&](uint8_t* to, uint8_t* from) { routine(to, 1, from, 1, 2, whole); });
    }
    // One line more than `height`, of which there is no number.
    for (const Strided routine : {tntvt_2yuv_to_alphay, tntvt_2yuv_strip_chroma})
        expect_work("height", [&](uint8_t* to, uint8_t* from) { routine(to, 4096, from, 4096, 2, LONG_MAX); });
}

TEST_F(Ycbcr8NumberWidths, counts_around_minus_2_to_the_32_are_none)
{
    for (const Strided routine : strided) {
        for (const long count : {1 - whole, 2 - whole, 1 - 2 * whole, LONG_MIN, LONG_MIN + 2}) {
            expect_none("width", [&](uint8_t* to, uint8_t* from) { routine(to, 64, from, 64, count, 1); });
            expect_none("height", [&](uint8_t* to, uint8_t* from) { routine(to, 64, from, 64, 2, count); });
        }
    }
}

// 4 GiB of open memory, of which only what is touched becomes real.
class PlanesOf420 : public Ycbcr8NumberWidths {
protected:
    FencedBuffer open{{0, whole + 4096}, whole + 4096, Side::above, Closed::wholly};
    uint8_t* const frame = open.pointer();
};

// 0x80000004 x 2 is 8: the planes are at 8 and 8 + 2.
TEST_F(PlanesOf420, begin_where_the_product_wraps_at_32_bits)
{
    Bytes line{50, 1, 60, 2, 51, 3, 61, 4};
    std::fill_n(frame, 12, uint8_t{0xEE});
    tntvt_2vuy_i420(frame, line.data(), 0x80000004, 2, 4);
    EXPECT_EQ(Bytes(frame, frame + 12), (Bytes{1, 2, 3, 4, 0xEE, 0xEE, 0xEE, 0xEE, 50, 0xEE, 60, 0xEE}));
    tntvt_2vuy_yv12(frame, line.data(), 0x80000004, 2, 4);
    EXPECT_EQ(Bytes(frame, frame + 12), (Bytes{1, 2, 3, 4, 0xEE, 0xEE, 0xEE, 0xEE, 60, 0xEE, 50, 0xEE}));

    std::iota(frame, frame + 12, uint8_t{0});
    const auto first_group = [&](auto* join) {
        expect_work("join", [&](uint8_t* to, uint8_t*) { join(to, frame, 0x80000004, 2, 8); });
        return Bytes(dst.begin(), dst.begin() + 4);
    };
    EXPECT_EQ(first_group(tntvt_i420_2vuy), (Bytes{8, 0, 10, 1}));
    EXPECT_EQ(first_group(yv12_2vuy), (Bytes{10, 0, 8, 1}));
    EXPECT_EQ(first_group(yv12_2vuy_interlaced), (Bytes{10, 0, 8, 1}));
}

// 0xC0000000 samples of luma and 0x30000000 of the first chroma plane: neither number is signed.
TEST_F(PlanesOf420, begin_2_to_the_31_bytes_and_more_after_the_luma)
{
    constexpr unsigned int width = 0xC0000000;
    Bytes line{50, 1, 60, 2};
    tntvt_2vuy_i420(frame, line.data(), width, 1, 4);
    EXPECT_EQ(frame[0xC0000000], 50);
    EXPECT_EQ(frame[0xF0000000], 60);
    tntvt_2vuy_yv12(frame, line.data(), width, 1, 4);
    EXPECT_EQ(frame[0xC0000000], 60);
    EXPECT_EQ(frame[0xF0000000], 50);

    const auto first_group = [&](auto* join) {
        expect_work("join", [&](uint8_t* to, uint8_t*) { join(to, frame, width, 1, 8); });
        return Bytes(dst.begin(), dst.begin() + 4);
    };
    EXPECT_EQ(first_group(tntvt_i420_2vuy), (Bytes{60, 1, 50, 2}));
    EXPECT_EQ(first_group(yv12_2vuy), (Bytes{50, 1, 60, 2}));
    EXPECT_EQ(first_group(yv12_2vuy_interlaced), (Bytes{50, 1, 60, 2}));
}

}  // namespace
}  // namespace tintvert::test
