#include "reference/rgb/rgb10.h"

#include <gtest/gtest.h>
#include <tintvert.h>

#include <vector>

#include "support/strided.h"

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

// Any value but 0 sets a flag.
TEST(Rgb10Reference, agrees_apart_in_place_and_overlapping)
{
    for_each_routine([&](auto routine, auto reference, long bits) {
        for (const uint8_t swap : {uint8_t{0}, uint8_t{1}, uint8_t{0x82}})
            for (const uint8_t flip : {uint8_t{0}, uint8_t{255}, uint8_t{16}})
                EXPECT_TRUE(agree_everywhere({"rgb10 to " + std::to_string(bits) + " bits",
                                              {bits, 32},
                                              calling(routine, swap, flip),
                                              calling(reference, swap, flip)},
                                             1))
                    << "swapBytes " << +swap << ", flipLines " << +flip;
    });
}

TEST(Rgb10Reference, does_not_agree_with_another_flag)
{
    Random random(511);
    for_each_routine([&](auto routine, auto reference, long bits) {
        const uint8_t off = 0, on = 1;
        for (const uint8_t swap : {off, on})
            EXPECT_FALSE(agree(random, {"", {bits, 32}, calling(routine, swap, on), calling(reference, swap, off)},
                               {nullptr, 0, nullptr, 0, 3, 2}, 2100));
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
