// Frames to hand to both sides, and their samples.
#pragma once

#include <cstdint>
#include <vector>

#include "support/random.h"

namespace tintvert::test {

using Bytes = std::vector<uint8_t>;
using Samples = std::vector<uint16_t>;

struct Size {
    long width, height;
    size_t pixels() const { return static_cast<size_t>(width * height); }
};

// Random bytes, the same for the same `seed`.
inline Bytes noise(uint64_t seed, size_t count) { return Random(seed).bytes(count); }

// Random samples from `low` to `high`.
inline Samples noise(uint64_t seed, size_t count, long low, long high)
{
    Random random(seed);
    Samples samples(count);
    for (uint16_t& sample : samples) sample = static_cast<uint16_t>(random.between(low, high));
    return samples;
}

// Lines of `line` bytes cut out of lines `stride` apart, from byte `from` of each.
inline Bytes cut(const Bytes& frame, long stride, long line, long height, long from = 0)
{
    Bytes result;
    for (long y = 0; y < height; ++y) {
        const auto start = frame.begin() + y * stride + from;
        result.insert(result.end(), start, start + line);
    }
    return result;
}

// Bytes 0, 1 of a little-endian word, and so on.
inline Bytes little_endian(const Samples& samples)
{
    Bytes bytes;
    for (const uint16_t sample : samples) {
        bytes.push_back(static_cast<uint8_t>(sample & 0xFF));
        bytes.push_back(static_cast<uint8_t>(sample >> 8));
    }
    return bytes;
}

inline Samples words16(const Bytes& bytes)
{
    Samples words(bytes.size() / 2);
    for (size_t i = 0; i < words.size(); ++i) words[i] = static_cast<uint16_t>(bytes[2 * i] | bytes[2 * i + 1] << 8);
    return words;
}

// 128 bytes for 48 pixels or part of them.
inline long v210_stride(long width) { return (width + 47) / 48 * 128; }

// The 2 x `width` samples of each line, in the order Cb Y Cr Y, out of `v210` and into it. Sample n is in word
// n / 3 at bit 10 x (n % 3).
inline Samples v210_samples(const Bytes& frame, Size size, long stride)
{
    Samples samples;
    for (long y = 0; y < size.height; ++y)
        for (long n = 0; n < size.width * 2; ++n) {
            const uint8_t* word = frame.data() + y * stride + n / 3 * 4;
            const uint32_t bits = word[0] | static_cast<uint32_t>(word[1]) << 8 | static_cast<uint32_t>(word[2]) << 16 |
                                  static_cast<uint32_t>(word[3]) << 24;
            samples.push_back(static_cast<uint16_t>(bits >> (10 * (n % 3)) & 0x3FF));
        }
    return samples;
}

inline Bytes v210_frame(const Samples& samples, Size size, long stride)
{
    Bytes frame(static_cast<size_t>(stride * size.height));
    for (long y = 0; y < size.height; ++y)
        for (long n = 0; n < size.width * 2; ++n) {
            const uint32_t bits = static_cast<uint32_t>(samples[static_cast<size_t>(y * size.width * 2 + n)])
                                  << (10 * (n % 3));
            for (int byte = 0; byte < 4; ++byte) {
                uint8_t& place = frame[static_cast<size_t>(y * stride + n / 3 * 4 + byte)];
                place = static_cast<uint8_t>(place | bits >> (8 * byte));
            }
        }
    return frame;
}

}  // namespace tintvert::test
