// 32-bit orders, narrowing and widening against their references, in one memory and at every overlap.
#include "reference/rgb/rgb_8bit.h"

#include <tintvert.h>

#include "support/strided.h"

namespace tintvert::test {
namespace {

using Routine = void(void*, long, void*, long, long, long);

TEST(Rgb8BitReference, word_kernels)
{
    struct Row {
        const char* name;
        void (*kernel)(unsigned char*, unsigned char*, unsigned int);
        void (*pixel)(uint8_t*, const uint8_t*);
    };
    const Row rows[] = {
        {"rgba2argb", rgba2argb, reference::rotated_right},
        {"bgra2abgr", bgra2abgr, reference::rotated_right},
        {"bgra2abgrMMX", bgra2abgrMMX, reference::rotated_right},
        {"abgr2bgraMMX", abgr2bgraMMX, reference::rotated_right},
        {"argb2rgba", argb2rgba, reference::rotated_left},
        {"abgr2bgra", abgr2bgra, reference::rotated_left},
        {"bgra2argb", bgra2argb, reference::reversed},
        {"argb2bgra", argb2bgra, reference::reversed},
        {"abgr2argb", abgr2argb, reference::low_pair_swapped},
        {"argb2abgr", argb2abgr, reference::low_pair_swapped},
        {"bgra2rgba", bgra2rgba, reference::low_pair_swapped},
    };
    // A run is a line: the width is the count, and the other numbers of a frame are not looked at.
    for (const Row& row : rows) {
        const auto count = [](const StridedFrame& f) { return std::max(f.width, 0L); };
        const Work routine = [&](const StridedFrame& f) {
            row.kernel(f.dst, const_cast<uint8_t*>(f.src), static_cast<unsigned int>(count(f)));
        };
        const Work expected = [&](const StridedFrame& f) {
            for (long x = 0; x < count(f); ++x) row.pixel(f.dst + 4 * x, f.src + 4 * x);
        };
        EXPECT_TRUE(agree_everywhere({row.name, PixelBytes{4, 4}, routine, expected}));
    }
}

TEST(Rgb8BitReference, frames_forward)
{
    struct Row {
        const char* name;
        Routine* routine;
        int dst_bytes;
        void (*pixel)(uint8_t*, const uint8_t*);
    };
    const Row rows[] = {
        {"tntvt_rgba32_bgra32_inplace", tntvt_rgba32_bgra32_inplace, 4, reference::low_pair_swapped},
        {"tntvt_rgb32_bgr32_inplace", tntvt_rgb32_bgr32_inplace, 4, reference::low_pair_swapped},
        {"tntvt_rgba32_abgr32_inplace", tntvt_rgba32_abgr32_inplace, 4, reference::reversed},
        {"tntvt_rgba32_argb32", tntvt_rgba32_argb32, 4, reference::rotated_right},
        {"tntvt_argb32_rgba32", tntvt_argb32_rgba32, 4, reference::counted_alpha},
        {"tntvt_rgba32_rgb24_inplace", tntvt_rgba32_rgb24_inplace, 3, reference::cut_to_24},
        {"tntvt_rgba32_rgb24", tntvt_rgba32_rgb24, 3, reference::cut_to_24},
        {"tntvt_rgb32_rgb24_inplace", tntvt_rgb32_rgb24_inplace, 3, reference::cut_to_24},
        {"tntvt_rgb32_rgb24", tntvt_rgb32_rgb24, 3, reference::cut_to_24},
    };
    for (const Row& row : rows) {
        const PixelBytes bytes{row.dst_bytes, 4};
        const Work expected = [&](const StridedFrame& f) { reference::forward(f, bytes, row.pixel); };
        EXPECT_TRUE(agree_everywhere({row.name, bytes, calling(row.routine), expected}));
    }
}

TEST(Rgb8BitReference, frames_with_a_walk_of_their_own)
{
    const Work crossed = [](const StridedFrame& f) {
        tntvt_rgba24_rgb32_invert(const_cast<uint8_t*>(f.src), f.dst_stride, f.dst, f.src_stride, f.width, f.height);
    };
    const Twins all[] = {
        {"tntvt_rgba32_bgr24_inplace", PixelBytes{3, 4}, calling(tntvt_rgba32_bgr24_inplace),
         reference::rgba32_to_bgr24},
        {"tntvt_rgb32_bgr24_inplace", PixelBytes{3, 4}, calling(tntvt_rgb32_bgr24_inplace), reference::rgba32_to_bgr24},
        {"tntvt_rgba32_rgb24_invert", PixelBytes{3, 4}, calling(tntvt_rgba32_rgb24_invert),
         reference::rgba32_to_rgb24_upside_down},
        {"tntvt_rgba24_rgb32_invert", PixelBytes{4, 3}, crossed, reference::rgba24_to_rgb32_upside_down},
    };
    for (const Twins& twins : all) EXPECT_TRUE(agree_everywhere(twins, 8));
}

TEST(Rgb8BitReference, frames_backward)
{
    struct Row {
        const char* name;
        Routine* routine;
        int src_bytes;
        void (*pixel)(uint8_t*, const uint8_t*);
        bool positive_only = false;
    };
    const Row rows[] = {
        {"tntvt_rgb24_rgba32_inplace", tntvt_rgb24_rgba32_inplace, 3, reference::alpha_behind},
        {"tntvt_rgb24_rgba32", tntvt_rgb24_rgba32, 3, reference::alpha_behind},
        {"tntvt_rgb24_rgb32_inplace", tntvt_rgb24_rgb32_inplace, 3, reference::alpha_behind},
        {"tntvt_rgb24_rgb32", tntvt_rgb24_rgb32, 3, reference::alpha_behind},
        {"tntvt_rgb24_bgra32_inplace", tntvt_rgb24_bgra32_inplace, 3, reference::reversed_alpha_behind},
        {"tntvt_rgb24_bgr32_inplace", tntvt_rgb24_bgr32_inplace, 3, reference::reversed_alpha_behind},
        {"tntvt_rgb16_rgba32_inplace", tntvt_rgb16_rgba32_inplace, 2, reference::five_bits_widened},
        {"tntvt_rgb16_rgba32", tntvt_rgb16_rgba32, 2, reference::five_bits_widened},
        {"tntvt_rgb16_rgb32_inplace", tntvt_rgb16_rgb32_inplace, 2, reference::five_bits_widened},
        {"tntvt_rgb16_rgb32", tntvt_rgb16_rgb32, 2, reference::five_bits_widened},
        {"tntvt_macbgr24_macargb32_inplace", tntvt_macbgr24_macargb32_inplace, 3, reference::alpha_in_front, true},
    };
    for (const Row& row : rows) {
        const PixelBytes bytes{4, row.src_bytes};
        const Work expected = [&](const StridedFrame& f) {
            reference::backward(f, row.positive_only ? f.height : std::labs(f.height), bytes, row.pixel);
        };
        EXPECT_TRUE(agree_everywhere({row.name, bytes, calling(row.routine), expected}));
    }
}

// References that are wrong in one thing each.
TEST(Rgb8BitReference, a_wrong_reference_is_found)
{
    const auto forward = [](PixelBytes bytes, const reference::Pixel& pixel) -> Work {
        return [=](const StridedFrame& f) { reference::forward(f, bytes, pixel); };
    };
    const auto backward = [](PixelBytes bytes, const reference::Pixel& pixel) -> Work {
        return [=](const StridedFrame& f) { reference::backward(f, std::labs(f.height), bytes, pixel); };
    };
    const auto unguarded = [](uint8_t* dst, const uint8_t* src) {
        dst[2] = src[0];
        dst[1] = src[1];
        dst[0] = src[2];
    };
    const auto descending = [](uint8_t* dst, const uint8_t* src) {
        dst[2] = src[2];
        dst[1] = src[1];
        dst[0] = src[0];
        dst[3] = 255;
    };
    const auto word_read_once = [](uint8_t* dst, const uint8_t* src) {
        const uint8_t word[] = {src[0], src[1]};
        reference::five_bits_widened(dst, word);
    };
    const auto uncounted = [](uint8_t* dst, const uint8_t* src) {
        const uint8_t alpha = src[3];
        dst[0] = alpha;
        dst[1] = dst[2] = dst[3] = 0;
    };
    const Work last_line_first = [](const StridedFrame& f) {
        for (long i = std::labs(f.height) - 1; i >= 0; --i)
            reference::forward({f.dst + i * f.dst_stride, 0, f.src + i * f.src_stride, 0, f.width, 1}, {4, 4},
                               reference::rotated_right);
    };
    const Twins all[] = {
        {"guard", PixelBytes{3, 4}, calling(tntvt_rgba32_bgr24_inplace), forward({3, 4}, unguarded)},
        {"stores", PixelBytes{4, 3}, calling(tntvt_rgb24_rgba32), backward({4, 3}, descending)},
        {"loads", PixelBytes{4, 2}, calling(tntvt_rgb16_rgba32), backward({4, 2}, word_read_once)},
        {"start of line", PixelBytes{4, 2}, calling(tntvt_rgb16_rgb32), forward({4, 2}, reference::five_bits_widened)},
        {"alpha", PixelBytes{4, 4}, calling(tntvt_argb32_rgba32), forward({4, 4}, uncounted)},
        {"lines", PixelBytes{4, 4}, calling(tntvt_rgba32_argb32), last_line_first},
    };
    for (const Twins& twins : all) EXPECT_FALSE(agree_everywhere(twins)) << twins.name;
}

// Bytes 0 to 2 in all their values, before a few of byte 3.
TEST(Rgb8BitExhaustive, counted_alpha)
{
    std::vector<uint8_t> src(4 << 16), dst(4 << 16), expected(4 << 16);
    for (const int b3 : {0, 1, 0x80, 0xFE, 0xFF})
        for (int b2 = 0; b2 < 256; ++b2) {
            for (size_t i = 0; i < src.size(); i += 4) {
                src[i] = static_cast<uint8_t>(i / 4);
                src[i + 1] = static_cast<uint8_t>(i / 4 / 256);
                src[i + 2] = static_cast<uint8_t>(b2);
                src[i + 3] = static_cast<uint8_t>(b3);
                reference::counted_alpha(&expected[i], &src[i]);
            }
            tntvt_argb32_rgba32(dst.data(), 1024, src.data(), 1024, 256, 256);
            ASSERT_EQ(dst, expected) << "bytes 3 and 2: " << b3 << ", " << b2;
        }
}

TEST(Rgb8BitExhaustive, words_of_rgb16)
{
    std::vector<uint8_t> src(2 << 16), dst(4 << 16), expected(4 << 16);
    for (size_t word = 0; word < 0x10000; ++word) {
        src[2 * word] = static_cast<uint8_t>(word);
        src[2 * word + 1] = static_cast<uint8_t>(word / 256);
        reference::five_bits_widened(&expected[4 * word], &src[2 * word]);
    }
    for (auto* routine :
         {tntvt_rgb16_rgba32_inplace, tntvt_rgb16_rgba32, tntvt_rgb16_rgb32_inplace, tntvt_rgb16_rgb32}) {
        dst.assign(dst.size(), 0xEE);
        routine(dst.data(), 1024, src.data(), 512, 256, 256);
        EXPECT_EQ(dst, expected);
        EXPECT_TRUE(std::equal(expected.begin(), expected.begin() + (2 << 16), expected.begin() + (2 << 16)))
            << "bit 15";
    }
}

}  // namespace
}  // namespace tintvert::test
