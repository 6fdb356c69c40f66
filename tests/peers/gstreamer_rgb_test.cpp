// RGB against GStreamer, byte for byte. Its names give the order of bytes in memory.
#include <gtest/gtest.h>
#include <tintvert.h>

#include <functional>

#include "peers/compare.h"
#include "peers/frames.h"
#include "peers/program.h"

namespace tintvert::test {
namespace {

using FrameRoutine = std::function<void(void*, long, void*, long, long, long)>;

// GStreamer's lines are rounded up to 4 bytes: a width of 190 gives 24-bit lines two bytes of slack, after the pixels.
constexpr Size sizes[] = {{190, 33}, {1280, 720}};

enum class Align { left, right };  // where ours has a line in its stride

long stride_of(long width, long pixel_bytes) { return (width * pixel_bytes + 3) / 4 * 4; }

// What ours makes of a frame and what GStreamer makes of it, pixels only.
struct Results {
    Bytes ours, theirs;
};

Results run(const FrameRoutine& routine, Align align, const std::string& from, long src_bytes, const std::string& to,
            long dst_bytes, const Size& size)
{
    const long src_stride = stride_of(size.width, src_bytes), dst_stride = stride_of(size.width, dst_bytes);
    const long src_slack = src_stride - size.width * src_bytes, dst_slack = dst_stride - size.width * dst_bytes;
    Bytes src = noise(41, static_cast<size_t>(src_stride * size.height));
    const Bytes made = gstreamer(src, {from, size.width, size.height}, {}, to);
    Results results;
    results.theirs = cut(made, dst_stride, size.width * dst_bytes, size.height);

    // Lines that are right-aligned in their strides: begin so much earlier.
    const long back = align == Align::right ? src_slack : 0;
    src.insert(src.begin(), static_cast<size_t>(back), 0);
    Bytes dst(static_cast<size_t>(dst_stride * size.height));
    routine(dst.data(), dst_stride, src.data(), src_stride, size.width, size.height);
    results.ours = cut(dst, dst_stride, size.width * dst_bytes, size.height, align == Align::right ? dst_slack : 0);
    return results;
}

void expect_same(const FrameRoutine& routine, Align align, const std::string& from, long src_bytes,
                 const std::string& to, long dst_bytes)
{
    for (const Size& size : sizes) {
        const Results results = run(routine, align, from, src_bytes, to, dst_bytes, size);
        EXPECT_TRUE(same(results.ours, results.theirs)) << from << " to " << to << ", width " << size.width;
    }
}

using DepthRoutine = void (*)(void*, long, void*, long, long, long, unsigned int);
using OrderRoutine = void (*)(void*, long, void*, long, long, long, unsigned int, unsigned int);

FrameRoutine at_16_bits(DepthRoutine routine)
{
    return [routine](void* dst, long dst_stride, void* src, long src_stride, long width, long height) {
        routine(dst, dst_stride, src, src_stride, width, height, 16);
    };
}

FrameRoutine in_order(OrderRoutine routine, unsigned int order)
{
    return [routine, order](void* dst, long dst_stride, void* src, long src_stride, long width, long height) {
        routine(dst, dst_stride, src, src_stride, width, height, 16, order);
    };
}

TEST_F(Gstreamer, orders_of_32_bits)
{
    expect_same(tntvt_rgba32_bgra32_inplace, Align::left, "bgra", 4, "RGBA", 4);
    expect_same(tntvt_rgba32_abgr32_inplace, Align::left, "bgra", 4, "ARGB", 4);
    // A, B, G, R to B, G, R, A: every byte moves down by one.
    expect_same(tntvt_rgba32_argb32, Align::left, "abgr", 4, "BGRA", 4);
}

TEST_F(Gstreamer, from_32_to_24_bits)
{
    expect_same(tntvt_rgb32_rgb24, Align::left, "bgra", 4, "BGR", 3);
    expect_same(tntvt_rgb32_bgr24_inplace, Align::left, "bgra", 4, "RGB", 3);
}

TEST_F(Gstreamer, from_24_to_32_bits)
{
    expect_same(tntvt_rgb24_rgb32, Align::right, "bgr", 3, "BGRA", 4);
    expect_same(tntvt_rgb24_bgra32_inplace, Align::right, "bgr", 3, "RGBA", 4);
    expect_same(tntvt_macbgr24_macargb32_inplace, Align::right, "bgr", 3, "ABGR", 4);
}

// GStreamer reduces to 15 bits what ours has widened: the words come back, less the top bit.
TEST_F(Gstreamer, from_16_to_32_bits)
{
    constexpr Size size{256, 256};
    Bytes words(size.pixels() * 2), pixels(size.pixels() * 4);
    for (size_t i = 0; i < size.pixels(); ++i) {
        words[2 * i] = static_cast<uint8_t>(i);
        words[2 * i + 1] = static_cast<uint8_t>(i >> 8);
    }
    tntvt_rgb16_rgba32(pixels.data(), size.width * 4, words.data(), size.width * 2, size.width, size.height);
    for (size_t i = 1; i < words.size(); i += 2) words[i] &= 0x7F;
    EXPECT_TRUE(same(words, gstreamer(pixels, {"bgra", size.width, size.height}, {}, "RGB15")));
}

TEST_F(Gstreamer, from_16_bits_a_channel_to_8)
{
    expect_same(at_16_bits(tntvt_rgba64_rgba32), Align::right, "bgra64-le", 8, "BGRA", 4);
    expect_same(at_16_bits(tntvt_bgra64_rgba32), Align::right, "rgba64-le", 8, "BGRA", 4);
    expect_same(at_16_bits(tntvt_argb64_rgba32), Align::right, "abgr64-le", 8, "BGRA", 4);
    expect_same(at_16_bits(tntvt_abgr64_rgba32), Align::right, "argb64-le", 8, "BGRA", 4);
}

TEST_F(Gstreamer, from_big_endian_16_bits_a_channel)
{
    const char* const orders[] = {"RGBA", "ARGB", "BGRA", "ABGR"};
    for (unsigned int order = 0; order < 4; ++order) {
        const std::string to = orders[order];
        expect_same(in_order(tntvt_argb64be_rgba32, order), Align::right, "abgr64-be", 8, to, 4);
        expect_same(in_order(tntvt_argb64be_rgba64, order), Align::right, "abgr64-be", 8, to + "64_LE", 8);
    }
    expect_same(in_order(tntvt_argb64be_rgb24, 0), Align::right, "abgr64-be", 8, "RGB", 3);
    expect_same(in_order(tntvt_argb64be_rgb24, 2), Align::right, "abgr64-be", 8, "BGR", 3);
}

// GStreamer repeats the byte in the low half of a channel; ours leaves that 0.
TEST_F(Gstreamer, from_8_bits_a_channel_to_16)
{
    const auto expect_same_high_bytes = [](const FrameRoutine& routine, const std::string& to) {
        for (const Size& size : sizes) {
            Results results = run(routine, Align::right, "bgra", 4, to, 8, size);
            for (size_t i = 0; i < results.theirs.size(); i += 2) results.theirs[i] = 0;
            EXPECT_TRUE(same(results.ours, results.theirs)) << to << ", width " << size.width;
        }
    };
    expect_same_high_bytes(at_16_bits(tntvt_rgba32_rgba64), "BGRA64_LE");
    expect_same_high_bytes(at_16_bits(tntvt_rgba32_argb64), "ABGR64_LE");
    expect_same_high_bytes(tntvt_bgra32_rgba64, "RGBA64_LE");
}

}  // namespace
}  // namespace tintvert::test
