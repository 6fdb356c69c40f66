#include "reference/rgb/rgb12.h"

#include <gtest/gtest.h>
#include <tintvert.h>

#include <vector>

#include "support/strided.h"

namespace tintvert::test {
namespace {

using Bytes = std::vector<uint8_t>;

template <class Routine, class Reference>
Twins pair(const char* name, long dst_bits, long src_bits, Routine* routine, Reference* reference)
{
    return {name, {dst_bits, src_bits}, calling(routine), calling(reference)};
}

StridedFrame frame(long dst_stride, long src_stride, long width, long height)
{
    return {nullptr, dst_stride, nullptr, src_stride, width, height};
}

const std::vector<Twins> unpackers = {pair("rgb12_bgr48", 48, 36, tntvt_rgb12_bgr48, reference::rgb12_bgr48),
                                      pair("rgb12_rgb48", 48, 36, tntvt_rgb12_rgb48, reference::rgb12_rgb48),
                                      pair("rgb12_rgba32", 32, 36, tntvt_rgb12_rgba32, reference::rgb12_rgba32)};
const std::vector<Twins> packers = {pair("rgb48_12_rgb12", 36, 48, tntvt_rgb48_12_rgb12, reference::rgb48_12_rgb12),
                                    pair("rgb48_rgb12", 36, 48, tntvt_rgb48_rgb12, reference::rgb48_rgb12),
                                    pair("rgb48_12_rgba32", 32, 48, tntvt_rgb48_12_rgba32, reference::rgb48_12_rgba32)};

void expect_agreement(const std::vector<Twins>& pairs)
{
    for (const Twins& pair : pairs) EXPECT_TRUE(agree_everywhere(pair));
}

TEST(Rgb12Reference, unpackers_agree_apart_in_place_and_overlapping) { expect_agreement(unpackers); }
TEST(Rgb12Reference, packers_agree_apart_in_place_and_overlapping) { expect_agreement(packers); }

// Every stride of a line of the packers, and so every byte at which a round may be cut.
TEST(Rgb12Reference, packers_agree_at_every_stride)
{
    Random random(513);
    for (const Twins& pair : packers)
        for (long width = 1; width <= 6; ++width)
            for (long stride = -2; stride <= 40; ++stride)
                ASSERT_TRUE(agree(random, pair, frame(stride, 6 * width, width, 2), 2100));
}

TEST(Rgb12Reference, does_not_agree_with_the_neighbour)
{
    Random random(514);
    const auto differ = [&](const Twins& one, const Twins& other) {
        const long dst_line = one.bits.dst, src_line = one.bits.src;  // of eight pixels
        return !agree(random, {one.name, one.bits, one.routine, other.reference}, frame(dst_line, src_line, 8, 1),
                      2100);
    };
    EXPECT_TRUE(differ(unpackers[0], unpackers[1]));
    EXPECT_TRUE(differ(unpackers[1], unpackers[0]));
    EXPECT_TRUE(differ(unpackers[2], packers[2]));
    EXPECT_TRUE(differ(packers[1], packers[0]));
    EXPECT_TRUE(differ(packers[0], packers[1]));
}

// A pixel a line makes one round, of `samples` samples of `bits` bits; sample `place` of line n is n.
void expect_all_values(const Twins& pair, int samples, int bits)
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
        pair.routine({actual.data(), dst_bytes, src.data(), src_bytes, 1, values});
        pair.reference({expected.data(), dst_bytes, src.data(), src_bytes, 1, values});
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
    for (const Twins& pair : packers) expect_all_values(pair, 8, 16);
}

}  // namespace
}  // namespace tintvert::test
