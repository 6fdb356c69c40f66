// Random lines, in separate buffers, in place and overlapping, against the reference implementation.
#include <gtest/gtest.h>
#include <tintvert.h>

#include "reference/hdr/st2084.h"
#include "support/arena.h"

namespace tintvert::test {
namespace {

using Conversion = decltype(&tntvt_rgb_to_st2084);

struct Twins {
    const char* name;
    Conversion actual, expected;
};

constexpr Twins all[] = {
    {"tntvt_rgb_to_st2084", tntvt_rgb_to_st2084, reference::rgb_to_st2084},
    {"tntvt_st2084_to_rgb", tntvt_st2084_to_rgb, reference::st2084_to_rgb},
    {"tntvt_yuv2_to_st2084", tntvt_yuv2_to_st2084, reference::yuv2_to_st2084},
    {"tntvt_st2084_to_yuv2", tntvt_st2084_to_yuv2, reference::st2084_to_yuv2},
    {"tntvt_v210_to_st2084", tntvt_v210_to_st2084, reference::v210_to_st2084},
    {"tntvt_st2084_to_v210", tntvt_st2084_to_v210, reference::st2084_to_v210},
};

// One call in a fresh memory, `src` at offset 0 and `dst` at `offset`.
testing::AssertionResult agree(const Twins& twins, Random& random, long offset, long dstStride, long srcStride,
                               int height)
{
    Arena arena(random, 1500, 3000);
    const long at = random.between(0, 31);
    const auto run = [&](Conversion conversion, uint8_t* src) {
        return conversion(src + offset, src, static_cast<unsigned>(dstStride), static_cast<unsigned>(srcStride),
                          height);
    };
    const int actual = run(twins.actual, arena.actual(at)), expected = run(twins.expected, arena.expected(at));
    if (actual != expected) return testing::AssertionFailure() << twins.name << " returns " << actual;
    const testing::AssertionResult same = arena.agrees(at + offset, dstStride);
    if (same) return same;
    return testing::AssertionFailure() << twins.name << " at offset " << offset << ", strides " << dstStride << ' '
                                       << srcStride << ", height " << height << ": " << same.message();
}

TEST(St2084Reference, separate_buffers)
{
    Random random(710);
    for (const Twins& twins : all) {
        for (int round = 0; round < 500; ++round) {
            const long offset = random.between(0, 1) == 0 ? 1400 : -1400;
            ASSERT_TRUE(agree(twins, random, offset + random.between(-31, 31), random.between(0, 150),
                              random.between(0, 150), static_cast<int>(random.between(0, 7))));
        }
    }
}

TEST(St2084Reference, every_length)
{
    Random random(711);
    for (const Twins& twins : all)
        for (long bytes = 1; bytes <= 300; ++bytes)
            ASSERT_TRUE(agree(twins, random, 1400, bytes, bytes + random.between(0, 1), 2));
}

TEST(St2084Reference, overlapping)
{
    Random random(712);
    for (const Twins& twins : all) {
        for (long offset = -64; offset <= 64; ++offset) {
            for (int round = 0; round < 6; ++round) {
                const long stride = random.between(1, 200);
                const long other = round < 3 ? stride : random.between(1, 200);
                ASSERT_TRUE(agree(twins, random, offset, stride, other, static_cast<int>(random.between(1, 4))));
            }
        }
    }
}

// Every index at every place that one is taken from, among random other bits.
TEST(St2084ReferenceExhaustive, every_index_in_every_word)
{
    Random random(713);
    const struct {
        int word, shift;
    } places[] = {{0, 12}, {1, 2}, {1, 22}, {2, 12}, {3, 2}, {3, 22}};
    for (const Twins& twins : {all[4], all[5]}) {
        for (const auto& [word, shift] : places) {
            for (uint32_t index = 0; index < 1024; ++index) {
                Arena arena(random, 0, 64);
                for (uint8_t* bytes : {arena.actual(1 + 4 * word), arena.expected(1 + 4 * word)}) {
                    for (int bit = 0; bit < 10; ++bit) {
                        uint8_t& byte = bytes[(shift + bit) / 8];
                        const unsigned mask = 1u << (shift + bit) % 8;
                        byte = static_cast<uint8_t>((index >> bit & 1) != 0 ? byte | mask : byte & ~mask);
                    }
                }
                twins.actual(arena.actual(32), arena.actual(), 16, 16, 1);
                twins.expected(arena.expected(32), arena.expected(), 16, 16, 1);
                ASSERT_TRUE(arena.agrees()) << twins.name << ", word " << word << ", index " << index;
            }
        }
    }
}

TEST(St2084ReferenceExhaustive, every_byte)
{
    Random random(714);
    for (const Twins& twins : {all[0], all[1], all[2], all[3]}) {
        Arena arena(random, 0, 2400);
        for (uint8_t* bytes : {arena.actual(), arena.expected()})
            for (int i = 0; i < 1024; ++i) bytes[i] = static_cast<uint8_t>(i / 4);
        twins.actual(arena.actual(1200), arena.actual(), 1024, 1024, 1);
        twins.expected(arena.expected(1200), arena.expected(), 1024, 1024, 1);
        EXPECT_TRUE(arena.agrees()) << twins.name;
    }
}

// The harness is no rubber stamp: the other direction, or the twin without the copy, is refused.
TEST(St2084Reference, refuses_what_differs)
{
    Random random(715);
    const auto refused = [&](Conversion actual, Conversion expected) {
        return !agree({"wrong", actual, expected}, random, 1400, 64, 64, 2);
    };
    EXPECT_TRUE(refused(tntvt_rgb_to_st2084, reference::st2084_to_rgb));
    EXPECT_TRUE(refused(tntvt_v210_to_st2084, reference::st2084_to_v210));
    EXPECT_TRUE(refused(tntvt_st2084_to_yuv2, [](auto* dst, auto* src, auto dstStride, auto srcStride, int height) {
        const uint8_t behind = dst[dstStride * 2];
        const int result = reference::st2084_to_yuv2(dst, src, dstStride, srcStride, height);
        dst[dstStride * 2] = behind;
        return result;
    }));
}

}  // namespace
}  // namespace tintvert::test
