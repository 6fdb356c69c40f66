#include <cmath>

#include "reference/decode/v210_decoders.h"

namespace tintvert::reference {
namespace {

int term(int distance, double factor)
{
    const double scaled = distance * factor;
    return static_cast<int>(std::trunc(scaled * 0.015625));
}

uint8_t component_of(int sum)
{
    const double whole = std::floor(sum / 64.0);
    return static_cast<uint8_t>(whole < 0 ? 0 : whole > 255 ? 255 : whole);
}

int sample_of(const uint8_t* group, int n)
{
    const uint8_t* const word = group + 4 * (n / 3);
    const int64_t value = word[0] + (word[1] << 8) + (word[2] << 16) + (int64_t{word[3]} << 24);
    return static_cast<int>((value >> (10 * (n % 3))) % 1024);
}

}  // namespace

int luma_term_10(int y) { return term(y - 64, 1192.328); }
int green_term_of_cb_10(int cb) { return term(cb - 512, -401.164); }
int blue_term_10(int cb) { return term(cb - 512, 2065.644); }
int red_term_10(int cr) { return term(cr - 512, 1634.332); }
int green_term_of_cr_10(int cr) { return term(cr - 512, -832.48); }

Sums sums_of_10(int cb, int y, int cr)
{
    const int luma = luma_term_10(y);
    return {luma + blue_term_10(cb), luma + green_term_of_cb_10(cb) + green_term_of_cr_10(cr), luma + red_term_10(cr)};
}

Bgr bgr_of_10(int cb, int y, int cr)
{
    const Sums sums = sums_of_10(cb, y, cr);
    return {component_of(sums.blue), component_of(sums.green), component_of(sums.red)};
}

// Cb, Y, Cr, Y and so on: the pair p of a group has samples 4p to 4p + 3. A group is read whole before its six
// pixels are written.
void v210_to_rgb(const uint8_t* src, uint8_t* dst, int64_t width, int64_t height, int64_t dstStride, bool bgra)
{
    const auto total = static_cast<int32_t>(static_cast<uint32_t>(width * height));
    uint8_t* out = dst;
    for (int64_t counter = 0; counter < total; counter += 6) {
        if (counter % width == 0) out = dst + static_cast<int32_t>(static_cast<uint32_t>(counter / width * dstStride));
        int samples[12];
        for (int n = 0; n < 12; ++n) samples[n] = sample_of(src, n);
        src += 16;
        for (int pixel = 0; pixel < 6; ++pixel) {
            const int* const pair = samples + pixel / 2 * 4;
            const Bgr bgr = bgr_of_10(pair[0], pair[pixel % 2 == 0 ? 1 : 3], pair[2]);
            const uint8_t as_bgra[4] = {bgr.blue, bgr.green, bgr.red, 255};
            for (int n = 0; n < 4; ++n) *out++ = as_bgra[bgra ? n : 3 - n];
        }
    }
}

}  // namespace tintvert::reference
