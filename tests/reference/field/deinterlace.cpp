#include "reference/field/field.h"
#include "reference/field/field_address.h"

namespace tintvert::reference {
namespace {

constexpr int32_t weights[3] = {1, 6, 3};

int32_t wrapped_square(int32_t value)
{
    return static_cast<int32_t>(static_cast<uint32_t>(int64_t{value} * value & 0xFFFFFFFF));
}

}  // namespace

int32_t comb_measure(const uint8_t* above, const uint8_t* below, const uint8_t* here, int32_t k)
{
    int32_t measure = 0;
    for (int n = 0; n < 3; ++n) {
        const int32_t a = above[n], b = below[n], c = here[n];
        if (k == 0)
            measure += weights[n] * (a - c) * (b - c);
        else
            measure += ((b - c) * (weights[n] * k) * (a - c)) / ((a - b) * (a - b) + k);
    }
    return measure;
}

int deinterlace_rgb(uint8_t* dst, uint8_t* src, uint32_t width, uint32_t height, uint32_t stride, int32_t threshold,
                    int32_t softness, int64_t, int32_t mode)
{
    const int32_t t = wrapped_square(threshold);
    int32_t k = wrapped_square(softness);
    if (k > 5500) k = 5500;
    const auto src_line = [&](uint64_t y) { return address_of(src) + y * stride; };
    const auto dst_line = [&](uint64_t y) { return address_of(dst) + y * stride; };

    for (uint64_t y = 0; y < height; ++y) {
        const bool odd = y % 2 == 1;
        if ((mode == 16 && !odd) || (mode == 17 && odd)) {
            copy(dst_line(y), src_line(y), stride);
            continue;
        }
        uint64_t above = y >= 2 ? y - 1 : y;
        const uint64_t below = y + 1 < height ? y + 1 : above;
        if (above == y) above = below;

        for (uint64_t x = 0; x < width; ++x) {
            uint8_t a[3], b[3], c[8];
            for (uint64_t i = 0; i < 3; ++i) a[i] = get(src_line(above) + 8 * x + i);
            for (uint64_t i = 0; i < 3; ++i) b[i] = get(src_line(below) + 8 * x + i);
            for (uint64_t i = 0; i < 8; ++i) c[i] = get(src_line(y) + 8 * x + i);
            const bool combed = k >= 0 && comb_measure(a, b, c, k) > t;
            if (combed && (mode == 2 || odd)) {
                for (int i = 0; i < 3; ++i)
                    c[i] = static_cast<uint8_t>(mode == 2 ? (a[i] + b[i] + 2 * c[i]) >> 2 : (a[i] + b[i]) >> 1);
                for (int i = 3; i < 8; ++i) c[i] = 0;
            }
            for (uint64_t i = 0; i < 8; ++i) put(dst_line(y) + 8 * x + i, c[i]);
        }
    }
    return 0;
}

}  // namespace tintvert::reference
