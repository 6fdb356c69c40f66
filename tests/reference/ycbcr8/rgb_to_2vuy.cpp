#include "reference/ycbcr8/rgb_to_2vuy.h"

#include <cmath>

namespace tintvert::reference {
namespace {

uint8_t low_byte_of_truncated(double value)
{
    const int64_t whole = static_cast<int64_t>(std::trunc(value));
    return static_cast<uint8_t>(whole & 0xFF);
}

}  // namespace

Ycbcr ycbcr_of(Matrix matrix, double r, double g, double b)
{
    double y, cb, cr;
    if (matrix == Matrix::video_601) {
        y = g * 129.057;
        y = y + r * 65.738;
        y = y + b * 25.064;
        y = y * 0.00390625;
        y = y + 16.0;

        cb = r * -37.945;
        cb = cb - g * 74.494;
        cb = cb + b * 112.439;
        cb = cb * 0.00390625;
        cb = cb + 128.0;

        cr = r * 112.439;
        cr = cr - g * 94.154;
        cr = cr - b * 18.285;
        cr = cr * 0.00390625;
        cr = cr + 128.0;
    } else {
        y = g * 732.365;
        y = y + r * 217.702;
        y = y + b * 73.716;
        y = y * 0.0009765625;
        y = y + 0.5;

        cb = r * -117.35;
        cb = cb - g * 394.65;
        cb = cb + b * 512.0;
        cb = cb * 0.0009765625;
        cb = cb + 128.0;
        cb = cb + 0.5;

        cr = r * 512.0;
        cr = cr - g * 465.101;
        cr = cr - b * 47.002;
        cr = cr * 0.0009765625;
        cr = cr + 128.0;
        cr = cr + 0.5;
    }
    return {y, cb, cr};
}

void rgb_run_to_2vuy(const uint8_t* src, uint8_t* dst, int64_t pixels, Bytes bytes, Matrix matrix)
{
    const int red = bytes == Bytes::xrgb ? 1 : 2;
    const int green = bytes == Bytes::xrgb ? 2 : 1;
    const int blue = bytes == Bytes::xrgb ? 3 : 0;

    double previous_cb = 128.0;
    double previous_cr = 128.0;
    for (int64_t i = 0; i < pixels; i += 2) {
        const uint8_t* const p = src + 4 * i;
        const uint8_t* const q = src + 4 * (i + 1);
        const Ycbcr even = ycbcr_of(matrix, p[red], p[green], p[blue]);
        const Ycbcr odd = ycbcr_of(matrix, q[red], q[green], q[blue]);

        double cb = previous_cb + even.cb;
        cb = cb + even.cb;
        cb = cb + odd.cb;
        cb = cb * 0.25;
        double cr = previous_cr + even.cr;
        cr = cr + even.cr;
        cr = cr + odd.cr;
        cr = cr * 0.25;

        uint8_t* const group = dst + 2 * i;
        group[0] = low_byte_of_truncated(cb);
        group[1] = low_byte_of_truncated(even.y);
        group[2] = low_byte_of_truncated(cr);
        group[3] = low_byte_of_truncated(odd.y);
        previous_cb = odd.cb;
        previous_cr = odd.cr;
    }
}

void rgb32_frame_to_2vuy(uint8_t* dst, const uint8_t* src, int64_t width, int64_t height)
{
    const uint64_t product = static_cast<uint64_t>(width) * static_cast<uint64_t>(height);
    int64_t pixels = static_cast<int64_t>(product & 0xFFFFFFFFu);
    if (pixels >= 0x80000000) pixels -= 0x100000000;
    rgb_run_to_2vuy(src, dst, pixels, Bytes::bgrx, Matrix::video_601);
}

}  // namespace tintvert::reference
