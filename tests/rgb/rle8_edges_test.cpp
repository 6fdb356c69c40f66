#include <gtest/gtest.h>
#include <tintvert.h>

#include <climits>
#include <vector>

#include "support/fence.h"

namespace tintvert::test {
namespace {

using Bytes = std::vector<uint8_t>;
using Routine = void (*)(void*, long, void*, long, long, long, void*);

const std::vector<Routine> both_32 = {tntvt_rle8_rgba32, tntvt_rle8_rgb32};

// Entry i is the bytes i, 255 - i, i ^ 0x55, and 0x99 if the entry has a fourth.
Bytes palette_of(size_t entry_bytes)
{
    Bytes palette;
    for (int i = 0; i < 256; ++i)
        for (size_t b = 0; b < entry_bytes; ++b)
            palette.push_back(static_cast<uint8_t>(b == 0 ? i : b == 1 ? 255 - i : b == 2 ? i ^ 0x55 : 0x99));
    return palette;
}

Bytes pixels(const std::vector<int>& entries, bool with_zero)
{
    Bytes bytes;
    for (const int i : entries) {
        for (const int byte : {i, 255 - i, i ^ 0x55}) bytes.push_back(static_cast<uint8_t>(byte));
        if (with_zero) bytes.push_back(0);
    }
    return bytes;
}
Bytes pixels_32(const std::vector<int>& entries) { return pixels(entries, true); }
Bytes pixels_24(const std::vector<int>& entries) { return pixels(entries, false); }

// What `size` bytes of 0xEE around `start` are after a call, less the unchanged ones at their end.
Bytes after(Routine routine, size_t entry_bytes, Bytes stream, long height, long stride, long start, size_t size)
{
    Bytes dst(size, 0xEE), palette = palette_of(entry_bytes);
    const Bytes old_stream = stream, old_palette = palette;
    routine(dst.data() + start, stride, stream.data(), 12345, -77, height, palette.data());
    EXPECT_EQ(stream, old_stream);
    EXPECT_EQ(palette, old_palette);
    while (!dst.empty() && dst.back() == 0xEE) dst.pop_back();
    return dst;
}
Bytes rgb32(const Bytes& stream, long height = 1, long stride = 0, long start = 0)
{
    const Bytes one = after(both_32[0], 4, stream, height, stride, start, 4096);
    EXPECT_EQ(after(both_32[1], 4, stream, height, stride, start, 4096), one);
    return one;
}
Bytes rgb24(const Bytes& stream, long height = 1, long stride = 0)
{
    return after(tntvt_rle8_rgb24, 3, stream, height, stride, 0, 4096);
}

TEST(Rle8Edges, keeps_one_pixel_more_in_an_encoded_run)
{
    EXPECT_EQ(rgb32({3, 5, 0, 1}), pixels_32({5, 5, 5}));
    EXPECT_EQ(rgb24({3, 5, 0, 1}), pixels_24({5, 5, 5, 5}));
    EXPECT_EQ(rgb32({1, 200, 0, 1}), pixels_32({200}));
    EXPECT_EQ(rgb24({1, 200, 0, 1}), pixels_24({200, 200}));
    EXPECT_EQ(rgb32({255, 255, 0, 1}), pixels_32(std::vector<int>(255, 255)));
    EXPECT_EQ(rgb24({255, 255, 0, 1}), pixels_24(std::vector<int>(256, 255)));
}

TEST(Rle8Edges, keeps_indices_as_codes_of_an_absolute_run)
{
    const Bytes odd = {0, 3, 1, 2, 3, 0, 0, 1};
    EXPECT_EQ(rgb32(odd), pixels_32({1, 2, 3}));
    EXPECT_EQ(rgb24(odd), pixels_24({3, 3, 3}));
    const Bytes even = {0, 4, 1, 2, 3, 7, 1, 9, 0, 1};
    EXPECT_EQ(rgb32(even), pixels_32({1, 2, 3, 7, 9}));
    EXPECT_EQ(rgb24(even), pixels_24({2, 2, 7, 7, 7, 7, 9, 9}));
}

// After an odd skip the stream is read at odd places, and an index pair of 0 and 2 is an end.
TEST(Rle8Edges, keeps_indices_as_codes_that_stop)
{
    EXPECT_EQ(rgb24({0, 5, 9, 0, 2, 1, 1, 1, 0, 1}), Bytes());
    EXPECT_EQ(rgb32({0, 5, 9, 0, 2, 1, 1, 77, 0, 1}), pixels_32({9, 0, 2, 1, 1}));
}

TEST(Rle8Edges, an_absolute_run_of_255_indices)
{
    Bytes stream = {0, 255};
    std::vector<int> entries;
    for (int i = 0; i < 255; ++i) {
        stream.push_back(static_cast<uint8_t>(i + 1));
        entries.push_back(i + 1);
    }
    stream.insert(stream.end(), {123, 1, 6, 0, 1});
    entries.push_back(6);
    EXPECT_EQ(rgb32(stream), pixels_32(entries));
}

TEST(Rle8Edges, keeps_delta_as_end_without_its_offsets)
{
    EXPECT_EQ(rgb32({1, 1, 0, 2, 1, 1, 5, 5, 0, 1}, 2), pixels_32({1}));
    EXPECT_EQ(rgb24({1, 1, 0, 2, 1, 1, 5, 5, 0, 1}, 2), pixels_24({1, 1}));
}

TEST(Rle8Edges, an_end_of_bitmap_in_a_line_leaves_the_rest)
{
    // Line 2 of 3 whole, line 1 half, line 0 not at all.
    Bytes expected(16 + 8, 0xEE);
    const Bytes half = pixels_32({3}), whole = pixels_32({1, 2});
    std::copy(half.begin(), half.end(), expected.begin() + 8);
    std::copy(whole.begin(), whole.end(), expected.begin() + 16);
    EXPECT_EQ(rgb32({1, 1, 1, 2, 0, 0, 1, 3, 0, 1, 1, 9, 0, 0, 1, 9, 0, 1}, 3, 8), expected);
}

TEST(Rle8Edges, a_run_goes_on_past_the_end_of_its_line)
{
    // Line 1 of two pixels runs two pixels past the frame; line 0 then covers line 1's first.
    EXPECT_EQ(rgb32({4, 1, 0, 0, 3, 2, 0, 0}, 2, 8), pixels_32({2, 2, 2, 1, 1, 1}));
}

TEST(Rle8Edges, an_absolute_and_an_encoded_run_share_a_line)
{
    EXPECT_EQ(rgb32({2, 1, 0, 3, 7, 8, 9, 0, 1, 4, 0, 0}), pixels_32({1, 1, 7, 8, 9, 4}));
}

TEST(Rle8Edges, keeps_zero_alpha_whatever_the_palette_says)
{
    const Bytes dst = rgb32({2, 1, 0, 4, 7, 8, 9, 10, 0, 1});
    ASSERT_EQ(dst.size(), 24u);
    for (size_t i = 3; i < dst.size(); i += 4) EXPECT_EQ(dst[i], 0);
}

TEST(Rle8Edges, no_lines_in_32_bits_is_no_work)
{
    EXPECT_EQ(rgb32({1, 1, 0, 1}, 0), Bytes());
    for (const Routine routine : both_32) routine(nullptr, 4, nullptr, 0, 1, 0, nullptr);
}

TEST(Rle8Edges, keeps_lines_below_the_frame_at_height_less_1_and_lower)
{
    // With a `height` of -2 lines -3 and -4 are 12 and 16 bytes before `dst`.
    Bytes expected(4, 0xEE);
    const Bytes lines = pixels_32({2, 1});
    expected.insert(expected.end(), lines.begin(), lines.end());
    EXPECT_EQ(rgb32({1, 1, 0, 0, 1, 2, 0, 0, 1, 3, 0, 1}, -2, 4, 20), expected);
    // A `height` of -1 is line -2, which is after `dst` if the stride is negative.
    expected.assign(12, 0xEE);
    const Bytes line = pixels_32({1});
    expected.insert(expected.end(), line.begin(), line.end());
    EXPECT_EQ(rgb32({1, 1, 0, 0, 1, 2, 0, 1}, -1, 4, 20), expected);
    EXPECT_EQ(rgb32({1, 1, 0, 0, 1, 2, 0, 1}, -1, -4, 4), expected);
}

TEST(Rle8Edges, a_negative_stride_turns_the_image)
{
    EXPECT_EQ(rgb32({1, 1, 0, 0, 1, 2, 0, 0}, 2, -4, 4), pixels_32({1, 2}));
}

TEST(Rle8Edges, keeps_lines_end_to_end_whatever_the_stride)
{
    const Bytes stream = {1, 1, 0, 0, 1, 2, 0, 0, 1, 3, 0, 1};
    for (const long stride : {0l, 3l, 1000l, -1000l, LONG_MAX, LONG_MIN}) {
        EXPECT_EQ(rgb24(stream, 3, stride), pixels_24({1, 1, 2, 2, 3, 3}));
        EXPECT_EQ(rgb24(stream, 2, stride), pixels_24({1, 1, 2, 2}));
        EXPECT_EQ(rgb24(stream, 1, stride), pixels_24({1, 1}));
    }
}

TEST(Rle8Edges, keeps_count_wrap_through_many_ends_of_line)
{
    Bytes stream;
    for (int i = 0; i < 5000; ++i) stream.insert(stream.end(), {0, 0});
    stream.insert(stream.end(), {1, 4, 0, 2, 1, 5, 0, 1});
    EXPECT_EQ(rgb24(stream, 0), pixels_24({4, 4}));
    EXPECT_EQ(rgb24(stream, -1), pixels_24({4, 4}));
    EXPECT_EQ(rgb24(stream, 5001), pixels_24({4, 4}));
    EXPECT_EQ(rgb24(stream, 5000), Bytes());
}

// `height` counts in 64 bits: after one end of line 2^32 lines are left, where 32 bits would leave none.
TEST(Rle8Edges, lines_are_counted_in_64_bits)
{
    constexpr long whole = 1l << 32;
    EXPECT_EQ(rgb24({1, 1, 0, 0, 1, 2, 0, 1}, whole + 1), pixels_24({1, 1, 2, 2}));
    EXPECT_EQ(rgb32({1, 1, 0, 0, 1, 2, 0, 1}, whole + 1), pixels_32({2}));
    EXPECT_EQ(rgb32({1, 1, 0, 0, 1, 2, 0, 1}, -whole - 1), pixels_32({2}));
    EXPECT_EQ(rgb32({1, 1, 0, 1}, whole), pixels_32({1}));
    for (const Routine routine : both_32) routine(nullptr, 4, nullptr, 0, 1, LONG_MIN, nullptr);  // no magnitude
}

// Line 0 of 2^29 + 1 is 2^29 strides of 8 from `dst`, which is 2^32 bytes.
TEST(Rle8Edges, a_line_2_to_the_32_bytes_away)
{
    const FencedBuffer dst({0, (1l << 32) + 4096}, 4096, Side::above, Closed::wholly);
    Bytes stream{1, 1, 0, 1}, palette = palette_of(4);
    for (const Routine routine : both_32) {
        EXPECT_TRUE(faults([&] { routine(dst.pointer(), 8, stream.data(), 0, 0, (1l << 29) + 1, palette.data()); }));
        EXPECT_TRUE(faults([&] { routine(dst.pointer(), 1l << 32, stream.data(), 0, 0, 2, palette.data()); }));
        EXPECT_FALSE(faults([&] { routine(dst.pointer(), 1l << 32, stream.data(), 0, 0, 1, palette.data()); }));
    }
}

// The last bytes of a stream are before a fence: nothing after the code that stops a decode is read.
bool faults_on(Routine routine, const Bytes& stream, long height)
{
    const auto size = static_cast<int64_t>(stream.size());
    Bytes dst(1 << 16), palette = palette_of(4);
    FencedBuffer src({0, size}, size, Side::above, Closed::wholly);
    std::copy(stream.begin(), stream.end(), src.pointer());
    return faults([&] { routine(dst.data(), 16, src.pointer(), 0, 0, height, palette.data()); });
}

TEST(Rle8Edges, reads_nothing_past_the_code_that_stops)
{
    for (const Routine routine : {tntvt_rle8_rgba32, tntvt_rle8_rgb32, tntvt_rle8_rgb24}) {
        EXPECT_FALSE(faults_on(routine, {3, 5, 0, 1}, 9));
        EXPECT_FALSE(faults_on(routine, {3, 5, 0, 2}, 9));
        EXPECT_FALSE(faults_on(routine, {3, 5, 0, 0, 0, 0}, 2));
        EXPECT_TRUE(faults_on(routine, {3, 5, 0, 0, 0, 0}, 3));
        EXPECT_TRUE(faults_on(routine, {3, 5}, 1));
    }
    EXPECT_TRUE(faults_on(tntvt_rle8_rgb24, {0, 0, 0, 0, 0, 0}, 0));
    EXPECT_TRUE(faults_on(tntvt_rle8_rgb24, {0, 0, 0, 0, 0, 0}, -2));
}

TEST(Rle8Edges, the_empty_entries_touch_nothing)
{
    for (const Routine routine : {tntvt_rle4_rgb24, tntvt_rle4_rgba32, tntvt_rle4_rgb32})
        for (const long height : {0l, 1l, 3l, -2l, LONG_MIN})
            for (const Bytes& stream : {Bytes{3, 5, 0, 1}, Bytes{0, 0, 0, 0}, Bytes{0, 4, 0x12, 0x34, 0, 1}})
                EXPECT_EQ(after(routine, 4, stream, height, 8, 64, 128), Bytes());
}

}  // namespace
}  // namespace tintvert::test
