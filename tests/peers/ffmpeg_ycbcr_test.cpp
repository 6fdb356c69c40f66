// YCbCr against FFmpeg, sample for sample.
#include <gtest/gtest.h>
#include <tintvert.h>

#include <algorithm>

#include "peers/compare.h"
#include "peers/frames.h"
#include "peers/program.h"

namespace tintvert::test {
namespace {

constexpr Size sizes[] = {{190, 34}, {1280, 720}};

unsigned int number(long value) { return static_cast<unsigned int>(value); }

std::string text(const Size& size) { return std::to_string(size.width) + "x" + std::to_string(size.height); }

// Under the tag `yuv2` FFmpeg takes chroma for signed and hands it on unsigned, as `yuvs` has it.
TEST_F(Ffmpeg, sign_of_chroma_in_yuv2)
{
    for (const Size& size : sizes) {
        const int width = static_cast<int>(size.width), height = static_cast<int>(size.height);
        Bytes yuv2 = noise(121, size.pixels() * 2), ours(yuv2.size()), yuvu = ours, theirs = ours;
        Bytes yuvs = through({"ffmpeg", "-v", "error", "-f", "rawvideo", "-pix_fmt", "yuyv422", "-tag:v", "yuv2", "-s",
                              text(size), "-i", "{in}", "-f", "rawvideo", "-pix_fmt", "yuyv422", "{out}"},
                             yuv2);
        ASSERT_EQ(yuvs.size(), yuv2.size());
        EXPECT_FALSE(same(yuvs, yuv2));
        tntvt_yuv2_2vuy(ours.data(), yuv2.data(), width, height);
        tntvt_yuvu_2vuy(yuvu.data(), yuv2.data(), width, height);
        tntvt_yuvs_2vuy(theirs.data(), yuvs.data(), width, height);
        EXPECT_TRUE(same(ours, theirs)) << size.width;
        EXPECT_TRUE(same(yuvu, theirs)) << size.width;
    }
}

TEST_F(Ffmpeg, planes_to_2vuy_and_back)
{
    for (const Size& size : sizes) {
        const size_t half = size.pixels() / 2;
        Bytes planes = noise(122, size.pixels() * 2), ours(planes.size()), back = ours;
        tntvt_planar_2vuy(ours.data(), planes.data(), planes.data() + 2 * half, planes.data() + 3 * half, 0, 0, 0,
                          number(size.width * size.height));
        EXPECT_TRUE(same(ours, ffmpeg(planes, {"yuv422p", size.width, size.height}, "null", "uyvy422"))) << size.width;
        tntvt_2vuy_planar(back.data(), back.data() + 2 * half, back.data() + 3 * half, 0, 0, 0, ours.data(),
                          number(size.width * size.height));
        EXPECT_TRUE(same(back, ffmpeg(ours, {"uyvy422", size.width, size.height}, "null", "yuv422p"))) << size.width;
    }
}

// FFmpeg's v210 encoder keeps samples within 4 to 1019.
TEST_F(Ffmpeg, packed_10_bits_to_v210)
{
    for (const Size& size : sizes) {
        const long stride = v210_stride(size.width);
        Bytes frame = noise(123, size.pixels() * 5 / 2), ours(static_cast<size_t>(stride * size.height));
        tntvt_YCbCr10Packed_to_v210(ours.data(), frame.data(), number(size.width), number(size.height));
        const Bytes theirs =
            through({"ffmpeg", "-v", "error", "-f", "bitpacked", "-pixel_format", "yuv422p10le", "-video_size",
                     text(size), "-i", "{in}", "-c:v", "v210", "-f", "rawvideo", "{out}"},
                    frame);
        Samples samples = v210_samples(ours, size, stride);
        for (uint16_t& sample : samples) sample = std::clamp<uint16_t>(sample, 4, 1019);
        EXPECT_TRUE(same(samples, v210_samples(theirs, size, stride))) << size.width;
    }
}

}  // namespace
}  // namespace tintvert::test
