// YCbCr to RGB against zimg and swscale. Chroma is repeated here, so zimg gets it repeated. Where ours truncates,
// zimg's floating-point result is truncated too.
#include <gtest/gtest.h>
#include <tintvert.h>
#include <ycbcr/ycbcr.h>

#include <algorithm>

#include "peers/compare.h"
#include "peers/frames.h"
#include "peers/program.h"
#ifdef TINTVERT_PEER_ZIMG
#include "peers/zimg.h"
#endif

namespace tintvert::test {
namespace {

constexpr Size size{192, 64};
constexpr int width = static_cast<int>(size.width), height = static_cast<int>(size.height);
const long stride = v210_stride(size.width);

// Samples Cb Y Cr Y of every code, those outside of video range among them.
Samples picture() { return noise(111, size.pixels() * 2, 0, 1023); }

// Within video range. Far outside of it swscale's sums overflow.
Samples tame_picture() { return noise(112, size.pixels() * 2, 64, 940); }

Bytes high_bytes(const Samples& samples)
{
    Bytes bytes;
    for (const uint16_t sample : samples) bytes.push_back(static_cast<uint8_t>(sample >> 2));
    return bytes;
}

Bytes decoded(void (*routine)(void*, long, void*, long, long, long, long), Bytes src, long src_stride, long dst_bytes)
{
    Bytes dst(size.pixels() * static_cast<size_t>(dst_bytes));
    routine(dst.data(), size.width * dst_bytes, src.data(), src_stride, size.width, size.height, 1);
    return dst;
}

// Blue, green, red of pixels of four bytes.
Bytes without_alpha(const Bytes& bgra)
{
    Bytes colours;
    for (size_t i = 0; i < bgra.size(); i += 4) colours.insert(colours.end(), {bgra[i], bgra[i + 1], bgra[i + 2]});
    return colours;
}

Bytes decoded_by_v210_to_rgb(const Samples& samples)
{
    Bytes src = v210_frame(samples, size, stride), dst(size.pixels() * 4);
    _v210_to_rgb(src.data(), dst.data(), width, height, width * 4, 1);
    return without_alpha(dst);
}

#ifdef TINTVERT_PEER_ZIMG

// Every pixel's own Y, Cb, Cr.
template <typename Value>
Planes<Value> repeated(const std::vector<Value>& samples)
{
    Planes<Value> planes;
    for (size_t n = 0; n < samples.size(); n += 2) {
        planes[0].push_back(samples[n + 1]);
        planes[1].push_back(samples[n / 4 * 4]);
        planes[2].push_back(samples[n / 4 * 4 + 2]);
    }
    return planes;
}

// Blue, green, red; floating point in 0 to 255, clipped and truncated.
template <typename Value>
Bytes interleaved(const Planes<Value>& rgb)
{
    Bytes bytes;
    for (size_t i = 0; i < rgb[0].size(); ++i)
        for (size_t plane = 3; plane-- > 0;) {
            if constexpr (std::is_same_v<Value, float>)
                bytes.push_back(static_cast<uint8_t>(std::clamp(rgb[plane][i] * 255.0f, 0.0f, 255.0f)));
            else
                bytes.push_back(rgb[plane][i]);
        }
    return bytes;
}

// White is 254 in both table decoders, whose scale is 4769 / 4096 where 255 / 219 is meant, and their entries lean
// toward zero by up to 1/64 and 1/16 of a code.
TEST(ZimgDecode, tables)
{
    const ZimgForm ten = ycbcr(ZIMG_MATRIX_BT470_BG, ZIMG_RANGE_LIMITED, 10), eight = ycbcr(ten.matrix, ten.range);
    const Bytes from_ten = interleaved(zimg<float>(repeated(picture()), ten, rgb_full, size));
    EXPECT_TRUE(within(1, 0.01, decoded_by_v210_to_rgb(picture()), from_ten));

    const Bytes top_eight = high_bytes(picture());
    const Bytes from_eight = interleaved(zimg<float>(repeated(top_eight), eight, rgb_full, size));
    const Bytes v210 = v210_frame(picture(), size, stride);
    EXPECT_TRUE(within(1, 0.03, decoded(tntvt_v210_rgb24, v210, stride, 3), from_eight));
    EXPECT_TRUE(within(1, 0.03, without_alpha(decoded(tntvt_v210_rgb24, v210, stride, 4)), from_eight));
    EXPECT_TRUE(within(1, 0.03, decoded(tntvt_yuv422_rgb24, top_eight, size.width * 2, 3), from_eight));
    EXPECT_TRUE(within(1, 0.03, without_alpha(decoded(tntvt_yuv422_rgb24, top_eight, size.width * 2, 4)), from_eight));
}

// Inside of the RGB cube: outside of it ours wraps where zimg goes on.
TEST(ZimgDecode, full_range)
{
    Bytes pixels = noise(112, size.pixels() * 3), dst(size.pixels() * 4);
    Planes<uint8_t> planes;
    for (size_t i = 0; i < pixels.size(); ++i) planes[i % 3].push_back(pixels[i]);
    tntvt_yuvijg_rgb32(dst.data(), size.width * 4, pixels.data(), size.width * 3, size.width, size.height);
    const Planes<float> rgb = zimg<float>(planes, ycbcr(ZIMG_MATRIX_BT470_BG, ZIMG_RANGE_FULL), rgb_full, size);
    Bytes ours, theirs;
    for (size_t i = 0; i < size.pixels(); ++i)
        for (size_t plane = 3; plane-- > 0;) {
            const double code = static_cast<double>(rgb[plane][i]) * 255;
            if (code < 0.01 || code > 255.99) continue;
            ours.push_back(dst[i * 4 + 2 - plane]);
            theirs.push_back(static_cast<uint8_t>(code));
        }
    EXPECT_GT(ours.size(), size.pixels());
    EXPECT_TRUE(within(1, 0.001, ours, theirs));
}

// libycbcr rounds, as zimg does; the mean is the share of channels that are near a half.
TEST(ZimgDecode, libycbcr)
{
    const std::pair<unsigned int, zimg_matrix_coefficients_e> matrices[] = {
        {601, ZIMG_MATRIX_BT470_BG}, {709, ZIMG_MATRIX_BT709}, {2020, ZIMG_MATRIX_BT2020_NCL}};
    for (const auto& [number, matrix] : matrices) {
        Bytes v210 = v210_frame(picture(), size, stride), uyvy = high_bytes(picture()), dst(size.pixels() * 4);
        cycbcr_012v_to_rgb32(dst.data(), v210.data(), width, height, width * 4, static_cast<int>(stride), number, 0);
        const auto ten = zimg<uint8_t>(repeated(picture()), ycbcr(matrix, ZIMG_RANGE_LIMITED, 10), rgb_full, size);
        EXPECT_TRUE(within(1, 0.02, without_alpha(dst), interleaved(ten))) << number;
        cycbcr_uyvy_to_rgb32(dst.data(), uyvy.data(), width, height, width * 4, width * 2, number, 0);
        const auto eight = zimg<uint8_t>(repeated(uyvy), ycbcr(matrix, ZIMG_RANGE_LIMITED), rgb_full, size);
        EXPECT_TRUE(within(1, 0.02, without_alpha(dst), interleaved(eight))) << number;
    }
}

#else
TEST(ZimgDecode, all) { GTEST_SKIP() << "skipped: zimg is not installed"; }
#endif

const std::string exactly = "flags=neighbor+accurate_rnd+full_chroma_int:sws_dither=none:in_color_matrix=bt601";

Bytes decoded_by_swscale(const Bytes& frame, const Words& input)
{
    Words command = {"ffmpeg", "-v", "error"};
    command.insert(command.end(), input.begin(), input.end());
    for (const std::string& word :
         Words{"-video_size", std::to_string(width) + "x" + std::to_string(height), "-i", "{in}", "-vf",
               "scale=in_range=tv:out_range=pc:" + exactly, "-f", "rawvideo", "-pix_fmt", "bgra", "{out}"})
        command.push_back(word);
    return without_alpha(through(command, frame));
}

// swscale rounds.
TEST_F(Ffmpeg, tables)
{
    const Bytes v210 = v210_frame(tame_picture(), size, stride), uyvy = high_bytes(tame_picture());
    EXPECT_TRUE(within(1, 0.4, decoded_by_v210_to_rgb(tame_picture()), decoded_by_swscale(v210, {"-f", "v210"})));
    const Bytes theirs = decoded_by_swscale(uyvy, {"-f", "rawvideo", "-pix_fmt", "uyvy422"});
    EXPECT_TRUE(within(1, 0.4, decoded(tntvt_v210_rgb24, v210, stride, 3), theirs));
    EXPECT_TRUE(within(1, 0.4, decoded(tntvt_yuv422_rgb24, uyvy, size.width * 2, 3), theirs));
}

TEST_F(Ffmpeg, full_range)
{
    Bytes pixels = noise(113, size.pixels() * 3), dst(size.pixels() * 4), planes;
    for (size_t plane = 0; plane < 3; ++plane)
        for (size_t i = plane; i < pixels.size(); i += 3) planes.push_back(pixels[i]);
    tntvt_yuvijg_rgb32(dst.data(), size.width * 4, pixels.data(), size.width * 3, size.width, size.height);
    const Bytes rgb =
        ffmpeg(planes, {"yuv444p", size.width, size.height}, "scale=in_range=pc:out_range=pc:" + exactly, "bgra");
    Bytes ours, theirs;
    for (size_t i = 0; i < dst.size(); ++i) {
        // 0 and 255 are what swscale clips to.
        if (i % 4 == 3 || rgb[i] == 0 || rgb[i] == 255) continue;
        ours.push_back(dst[i]);
        theirs.push_back(rgb[i]);
    }
    EXPECT_GT(ours.size(), size.pixels());
    EXPECT_TRUE(within(1, 0.55, ours, theirs));
}

// From `v210` GStreamer works in 16 bits. The 8-bit decoders see samples whose two low bits are 0.
TEST_F(Gstreamer, tables)
{
    const auto theirs = [](const Bytes& v210) {
        return without_alpha(gstreamer(v210, {"v210", size.width, size.height},
                                       {"chroma-mode=none", "chroma-resampler=nearest"}, "BGRA"));
    };
    EXPECT_TRUE(within(1, 0.2, decoded_by_v210_to_rgb(picture()), theirs(v210_frame(picture(), size, stride))));
    Samples cut_short = picture();
    for (uint16_t& sample : cut_short) sample &= 0x3FC;
    const Bytes v210 = v210_frame(cut_short, size, stride);
    EXPECT_TRUE(within(1, 0.2, decoded(tntvt_v210_rgb24, v210, stride, 3), theirs(v210)));
    EXPECT_TRUE(within(1, 0.2, decoded(tntvt_yuv422_rgb24, high_bytes(cut_short), size.width * 2, 3), theirs(v210)));
}

}  // namespace
}  // namespace tintvert::test
