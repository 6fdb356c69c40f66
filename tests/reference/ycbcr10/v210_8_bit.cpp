#include "reference/ycbcr10/v210_encoders.h"

namespace tintvert::reference {
namespace {

void two_bytes_each(const uint8_t* src, uint8_t* dst, int width, unsigned int inverted)
{
    for (int64_t pixel = 0; pixel < width; ++pixel) {
        const unsigned int luma = src[2 * pixel], c = src[2 * pixel + 1] ^ inverted;
        dst[2 * pixel + 1] = static_cast<uint8_t>(luma * 219 / 255 + 16);
        dst[2 * pixel] = static_cast<uint8_t>(c == 0 ? 16 : (c * 224 - 224) / 254 + 16);
    }
}

// Sample n of a line of `v210` is at bit 10 * (n % 3) of word n / 3 and has byte n of the line of `2vuy`.
constexpr int64_t samples = 12;

}  // namespace

void yuv2_bytes(const uint8_t* src, uint8_t* dst, int width) { two_bytes_each(src, dst, width, 128); }
void yuvs_bytes(const uint8_t* src, uint8_t* dst, int width) { two_bytes_each(src, dst, width, 0); }

void bytes_to_v210(uint8_t* dst, const uint8_t* src, uint32_t width, uint32_t height, uint32_t dstStride)
{
    if (dstStride == 0) dstStride = (width * 16 / 6 + 63) & 0x7FFFFFC0;
    if (width == 0) return;
    for (int64_t line = int64_t{height} - 1; line >= 0; --line) {
        const uint8_t* from = src + line * int64_t{width * 2};
        uint8_t* to = dst + line * int64_t{dstStride};
        for (uint64_t pixel = 0; pixel < width; pixel += 6) {
            uint8_t group[samples];
            for (uint8_t& byte : group) byte = *from++;
            for (int word = 0; word < 4; ++word) {
                uint32_t value = 0;
                for (int field = 2; field >= 0; --field) value = value * 1024 + group[3 * word + field] * 4u;
                for (int n = 0; n < 4; ++n) *to++ = static_cast<uint8_t>(value >> (8 * n));
            }
        }
    }
}

void v210_to_bytes(uint8_t* dst, const uint8_t* src, uint32_t width, uint32_t height, uint32_t srcStride)
{
    if (srcStride == 0) srcStride = width * 16 / 6;
    if (height == 0 || width == 0) return;
    uint32_t from_line = 0, to_line = 0;
    for (uint32_t line = 0; line != height; ++line) {
        const uint8_t* from = src + from_line;
        uint8_t* to = dst + to_line;
        for (uint64_t words = 0; words == 0 || words < width; words += 3) {
            uint8_t group[samples];
            for (int n = 0; n < samples; ++n) {
                const uint8_t* const low = from + 4 * (n / 3) + n % 3;
                group[n] = static_cast<uint8_t>((low[0] + 256 * low[1]) >> (2 + 2 * (n % 3)));
            }
            for (const uint8_t byte : group) *to++ = byte;
            from += 16;
        }
        from_line += srcStride;
        to_line += width * 2;
    }
}

}  // namespace tintvert::reference
