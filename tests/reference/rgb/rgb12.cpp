#include "reference/rgb/rgb12.h"

#include <cstddef>
#include <vector>

namespace tintvert::reference {
namespace {

long absolute(long height) { return height < 0 ? -height : height; }
long rounds_of_eight(long samples) { return (samples + 7) / 8; }

// The first `count` samples of a packed stream, bit 12n + i of the stream being bit i of sample n.
std::vector<int> samples_at(const uint8_t* src, int count)
{
    std::vector<int> samples(static_cast<size_t>(count));
    for (int bit = 0; bit < count * 12; ++bit)
        if (src[bit / 8] >> (bit % 8) & 1) samples[static_cast<size_t>(bit / 12)] += 1 << (bit % 12);
    return samples;
}

void store_word(uint8_t* dst, int value)
{
    dst[0] = static_cast<uint8_t>(value % 256);
    dst[1] = static_cast<uint8_t>(value / 256);
}

// The packers: the samples of a line become a stream of bits, highest first, cut off at the stride.
void pack(uint8_t* dst, long dst_stride, const uint8_t* src, long src_stride, long width, long height, int lowest_bit)
{
    if (width < 1) return;
    for (long line = 0; line < absolute(height); ++line) {
        uint8_t* const to = dst + line * dst_stride;
        const uint8_t* const from = src + line * src_stride;
        long written = 0;
        for (long n = 0; n < rounds_of_eight(3 * width) * 8; ++n) {
            const int word = from[2 * n] + from[2 * n + 1] * 256;
            for (int b = lowest_bit + 11; b >= lowest_bit; --b, ++written) {
                if (written / 8 >= dst_stride) continue;
                const int place = 1 << (7 - written % 8);
                const int others = to[written / 8] & ~place;
                to[written / 8] = static_cast<uint8_t>(others + (word >> b & 1) * place);
            }
        }
    }
}

}  // namespace

void rgb12_bgr48(uint8_t* dst, long dstStride, const uint8_t* src, long srcStride, long width, long height)
{
    for (long line = 0; line < absolute(height); ++line)
        for (long done = 0; done < 3 * width; done += 8) {
            const std::vector<int> s = samples_at(src + line * srcStride + done * 12 / 8, 8);
            for (long i = 0; i < 8; ++i)
                store_word(dst + line * dstStride + (done + i) * 2, s[static_cast<size_t>(i)] * 16);
        }
}

void rgb12_rgb48(uint8_t* dst, long dstStride, const uint8_t* src, long srcStride, long width, long height)
{
    if (width < 1) return;
    for (long line = 0; line < absolute(height); ++line)
        for (long round = 0; round < rounds_of_eight(3 * width); ++round) {
            const std::vector<int> s = samples_at(src + line * srcStride + round * 36, 24);
            uint8_t* const to = dst + line * dstStride + round * 48;
            for (size_t p = 0; p < 8; ++p)
                for (size_t c = 0; c < 3; ++c) store_word(to + (3 * p + c) * 2, s[3 * p + 2 - c] * 16);
        }
}

void rgb12_rgba32(uint8_t* dst, long dstStride, const uint8_t* src, long srcStride, long width, long height)
{
    for (long line = 0; line < absolute(height); ++line)
        for (long pixels = 0; pixels < width; pixels += 8) {
            const std::vector<int> s = samples_at(src + line * srcStride + pixels / 8 * 36, 24);
            uint8_t* const to = dst + line * dstStride + pixels * 4;
            for (size_t p = 0; p < 8; ++p) {
                const int blue = p == 2 ? s[0] : s[3 * p + 2];
                to[4 * p] = static_cast<uint8_t>(blue / 16);
                to[4 * p + 1] = static_cast<uint8_t>(s[3 * p + 1] / 16);
                to[4 * p + 2] = static_cast<uint8_t>(s[3 * p] / 16);
                to[4 * p + 3] = 255;
            }
        }
}

void rgb48_12_rgb12(uint8_t* dst, long dstStride, const uint8_t* src, long srcStride, long width, long height)
{
    pack(dst, dstStride, src, srcStride, width, height, 0);
}

void rgb48_rgb12(uint8_t* dst, long dstStride, const uint8_t* src, long srcStride, long width, long height)
{
    pack(dst, dstStride, src, srcStride, width, height, 4);
}

void rgb48_12_rgba32(uint8_t* dst, long dstStride, const uint8_t* src, long srcStride, long width, long height)
{
    if (width < 1) return;
    for (long line = 0; line < absolute(height); ++line)
        for (long n = 0; n < rounds_of_eight(3 * width) * 8; ++n) {
            const uint8_t* const word = src + line * srcStride + 2 * n;
            dst[line * dstStride] = static_cast<uint8_t>(word[0] / 16 + word[1] % 16 * 16);
        }
}

}  // namespace tintvert::reference
