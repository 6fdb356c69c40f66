// Run-length coded images made by ImageMagick (runs only) and libgd (single indices too), and decoded by FFmpeg.
#include <gtest/gtest.h>
#include <tintvert.h>

#include <stdexcept>
#ifdef TINTVERT_PEER_LIBGD
#include <gd.h>
#endif

#include "peers/compare.h"
#include "peers/frames.h"
#include "peers/program.h"

namespace tintvert::test {
namespace {

constexpr Size sizes[] = {{70, 46}, {191, 64}};

// A picture in 64 colours with stretches of one colour, of alternating ones and of noise.
uint8_t index_at(const Bytes& random, long x, long y, long width)
{
    const uint8_t any = random[static_cast<size_t>(y * width + x)];
    if (x / 16 % 3 == 0) return static_cast<uint8_t>(y % 64);
    if (x / 16 % 3 == 1) return static_cast<uint8_t>((x / 5 + y) % 64);
    return any % 64;
}

Bytes colour(int index)
{
    return {static_cast<uint8_t>(index * 4), static_cast<uint8_t>(255 - index * 3),
            static_cast<uint8_t>(index * index)};
}

uint32_t word_at(const Bytes& file, size_t at)
{
    return file.at(at) | static_cast<uint32_t>(file.at(at + 1)) << 8 | static_cast<uint32_t>(file.at(at + 2)) << 16 |
           static_cast<uint32_t>(file.at(at + 3)) << 24;
}

struct Image {
    Bytes stream, palette;
};

// A BMP of compression 1, 8-bit runs, with its table of up to 256 colours of four bytes after the header.
Image taken_apart(const Bytes& bmp)
{
    if (word_at(bmp, 30) != 1) throw std::runtime_error("no run-length coded BMP");
    const auto at = [&bmp](size_t place) { return bmp.begin() + static_cast<std::ptrdiff_t>(place); };
    Image image{{at(word_at(bmp, 10)), bmp.end()}, {at(14 + word_at(bmp, 14)), at(word_at(bmp, 10))}};
    image.palette.resize(1024);
    image.stream.insert(image.stream.end(), {0, 1});
    return image;
}

// ImageMagick codes lines up to a multiple of 4 pixels, and the surplus goes on in memory: into slack here, which is
// cut off.
Bytes decoded(const Bytes& bmp, const Size& size, bool named_rgb32)
{
    Image image = taken_apart(bmp);
    const long stride = (size.width + 3) / 4 * 16;
    Bytes frame(static_cast<size_t>(stride * size.height));
    const auto routine = named_rgb32 ? tntvt_rle8_rgb32 : tntvt_rle8_rgba32;
    routine(frame.data(), stride, image.stream.data(), 0, size.width, size.height, image.palette.data());
    return cut(frame, stride, size.width * 4, size.height);
}

// What FFmpeg makes of the file; its fourth byte is 255 where ours is 0.
Bytes decoded_by_ffmpeg(const Bytes& bmp)
{
    Bytes frame = through(
        {"ffmpeg", "-v", "error", "-f", "bmp_pipe", "-i", "{in}", "-f", "rawvideo", "-pix_fmt", "bgra", "{out}"}, bmp);
    for (size_t i = 3; i < frame.size(); i += 4) frame[i] = 0;
    return frame;
}

void expect_both_decode_alike(const Bytes& bmp, const Size& size)
{
    EXPECT_TRUE(same(decoded(bmp, size, false), decoded_by_ffmpeg(bmp))) << size.width;
    EXPECT_TRUE(same(decoded(bmp, size, true), decoded_by_ffmpeg(bmp))) << size.width;
}

TEST_F(ImageMagick, run_length_coded_image)
{
    if (!installed("ffmpeg")) GTEST_SKIP() << "skipped: ffmpeg is not installed";
    for (const Size& size : sizes) {
        const Bytes random = noise(91, size.pixels());
        const std::string header = "P6\n" + std::to_string(size.width) + " " + std::to_string(size.height) + "\n255\n";
        Bytes ppm(header.begin(), header.end());
        for (long y = 0; y < size.height; ++y)
            for (long x = 0; x < size.width; ++x)
                for (const uint8_t byte : colour(index_at(random, x, y, size.width))) ppm.push_back(byte);
        const Bytes bmp = through({convert(), "ppm:{in}", "-type", "Palette", "-compress", "RLE", "BMP3:{out}"}, ppm);
        expect_both_decode_alike(bmp, size);
        // The picture itself, too: blue, green, red, 0.
        Bytes expected;
        for (size_t i = header.size(); i < ppm.size(); i += 3)
            for (const int byte : {+ppm[i + 2], +ppm[i + 1], +ppm[i], 0})
                expected.push_back(static_cast<uint8_t>(byte));
        EXPECT_TRUE(same(decoded(bmp, size, false), expected)) << size.width;
    }
}

#ifdef TINTVERT_PEER_LIBGD

size_t stretches_of_single_indices(const Bytes& stream)
{
    size_t count = 0;
    for (size_t i = 0; i + 1 < stream.size() && !(stream[i] == 0 && stream[i + 1] == 1); i += 2) {
        if (stream[i] != 0 || stream[i + 1] < 3) continue;
        ++count;
        i += (stream[i + 1] + 1u) / 2 * 2;
    }
    return count;
}

TEST(Libgd, run_length_coded_image_with_single_indices)
{
    if (!installed("ffmpeg")) GTEST_SKIP() << "skipped: ffmpeg is not installed";
    for (const Size& size : sizes) {
        const Bytes random = noise(92, size.pixels());
        gdImagePtr picture = gdImageCreate(static_cast<int>(size.width), static_cast<int>(size.height));
        Bytes expected;
        for (int index = 0; index < 64; ++index) {
            const Bytes rgb = colour(index);
            gdImageColorAllocate(picture, rgb[0], rgb[1], rgb[2]);
        }
        for (long y = 0; y < size.height; ++y)
            for (long x = 0; x < size.width; ++x) {
                const uint8_t index = index_at(random, x, y, size.width);
                gdImageSetPixel(picture, static_cast<int>(x), static_cast<int>(y), index);
                const Bytes rgb = colour(index);
                expected.insert(expected.end(), {rgb[2], rgb[1], rgb[0], 0});
            }
        int length = 0;
        void* file = gdImageBmpPtr(picture, &length, 1);
        gdImageDestroy(picture);
        ASSERT_NE(file, nullptr);
        const Bytes bmp(static_cast<uint8_t*>(file), static_cast<uint8_t*>(file) + length);
        gdFree(file);
        EXPECT_GT(stretches_of_single_indices(taken_apart(bmp).stream), 50u);
        expect_both_decode_alike(bmp, size);
        EXPECT_TRUE(same(decoded(bmp, size, false), expected)) << size.width;
    }
}

#else
TEST(Libgd, all) { GTEST_SKIP() << "skipped: libgd is not installed"; }
#endif

}  // namespace
}  // namespace tintvert::test
