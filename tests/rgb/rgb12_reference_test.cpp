#include "reference/rgb12.h"

#include <gtest/gtest.h>
#include <tintvert.h>

#include <vector>

#include "rgb/one_memory.h"

namespace tintvert::test {
namespace {

using Bytes = std::vector<uint8_t>;
using Routine = void (*)(void*, long, void*, long, long, long);
using Reference = void (*)(uint8_t*, long, const uint8_t*, long, long, long);

struct Pair {
    const char* name;
    Routine routine;
    Reference reference;
    long dst_bits, src_bits;  // a pixel
};

const std::vector<Pair> unpackers = {{"rgb12_bgr48", tntvt_rgb12_bgr48, reference::rgb12_bgr48, 48, 36},
                                     {"rgb12_rgb48", tntvt_rgb12_rgb48, reference::rgb12_rgb48, 48, 36},
                                     {"rgb12_rgba32", tntvt_rgb12_rgba32, reference::rgb12_rgba32, 32, 36}};
const std::vector<Pair> packers = {{"rgb48_12_rgb12", tntvt_rgb48_12_rgb12, reference::rgb48_12_rgb12, 36, 48},
                                   {"rgb48_rgb12", tntvt_rgb48_rgb12, reference::rgb48_rgb12, 36, 48},
                                   {"rgb48_12_rgba32", tntvt_rgb48_12_rgba32, reference::rgb48_12_rgba32, 32, 48}};

void expect_agreement(const std::vector<Pair>& pairs)
{
    Random random(512);
    for (const Pair& pair : pairs)
        at_every_distance(random, 4, [&](long distance) {
            const Geometry geometry = any_geometry(random, pair.dst_bits, pair.src_bits);
            ASSERT_TRUE(agree(random, geometry, distance, pair.routine, pair.reference)) << pair.name;
        });
}

TEST(Rgb12Reference, unpackers_agree_apart_in_place_and_overlapping) { expect_agreement(unpackers); }
TEST(Rgb12Reference, packers_agree_apart_in_place_and_overlapping) { expect_agreement(packers); }

// Every stride of a line of the packers, and so every byte at which a round may be cut.
TEST(Rgb12Reference, packers_agree_at_every_stride)
{
    Random random(513);
    for (const Pair& pair : packers)
        for (long width = 1; width <= 6; ++width)
            for (long stride = -2; stride <= 40; ++stride)
                ASSERT_TRUE(agree(random, {stride, 6 * width, width, 2}, 2100, pair.routine, pair.reference))
                    << pair.name;
}

TEST(Rgb12Reference, does_not_agree_with_the_neighbour)
{
    Random random(514);
    EXPECT_FALSE(agree(random, {48, 36, 8, 1}, 2100, tntvt_rgb12_bgr48, reference::rgb12_rgb48));
    EXPECT_FALSE(agree(random, {48, 36, 8, 1}, 2100, tntvt_rgb12_rgb48, reference::rgb12_bgr48));
    EXPECT_FALSE(agree(random, {32, 36, 8, 1}, 2100, tntvt_rgb12_rgba32, reference::rgb48_12_rgba32));
    EXPECT_FALSE(agree(random, {36, 48, 8, 1}, 2100, tntvt_rgb48_rgb12, reference::rgb48_12_rgb12));
    EXPECT_FALSE(agree(random, {36, 48, 8, 1}, 2100, tntvt_rgb48_12_rgb12, reference::rgb48_rgb12));
}

// A pixel a line makes one round, of `samples` samples of `bits` bits; sample `place` of line n holds n.
void expect_all_values(const Pair& pair, int samples, int bits)
{
    Random random(515);
    const long values = 1l << bits, src_bytes = samples * bits / 8, dst_bytes = 48;
    for (long place = 0; place < samples; ++place) {
        Bytes src = random.bytes(static_cast<size_t>(values * src_bytes));
        for (long value = 0; value < values; ++value)
            for (long b = 0; b < bits; ++b) {
                const long bit = place * bits + b;
                uint8_t& byte = src[static_cast<size_t>(value * src_bytes + bit / 8)];
                byte = static_cast<uint8_t>((byte & ~(1 << bit % 8)) | (value >> b & 1) << bit % 8);
            }
        Bytes actual(static_cast<size_t>(values * dst_bytes)), expected(actual);
        pair.routine(actual.data(), dst_bytes, src.data(), src_bytes, 1, values);
        pair.reference(expected.data(), dst_bytes, src.data(), src_bytes, 1, values);
        ASSERT_TRUE(actual == expected) << pair.name << ", sample " << place;
    }
}

TEST(Rgb12Exhaustive, unpackers_take_all_values_in_all_places)
{
    expect_all_values(unpackers[0], 8, 12);
    expect_all_values(unpackers[1], 24, 12);
    expect_all_values(unpackers[2], 24, 12);
}

TEST(Rgb12Exhaustive, packers_take_all_words_in_all_places)
{
    for (const Pair& pair : packers) expect_all_values(pair, 8, 16);
}

}  // namespace
}  // namespace tintvert::test
