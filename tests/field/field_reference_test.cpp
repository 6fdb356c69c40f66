// The field routines against their reference implementation: random calls on separate, shared and overlapping memory,
// and every pair of values where there are few.
#include <gtest/gtest.h>
#include <tintvert/field.h>

#include <algorithm>
#include <cstring>

#include "reference/field/field.h"
#include "support/arena.h"
#include "support/field_calls.h"

namespace tintvert::test {
namespace {

class FieldReference : public testing::TestWithParam<MakeFieldCall> {};

TEST_P(FieldReference, random_calls)
{
    Random random(61);
    for (int round = 0; round < 3000; ++round) {
        const FieldCall call = GetParam()(random);
        Arena memory(random, field_call_reach, field_call_reach);
        EXPECT_EQ(call.library(memory.actual()), call.expected(memory.expected())) << call.text;
        EXPECT_TRUE(memory.agrees()) << call.text;
    }
}

INSTANTIATE_TEST_SUITE_P(Calls, FieldReference, testing::ValuesIn(every_field_call));

// The routines on pixels and bytes with `dst` at every offset from -64 to 64 of `src`.
TEST(FieldOverlap, at_every_offset)
{
    Random random(62);
    const auto compare = [&](const char* name, int offset, const auto& library, const auto& expected) {
        Arena memory(random, 512, 1536);
        EXPECT_EQ(library(memory.actual(offset), memory.actual()),
                  expected(memory.expected(offset), memory.expected()));
        EXPECT_TRUE(memory.agrees(offset)) << name << ", dst at " << offset;
    };
    const auto both = [&](const char* name, int offset, auto* library, auto* expected, auto call) {
        compare(
            name, offset, [&](uint8_t* dst, uint8_t* src) { return call(library, dst, src); },
            [&](uint8_t* dst, uint8_t* src) { return call(expected, dst, src); });
    };
    for (int offset = -64; offset <= 64; ++offset) {
        for (const unsigned int mode : {11u, 12u})
            for (const unsigned int stride : {52u, 67u, 64u})
                both("change_field", offset, tntvt_change_field_rgb, reference::change_field_rgb,
                     [=](auto* routine, uint8_t* dst, uint8_t* src) {
                         return routine(dst, mode, 0, 8, stride, src, offset % 2 == 0 ? 0 : 61);
                     });
        for (const int mode : {0, 2, 16, 17})
            for (const unsigned int stride : {56u, 61u})
                both("deinterlace", offset, tntvt_deinterlace_rgb, reference::deinterlace_rgb,
                     [=](auto* routine, uint8_t* dst, uint8_t* src) {
                         return routine(dst, src, 7, 7, stride, 90, offset % 20, 0, mode);
                     });
        for (const int width : {13, 16, 33})
            for (const unsigned int stride : {52u, 64u, 71u})
                both("flip_horz", offset, tntvt_flip_horz, reference::flip_horz,
                     [=](auto* routine, uint8_t* dst, uint8_t* src) { return routine(dst, src, width, 5, stride), 0; });
        for (const unsigned int fourcc : {0x79757632u, 0x30313276u, 0x41524742u})
            for (const long stride : {52L, 64L, 71L, -49L})
                both("copy_dissolve", offset, tntvt_copy_dissolve, reference::copy_dissolve,
                     [=](auto* routine, uint8_t* dst, uint8_t* src) {
                         return routine(dst, src, stride, 25, 5, fourcc);
                     });
    }
}

// What the comparison above is worth: a call that differs in one number is detected.
TEST(FieldReferenceHarness, rejects_a_wrong_form)
{
    Random random(63);
    const auto agrees = [&](auto change) {
        Arena memory(random, 64, 2048);
        tntvt_change_field_rgb(memory.actual(), 11, 0, 8, 40, memory.actual(1000), 40);
        change(memory.expected(), memory.expected(1000));
        return memory.agrees();
    };
    const auto expected = [](unsigned int mode, unsigned int height, unsigned int dst_stride, unsigned int src_stride) {
        return [=](uint8_t* dst, uint8_t* src) {
            reference::change_field_rgb(dst, mode, 0, height, dst_stride, src, src_stride);
        };
    };
    EXPECT_TRUE(agrees(expected(11, 8, 40, 40)));
    EXPECT_FALSE(agrees(expected(9, 8, 40, 40)));
    EXPECT_FALSE(agrees(expected(11, 6, 40, 40)));
    EXPECT_FALSE(agrees(expected(11, 8, 40, 39)));
    EXPECT_FALSE(agrees([&](uint8_t* dst, uint8_t* src) {
        expected(11, 8, 40, 40)(dst, src);
        dst[-1] ^= 1;
    }));
}

// Line 0 of `count` bytes at 0, line 2 of all pairs' second bytes; the mean goes to line 1.
TEST(MeanOfPixelsExhaustive, every_pair_of_bytes_in_every_place)
{
    Random random(64);
    constexpr uint32_t pixels = 1 << 16, stride = pixels * 4;
    for (int place = 0; place < 4; ++place) {
        std::vector<uint8_t> src = random.bytes(4 * stride), dst(4 * stride);
        for (uint32_t i = 0; i < pixels; ++i) {
            src[4 * i + static_cast<uint32_t>(place)] = static_cast<uint8_t>(i);
            src[2 * stride + 4 * i + static_cast<uint32_t>(place)] = static_cast<uint8_t>(i >> 8);
        }
        ASSERT_EQ(tntvt_change_field_rgb(dst.data(), 11, 0, 4, stride, src.data(), stride), 0);
        for (uint32_t i = 0; i < pixels; ++i) {
            uint32_t one, other, mean;
            std::memcpy(&one, &src[4 * i], 4);
            std::memcpy(&other, &src[2 * stride + 4 * i], 4);
            std::memcpy(&mean, &dst[stride + 4 * i], 4);
            ASSERT_EQ(mean, reference::mean_of_pixels(one, other)) << std::hex << one << ' ' << other;
            for (uint32_t n = 0; n < 4; ++n) {
                const uint32_t x = src[4 * i + n], y = src[2 * stride + 4 * i + n];
                ASSERT_EQ(dst[stride + 4 * i + n], n == 0 ? x / 2 + y / 2 : (x + y) / 2);
            }
        }
    }
}

// Line 1 of the blend meets a second line that starts twice as far on.
TEST(BlendExhaustive, every_pair_of_bytes)
{
    constexpr uint32_t pairs = 1 << 16;
    std::vector<uint8_t> frame(3 * pairs, 7);
    for (uint32_t i = 0; i < pairs; ++i) {
        frame[pairs + i] = static_cast<uint8_t>(i);
        frame[2 * pairs + i] = static_cast<uint8_t>(i >> 8);
    }
    ASSERT_EQ(tntvt_change_field_rgb(frame.data(), 4, pairs / 4, 2, pairs, nullptr, 2 * pairs), 0);
    for (uint32_t i = 0; i < pairs; ++i) {
        ASSERT_EQ(frame[i], 7);
        ASSERT_EQ(frame[pairs + i], (i % 256 + i / 256) / 2) << i;
        ASSERT_EQ(frame[2 * pairs + i], i / 256);
    }
}

TEST(DissolveExhaustive, every_pair_of_bytes)
{
    constexpr uint32_t pairs = 1 << 16;
    for (const auto& [fourcc, width] : {std::pair{0x79757632u, pairs / 2}, {0x41524742u, pairs / 4}}) {
        std::vector<uint8_t> dst(pairs), src(pairs);
        for (uint32_t i = 0; i < pairs; ++i) dst[i] = static_cast<uint8_t>(i), src[i] = static_cast<uint8_t>(i >> 8);
        ASSERT_EQ(tntvt_copy_dissolve(dst.data(), src.data(), 0, width, 1, fourcc), 0);
        for (uint32_t i = 0; i < pairs; ++i) ASSERT_EQ(dst[i], i % 256 / 2 + i / 256 / 2) << i;
    }
}

// Every pair of 10-bit values in each field, with anything at all in the other bits.
TEST(DissolveExhaustive, every_pair_of_fields)
{
    Random random(65);
    constexpr uint32_t pairs = 1 << 20;
    std::vector<uint32_t> dst(pairs), src(pairs), before(pairs);
    for (const uint32_t shift : {0u, 10u, 20u}) {
        for (uint32_t i = 0; i < pairs; ++i) {
            const uint32_t others = ~(0x3FFu << shift);
            before[i] = (static_cast<uint32_t>(random.next()) & others) | (i & 0x3FF) << shift;
            src[i] = (static_cast<uint32_t>(random.next()) & others) | i >> 10 << shift;
        }
        dst = before;
        auto* const to = reinterpret_cast<unsigned char*>(dst.data());
        auto* const from = reinterpret_cast<unsigned char*>(src.data());
        ASSERT_EQ(tntvt_copy_dissolve(to, from, 0, pairs / 2 * 3, 1, 0x30313276), 0);
        for (uint32_t i = 0; i < pairs; ++i) {
            uint32_t sum = 0;
            for (const uint32_t n : {0u, 10u, 20u}) sum |= ((before[i] >> n & 0x3FF) + (src[i] >> n & 0x3FF)) / 2 << n;
            ASSERT_EQ(dst[i], sum) << std::hex << before[i] << ' ' << src[i];
        }
    }
}

// Every triple above, below, here, in all three channels at once in three different orders, against
// thresholds of the size of the measure. Lines 1 and 3 of 5 are examined in mode 16.
TEST(DeinterlaceExhaustive, every_triple_of_bytes)
{
    Random random(66);
    constexpr uint32_t width = 1 << 16, stride = width * 8;
    std::vector<uint8_t> src = random.bytes(5 * stride), actual(5 * stride), expected(5 * stride);
    for (uint32_t third = 0; third < 256; ++third) {
        for (uint32_t x = 0; x < width; ++x) {
            const uint32_t triple = x | third << 16;
            const uint8_t bytes[3] = {static_cast<uint8_t>(triple), static_cast<uint8_t>(triple >> 8),
                                      static_cast<uint8_t>(triple >> 16)};
            for (uint32_t line = 2; line < 5; ++line)
                for (uint32_t n = 0; n < 3; ++n) src[line * stride + 8 * x + n] = bytes[(line + n) % 3];
        }
        for (const int softness : {0, 75, static_cast<int>(random.between(1, 74))}) {
            const int threshold = static_cast<int>(random.between(0, third % 4 == 0 ? 20 : 400));
            tntvt_deinterlace_rgb(actual.data(), src.data(), width, 5, stride, threshold, softness, 0, 16);
            reference::deinterlace_rgb(expected.data(), src.data(), width, 5, stride, threshold, softness, 0, 16);
            ASSERT_EQ(actual, expected) << "third " << third << ", threshold " << threshold << ", softness "
                                        << softness;
        }
    }
}

}  // namespace
}  // namespace tintvert::test
