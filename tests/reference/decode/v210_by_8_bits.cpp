#include "reference/decode/v210_decoders.h"

namespace tintvert::reference {
namespace {

// A line's pixel pairs. The pair is at sample 4 * n of its line; one in a group is across two words.
struct Pairs {
    const uint8_t* at;
    int phase = 0;

    int sample(int n) const { return top_eight_of(at, phase + n); }

    void next()
    {
        at += phase == 2 ? 8 : 4;
        phase = (phase + 1) % 3;
    }
};

}  // namespace

// Bits 2 to 9, 12 to 19 and 22 to 29 of a word each are in two neighbouring bytes.
int top_eight_of(const uint8_t* src, int64_t n)
{
    const int64_t field = n % 3;
    const uint8_t* const low = src + 4 * (n / 3) + field;
    return ((low[0] + 256 * low[1]) >> (2 + 2 * field)) % 256;
}

void v210_rgb24(uint8_t* dst, int64_t dstStride, const uint8_t* src, int64_t srcStride, int64_t width, int64_t height,
                int64_t scale)
{
    const int64_t reduced = width / scale;
    const int64_t rows = height / scale;
    const bool four_bytes = reduced * 4 <= dstStride;
    for (int64_t row = 0; row < rows; ++row) {
        uint8_t* out = dst + row * dstStride;
        const auto put = [&](Bgr pixel) {
            *out++ = pixel.blue;
            *out++ = pixel.green;
            *out++ = pixel.red;
            if (four_bytes) *out++ = 255;
        };
        Pairs pairs{src + row * (srcStride * scale)};
        for (int64_t i = 0; i < width; i += 2) {
            const int cb = pairs.sample(0), y0 = pairs.sample(1), cr = pairs.sample(2);
            const int y1 = scale == 2 || scale == 4 ? 0 : pairs.sample(3);
            put(bgr_of(cb, y0, cr));
            pairs.next();
            if (scale == 4) {
                i += 2;
                pairs.next();
            } else if (scale != 2) {
                put(bgr_of(cb, y1, cr));
            }
        }
    }
}

void v210_rgb16(uint8_t* dst, int64_t dstStride, const uint8_t* src, int64_t srcStride, int64_t width, int64_t height,
                int64_t scale)
{
    if (scale == 0) scale = 1;
    for (int64_t row = 0; row < height / scale; ++row) {
        uint8_t* out = dst + row * dstStride;
        Pairs pairs{src + row * (srcStride * scale)};
        for (int64_t i = 0; i < width; i += 2) {
            const int word = rgb16_word_of(pairs.sample(0), pairs.sample(1), pairs.sample(2));
            for (int n = 0; n < (scale == 2 || scale == 4 ? 1 : 2); ++n) {
                *out++ = static_cast<uint8_t>(word % 256);
                *out++ = static_cast<uint8_t>(word / 256);
            }
            pairs.next();
            if (scale == 4) {
                i += 2;
                pairs.next();
            }
        }
    }
}

}  // namespace tintvert::reference
