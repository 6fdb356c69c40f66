#include "reference/rgb/rgb10.h"

#include <cstddef>
#include <vector>

namespace tintvert::reference {
namespace {

// The 32 bits of a word, lowest first.
std::vector<int> bits_of(const uint8_t* bytes, bool big_endian)
{
    std::vector<int> bits;
    for (int i = 0; i < 4; ++i)
        for (int b = 0; b < 8; ++b) bits.push_back(bytes[big_endian ? 3 - i : i] >> b & 1);
    return bits;
}

// The eight bits from `top` downward as a number.
int eight_bits(const std::vector<int>& bits, int top)
{
    int number = 0;
    for (int i = top; i > top - 8; --i) number = number * 2 + bits[static_cast<size_t>(i)];
    return number;
}

// A channel of 16 bits as its low and its high byte: bits 5 and 4 and the top eight come from the word.
std::vector<uint8_t> channel(const std::vector<int>& bits, int top, int next)
{
    const auto bit = [&](int i) { return bits[static_cast<size_t>(i)]; };
    return {static_cast<uint8_t>(bit(next) * 32 + bit(next - 1) * 16), static_cast<uint8_t>(eight_bits(bits, top))};
}

std::vector<uint8_t> joined(const std::vector<std::vector<uint8_t>>& channels)
{
    std::vector<uint8_t> all;
    for (const auto& one : channels) all.insert(all.end(), one.begin(), one.end());
    return all;
}

template <class Pixel>
void convert(uint8_t* dst, const uint8_t* src, long width, long height, bool swap, bool flip, long first_walking_up,
             Pixel pixel_of)
{
    for (long y = 0; y < height; ++y) {
        const bool up = swap ? flip : !flip;
        const long from = up ? first_walking_up - y : y;
        for (long x = 0; x < width; ++x) {
            const std::vector<uint8_t> pixel = pixel_of(bits_of(src + (from * width + x) * 4, swap));
            const long size = static_cast<long>(pixel.size());
            for (long i = 0; i < size; ++i) dst[(y * width + x) * size + i] = pixel[static_cast<size_t>(i)];
        }
    }
}

using Bits = std::vector<int>;

}  // namespace

void rgb10_rgba64(uint8_t* dst, long, const uint8_t* src, long, long width, long height, unsigned char swapBytes,
                  unsigned char flipLines)
{
    convert(dst, src, width, height, swapBytes != 0, flipLines != 0, height, [](const Bits& bits) {
        return joined({channel(bits, 19, 9), channel(bits, 21, 11), channel(bits, 31, 21), {0xFF, 0xFF}});
    });
}

void rgb10_rgb48(uint8_t* dst, long, const uint8_t* src, long, long width, long height, unsigned char swapBytes,
                 unsigned char flipLines)
{
    convert(dst, src, width, height, swapBytes != 0, flipLines != 0, height, [](const Bits& bits) {
        return joined({channel(bits, 31, 21), channel(bits, 21, 11), channel(bits, 19, 9)});
    });
}

void rgb10_rgba32(uint8_t* dst, long, const uint8_t* src, long, long width, long height, unsigned char swapBytes,
                  unsigned char flipLines)
{
    convert(dst, src, width, height, swapBytes != 0, flipLines != 0, height - 1, [](const Bits& bits) {
        const auto top = [&](int bit) { return static_cast<uint8_t>(eight_bits(bits, bit)); };
        return std::vector<uint8_t>{top(11), top(21), top(31), 255};
    });
}

}  // namespace tintvert::reference
