#include <gtest/gtest.h>
#include <tintvert.h>

#include <climits>
#include <vector>

#include "support/fence.h"

namespace tintvert::test {
namespace {

using Bytes = std::vector<uint8_t>;
using Channels = std::vector<uint16_t>;
using Words = std::vector<uint32_t>;
using Routine = void (*)(void*, long, void*, long, long, long, unsigned char, unsigned char);

constexpr unsigned char off = 0, on = 1;

struct Named {
    const char* name;
    Routine routine;
    size_t pixel_bytes;
};
const std::vector<Named> all = {
    {"rgba64", tntvt_rgb10_rgba64, 8}, {"rgb48", tntvt_rgb10_rgb48, 6}, {"rgba32", tntvt_rgb10_rgba32, 4}};

Words byte_reversed(Words words)
{
    for (uint32_t& word : words) word = word << 24 | (word & 0xFF00) << 8 | (word >> 8 & 0xFF00) | word >> 24;
    return words;
}

// One line of pixels, the same from words in either byte order.
template <class Sample>
std::vector<Sample> line(Routine routine, size_t samples, Words words)
{
    const long width = static_cast<long>(words.size());
    std::vector<Sample> little(words.size() * samples), big(little);
    routine(little.data(), 0, words.data(), 0, width, 1, off, on);
    Words reversed = byte_reversed(words);
    routine(big.data(), 0, reversed.data(), 0, width, 1, on, off);
    EXPECT_EQ(little, big);
    return little;
}

Channels rgba64(const Words& words) { return line<uint16_t>(tntvt_rgb10_rgba64, 4, words); }
Channels rgb48(const Words& words) { return line<uint16_t>(tntvt_rgb10_rgb48, 3, words); }
Bytes rgba32(const Words& words) { return line<uint8_t>(tntvt_rgb10_rgba32, 4, words); }

TEST(Rgb10Edges, all_fields_at_their_maximum)
{
    EXPECT_EQ(rgb48({0xFFFFFFFC}), (Channels{0xFF30, 0xFF30, 0xFF30}));
    EXPECT_EQ(rgba64({0xFFFFFFFC}), (Channels{0xFF30, 0xFF30, 0xFF30, 0xFFFF}));
    EXPECT_EQ(rgba32({0xFFFFFFFC}), (Bytes{255, 255, 255, 255}));
}

TEST(Rgb10Edges, field_3_alone)
{
    EXPECT_EQ(rgb48({0x00000FFC}), (Channels{0, 0x30, 0x30}));
    EXPECT_EQ(rgba64({0x00000FFC}), (Channels{0x30, 0x30, 0, 0xFFFF}));
    EXPECT_EQ(rgba32({0x00000FFC}), (Bytes{255, 0, 0, 255}));
}

TEST(Rgb10Edges, field_2_alone)
{
    EXPECT_EQ(rgb48({0x003FF000}), (Channels{0x30, 0xFF00, 0xFF00}));
    EXPECT_EQ(rgba64({0x003FF000}), (Channels{0xFF00, 0xFF00, 0x30, 0xFFFF}));
    EXPECT_EQ(rgba32({0x003FF000}), (Bytes{0, 255, 0, 255}));
}

TEST(Rgb10Edges, field_1_alone)
{
    EXPECT_EQ(rgb48({0xFFC00000}), (Channels{0xFF00, 0, 0}));
    EXPECT_EQ(rgba64({0xFFC00000}), (Channels{0, 0, 0xFF00, 0xFFFF}));
    EXPECT_EQ(rgba32({0xFFC00000}), (Bytes{0, 0, 255, 255}));
}

TEST(Rgb10Edges, the_two_unused_bits_and_an_empty_word)
{
    for (const uint32_t word : {0u, 1u, 2u, 3u}) {
        EXPECT_EQ(rgb48({word}), (Channels{0, 0, 0}));
        EXPECT_EQ(rgba64({word}), (Channels{0, 0, 0, 0xFFFF}));
        EXPECT_EQ(rgba32({word}), (Bytes{0, 0, 0, 255}));
    }
}

TEST(Rgb10Edges, the_low_two_bits_of_a_field_are_dropped)
{
    EXPECT_EQ(rgba32({3u << 22 | 7u << 12 | 0x3FBu << 2}), (Bytes{0xFE, 1, 0, 255}));
}

TEST(Rgb10Edges, bits_that_reach_the_low_byte_of_a_channel)
{
    // Bits 31 and 24, 21 and 20; 21 and 14, 11 and 10; 19 and 12, 9 and 8.
    EXPECT_EQ(rgb48({1u << 31, 1u << 24, 1u << 23, 1u << 22}),
              (Channels{0x8000, 0, 0, 0x0100, 0, 0, 0, 0, 0, 0, 0, 0}));
    EXPECT_EQ(rgb48({1u << 21, 1u << 20, 1u << 19, 1u << 18}),
              (Channels{0x20, 0x8000, 0, 0x10, 0x4000, 0, 0, 0x2000, 0x8000, 0, 0x1000, 0x4000}));
    EXPECT_EQ(rgb48({1u << 14, 1u << 13, 1u << 12, 1u << 11}),
              (Channels{0, 0x0100, 0x0400, 0, 0, 0x0200, 0, 0, 0x0100, 0, 0x20, 0}));
    EXPECT_EQ(rgb48({1u << 10, 1u << 9, 1u << 8, 1u << 7}), (Channels{0, 0x10, 0, 0, 0, 0x20, 0, 0, 0x10, 0, 0, 0}));
}

// Lines of one pixel, known by the top byte of field 1.
const Words lines = {0x01000000, 0x02000000, 0x03000000, 0x04000000};

Bytes order_of_lines(const Named& form, bool swap, bool flip)
{
    Words src = swap ? byte_reversed(lines) : lines;
    Bytes dst(3 * form.pixel_bytes);
    form.routine(dst.data(), 0, src.data(), 0, 1, 3, swap ? 0x80 : 0, flip ? 0x40 : 0);
    const size_t field_1 = form.pixel_bytes == 8 ? 5 : form.pixel_bytes == 6 ? 1 : 2;
    return {dst[field_1], dst[field_1 + form.pixel_bytes], dst[field_1 + 2 * form.pixel_bytes]};
}

TEST(Rgb10Edges, keeps_flip_sense_by_byte_order)
{
    for (const Named& form : all) {
        EXPECT_EQ(order_of_lines(form, true, false), (Bytes{1, 2, 3})) << form.name;
        EXPECT_EQ(order_of_lines(form, false, true), (Bytes{1, 2, 3})) << form.name;
    }
}

TEST(Rgb10Edges, keeps_start_one_line_below)
{
    for (const Named& form : all)
        for (const bool both : {false, true})
            EXPECT_EQ(order_of_lines(form, both, both), form.pixel_bytes == 4 ? (Bytes{3, 2, 1}) : (Bytes{4, 3, 2}))
                << form.name;
}

// Two lines of two words after a fence: the 16-bit forms need a third line, and none of the first.
TEST(Rgb10Edges, keeps_start_one_line_below_at_a_fence)
{
    Bytes dst(64);
    const auto faults_with = [&](const Named& form, int64_t fence, Side side) {
        FencedBuffer src({0, 24}, fence, side, Closed::wholly);
        return faults([&] { form.routine(dst.data(), 0, src.pointer(), 0, 2, 2, off, off); });
    };
    for (const Named& form : all) {
        const bool deep = form.pixel_bytes != 4;
        EXPECT_EQ(faults_with(form, 16, Side::above), deep) << form.name;
        EXPECT_FALSE(faults_with(form, 24, Side::above)) << form.name;
        EXPECT_EQ(faults_with(form, 8, Side::below), !deep) << form.name;
    }
}

TEST(Rgb10Edges, strides_change_nothing)
{
    for (const Named& form : all) {
        Bytes src(4 * 6 + 8), tight(6 * form.pixel_bytes);
        for (size_t i = 0; i < src.size(); ++i) src[i] = static_cast<uint8_t>(37 * i);
        form.routine(tight.data(), 2 * static_cast<long>(form.pixel_bytes), src.data(), 8, 2, 3, on, off);
        for (const long stride : {0l, 1l, -1l, 7l, 1000l, LONG_MAX, LONG_MIN}) {
            Bytes dst(tight.size());
            form.routine(dst.data(), stride, src.data(), -stride / 2, 2, 3, on, off);
            EXPECT_EQ(dst, tight) << form.name << ' ' << stride;
        }
    }
}

TEST(Rgb10Edges, no_line_and_no_pixel_is_no_work)
{
    for (const Named& form : all)
        for (const unsigned char swap : {off, on})
            for (const unsigned char flip : {off, on})
                for (const auto& [width, height] :
                     {std::pair{2l, 0l}, {2l, -1l}, {2l, -3l}, {2l, LONG_MIN}, {0l, 2l}, {-1l, 2l}, {LONG_MIN, 2l}}) {
                    Bytes src(96, 1), dst(192, 0xEE);
                    form.routine(dst.data() + 96, 16, src.data() + 48, 8, width, height, swap, flip);
                    EXPECT_EQ(dst, Bytes(192, 0xEE)) << form.name << ' ' << width << " x " << height;
                }
}

// Destination lines are end to end.
TEST(Rgb10Edges, writes_a_tight_frame)
{
    Words src = {0x01000000, 0x02000000, 0x03000000, 0x04000000};
    Channels dst(13, 0xEEEE);
    tntvt_rgb10_rgb48(dst.data(), 64, src.data(), 64, 2, 2, off, on);
    EXPECT_EQ(dst, (Channels{0x0100, 0, 0, 0x0200, 0, 0, 0x0300, 0, 0, 0x0400, 0, 0, 0xEEEE}));
}

}  // namespace
}  // namespace tintvert::test
