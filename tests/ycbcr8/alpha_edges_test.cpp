#include <gtest/gtest.h>
#include <tintvert.h>

#include <algorithm>
#include <numeric>
#include <utility>
#include <vector>

#include "support/sparse.h"

namespace {

using Bytes = std::vector<unsigned char>;
using Strided = int (*)(void*, long, void*, long, long, long);

Bytes places(size_t count)
{
    Bytes result(count);
    std::iota(result.begin(), result.end(), static_cast<unsigned char>(0));
    return result;
}

// dst of `bytes` bytes 0xEE after one call; src counts from 0. The answer is 0 whatever the arguments.
Bytes after(Strided routine, size_t bytes, long dstStride, long srcStride, long width, long height)
{
    Bytes src = places(64), dst(bytes, 0xEE);
    EXPECT_EQ(routine(dst.data(), dstStride, src.data(), srcStride, width, height), 0);
    EXPECT_EQ(src, places(64));
    return dst;
}

TEST(AlphaEdges, keeps_lines_at_end_of_stride)
{
    Bytes expected(40, 0xEE);
    const Bytes line0{0x80, 6, 0x80, 7, 0x80, 8, 0x80, 9}, line1{0x80, 16, 0x80, 17, 0x80, 18, 0x80, 19};
    std::copy(line0.begin(), line0.end(), expected.begin() + 12);
    std::copy(line1.begin(), line1.end(), expected.begin() + 32);
    EXPECT_EQ(after(tntvt_alphay_to_2yuv, 40, 20, 10, 4, 2), expected);
    EXPECT_EQ(after(tntvt_alphay_to_2yuv, 40, 20, 10, 5, 2), expected);  // the odd pixel is dropped
}

TEST(AlphaEdges, sizes_that_widen_nothing)
{
    const long sizes[][2] = {{1, 4}, {0, 4}, {-1, 4}, {-8, 4}, {4, 0}, {4, -1}, {4, 2 - (1l << 32)}};
    for (const auto& [width, height] : sizes)
        EXPECT_EQ(after(tntvt_alphay_to_2yuv, 16, 8, 4, width, height), Bytes(16, 0xEE)) << width << ' ' << height;
}

TEST(AlphaEdges, keeps_one_line_more)
{
    EXPECT_EQ(after(tntvt_2yuv_to_alphay, 8, 2, 4, 2, 2), (Bytes{1, 3, 5, 7, 9, 11, 0xEE, 0xEE}));
    EXPECT_EQ(after(tntvt_2yuv_to_alphay, 8, 2, 4, 2, 0), (Bytes{1, 3, 0xEE, 0xEE, 0xEE, 0xEE, 0xEE, 0xEE}));
    EXPECT_EQ(after(tntvt_2yuv_strip_chroma, 10, 4, 4, 2, 1), (Bytes{0x80, 1, 0x80, 3, 0x80, 5, 0x80, 7, 0xEE, 0xEE}));
    EXPECT_EQ(after(tntvt_2yuv_strip_chroma, 6, 4, 4, 3, 0), (Bytes{0x80, 1, 0x80, 3, 0xEE, 0xEE}));
    const long sizes[][2] = {{1, 4}, {0, 4}, {-1, 4}, {-8, 4}, {4, -1}, {4, -2}, {4, 2 - (1l << 32)}};
    for (const Strided routine : {tntvt_2yuv_to_alphay, tntvt_2yuv_strip_chroma})
        for (const auto& [width, height] : sizes)
            EXPECT_EQ(after(routine, 16, 4, 8, width, height), Bytes(16, 0xEE)) << width << ' ' << height;
}

// Slack is after the pixels: strides of 3 and 7.
TEST(AlphaEdges, narrowed_lines_start_their_strides)
{
    EXPECT_EQ(after(tntvt_2yuv_to_alphay, 6, 3, 7, 2, 1), (Bytes{1, 3, 0xEE, 8, 10, 0xEE}));
    EXPECT_EQ(after(tntvt_2yuv_strip_chroma, 10, 5, 7, 2, 1), (Bytes{0x80, 1, 0x80, 3, 0xEE, 0x80, 8, 0x80, 10, 0xEE}));
}

TEST(AlphaEdges, stripping_in_place)
{
    Bytes group{12, 34, 56, 78};
    EXPECT_EQ(tntvt_2yuv_strip_chroma(group.data(), 4, group.data(), 4, 2, 0), 0);
    EXPECT_EQ(group, (Bytes{0x80, 34, 0x80, 78}));
    group = {0, 0, 255, 255};
    tntvt_2yuv_strip_chroma(group.data(), 4, group.data(), 4, 2, 0);
    EXPECT_EQ(group, (Bytes{0x80, 0, 0x80, 255}));
}

TEST(AlphaEdges, one_sample_fills_a_pixel)
{
    Bytes nine{9}, pixel(5, 0xEE);
    EXPECT_EQ(tntvt_alpha_to_rgba(pixel.data(), 0, nine.data(), 4, 1, 1), 0);
    EXPECT_EQ(pixel, (Bytes{9, 9, 9, 9, 0xEE}));
}

// The plane has lines of `width`, whatever the second argument says; the stride is the other side's.
TEST(AlphaEdges, keeps_first_byte_as_alpha)
{
    for (const long ignored : {-1l, 0l, 2l, 100l}) {
        EXPECT_EQ(after(tntvt_rgba_to_alpha, 7, ignored, 13, 3, 2), (Bytes{0, 4, 8, 13, 17, 21, 0xEE}));
        EXPECT_EQ(after(tntvt_alpha_to_rgba, 10, ignored, 5, 1, 2), (Bytes{0, 0, 0, 0, 0xEE, 1, 1, 1, 1, 0xEE}));
    }
}

TEST(AlphaEdges, sizes_that_set_nothing)
{
    const long sizes[][2] = {{0, 4}, {-1, 4}, {4, 0}, {4, -1}, {4, 2 - (1l << 32)}, {2 - (1l << 32), 4}};
    for (const auto& [width, height] : sizes) {
        EXPECT_EQ(after(tntvt_alpha_to_rgba, 16, 8, 4, width, height), Bytes(16, 0xEE)) << width << ' ' << height;
        EXPECT_EQ(after(tntvt_rgba_to_alpha, 16, 8, 4, width, height), Bytes(16, 0xEE)) << width << ' ' << height;
        Bytes frame = places(64);
        EXPECT_EQ(tntvt_rgba_setalpha(frame.data(), 8, 0xFF, width, height), 0);
        EXPECT_EQ(frame, places(64)) << width << ' ' << height;
    }
    for (const auto& [width, height] : {std::pair{0, 2}, {0, -2}, {2, 0}, {2, -1}, {-2, 0}, {-2, -2}}) {
        Bytes src = places(64), dst(64, 0xEE);
        EXPECT_EQ(tntvt_rgba_addalpha(src.data(), dst.data(), 6, 8, 0xFF, width, height), 0);
        EXPECT_EQ(dst, Bytes(64, 0xEE)) << width << ' ' << height;
    }
}

TEST(AlphaEdges, the_low_byte_of_alpha)
{
    const unsigned int values[][2] = {{0x1FF, 0xFF}, {0x100, 0}, {0xFFFFFF80, 0x80}, {7, 7}};
    for (const auto& [alpha, stored] : values) {
        Bytes pixel{1, 2, 3, 4, 5}, src{1, 2, 3}, dst(5, 0xEE);
        const auto byte = static_cast<unsigned char>(stored);
        EXPECT_EQ(tntvt_rgba_setalpha(pixel.data(), 4, alpha, 1, 1), 0);
        EXPECT_EQ(pixel, (Bytes{1, 2, 3, byte, 5}));
        EXPECT_EQ(tntvt_rgba_addalpha(src.data(), dst.data(), 3, 4, alpha, 1, 1), 0);
        EXPECT_EQ(dst, (Bytes{1, 2, 3, byte, 0xEE}));
    }
}

// All lines of two pixels in one place: line 0 is done last, and its pixels from first to last.
TEST(AlphaEdges, added_from_the_last_line_to_the_first)
{
    Bytes src = places(12), dst(10, 0xEE);
    tntvt_rgba_addalpha(src.data(), dst.data(), 6, 0, 9, 2, 2);
    EXPECT_EQ(dst, (Bytes{0, 1, 2, 9, 3, 4, 5, 9, 0xEE, 0xEE}));
    dst.assign(10, 0xEE);
    tntvt_rgba_addalpha(src.data(), dst.data() + 1, 6, -1, 9, 2, 2);  // line 1 one byte before line 0
    EXPECT_EQ(dst, (Bytes{6, 0, 1, 2, 9, 3, 4, 5, 9, 0xEE}));
}

// Strides are multiplied unchanged, in 64 bits.
TEST(AlphaEdges, lines_4_gib_apart)
{
    const tintvert::test::Sparse memory;
    if (!memory) GTEST_SKIP() << "no 4 GiB of address space";
    constexpr long far = 0x100000000;
    uint8_t* const frame = memory.data();
    const auto at = [&](long offset) { return Bytes(frame + offset, frame + offset + 4); };
    tntvt_rgba_setalpha(frame, far, 7, 1, 2);
    EXPECT_EQ(at(0), (Bytes{0, 0, 0, 7}));
    EXPECT_EQ(at(far), (Bytes{0, 0, 0, 7}));
    tntvt_2yuv_strip_chroma(frame, far, frame, far, 2, 1);
    EXPECT_EQ(at(far), (Bytes{0x80, 0, 0x80, 7}));
    Bytes samples{5, 6, 7, 8, 9, 10};
    tntvt_alpha_to_rgba(frame, 0, samples.data(), far, 1, 2);
    EXPECT_EQ(at(far), (Bytes{6, 6, 6, 6}));
    tntvt_rgba_addalpha(samples.data(), frame, 3, far, 1, 1, 2);
    EXPECT_EQ(at(far), (Bytes{8, 9, 10, 1}));
    Bytes luma(4);
    tntvt_2yuv_to_alphay(luma.data(), 2, frame, far, 2, 1);
    EXPECT_EQ(luma, (Bytes{6, 1, 9, 1}));
    tntvt_rgba_to_alpha(luma.data(), 0, frame, far, 1, 2);
    EXPECT_EQ(luma, (Bytes{5, 8, 9, 1}));
    tntvt_alphay_to_2yuv(frame + 4, far, samples.data(), 2, 2, 1);
    EXPECT_EQ(at(far), (Bytes{0x80, 5, 0x80, 6}));
}

// The second luma of a pair whose first is `prev`, the next one's being `cur`.
int second(int mode, int prev, int t, int cur)
{
    Bytes line{1, static_cast<unsigned char>(prev), 2, static_cast<unsigned char>(t),
               3, static_cast<unsigned char>(cur)};
    const Bytes before = line;
    EXPECT_EQ(tntvt_2yuv_average_2y(line.data(), 2, mode), 0);
    const int result = line[3];
    line[3] = before[3];
    EXPECT_EQ(line, before);
    return result;
}

TEST(AverageEdges, expected_values)
{
    EXPECT_EQ(second(3, 100, 120, 104), 100);
    EXPECT_EQ(second(3, 100, 110, 104), 110);
    EXPECT_EQ(second(3, 100, 120, 108), 120);
    EXPECT_EQ(second(2, 128, 160, 128), 160);
    EXPECT_EQ(second(3, 128, 160, 128), 128);
    EXPECT_EQ(second(6, 100, 120, 104), 102);
}

// Each mode at its gate, the differences at 7 and 8, 10 and 11, on both sides.
TEST(AverageEdges, gates_and_replacements)
{
    const struct {
        int mode, prev, t, cur, result;
    } cases[] = {
        {2, 127, 150, 127, 127}, {2, 128, 150, 128, 150}, {4, 127, 150, 127, 138}, {4, 128, 150, 128, 150},
        {3, 200, 150, 200, 200}, {5, 200, 151, 200, 175}, {6, 200, 150, 203, 201}, {5, 100, 120, 104, 110},
        {3, 100, 111, 107, 100}, {3, 100, 89, 93, 100},   {3, 100, 90, 93, 90},    {3, 100, 111, 92, 111},
        {3, 0, 255, 0, 0},       {3, 255, 0, 255, 255},   {3, 250, 2, 2, 2},       {3, 4, 2, 252, 2},
        {5, 255, 244, 255, 249}, {6, 255, 0, 255, 255},   {6, 0, 255, 7, 3},
    };
    for (const auto& [mode, prev, t, cur, result] : cases)
        EXPECT_EQ(second(mode, prev, t, cur), result) << mode << ' ' << prev << ' ' << t << ' ' << cur;
}

TEST(AverageEdges, other_modes_do_nothing)
{
    for (const int mode : {-0x7FFFFFFF - 1, -3, -1, 0, 7, 8, 256 + 3, 0x7FFFFFFF}) {
        EXPECT_EQ(second(mode, 100, 200, 100), 200) << mode;
        EXPECT_EQ(tntvt_2yuv_average_2y(nullptr, 100, mode), 0);
    }
}

TEST(AverageEdges, below_two_bytes_nothing_is_done)
{
    for (int mode = 1; mode <= 6; ++mode)
        for (const unsigned int bytes : {0u, 1u}) EXPECT_EQ(tntvt_2yuv_average_2y(nullptr, bytes, mode), 0);
}

// Rounds of modes 2 to 6 at i = 5, 9, ... to the first i at or past `bytes`; of mode 1 at i = 1, 5, ... below it.
// The result is how many second lumas of a line of alternating 100 and 120 have changed, all from the start.
TEST(AverageEdges, keeps_round_past_the_end)
{
    const auto changed = [](unsigned int bytes, int mode) {
        Bytes line;
        for (int pair = 0; pair < 8; ++pair) line.insert(line.end(), {0, 100, 0, 120});
        EXPECT_EQ(tntvt_2yuv_average_2y(line.data(), bytes, mode), 0);
        size_t count = 0;
        while (line[4 * count + 3] != 120) ++count;
        for (size_t pair = count; pair < 8; ++pair) EXPECT_EQ(line[4 * pair + 3], 120);
        return count;
    };
    const struct {
        unsigned int bytes;
        size_t averaged, pulled;
    } cases[] = {{2, 1, 1}, {4, 1, 1}, {5, 1, 1}, {6, 2, 2}, {8, 2, 2}, {9, 2, 2}, {10, 3, 3}, {13, 3, 3}, {20, 5, 5}};
    for (const auto& [bytes, averaged, pulled] : cases) {
        EXPECT_EQ(changed(bytes, 1), averaged) << bytes;
        for (int mode = 2; mode <= 6; ++mode) EXPECT_EQ(changed(bytes, mode), pulled) << bytes << ' ' << mode;
    }
}

TEST(AverageEdges, mode_1_truncates)
{
    Bytes line{1, 100, 2, 103, 3, 255, 4, 255, 5, 0, 6, 1};
    EXPECT_EQ(tntvt_2yuv_average_2y(line.data(), 10, 1), 0);
    EXPECT_EQ(line, (Bytes{1, 100, 2, 101, 3, 255, 4, 255, 5, 0, 6, 0}));
}

// `prev` goes on as the first luma of the next pair, as it is in the line.
TEST(AverageEdges, references_move_on)
{
    Bytes line{0, 100, 0, 200, 0, 106, 0, 200, 0, 113, 0, 200, 0, 121, 0, 200};
    EXPECT_EQ(tntvt_2yuv_average_2y(line.data(), 10, 3), 0);
    EXPECT_EQ(line, (Bytes{0, 100, 0, 100, 0, 106, 0, 106, 0, 113, 0, 200, 0, 121, 0, 200}));
}

}  // namespace
