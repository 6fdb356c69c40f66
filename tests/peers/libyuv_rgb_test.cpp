// RGB against libyuv, byte for byte. libyuv names a pixel from the highest byte of its word down: its ARGB is B, G, R,
// A in memory, our `rgba32`.
#include <gtest/gtest.h>
#include <tintvert.h>

#ifndef TINTVERT_PEER_LIBYUV
TEST(LibyuvRgb, all) { GTEST_SKIP() << "skipped: libyuv is not installed"; }
#else

#include <libyuv.h>

#include "peers/compare.h"
#include "peers/frames.h"

namespace tintvert::test {
namespace {

using FrameRoutine = void (*)(void*, long, void*, long, long, long);
using DepthRoutine = void (*)(void*, long, void*, long, long, long, unsigned int);
using Kernel = void (*)(unsigned char*, unsigned char*, unsigned int);
using Peer = int (*)(const uint8_t*, int, uint8_t*, int, int, int);

enum class Align { left, right };  // where a line is in its stride

constexpr Size sizes[] = {{1, 1}, {5, 3}, {17, 4}, {190, 7}, {721, 31}, {1280, 720}};

// `ours` and `theirs` on one frame, with and without slack in the lines, and every byte of both results compared.
template <typename Ours, typename Theirs>
void compare(Ours ours, Theirs theirs, int dst_bytes, int src_bytes, Align align)
{
    for (const Size& size : sizes)
        for (const int slack : {0, 8}) {
            const int width = static_cast<int>(size.width), height = static_cast<int>(size.height);
            const int dst_stride = width * dst_bytes + slack, src_stride = width * src_bytes + 2 * slack;
            Bytes src = noise(21, static_cast<size_t>(src_stride * height));
            Bytes dst = noise(22, static_cast<size_t>(dst_stride * height)), dst_theirs = dst;
            const int skip = align == Align::right ? 1 : 0;
            ours(dst.data(), dst_stride, src.data(), src_stride, size.width, size.height);
            theirs(src.data() + skip * 2 * slack, src_stride, dst_theirs.data() + skip * slack, dst_stride, width,
                   height);
            EXPECT_TRUE(same(dst, dst_theirs)) << size.width << ", slack " << slack;
        }
}

// Kernels walk one run of pixels.
auto as_frame(Kernel kernel)
{
    return [kernel](uint8_t* dst, long dst_stride, uint8_t* src, long src_stride, long width, long height) {
        for (long y = 0; y < height; ++y)
            kernel(dst + y * dst_stride, src + y * src_stride, static_cast<unsigned int>(width));
    };
}

// libyuv's own word for "byte i of the pixel is its byte `order`[i]".
auto shuffle(std::initializer_list<uint8_t> order)
{
    std::vector<uint8_t> shuffler;
    for (uint8_t pixel = 0; pixel < 16; pixel = static_cast<uint8_t>(pixel + 4))
        for (const uint8_t byte : order) shuffler.push_back(static_cast<uint8_t>(pixel + byte));
    return [shuffler](const uint8_t* src, int src_stride, uint8_t* dst, int dst_stride, int width, int height) {
        libyuv::ARGBShuffle(src, src_stride, dst, dst_stride, shuffler.data(), width, height);
    };
}

TEST(LibyuvRgb, frames_in_32_bit_orders)
{
    const Peer to_abgr = libyuv::ARGBToABGR, to_bgra = libyuv::ARGBToBGRA;
    compare(tntvt_rgba32_bgra32_inplace, to_abgr, 4, 4, Align::left);
    compare(tntvt_rgb32_bgr32_inplace, to_abgr, 4, 4, Align::left);
    compare(tntvt_rgba32_abgr32_inplace, to_bgra, 4, 4, Align::left);
    compare(tntvt_rgba32_argb32, shuffle({1, 2, 3, 0}), 4, 4, Align::left);
}

TEST(LibyuvRgb, kernels_in_32_bit_orders)
{
    for (const Kernel kernel : {rgba2argb, bgra2abgr, bgra2abgrMMX, abgr2bgraMMX})
        compare(as_frame(kernel), shuffle({1, 2, 3, 0}), 4, 4, Align::left);
    // A, B, G, R in memory, libyuv's RGBA, to B, G, R, A: its own routine.
    for (const Kernel kernel : {rgba2argb, bgra2abgr, bgra2abgrMMX, abgr2bgraMMX})
        compare(as_frame(kernel), libyuv::RGBAToARGB, 4, 4, Align::left);
    for (const Kernel kernel : {argb2rgba, abgr2bgra}) compare(as_frame(kernel), libyuv::ARGBToRGBA, 4, 4, Align::left);
    for (const Kernel kernel : {bgra2argb, argb2bgra}) compare(as_frame(kernel), libyuv::ARGBToBGRA, 4, 4, Align::left);
    for (const Kernel kernel : {abgr2argb, argb2abgr, bgra2rgba})
        compare(as_frame(kernel), libyuv::ARGBToABGR, 4, 4, Align::left);
}

TEST(LibyuvRgb, from_32_to_24_bits)
{
    for (const FrameRoutine routine :
         {tntvt_rgba32_rgb24_inplace, tntvt_rgba32_rgb24, tntvt_rgb32_rgb24_inplace, tntvt_rgb32_rgb24})
        compare(routine, libyuv::ARGBToRGB24, 3, 4, Align::left);
    for (const FrameRoutine routine : {tntvt_rgba32_bgr24_inplace, tntvt_rgb32_bgr24_inplace})
        compare(routine, libyuv::ARGBToRAW, 3, 4, Align::left);
    // A negative height reads the lines from the last one up.
    const auto upside_down = [](const uint8_t* src, int src_stride, uint8_t* dst, int dst_stride, int width,
                                int height) { libyuv::ARGBToRGB24(src, src_stride, dst, dst_stride, width, -height); };
    compare(tntvt_rgba32_rgb24_invert, upside_down, 3, 4, Align::left);
}

TEST(LibyuvRgb, from_24_to_32_bits)
{
    for (const FrameRoutine routine :
         {tntvt_rgb24_rgba32_inplace, tntvt_rgb24_rgba32, tntvt_rgb24_rgb32_inplace, tntvt_rgb24_rgb32})
        compare(routine, libyuv::RGB24ToARGB, 4, 3, Align::right);
    for (const FrameRoutine routine : {tntvt_rgb24_bgra32_inplace, tntvt_rgb24_bgr32_inplace})
        compare(routine, libyuv::RAWToARGB, 4, 3, Align::right);
    const auto alpha_in_front = [](const uint8_t* src, int src_stride, uint8_t* dst, int dst_stride, int width,
                                   int height) {
        libyuv::RGB24ToARGB(src, src_stride, dst, dst_stride, width, height);
        libyuv::ARGBToRGBA(dst, dst_stride, dst, dst_stride, width, height);
    };
    compare(tntvt_macbgr24_macargb32_inplace, alpha_in_front, 4, 3, Align::right);
    // Its pointers are one stride past the first byte of each frame.
    const auto inverted = [](uint8_t* dst, long dst_stride, uint8_t* src, long src_stride, long width, long height) {
        tntvt_rgba24_rgb32_invert(src + src_stride, dst_stride, dst + dst_stride, src_stride, width, height);
    };
    const auto upside_down = [](const uint8_t* src, int src_stride, uint8_t* dst, int dst_stride, int width,
                                int height) { libyuv::RGB24ToARGB(src, src_stride, dst, dst_stride, width, -height); };
    compare(inverted, upside_down, 4, 3, Align::right);
}

// libyuv fills the low three bits of a byte with the high ones; ours leaves them 0.
TEST(LibyuvRgb, from_16_to_32_bits)
{
    const auto top_five_bits = [](const uint8_t* src, int src_stride, uint8_t* dst, int dst_stride, int width,
                                  int height) {
        libyuv::ARGB1555ToARGB(src, src_stride, dst, dst_stride, width, height);
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x) {
                uint8_t* pixel = dst + y * dst_stride + x * 4;
                for (int byte = 0; byte < 3; ++byte) pixel[byte] &= 0xF8;
                pixel[3] = 255;
            }
    };
    for (const FrameRoutine routine :
         {tntvt_rgb16_rgba32_inplace, tntvt_rgb16_rgba32, tntvt_rgb16_rgb32_inplace, tntvt_rgb16_rgb32})
        compare(routine, top_five_bits, 4, 2, Align::right);
}

// Every word there is: the rgb16 of a pixel, made by the peer, comes back as the top five bits of its bytes.
TEST(LibyuvRgb, every_16_bit_word)
{
    constexpr int width = 256, height = 256;
    Bytes words(width * height * 2), pixels(width * height * 4), back(width * height * 2);
    for (size_t i = 0; i < words.size(); i += 2) {
        words[i] = static_cast<uint8_t>(i / 2);
        words[i + 1] = static_cast<uint8_t>(i / 2 >> 8);
    }
    tntvt_rgb16_rgba32(pixels.data(), width * 4, words.data(), width * 2, width, height);
    libyuv::ARGBToARGB1555(pixels.data(), width * 4, back.data(), width * 2, width, height);
    for (Bytes* side : {&words, &back})
        for (size_t i = 1; i < side->size(); i += 2) (*side)[i] &= 0x7F;
    EXPECT_TRUE(same(words, back));
}

TEST(LibyuvRgb, from_16_bits_a_channel_to_8)
{
    const auto at_16_bits = [](DepthRoutine routine) {
        return [routine](void* dst, long dst_stride, void* src, long src_stride, long width, long height) {
            routine(dst, dst_stride, src, src_stride, width, height, 16);
        };
    };
    // libyuv counts the stride of 16-bit channels in channels.
    const auto by_bytes = [](int (*peer)(const uint16_t*, int, uint8_t*, int, int, int)) {
        return [peer](const uint8_t* src, int src_stride, uint8_t* dst, int dst_stride, int width, int height) {
            peer(reinterpret_cast<const uint16_t*>(src), src_stride / 2, dst, dst_stride, width, height);
        };
    };
    compare(at_16_bits(tntvt_rgba64_rgba32), by_bytes(libyuv::AR64ToARGB), 4, 8, Align::right);
    compare(at_16_bits(tntvt_bgra64_rgba32), by_bytes(libyuv::AB64ToARGB), 4, 8, Align::right);
}

// libyuv repeats the byte in the low half of a channel; ours leaves that 0.
TEST(LibyuvRgb, from_8_bits_a_channel_to_16)
{
    const auto high_bytes = [](int (*peer)(const uint8_t*, int, uint16_t*, int, int, int)) {
        return [peer](const uint8_t* src, int src_stride, uint8_t* dst, int dst_stride, int width, int height) {
            peer(src, src_stride, reinterpret_cast<uint16_t*>(dst), dst_stride / 2, width, height);
            for (int y = 0; y < height; ++y)
                for (int x = 0; x < width * 8; x += 2) dst[y * dst_stride + x] = 0;
        };
    };
    const FrameRoutine straight = [](void* dst, long dst_stride, void* src, long src_stride, long width, long height) {
        tntvt_rgba32_rgba64(dst, dst_stride, src, src_stride, width, height, 16);
    };
    compare(straight, high_bytes(libyuv::ARGBToAR64), 8, 4, Align::right);
    compare(tntvt_bgra32_rgba64, high_bytes(libyuv::ARGBToAB64), 8, 4, Align::right);
}

TEST(LibyuvRgb, upside_down)
{
    for (const Size& size : sizes) {
        const int stride = static_cast<int>(size.width) * 4 + 12, height = static_cast<int>(size.height);
        Bytes src = noise(25, static_cast<size_t>(stride * height));
        Bytes ours(src.size()), theirs(src.size()), in_place = src;
        tntvt_flip_vert(ours.data(), src.data(), 0, height, static_cast<unsigned int>(stride));
        tntvt_flip_vert(in_place.data(), in_place.data(), 0, height, static_cast<unsigned int>(stride));
        libyuv::CopyPlane(src.data(), stride, theirs.data(), stride, stride, -height);
        EXPECT_TRUE(same(ours, theirs)) << size.width;
        EXPECT_TRUE(same(in_place, theirs)) << size.width;
    }
}

// Ours mirrors about pixel `width` / 2, so destination pixel i is source pixel `width` - i: the peer gets the line
// from its second pixel on.
TEST(LibyuvRgb, mirrored)
{
    for (const Size& size : sizes) {
        const int width = static_cast<int>(size.width), height = static_cast<int>(size.height);
        const int stride = width * 4 + 12;
        Bytes src = noise(26, static_cast<size_t>(stride * height));
        Bytes ours = noise(27, src.size()), theirs = ours;
        tntvt_flip_horz(ours.data(), src.data(), width, height, static_cast<unsigned int>(stride));
        libyuv::ARGBMirror(src.data() + 4, stride, theirs.data(), stride, width, height);
        EXPECT_TRUE(same(ours, theirs)) << size.width;
    }
}

}  // namespace
}  // namespace tintvert::test

#endif
