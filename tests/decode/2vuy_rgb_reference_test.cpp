// `2vuy` to RGB against its reference implementation: random frames, overlapping memory, every group.
#include <algorithm>
#include <climits>
#include <vector>

#include "decoders.h"

namespace tintvert::test {
namespace {

TEST(Yuv422RgbReference, random_frames)
{
    Random random(31);
    for (const Decoder& decoder : decoders_of_2vuy)
        for (long scale = 1; scale <= 5; ++scale) expect_equal_frames(decoder, random, 300, scale);
}

TEST(Yuv422RgbReference, random_frames_at_scale_0)
{
    Random random(32);
    expect_equal_frames(decoders_of_2vuy[1], random, 300, 0);
}

TEST(Yuv422RgbReference, random_frames_at_negative_scales)
{
    Random random(33);
    for (const Decoder& decoder : decoders_of_2vuy)
        for (long scale = -5; scale <= -1; ++scale) expect_equal_frames(decoder, random, 75, scale);
}

// A group is read whole before its pixels are written, in place and wherever the memories overlap.
TEST(Yuv422RgbReference, overlapping_at_every_offset)
{
    Random random(34);
    for (const Decoder& decoder : decoders_of_2vuy) expect_equal_overlapping(decoder, random);
}

TEST(Yuv422RgbReference, rejects_a_wrong_form)
{
    Random random(35);
    const auto agree_as = [&](const StridedFrame& actual, const StridedFrame& expected, long scale) {
        Twins twins = decoders_of_2vuy[0].at_scale(1);
        twins.reference = [&](const StridedFrame& f) {
            StridedFrame other = expected;
            other.dst = f.dst;
            other.src = f.src;
            decoders_of_2vuy[0].at_scale(scale).reference(other);
        };
        return agree(random, twins, actual, 1000);
    };
    const auto frame = [](long dst_stride, long src_stride, long width, long height) {
        return StridedFrame{nullptr, dst_stride, nullptr, src_stride, width, height};
    };
    const StridedFrame right = frame(60, 34, 16, 8);
    EXPECT_TRUE(agree_as(right, right, 1));
    EXPECT_FALSE(agree_as(right, frame(60, 34, 15, 8), 2));
    EXPECT_FALSE(agree_as(right, frame(60, 34, 16, 7), 1));
    EXPECT_FALSE(agree_as(right, frame(60, 35, 16, 8), 1));
    EXPECT_FALSE(agree_as(frame(63, 34, 16, 1), frame(64, 34, 16, 1), 1));
}

// The reference implementation itself, at the entries of the tables that show their rules.
TEST(Yuv422RgbReference, terms)
{
    using namespace reference;
    EXPECT_EQ(luma_term(0), -298);
    EXPECT_EQ(luma_term(16), 0);
    EXPECT_EQ(luma_term(235), 4079);
    EXPECT_EQ(luma_term(255), 4452);

    const int bytes[] = {0, 127, 128, 129, 255};
    const int green_of_cb[] = {802, 6, 0, -6, -796}, blue_of_cb[] = {-4131, -32, 0, 32, 4099};
    const int red_of_cr[] = {-3268, -25, 0, 25, 3243}, green_of_cr[] = {1664, 13, 0, -13, -1651};
    for (int i = 0; i < 5; ++i) {
        EXPECT_EQ(green_term_of_cb(bytes[i]), green_of_cb[i]);
        EXPECT_EQ(blue_term(bytes[i]), blue_of_cb[i]);
        EXPECT_EQ(red_term(bytes[i]), red_of_cr[i]);
        EXPECT_EQ(green_term_of_cr(bytes[i]), green_of_cr[i]);
    }
}

// A sum of terms is between -4429 and 8551, so that its whole part is at most 534 of 1023.
TEST(Yuv422RgbReference, bounds_of_the_sums)
{
    int low = INT_MAX, high = INT_MIN;
    for (const int cb : {0, 128, 255}) {
        for (const int cr : {0, 128, 255}) {
            for (const int y : {0, 255}) {
                const reference::Sums sums = reference::sums_of(cb, y, cr);
                low = std::min({low, sums.blue, sums.green, sums.red});
                high = std::max({high, sums.blue, sums.green, sums.red});
            }
        }
    }
    EXPECT_EQ(low, -4429);
    EXPECT_EQ(high, 8551);
    EXPECT_EQ(high >> 4, 534);
}

// Each of the 2^24 groups Cb, Y, Cr, as the first and (in 8-bit RGB) as the second pixel. A picture has one
// Cb, a line of it one Cr, and its groups run through luma, upwards in Y0 and downwards in Y1.
class Yuv422RgbExhaustive : public testing::Test {
protected:
    static constexpr size_t lines = 256, groups = 256, src_bytes = lines * groups * 4;

    // Of each pixel's last byte, the bits of `mask` are those of `fixed`.
    static void expect_every_group(const Decoder& decoder, size_t pixel_bytes, int mask, int fixed)
    {
        const Twins twins = decoder.at_scale(1);
        const auto stride = static_cast<long>(groups * 2 * pixel_bytes);
        std::vector<uint8_t> src(src_bytes), actual(lines * groups * 2 * pixel_bytes), expected = actual;
        for (int cb = 0; cb < 256; ++cb) {
            for (size_t i = 0; i < src_bytes / 4; ++i) {
                src[4 * i] = static_cast<uint8_t>(cb);
                src[4 * i + 1] = static_cast<uint8_t>(i % groups);
                src[4 * i + 2] = static_cast<uint8_t>(i / groups);
                src[4 * i + 3] = static_cast<uint8_t>(255 - i % groups);
            }
            twins.routine({actual.data(), stride, src.data(), groups * 4, groups * 2, lines});
            twins.reference({expected.data(), stride, src.data(), groups * 4, groups * 2, lines});
            ASSERT_EQ(actual, expected) << "Cb " << cb;
            for (size_t i = pixel_bytes - 1; i < actual.size(); i += pixel_bytes) ASSERT_EQ(actual[i] & mask, fixed);
        }
    }
};

TEST_F(Yuv422RgbExhaustive, rgb24) { expect_every_group(decoders_of_2vuy[0], 3, 0, 0); }
TEST_F(Yuv422RgbExhaustive, rgb32) { expect_every_group(decoders_of_2vuy[0], 4, 0xFF, 0xFF); }
TEST_F(Yuv422RgbExhaustive, rgb16) { expect_every_group(decoders_of_2vuy[1], 2, 0x80, 0); }

}  // namespace
}  // namespace tintvert::test
