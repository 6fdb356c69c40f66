#include "reference/rgb10.h"

#include <gtest/gtest.h>
#include <tintvert.h>

#include <vector>

#include "rgb/one_memory.h"

namespace tintvert::test {
namespace {

using Bytes = std::vector<uint8_t>;

template <class Check>
void for_each_routine(Check check)
{
    check(tntvt_rgb10_rgba64, reference::rgb10_rgba64, 64);
    check(tntvt_rgb10_rgb48, reference::rgb10_rgb48, 48);
    check(tntvt_rgb10_rgba32, reference::rgb10_rgba32, 32);
}

unsigned char any_flag(Random& random)
{
    return random.between(0, 1) == 0 ? 0 : static_cast<unsigned char>(random.between(1, 255));
}

TEST(Rgb10Reference, agrees_apart_in_place_and_overlapping)
{
    Random random(510);
    for_each_routine([&](auto routine, auto reference, long bits) {
        at_every_distance(random, 4, [&](long distance) {
            const Geometry geometry = any_geometry(random, bits, 32);
            const unsigned char swap = any_flag(random), flip = any_flag(random);
            ASSERT_TRUE(agree(random, geometry, distance, routine, reference, swap, flip))
                << bits << " bits, swapBytes " << +swap << ", flipLines " << +flip;
        });
    });
}

TEST(Rgb10Reference, does_not_agree_with_another_flag)
{
    Random random(511);
    for_each_routine([&](auto routine, auto reference, long) {
        const auto other = [&](uint8_t* dst, long ds, uint8_t* src, long ss, long w, long h, unsigned char swap,
                               unsigned char flip) { reference(dst, ds, src, ss, w, h, swap, flip == 0 ? 1 : 0); };
        const unsigned char off = 0, on = 1;
        EXPECT_FALSE(agree(random, {0, 0, 3, 2}, 2100, routine, other, off, on));
        EXPECT_FALSE(agree(random, {0, 0, 3, 2}, 2100, routine, other, on, on));
    });
}

// Each half of the word takes all its values beside some value of the other, in either byte order.
TEST(Rgb10Exhaustive, all_halves_of_words)
{
    constexpr long count = 65536;
    Random random(512);
    Bytes src(count * 4 * 2);
    for_each_routine([&](auto routine, auto reference, long bits) {
        for (const bool upper : {false, true}) {
            for (size_t i = 0; i < count; ++i) {
                const uint32_t value = static_cast<uint32_t>(i), beside = static_cast<uint32_t>(random.next()) & 0xFFFF;
                const uint32_t word = upper ? value << 16 | beside : beside << 16 | value;
                for (size_t b = 0; b < 4; ++b) {
                    src[4 * i + b] = static_cast<uint8_t>(word >> 8 * b);
                    src[4 * (count + i) + b] = static_cast<uint8_t>(word >> 8 * (3 - b));
                }
            }
            Bytes actual(static_cast<size_t>(count * bits / 8)), expected(actual);
            routine(actual.data(), 0, src.data(), 0, count, 1, 0, 1);
            reference(expected.data(), 0, src.data(), 0, count, 1, 0, 1);
            EXPECT_TRUE(actual == expected) << bits << ' ' << upper;
            Bytes big(actual.size());
            routine(big.data(), 0, src.data() + count * 4, 0, count, 1, 1, 0);
            EXPECT_TRUE(big == expected) << bits << ' ' << upper;
        }
    });
}

}  // namespace
}  // namespace tintvert::test
