#include <cstddef>

#include "reference/decode/v210_decoders.h"

namespace tintvert::reference {

void entry_by_tables(bool ten_bits, int bytes_a_pixel, uint8_t* dst, int64_t dstStride, const uint8_t* src,
                     int64_t srcStride, int64_t width, int64_t height, int64_t scale)
{
    if (dstStride < 1) dstStride = width * bytes_a_pixel;
    if (srcStride < 1) {
        const int64_t begun = (width + 47) / 48;  // of 48 pixels each
        srcStride = ten_bits ? begun * 128 : width * 2;
    }
    const auto decode = ten_bits ? v210_rgb24 : yuv422_rgb24;
    decode(dst, dstStride, src, srcStride, width, height, scale);
}

std::array<uint8_t, 4> jpeg_pixel(int y, int cb, int cr)
{
    const double luma = static_cast<float>(y);
    const double from_cb = static_cast<float>(cb) + -128.0f;
    const double from_cr = static_cast<float>(cr) + -128.0f;
    const double blue = from_cb * 1.772 + luma;
    const double green = from_cr * -0.71414 + (from_cb * -0.34414 + luma);
    const double red = from_cr * 1.402 + luma;
    const auto low_eight = [](double value) { return static_cast<uint8_t>((static_cast<int>(value) + 1024) % 256); };
    return {low_eight(blue), low_eight(green), low_eight(red), 0};
}

void yuvijg_rgb32(uint8_t* dst, int64_t dstStride, const uint8_t* src, int64_t srcStride, int64_t width, int64_t height)
{
    for (int64_t line = 0; line < height; ++line) {
        for (int64_t pixel = 0; pixel < width; ++pixel) {
            const uint8_t* const in = src + line * srcStride + 3 * pixel;
            const std::array<uint8_t, 4> bytes = jpeg_pixel(in[0], in[1], in[2]);
            for (int64_t n = 0; n < 4; ++n) dst[line * dstStride + 4 * pixel + n] = bytes[static_cast<size_t>(n)];
        }
    }
}

}  // namespace tintvert::reference
