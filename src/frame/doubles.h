// Rows of a matrix in double precision, a pixel at a time or, in doubles_steps.inc, a register.
//
// A sum is formed in one order: red and green, blue, the offsets. A difference is the sum with a negative weight, to
// the last bit, and a power of two may be multiplied into weights and offsets, since it scales every step without
// rounding. Nothing else may be moved.
#pragma once

#include <cstdint>

namespace tintvert {

struct Weights {
    double r, g, b, offset, half = 0.0;
};

constexpr Weights scaled(const Weights& w, double power)
{
    return {w.r * power, w.g * power, w.b * power, w.offset * power, w.half * power};
}

constexpr double row(const Weights& w, double r, double g, double b)
{
    const double sum = ((r * w.r + g * w.g) + b * w.b) + w.offset;
    return w.half == 0.0 ? sum : sum + w.half;
}

// Where the channels of a pixel are in its bytes.
struct Channels {
    int r, g, b;
};

// Chroma of the pixel before the next pair or group, as the filter takes it.
struct ChromaBefore {
    double cb, cr;
};

// The 1-2-1 filter. The quarter is in the weights.
constexpr double filtered(double previous, double centre, double next) { return ((previous + centre) + centre) + next; }

}  // namespace tintvert
