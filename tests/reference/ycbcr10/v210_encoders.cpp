#include "reference/ycbcr10/v210_encoders.h"

#include <cmath>
#include <cstddef>

namespace tintvert::reference {
namespace {

struct Weights {
    double y_r, y_g, y_b, cb_r, cb_g, cr_g, cr_b, full;
};

Weights weights_of(Encoding encoding)
{
    switch (encoding) {
        case Encoding::video_601:
            return {65.738, 129.057, 25.064, 37.945, 74.494, 94.154, 18.285, 112.439};
        case Encoding::narrow_601:
            return {262.952, 516.228, 100.256, 151.78, 297.976, 376.616, 73.14, 449.756};
        default:
            return {217.6, 732.57, 72.83, 117.248, 394.752, 465.101, 46.899, 512.0};
    }
}

// Samples are joined with no mask, so that a large one reaches into its neighbour.
void put_words(uint8_t* dst, const uint32_t (&samples)[12])
{
    for (size_t word = 0; word < 4; ++word) {
        uint32_t value = samples[3 * word];
        value |= samples[3 * word + 1] << 10;
        value |= samples[3 * word + 2] << 20;
        for (int n = 0; n < 4; ++n) *dst++ = static_cast<uint8_t>(value >> (8 * n));
    }
}

// Where a pixel's red, green and blue are.
struct Bytes {
    int64_t step, r, g, b;
};

class Encoder {
public:
    Encoder(Encoding encoding, Bytes bytes) : encoding_(encoding), bytes_(bytes) {}

    void group(const uint8_t* src, uint8_t* dst)
    {
        double cb[7] = {carried_cb_}, cr[7] = {carried_cr_};  // from P-1 on
        uint32_t samples[12];
        for (size_t pixel = 0; pixel < 6; ++pixel) {
            const Ycc ycc = ycc_of(encoding_, src[bytes_.r], src[bytes_.g], src[bytes_.b]);
            samples[2 * pixel + 1] = static_cast<uint32_t>(ycc.y);
            cb[pixel + 1] = ycc.cb;
            cr[pixel + 1] = ycc.cr;
            src += bytes_.step;
        }
        for (size_t centre = 0; centre < 6; centre += 2) {
            samples[2 * centre] = filtered(cb + centre);
            samples[2 * centre + 2] = filtered(cr + centre);
        }
        carried_cb_ = cb[6];
        carried_cr_ = cr[6];
        put_words(dst, samples);
    }

private:
    uint32_t filtered(const double* previous) const
    {
        double sum = previous[0] + previous[1];
        sum += previous[1];
        sum += previous[2];
        return static_cast<uint32_t>(std::trunc(encoding_ == Encoding::video_601 ? sum + 0.5 : sum * 0.25));
    }

    Encoding encoding_;
    Bytes bytes_;
    double carried_cb_ = 512.0, carried_cr_ = 512.0;
};

void line_of(Encoder encoder, int64_t step, const uint8_t* src, uint8_t* dst, int width)
{
    for (int64_t counter = 0; counter < width; counter += 6)
        encoder.group(src + counter * step, dst + counter / 6 * 16);
}

}  // namespace

Ycc ycc_of(Encoding encoding, int red, int green, int blue)
{
    const Weights w = weights_of(encoding);
    const double r = red, g = green, b = blue;
    double y = g * w.y_g + r * w.y_r;
    y = b * w.y_b + y;
    double cb = r * -w.cb_r - g * w.cb_g;
    cb = b * w.full + cb;
    double cr = r * w.full - g * w.cr_g;
    cr = cr - b * w.cr_b;
    if (encoding == Encoding::video_601)
        return {static_cast<int>(std::trunc((y / 256 + 16) * 4)), cb / 256 + 128, cr / 256 + 128};
    return {static_cast<int>(std::trunc(y / 1024 + 64)), cb / 1024 + 512, cr / 1024 + 512};
}

void argb_line_to_v210(const uint8_t* src, uint8_t* dst, int width, int hasAlpha)
{
    const Bytes bytes = hasAlpha != 0 ? Bytes{4, 1, 2, 3} : Bytes{3, 0, 1, 2};
    line_of(Encoder(Encoding::video_601, bytes), bytes.step, src, dst, width);
}

void bgra_line_to_v210(const uint8_t* src, uint8_t* dst, int width)
{
    line_of(Encoder(Encoding::narrow_601, {4, 2, 1, 0}), 4, src, dst, width);
}

void rgb32_to_v210(uint8_t* dst, int64_t dstStride, const uint8_t* src, int64_t srcStride, int64_t width,
                   int64_t height)
{
    if (dstStride == 0) dstStride = (width + 47) / 48 * 48 * 8 / 3;
    if (srcStride == 0) srcStride = width * 4;
    const auto total = static_cast<int32_t>(static_cast<uint32_t>(width * height));
    Encoder encoder(width >= 962 ? Encoding::narrow_709 : Encoding::narrow_601, {4, 2, 1, 0});
    const uint8_t* from = src;
    uint8_t* to = dst;
    for (int64_t counter = 0; counter < total; counter += 6) {
        if (counter % width < 6) {
            from = src + counter / width * srcStride;
            to = dst + counter / width * dstStride;
        }
        encoder.group(from, to);
        from += 24;
        to += 16;
    }
}

}  // namespace tintvert::reference
