// 8-bit and 10-bit YCbCr against GStreamer, sample for sample.
#include <gtest/gtest.h>
#include <tintvert.h>

#include <algorithm>

#include "peers/compare.h"
#include "peers/frames.h"
#include "peers/program.h"

namespace tintvert::test {
namespace {

// Widths that are no multiple of 6 and of 48 among them; all are multiples of 4, where GStreamer's lines have no slack.
constexpr Size sizes[] = {{192, 64}, {100, 36}, {52, 3}, {1280, 720}};

unsigned int number(long value) { return static_cast<unsigned int>(value); }

TEST_F(Gstreamer, from_8_to_10_bits)
{
    for (const Size& size : sizes) {
        const long stride = v210_stride(size.width);
        Bytes frame = noise(31, size.pixels() * 2 + 16), ours(static_cast<size_t>(stride * size.height) + 16);
        tntvt_2vuy_v210(ours.data(), frame.data(), number(size.width), number(size.height), number(stride));
        frame.resize(size.pixels() * 2);
        const Bytes theirs = gstreamer(frame, {"uyvy", size.width, size.height}, {}, "v210");
        EXPECT_TRUE(same(v210_samples(ours, size, stride), v210_samples(theirs, size, stride))) << size.width;
    }
}

TEST_F(Gstreamer, from_10_to_8_bits)
{
    for (const Size& size : sizes) {
        const long stride = v210_stride(size.width);
        Bytes frame = v210_frame(noise(32, size.pixels() * 2, 0, 1023), size, stride);
        const Bytes theirs = gstreamer(frame, {"v210", size.width, size.height}, {}, "UYVY");
        // A line runs on to twice its length on both sides.
        const size_t room = static_cast<size_t>(stride) * 2;
        frame.resize(frame.size() + room);
        Bytes ours(size.pixels() * 2 + room);
        tntvt_v210_2vuy(ours.data(), frame.data(), number(size.width), number(size.height), number(stride));
        ours.resize(size.pixels() * 2);
        EXPECT_TRUE(same(ours, theirs)) << size.width;
    }
}

TEST_F(Gstreamer, packed_10_bits_to_v210)
{
    // At multiples of 8 GStreamer's packed lines have no slack.
    for (const Size& size : {Size{192, 64}, {104, 36}, {40, 3}, {1280, 720}}) {
        const long stride = v210_stride(size.width);
        Bytes frame = noise(33, size.pixels() * 5 / 2), ours(static_cast<size_t>(stride * size.height));
        tntvt_YCbCr10Packed_to_v210(ours.data(), frame.data(), number(size.width), number(size.height));
        const Bytes theirs = gstreamer(frame, {"uyvp", size.width, size.height}, {}, "v210");
        EXPECT_TRUE(same(v210_samples(ours, size, stride), v210_samples(theirs, size, stride))) << size.width;
    }
}

// The payload of one line in three calls, which meet inside of groups.
TEST_F(Gstreamer, payloads_to_v210)
{
    constexpr Size size{48 * 4, 16};
    const long stride = v210_stride(size.width);
    Bytes frame = noise(34, size.pixels() * 5 / 2), ours(static_cast<size_t>(stride * size.height));
    for (long y = 0; y < size.height; ++y) {
        long pixel = 0;
        for (const long pixels : {2 * (y % 7 + 1), 2 * (y % 5 + 20), size.width}) {
            const long run = std::min(pixels, size.width - pixel), phase = pixel % 6;
            const long completing = std::min(phase == 0 ? 0 : (6 - phase) / 2, run / 2);
            tntvt_4175_to_v210(ours.data() + y * stride + pixel / 6 * 16,
                               frame.data() + (y * size.width + pixel) / 2 * 5, run / 2 * 5, run / 2 - completing,
                               phase);
            pixel += run;
        }
    }
    const Bytes theirs = gstreamer(frame, {"uyvp", size.width, size.height}, {}, "v210");
    EXPECT_TRUE(same(v210_samples(ours, size, stride), v210_samples(theirs, size, stride)));
}

TEST_F(Gstreamer, from_422_to_444)
{
    for (const Size& size : sizes) {
        Bytes frame = noise(35, size.pixels() * 2), ours(size.pixels() * 3);
        tntvt_yuv422_yuv444_8(ours.data(), frame.data(), number(size.width), number(size.height), 0);
        const Bytes theirs = gstreamer(frame, {"uyvy", size.width, size.height}, {"chroma-mode=none"}, "v308");
        EXPECT_TRUE(same(ours, theirs)) << size.width;
    }
}

TEST_F(Gstreamer, from_444_to_422)
{
    for (const Size& size : sizes) {
        Bytes frame = noise(36, size.pixels() * 3), ours(size.pixels() * 2);
        tntvt_yuv444_yuv422_8(ours.data(), frame.data(), number(size.width), number(size.height), 0);
        const Bytes theirs = gstreamer(frame, {"v308", size.width, size.height}, {"chroma-mode=none"}, "UYVY");
        EXPECT_TRUE(same(ours, theirs)) << size.width;
    }
}

TEST_F(Gstreamer, i420_to_2vuy)
{
    constexpr Size size{192, 64};  // GStreamer's chroma lines have no slack at multiples of 8
    Bytes frame = noise(37, size.pixels() * 3 / 2), ours(size.pixels() * 2);
    tntvt_i420_2vuy(ours.data(), frame.data(), number(size.width), number(size.height), 0);
    EXPECT_TRUE(same(ours, gstreamer(frame, {"i420", size.width, size.height}, {"chroma-mode=none"}, "UYVY")));
    tntvt_yv12_2vuy(ours.data(), frame.data(), number(size.width), number(size.height), 0, 0);
    EXPECT_TRUE(same(ours, gstreamer(frame, {"yv12", size.width, size.height}, {"chroma-mode=none"}, "UYVY")));
}

}  // namespace
}  // namespace tintvert::test
