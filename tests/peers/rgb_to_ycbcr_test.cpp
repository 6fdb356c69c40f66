// RGB to YCbCr against zimg, which filters chroma 1-2-1 about the even pixels as these routines do. It hands over
// floating-point samples, which are then truncated as ours are. The first group of a line is left out: there ours
// starts from neutral chroma or carries on from the line above.
#include <gtest/gtest.h>
#include <tintvert.h>

#include "peers/compare.h"
#include "peers/frames.h"
#include "peers/program.h"
#ifdef TINTVERT_PEER_ZIMG
#include "peers/zimg.h"
#endif

namespace tintvert::test {
namespace {

constexpr Size size{1026, 12};  // whole groups of `v210`, and wide enough for BT.709 in tntvt_rgb32_v210
constexpr int pixels = static_cast<int>(size.width * size.height);

// B, G, R and whatever.
Bytes picture() { return noise(101, size.pixels() * 4); }

// The luma of every line of a frame of Cb Y Cr Y, and the chroma of every line from group 1 up to group `end`.
template <typename Value>
std::vector<Value> luma_of(const std::vector<Value>& samples)
{
    std::vector<Value> luma;
    for (size_t n = 1; n < samples.size(); n += 2) luma.push_back(samples[n]);
    return luma;
}

template <typename Value>
std::vector<Value> chroma_of(const std::vector<Value>& samples, long end = size.width / 2)
{
    std::vector<Value> chroma;
    for (long y = 0; y < size.height; ++y)
        for (long n = 4; n < end * 4; n += 2) chroma.push_back(samples[static_cast<size_t>(y * size.width * 2 + n)]);
    return chroma;
}

#ifdef TINTVERT_PEER_ZIMG

Bytes turned_round(Bytes bgra)
{
    bgra2argb(bgra.data(), bgra.data(), static_cast<unsigned int>(bgra.size() / 4));
    return bgra;
}

struct Codes {
    double black, luma, neutral, chroma;  // the code of black, and the span from there; the same of chroma
};

// Samples in the order Cb Y Cr Y.
Samples encoded_by_zimg(zimg_matrix_coefficients_e matrix, const Codes& codes)
{
    const Bytes bgra = picture();
    Planes<uint8_t> rgb;
    for (size_t i = 0; i < bgra.size(); i += 4)
        for (size_t c = 0; c < 3; ++c) rgb[c].push_back(bgra[i + 2 - c]);
    ZimgForm form = ycbcr(matrix, ZIMG_RANGE_FULL);
    form.halves = 1;
    const Planes<float> planes = zimg<float, uint8_t>(rgb, rgb_full, form, size);
    const auto code = [](double zero, double span, float value) {
        return static_cast<uint16_t>(zero + span * static_cast<double>(value));
    };
    Samples samples;
    for (size_t i = 0; i < size.pixels(); ++i) {
        samples.push_back(code(codes.neutral, codes.chroma, planes[i % 2 == 0 ? 1 : 2][i / 2]));
        samples.push_back(code(codes.black, codes.luma, planes[0][i]));
    }
    return samples;
}

void expect_within_one(const Samples& ours, const Samples& theirs, double luma_mean, double chroma_mean)
{
    EXPECT_TRUE(within(1, luma_mean, luma_of(ours), luma_of(theirs))) << "luma";
    EXPECT_TRUE(within(1, chroma_mean, chroma_of(ours), chroma_of(theirs))) << "chroma";
}

Samples widened(const Bytes& bytes) { return {bytes.begin(), bytes.end()}; }

TEST(ZimgEncode, to_2vuy_at_video_range)
{
    const Samples theirs = encoded_by_zimg(ZIMG_MATRIX_BT470_BG, {16, 219, 128, 224});
    Bytes bgra = picture(), argb = turned_round(bgra), ours(size.pixels() * 2), from_argb = ours, framed = ours;
    bgra_to_2vuy(bgra.data(), ours.data(), pixels);
    argb_to_2vuy(argb.data(), from_argb.data(), pixels);
    tntvt_rgb32_2vuy(framed.data(), 0, bgra.data(), 0, size.width, size.height);
    expect_within_one(widened(ours), theirs, 0.001, 0.001);
    EXPECT_EQ(ours, from_argb);
    EXPECT_EQ(ours, framed);
}

// The weight of blue in luma is 73.716 / 1024 here, 0.0720, and 0.0722 in BT.709.
TEST(ZimgEncode, to_2vuy_at_full_range)
{
    const Samples theirs = encoded_by_zimg(ZIMG_MATRIX_BT709, {0.5, 255, 128.5, 255});
    Bytes bgra = picture(), argb = turned_round(bgra), ours(size.pixels() * 2), from_argb = ours;
    hd_rgb_to_2vuy(bgra.data(), ours.data(), pixels, 1);
    hd_rgb_to_2vuy(argb.data(), from_argb.data(), pixels, 0);
    expect_within_one(widened(ours), theirs, 0.04, 0.01);
    EXPECT_EQ(ours, from_argb);
}

TEST(ZimgEncode, to_v210)
{
    Bytes bgra = picture(), argb = turned_round(bgra);
    const long stride = v210_stride(size.width);
    std::vector<unsigned int> full(static_cast<size_t>(stride * size.height) / 4), narrow = full;
    for (long y = 0; y < size.height; ++y) {
        argb_to_v210(argb.data() + y * size.width * 4, full.data() + y * stride / 4, static_cast<int>(size.width), 1);
        bgra_to_v210(bgra.data() + y * size.width * 4, narrow.data() + y * stride / 4, static_cast<int>(size.width));
    }
    const auto samples = [stride](const std::vector<unsigned int>& words) {
        const uint8_t* bytes = reinterpret_cast<const uint8_t*>(words.data());
        return v210_samples({bytes, bytes + words.size() * 4}, size, stride);
    };
    expect_within_one(samples(full), encoded_by_zimg(ZIMG_MATRIX_BT470_BG, {64, 876, 512.5, 896}), 0.001, 0.001);
    expect_within_one(samples(narrow), encoded_by_zimg(ZIMG_MATRIX_BT470_BG, {64, 219, 512, 224}), 0.001, 0.001);
}

// The luma weights add up to 1023 / 1024, and blue has 0.0712 of them where BT.709 has 0.0722.
TEST(ZimgEncode, to_v210_from_962_pixels_on)
{
    Bytes bgra = picture();
    const long stride = v210_stride(size.width);
    Bytes ours(static_cast<size_t>(stride * size.height));
    tntvt_rgb32_v210(ours.data(), 0, bgra.data(), 0, size.width, size.height);
    expect_within_one(v210_samples(ours, size, stride),
                      encoded_by_zimg(ZIMG_MATRIX_BT709, {64, 255 * 1023 / 1024.0, 512, 255}), 0.1, 0.01);
}

#else
TEST(ZimgEncode, all) { GTEST_SKIP() << "skipped: zimg is not installed"; }
#endif

// GStreamer filters chroma that it has cut to 8 bits before, and leaves the last group of a line unfiltered.
TEST_F(Gstreamer, to_2vuy)
{
    Bytes bgra = picture(), ours(size.pixels() * 2);
    const Bytes theirs =
        gstreamer(bgra, {"bgra", size.width, size.height}, {}, "UYVY,colorimetry=bt601,chroma-site=mpeg2");
    bgra_to_2vuy(bgra.data(), ours.data(), pixels);
    const long end = size.width / 2 - 1;
    EXPECT_TRUE(within(1, 0.1, luma_of(ours), luma_of(theirs)));
    EXPECT_TRUE(within(1, 0.25, chroma_of(ours, end), chroma_of(theirs, end)));
}

}  // namespace
}  // namespace tintvert::test
