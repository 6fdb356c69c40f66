#include <gtest/gtest.h>
#include <sys/mman.h>
#include <tintvert.h>
#include <unistd.h>

#include <vector>

#include "support/fence.h"

namespace tintvert::test {
namespace {

using Bytes = std::vector<uint8_t>;
using Channels = std::vector<uint16_t>;
using Routine = void (*)(void*, long, void*, long, long, long);

struct Named {
    const char* name;
    Routine routine;
};
const std::vector<Named> all = {
    {"rgb12_bgr48", tntvt_rgb12_bgr48},           {"rgb12_rgb48", tntvt_rgb12_rgb48},
    {"rgb12_rgba32", tntvt_rgb12_rgba32},         {"rgb48_12_rgb12", tntvt_rgb48_12_rgb12},
    {"rgb48_rgb12", tntvt_rgb48_rgb12},           {"rgb48_12_rgba32", tntvt_rgb48_12_rgba32},
    {"rgb12_rgb48_sse4", tntvt_rgb12_rgb48_sse4},
};

// Samples 0 to 7 of a packed stream: n, n + 0x100, n + 0x200 ... for a byte n.
Bytes packed(uint8_t n, size_t rounds = 1)
{
    Bytes bytes;
    for (size_t i = 0; i < rounds; ++i)
        for (unsigned pair = 0; pair < 8; pair += 2) {
            const unsigned two = (pair << 8 | n) | ((pair + 1) << 8 | n) << 12;
            for (int b = 0; b < 3; ++b) bytes.push_back(static_cast<uint8_t>(two >> 8 * b));
        }
    return bytes;
}

Bytes joined(const std::vector<Bytes>& parts)
{
    Bytes all_bytes;
    for (const Bytes& part : parts) all_bytes.insert(all_bytes.end(), part.begin(), part.end());
    return all_bytes;
}

// How many bytes of a `line` that were 0xEE are changed, if none after the first such run is.
size_t changed_at_the_start(const Bytes& line)
{
    size_t changed = 0;
    while (changed < line.size() && line[changed] != 0xEE) ++changed;
    for (size_t i = changed; i < line.size(); ++i) EXPECT_EQ(line[i], 0xEE) << i;
    return changed;
}

// The room that one line takes on either side: the call faults with a byte less of it and not with all.
void expect_line(Routine routine, long width, int64_t src_bytes, int64_t dst_bytes)
{
    const auto fails = [&](int64_t src_room, int64_t dst_room) {
        FencedBuffer src({0, src_bytes}, src_room, Side::above, Closed::wholly);
        FencedBuffer dst({0, dst_bytes}, dst_room, Side::above, Closed::wholly);
        return faults([&] { routine(dst.pointer(), 4096, src.pointer(), 4096, width, 1); });
    };
    EXPECT_FALSE(fails(src_bytes, dst_bytes)) << width;
    EXPECT_TRUE(fails(src_bytes - 1, dst_bytes)) << width;
    EXPECT_TRUE(fails(src_bytes, dst_bytes - 1)) << width;
}

TEST(Rgb12Edges, bgr48_runs_in_rounds_of_eight_samples)
{
    for (const auto& [width, rounds] : {std::pair{1l, 1}, {2l, 1}, {3l, 2}, {5l, 2}, {6l, 3}, {8l, 3}, {9l, 4}})
        expect_line(tntvt_rgb12_bgr48, width, 12 * rounds, 16 * rounds);
}

TEST(Rgb12Edges, keeps_triple_rounds_in_a_line)
{
    // A `width` of 8 writes 144 bytes.
    for (const auto& [width, rounds] : {std::pair{1l, 1}, {2l, 1}, {3l, 2}, {5l, 2}, {6l, 3}, {8l, 3}, {9l, 4}})
        expect_line(tntvt_rgb12_rgb48, width, 36 * rounds, 48 * rounds);
}

TEST(Rgb12Edges, rgba32_runs_in_rounds_of_eight_pixels)
{
    // A `width` of 9 writes 64 bytes.
    for (const auto& [width, rounds] : {std::pair{1l, 1}, {8l, 1}, {9l, 2}, {16l, 2}, {17l, 3}})
        expect_line(tntvt_rgb12_rgba32, width, 36 * rounds, 32 * rounds);
}

TEST(Rgb12Edges, bgr48_of_one_pixel)
{
    Bytes src = packed(0x12);
    Channels dst(9, 0xEEEE);
    tntvt_rgb12_bgr48(dst.data(), 100, src.data(), 100, 1, 1);
    EXPECT_EQ(dst, (Channels{0x0120, 0x1120, 0x2120, 0x3120, 0x4120, 0x5120, 0x6120, 0x7120, 0xEEEE}));
}

// The surplus of line 0 ends under line 1, that of line 1 stays past the end of the frame.
TEST(Rgb12Edges, keeps_triple_rounds_of_two_lines)
{
    Bytes src = joined({packed(0x11, 3), packed(0x22, 3), packed(0x33, 3)});
    Bytes dst(200, 0xEE);
    tntvt_rgb12_rgb48(dst.data(), 24, src.data(), 36, 4, 2);
    // Lines of two rounds: 96 bytes from 0 on out of 0x11 and 0x22, then 96 from 24 on out of 0x22 and 0x33.
    EXPECT_EQ(changed_at_the_start(dst), 120u);
    const auto low_nibbles = [&](size_t word) { return dst[2 * word] >> 4 | (dst[2 * word + 1] & 0xF) << 4; };
    for (size_t word = 0; word < 60; ++word)
        EXPECT_EQ(low_nibbles(word), word < 12 ? 0x11 : word < 36 ? 0x22 : 0x33) << word;
}

TEST(Rgb12Edges, rgb48_reverses_each_pixel)
{
    Bytes src = packed(0xA5, 3);
    Channels dst(24);
    tntvt_rgb12_rgb48(dst.data(), 48, src.data(), 36, 1, 1);
    EXPECT_EQ(dst, (Channels{0x2A50, 0x1A50, 0x0A50, 0x5A50, 0x4A50, 0x3A50, 0x0A50, 0x7A50,
                             0x6A50, 0x3A50, 0x2A50, 0x1A50, 0x6A50, 0x5A50, 0x4A50, 0x1A50,
                             0x0A50, 0x7A50, 0x4A50, 0x3A50, 0x2A50, 0x7A50, 0x6A50, 0x5A50}));
}

// A pixel of the round lit alone, by its sample number.
Bytes rgba32_of_sample(size_t n)
{
    Bytes src(36), dst(33, 0xEE);
    for (size_t bit = 12 * n; bit < 12 * n + 12; ++bit)
        src[bit / 8] = static_cast<uint8_t>(src[bit / 8] | 1 << bit % 8);
    tntvt_rgb12_rgba32(dst.data(), 32, src.data(), 36, 8, 1);
    EXPECT_EQ(dst[32], 0xEE);
    dst.pop_back();
    return dst;
}

TEST(Rgb12Edges, keeps_red_in_one_blue_byte_sample_by_sample)
{
    for (size_t n = 0; n < 24; ++n) {
        Bytes expected(32);
        for (size_t p = 0; p < 8; ++p) expected[4 * p + 3] = 255;
        if (n != 8) expected[n / 3 * 4 + 2 - n % 3] = 255;
        if (n == 0) expected[8] = 255;
        EXPECT_EQ(rgba32_of_sample(n), expected) << n;
    }
}

TEST(Rgb12Edges, rgba32_drops_the_low_four_bits)
{
    Bytes src(36), dst(32);
    src[0] = 0xEF, src[1] = 0xFF, src[2] = 0x00;  // S0 = 0xFEF, S1 = 0x00F
    tntvt_rgb12_rgba32(dst.data(), 32, src.data(), 36, 1, 1);
    EXPECT_EQ((Bytes{dst[2], dst[1], dst[0]}), (Bytes{0xFE, 0x00, 0x00}));
}

// With all lines on one the last line's pixels stay, and the lines read are 0, 1 and 2.
TEST(Rgb12Edges, a_negative_height_goes_through_lines_0_1_and_2)
{
    for (const Named& form : {all[0], all[1], all[2], all[3], all[4], all[5]}) {
        Bytes src(40 + 3 * 40), frame(200, 0xEE), twin(frame), one(frame), last(frame);
        for (size_t i = 0; i < src.size(); ++i) src[i] = static_cast<uint8_t>(1 + i / 40 * 16 + i % 7);
        form.routine(frame.data(), 20, src.data(), 40, 2, -3);
        for (long line = 0; line < 3; ++line)
            form.routine(twin.data() + line * 20, 20, src.data() + line * 40, 40, 2, 1);
        EXPECT_EQ(frame, twin) << form.name;
        form.routine(one.data(), 0, src.data(), 40, 2, -3);
        form.routine(last.data(), 0, src.data() + 80, 40, 2, 1);
        EXPECT_EQ(one, last) << form.name;
    }
}

TEST(Rgb12Edges, no_line_and_no_pixel_is_no_work)
{
    for (const Named& form : all)
        for (const auto& [width, height] : {std::pair{4l, 0l}, {0l, 2l}, {-1l, 2l}, {-8l, -2l}, {0l, 0l}}) {
            Bytes src(256, 1), dst(256, 0xEE);
            form.routine(dst.data() + 128, 16, src.data() + 128, 16, width, height);
            EXPECT_EQ(dst, Bytes(256, 0xEE)) << form.name << ' ' << width << " x " << height;
        }
}

TEST(Rgb12Edges, sse4_changes_nothing)
{
    Bytes src(256, 1), dst(256, 0xEE);
    tntvt_rgb12_rgb48_sse4(dst.data(), 48, src.data(), 36, 8, 2);
    EXPECT_EQ(dst, Bytes(256, 0xEE));
    EXPECT_EQ(src, Bytes(256, 1));
}

Bytes packed_line(Routine routine, Channels src, long stride, size_t size = 14)
{
    Bytes dst(size, 0xEE);
    src.resize(16);
    routine(dst.data(), stride, src.data(), 16, 1, 1);
    return dst;
}

TEST(Rgb12Edges, packers_write_two_samples_in_three_bytes)
{
    EXPECT_EQ(packed_line(tntvt_rgb48_rgb12, {0xABCD, 0x1234}, 12),
              (Bytes{0xAB, 0xC1, 0x23, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0xEE, 0xEE}));
    EXPECT_EQ(packed_line(tntvt_rgb48_12_rgb12, {0xFABC}, 12),
              (Bytes{0xAB, 0xC0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0xEE, 0xEE}));
    EXPECT_EQ(packed_line(tntvt_rgb48_12_rgb12, {0xF123, 0x4567, 0x89AB, 0xCDEF, 1, 2, 3, 0xFFFF}, 14),
              (Bytes{0x12, 0x35, 0x67, 0x9A, 0xBD, 0xEF, 0x00, 0x10, 0x02, 0x00, 0x3F, 0xFF, 0xEE, 0xEE}));
    EXPECT_EQ(packed_line(tntvt_rgb48_rgb12, {0xF123, 0x4567, 0x89AB, 0xCDEF, 1, 2, 3, 0xFFFF}, 14),
              (Bytes{0xF1, 0x24, 0x56, 0x89, 0xAC, 0xDE, 0x00, 0x00, 0x00, 0x00, 0x0F, 0xFF, 0xEE, 0xEE}));
}

TEST(Rgb12Edges, keeps_bits_behind_the_limit_of_every_stride)
{
    const Channels src = {0xF123, 0x4567, 0x89AB, 0xCDEF, 1, 2, 3, 0xFFFF};
    const Bytes whole = {0xF1, 0x24, 0x56, 0x89, 0xAC, 0xDE, 0x00, 0x00, 0x00, 0x00, 0x0F, 0xFF, 0xEE, 0xEE};
    for (long stride = -1; stride <= 14; ++stride) {
        Bytes cut = whole;
        for (size_t i = stride < 0 ? 0 : static_cast<size_t>(stride); i < cut.size(); ++i) cut[i] = 0xEE;
        EXPECT_EQ(packed_line(tntvt_rgb48_rgb12, src, stride), cut) << stride;
    }
}

// Bits that are to be 0 are cleared, and lines begin at their stride.
TEST(Rgb12Edges, packers_leave_the_slack_of_each_line)
{
    for (const Routine routine : {tntvt_rgb48_12_rgb12, tntvt_rgb48_rgb12}) {
        Channels src(16);
        Bytes dst(32, 0xFF), expected(32, 0xFF);
        for (size_t i = 0; i < 12; ++i) expected[i] = expected[16 + i] = 0;
        routine(dst.data(), 16, src.data(), 16, 2, 2);
        EXPECT_EQ(dst, expected);
    }
}

// A stride of 1 takes one byte a line, and the source is walked to its last word all the same.
TEST(Rgb12Edges, keeps_bits_behind_the_limit_and_walks_the_source)
{
    for (const Routine routine : {tntvt_rgb48_12_rgb12, tntvt_rgb48_rgb12}) {
        Bytes dst(4, 0xEE);
        const auto faults_with = [&](int64_t room) {
            FencedBuffer src({0, 32}, room, Side::above, Closed::wholly);
            return faults([&] { routine(dst.data() + 1, 1, src.pointer(), 16, 2, 2); });
        };
        EXPECT_FALSE(faults_with(32));
        EXPECT_EQ(dst, (Bytes{0xEE, 0, 0, 0xEE}));
        EXPECT_TRUE(faults_with(31));
    }
}

TEST(Rgb12Edges, keeps_one_byte_a_line_and_of_the_last_sample)
{
    // `width` 3 walks 16 samples; sample 15 is the one that stays.
    Channels src(32, 0xFFFF);
    src[15] = 0xA42F;
    src[31] = 0x0017;
    Bytes dst(24, 0xEE), expected(dst);
    expected[4] = 0x42;
    expected[16] = 0x01;
    tntvt_rgb48_12_rgba32(dst.data() + 4, 12, src.data(), 32, 3, 2);
    EXPECT_EQ(dst, expected);
}

// Only the last sample stays, and all the same a page that cannot be read faults.
TEST(Rgb12Edges, keeps_one_byte_a_line_and_reads_every_page)
{
    const long page = sysconf(_SC_PAGESIZE);
    void* const map =
        mmap(nullptr, static_cast<size_t>(3 * page), PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    ASSERT_NE(map, MAP_FAILED);
    auto* const src = static_cast<uint8_t*>(map);
    uint8_t dst[1] = {};
    const auto call = [&] { tntvt_rgb48_12_rgba32(dst, 0, src, 0, page / 2, 1); };
    EXPECT_FALSE(faults(call));
    for (long n = 0; n < 3; ++n) {
        mprotect(src + n * page, static_cast<size_t>(page), PROT_NONE);
        EXPECT_TRUE(faults(call)) << n;
        mprotect(src + n * page, static_cast<size_t>(page), PROT_READ | PROT_WRITE);
    }
    munmap(map, static_cast<size_t>(3 * page));
}

// Where the destination byte is on a sample to come, that sample is read as it was changed.
TEST(Rgb12Edges, keeps_one_byte_a_line_stored_sample_by_sample)
{
    Bytes memory = {0x10, 0x02, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0};
    // Sample 0 puts 0x21 on byte 15, the high byte of sample 7, whose bits 4 to 11 are then 0x10; samples 1
    // to 6 put 0 there, and so 0 is read.
    tntvt_rgb48_12_rgba32(memory.data() + 15, 4, memory.data(), 16, 1, 1);
    EXPECT_EQ(memory[15], 0x00);
    memory[12] = 0x10, memory[13] = 0x02;
    tntvt_rgb48_12_rgba32(memory.data() + 15, 4, memory.data(), 16, 1, 1);
    EXPECT_EQ(memory[15], 0x10);
}

}  // namespace
}  // namespace tintvert::test
