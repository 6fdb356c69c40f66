// How wide the numbers of the decoders are: strides and counts of 64 bits, and line offsets of `_v210_to_rgb` that wrap
// at 32.
#include <gtest/gtest.h>
#include <tintvert/decode.h>

#include <climits>
#include <functional>
#include <string>
#include <vector>

#include "support/fence.h"
#include "support/lone_page.h"

namespace tintvert::test {
namespace {

using Bytes = std::vector<uint8_t>;
using Call = std::function<void(void*, long, void*, long, long, long)>;

constexpr long whole = 1l << 32;

struct Decoder {
    std::string name;
    Call call;
    long scale = 1;  // lines of the source to one of the result
};

template <class Routine>
Decoder at_scale(const char* name, Routine routine, long scale)
{
    return {std::string{name} + " at " + std::to_string(scale),
            [=](void* dst, long ds, void* src, long ss, long w, long h) { routine(dst, ds, src, ss, w, h, scale); },
            scale};
}

// What decodes by tables or by itself, at each of its scales.
std::vector<Decoder> decoders()
{
    std::vector<Decoder> all = {{"tntvt_yuvijg_rgb32", tntvt_yuvijg_rgb32}};
    for (const long scale : {1l, 2l, 4l}) {
        all.push_back(at_scale("tntvt_yuv422_rgb24", tntvt_yuv422_rgb24, scale));
        all.push_back(at_scale("tntvt_yuv422_rgb16", tntvt_yuv422_rgb16, scale));
        all.push_back(at_scale("tntvt_v210_rgb24", tntvt_v210_rgb24, scale));
        all.push_back(at_scale("tntvt_v210_rgb16", tntvt_v210_rgb16, scale));
        all.push_back(at_scale("tntvt_yuv422_10_rgb24", tntvt_yuv422_10_rgb24, scale));
        if (scale == 1) continue;
        all.push_back(at_scale("tntvt_yuv422_10_rgb32", tntvt_yuv422_10_rgb32, scale));
        all.push_back(at_scale("tntvt_yuv422_8_rgb24", tntvt_yuv422_8_rgb24, scale));
        all.push_back(at_scale("tntvt_yuv422_8_rgb32", tntvt_yuv422_8_rgb32, scale));
    }
    return all;
}

// `bytes` of open memory, of which only what is touched becomes real.
FencedBuffer open_memory(long bytes) { return {{0, bytes}, bytes, Side::above, Closed::wholly}; }

TEST(DecodeNumberWidths, line_starts_are_at_the_whole_stride)
{
    constexpr long far_src_stride = whole + 8192, far_dst_stride = whole + 4096, near = 64, width = 12;
    const FencedBuffer src = open_memory(5 * whole), dst = open_memory(2 * whole);
    for (const Decoder& decoder : decoders()) {
        Bytes near_src(static_cast<size_t>(near * 5 * decoder.scale)), near_dst(2 * near, 0xEE);
        for (long line = 0; line <= decoder.scale; line += decoder.scale)
            for (long i = 0; i < near; ++i)
                src.pointer()[line * far_src_stride + i] = near_src[static_cast<size_t>(line * near + i)] =
                    static_cast<uint8_t>(i * 7 + line * 31 + 1);
        for (const long line : {0l, far_dst_stride}) std::fill_n(dst.pointer() + line, near, uint8_t{0xEE});

        decoder.call(near_dst.data(), near, near_src.data(), near, width, 2 * decoder.scale);
        decoder.call(dst.pointer(), far_dst_stride, src.pointer(), far_src_stride, width, 2 * decoder.scale);
        for (size_t line = 0; line < 2; ++line) {
            const uint8_t* const far_line = dst.pointer() + static_cast<long>(line) * far_dst_stride;
            for (size_t i = 0; i < near; ++i)
                EXPECT_EQ(far_line[i], near_dst[line * near + i])
                    << decoder.name << ", line " << line << ", byte " << i;
        }
        EXPECT_NE(near_dst, Bytes(2 * near, 0xEE)) << decoder.name;
    }
}

TEST(DecodeNumberWidths, counts_of_2_to_the_32_are_work)
{
    const LonePage dst, src;
    for (const Decoder& decoder : decoders()) {
        EXPECT_TRUE(faults([&] { decoder.call(dst.begin(), 1, src.begin(), 1, whole, decoder.scale); }))
            << decoder.name << ", width";
        EXPECT_TRUE(faults([&] { decoder.call(dst.begin(), 1, src.begin(), 1, 2, whole); }))
            << decoder.name << ", height";
    }
    for (const int order : {0, 1}) {
        EXPECT_TRUE(faults([&] { _v210_to_rgb(src.begin(), dst.begin(), INT_MAX, 1, 0, order); })) << order;
        EXPECT_TRUE(faults([&] { _v210_to_rgb(src.begin(), dst.begin(), 6, INT_MAX / 6, 24, order); })) << order;
    }
}

TEST(DecodeNumberWidths, counts_around_minus_2_to_the_32_are_none)
{
    const LonePage dst, src;
    for (const Decoder& decoder : decoders())
        for (const long count : {4 - whole, 4 - 2 * whole, LONG_MIN, LONG_MIN + 4}) {
            EXPECT_FALSE(faults([&] { decoder.call(dst.closed(), 64, src.closed(), 64, count, 4); }))
                << decoder.name << ", width " << count;
            EXPECT_FALSE(faults([&] { decoder.call(dst.closed(), 64, src.closed(), 64, 4, count); }))
                << decoder.name << ", height " << count;
        }
}

// A group of one grey.
Bytes group(uint32_t luma)
{
    Bytes bytes;
    for (const uint32_t word : {512 | luma << 10 | 512u << 20, luma | 512u << 10 | luma << 20,
                                512 | luma << 10 | 512u << 20, luma | 512u << 10 | luma << 20})
        for (int shift = 0; shift < 32; shift += 8) bytes.push_back(static_cast<uint8_t>(word >> shift));
    return bytes;
}

// Line 2 is 2 x 2^30 bytes on, which is 2^31 bytes before the first in a signed number of 32 bits, line 3 is 2^30
// before it, and line 4 is line 0 again.
TEST(DecodeNumberWidths, line_starts_of_v210_to_rgb_wrap)
{
    constexpr long gibibyte = 1l << 30;
    const FencedBuffer memory({-2 * gibibyte, 5 * gibibyte}, 5 * gibibyte, Side::above, Closed::wholly);
    Bytes src;
    for (const uint32_t luma : {940u, 941u, 512u, 940u, 512u})
        for (const uint8_t byte : group(luma)) src.push_back(byte);
    _v210_to_rgb(src.data(), memory.pointer(), 6, 5, gibibyte, 1);
    const auto first_byte = [&](long gibibytes) { return memory.pointer()[gibibytes * gibibyte]; };
    EXPECT_EQ(first_byte(0), 130);
    EXPECT_EQ(first_byte(1), 255);
    EXPECT_EQ(first_byte(-2), 130);
    EXPECT_EQ(first_byte(-1), 254);
    for (const long unwritten : {2l, 3l, 4l}) EXPECT_EQ(first_byte(unwritten), 0) << unwritten;
}

}  // namespace
}  // namespace tintvert::test
