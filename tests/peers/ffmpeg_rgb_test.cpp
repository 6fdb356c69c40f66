// RGB against FFmpeg, byte for byte. Its names give the order of bytes in memory, its lines have no slack.
#include <gtest/gtest.h>
#include <tintvert.h>

#include "peers/compare.h"
#include "peers/frames.h"
#include "peers/program.h"

namespace tintvert::test {
namespace {

using FrameRoutine = void (*)(void*, long, void*, long, long, long);

constexpr Size sizes[] = {{191, 33}, {1280, 720}};

void expect_same(FrameRoutine routine, const std::string& from, long src_bytes, const std::string& to, long dst_bytes)
{
    for (const Size& size : sizes) {
        Bytes src = noise(51, size.pixels() * static_cast<size_t>(src_bytes));
        Bytes ours(size.pixels() * static_cast<size_t>(dst_bytes));
        routine(ours.data(), size.width * dst_bytes, src.data(), size.width * src_bytes, size.width, size.height);
        EXPECT_TRUE(same(ours, ffmpeg(src, {from, size.width, size.height}, "null", to)))
            << from << " to " << to << ", width " << size.width;
    }
}

TEST_F(Ffmpeg, orders_of_32_bits)
{
    expect_same(tntvt_rgba32_bgra32_inplace, "bgra", 4, "rgba", 4);
    expect_same(tntvt_rgba32_abgr32_inplace, "bgra", 4, "argb", 4);
    expect_same(tntvt_rgba32_argb32, "abgr", 4, "bgra", 4);
}

TEST_F(Ffmpeg, between_24_and_32_bits)
{
    expect_same(tntvt_rgb32_rgb24, "bgra", 4, "bgr24", 3);
    expect_same(tntvt_rgb32_bgr24_inplace, "bgra", 4, "rgb24", 3);
    expect_same(tntvt_rgb24_rgb32, "bgr24", 3, "bgra", 4);
    expect_same(tntvt_rgb24_bgra32_inplace, "bgr24", 3, "rgba", 4);
    expect_same(tntvt_macbgr24_macargb32_inplace, "bgr24", 3, "abgr", 4);
}

// The r10k encoder makes the words, and each has the top eight of its ten bits in the result.
TEST_F(Ffmpeg, from_10_bit_words)
{
    for (const Size& size : sizes) {
        const Samples green = noise(52, size.pixels(), 0, 1023), blue = noise(53, size.pixels(), 0, 1023),
                      red = noise(54, size.pixels(), 0, 1023);
        Bytes planes, expected;
        for (const Samples* plane : {&green, &blue, &red}) {
            const Bytes bytes = little_endian(*plane);
            planes.insert(planes.end(), bytes.begin(), bytes.end());
        }
        for (size_t i = 0; i < size.pixels(); ++i)
            for (const int byte : {blue[i] >> 2, green[i] >> 2, red[i] >> 2, 255})
                expected.push_back(static_cast<uint8_t>(byte));
        const std::string picture = std::to_string(size.width) + "x" + std::to_string(size.height);
        Bytes words = through({"ffmpeg", "-v", "error", "-f", "rawvideo", "-pix_fmt", "gbrp10le", "-s", picture, "-i",
                               "{in}", "-c:v", "r10k", "-f", "rawvideo", "{out}"},
                              planes);
        ASSERT_EQ(words.size(), size.pixels() * 4);
        Bytes ours(size.pixels() * 4);
        tntvt_rgb10_rgba32(ours.data(), 0, words.data(), 0, size.width, size.height, 1, 0);
        EXPECT_TRUE(same(ours, expected)) << size.width;

        // The same words little-endian; these run from the bottom up unless `flipLines` says otherwise.
        for (size_t i = 0; i < words.size(); i += 4) {
            std::swap(words[i], words[i + 3]);
            std::swap(words[i + 1], words[i + 2]);
        }
        tntvt_rgb10_rgba32(ours.data(), 0, words.data(), 0, size.width, size.height, 0, 1);
        EXPECT_TRUE(same(ours, expected)) << size.width;
    }
}

}  // namespace
}  // namespace tintvert::test
