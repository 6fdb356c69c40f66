// The matrix in 16-bit fixed point.
//
// A luma code of ten bits enters as Y << 6 and a chroma code as (C - 512) << 6. Luma takes the upper half of
// an unsigned product (pmulhuw), chroma the rounded upper bits of a signed one (pmulhrsw), and both come out
// in 1/64 of an 8-bit code:
//
//     luma    Y << 6           x  255/876 x 2^16           -> 64 x 8-bit code, 64 above black
//     chroma  (C - 512) << 6   x  weight x 255/896 x 2^15
//
// Each of the up to three products errs by less than a unit of 1/64 and by its weight's rounding, together
// less than 0.06 of a code.
#pragma once

#include <cstdint>

namespace ycbcr {

struct Weights {
    int luma, red_cr, green_cb, green_cr, blue_cb;
};

constexpr Weights weights(double kr, double kb)
{
    const double kg = 1.0 - kr - kb;
    const auto rounded = [](double value) { return static_cast<int>(value + 0.5); };
    const auto chroma = [&](double weight) { return rounded(weight * 255.0 / 896.0 * 32768.0); };
    return {rounded(255.0 / 876.0 * 65536.0), chroma(2.0 * (1.0 - kr)), chroma(2.0 * (1.0 - kb) * kb / kg),
            chroma(2.0 * (1.0 - kr) * kr / kg), chroma(2.0 * (1.0 - kb))};
}

inline constexpr Weights bt601 = weights(0.299, 0.114);
inline constexpr Weights bt709 = weights(0.2126, 0.0722);
inline constexpr Weights bt2020 = weights(0.2627, 0.0593);

constexpr const Weights& weights_of(unsigned matrix) { return matrix == 601 ? bt601 : matrix == 2020 ? bt2020 : bt709; }

// Samples of either depth as operands.
constexpr int luma_8(int y) { return y * 256; }
constexpr int chroma_8(int c) { return (c - 128) * 256; }
constexpr int luma_10(int y) { return y * 64; }
constexpr int chroma_10(int c) { return (c - 512) * 64; }

// Black, less half a unit for the truncated luma product, less half a code so that the last shift rounds.
inline constexpr int luma_offset = static_cast<int>(64.0 * 255.0 / 876.0 * 64.0 - 0.5) - 32;

constexpr int product(int operand, int weight) { return (operand * weight + 0x4000) >> 15; }

constexpr uint8_t clipped(int sum)
{
    const int code = sum >> 6;
    return static_cast<uint8_t>(code < 0 ? 0 : code > 255 ? 255 : code);
}

inline void put(uint8_t* dst, const Weights& w, int luma, int cb, int cr)
{
    const int grey = (luma * w.luma >> 16) - luma_offset;
    dst[0] = clipped(grey + product(cb, w.blue_cb));
    dst[1] = clipped(grey - (product(cb, w.green_cb) + product(cr, w.green_cr)));
    dst[2] = clipped(grey + product(cr, w.red_cr));
    dst[3] = 255;
}

}  // namespace ycbcr
