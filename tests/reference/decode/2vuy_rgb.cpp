#include "reference/decode/2vuy_rgb.h"

#include <cmath>
#include <cstring>

namespace tintvert::reference {
namespace {

int term(int distance, double factor)
{
    const double scaled = distance * factor;
    return static_cast<int>(std::trunc(scaled * 0.0625));
}

uint8_t component_of(int sum)
{
    if (sum < 0) return 0;
    const int whole = sum / 16;
    return static_cast<uint8_t>(whole > 255 ? 255 : whole);
}

// Pixel pairs are counted up to this many pixels of the source line.
int64_t limit_of(int64_t width, int64_t scale) { return scale == 4 ? width >> 1 : width; }

}  // namespace

int luma_term(int y) { return term(y - 16, 298.082); }
int green_term_of_cb(int cb) { return term(cb - 128, -100.291); }
int blue_term(int cb) { return term(cb - 128, 516.411); }
int red_term(int cr) { return term(cr - 128, 408.583); }
int green_term_of_cr(int cr) { return term(cr - 128, -208.12); }

Sums sums_of(int cb, int y, int cr)
{
    const int luma = luma_term(y);
    return {luma + blue_term(cb), luma + green_term_of_cb(cb) + green_term_of_cr(cr), luma + red_term(cr)};
}

Bgr bgr_of(int cb, int y, int cr)
{
    const Sums sums = sums_of(cb, y, cr);
    return {component_of(sums.blue), component_of(sums.green), component_of(sums.red)};
}

uint16_t rgb16_word_of(int cb, int y, int cr)
{
    const Bgr pixel = bgr_of(cb, y, cr);
    return static_cast<uint16_t>((pixel.red / 8) * 1024 + (pixel.green / 8) * 32 + pixel.blue / 8);
}

void yuv422_rgb24(uint8_t* dst, int64_t dstStride, const uint8_t* src, int64_t srcStride, int64_t width, int64_t height,
                  int64_t scale)
{
    const bool four_bytes = width / scale * 4 <= dstStride;
    const int64_t rows = height / scale;
    for (int64_t row = 0; row < rows; ++row) {
        int64_t from = row * srcStride * scale;
        int64_t to = row * dstStride;
        for (int64_t i = 0; i < limit_of(width, scale); i += 2) {
            const int cb = src[from], y0 = src[from + 1], cr = src[from + 2], y1 = src[from + 3];
            const int pixels = scale == 2 || scale == 4 ? 1 : 2;
            for (int n = 0; n < pixels; ++n) {
                const Bgr pixel = bgr_of(cb, n == 0 ? y0 : y1, cr);
                dst[to++] = pixel.blue;
                dst[to++] = pixel.green;
                dst[to++] = pixel.red;
                if (four_bytes) dst[to++] = 255;
            }
            from += scale == 4 ? 8 : 4;
        }
    }
}

void yuv422_rgb16(uint8_t* dst, int64_t dstStride, const uint8_t* src, int64_t srcStride, int64_t width, int64_t height,
                  int64_t scale)
{
    if (scale == 0) scale = 1;
    const int64_t rows = height / scale;
    for (int64_t row = 0; row < rows; ++row) {
        const int64_t other = row % 2 == 0 ? row + 1 : row - 1;
        int64_t from = other * srcStride * scale;
        int64_t to = row * dstStride;
        for (int64_t i = 0; i < limit_of(width, scale); i += 2) {
            const uint16_t word = rgb16_word_of(src[from], src[from + 1], src[from + 2]);
            const int pixels = scale == 2 || scale == 4 ? 1 : 2;
            for (int n = 0; n < pixels; ++n) {
                std::memcpy(dst + to, &word, 2);
                to += 2;
            }
            from += scale == 4 ? 8 : 4;
        }
    }
}

}  // namespace tintvert::reference
