// A line by the scalar code and by its kernel. Both make the same bytes.
#pragma once

#include "forms.h"

namespace ycbcr {

using tintvert::InstructionSet;

template <class Form>
void scalar_line(uint8_t* dst, const Form& src, int from, int width, const Weights& w)
{
    for (int x = from; x < width; ++x) src.pixel(dst + static_cast<long>(x) * 4, x, w);
}

template <class Form>
struct ConvertLine {
#if defined(__x86_64__)
    TNTVT_AVX2 static long avx2(uint8_t* dst, const Form& src, int width, const Weights& weights)
    {
        const width_256::VecWeights w = width_256::vec_weights(weights);
        const int sampled = src.sampled(width);
        int x = 0;
        for (; sampled - x >= Form::step_pixels; x += Form::step_pixels) src.step(dst + static_cast<long>(x) * 4, x, w);
        return x;
    }

    // Whole steps, and what has chroma of its own of the rest under masks, 32 pixels a part.
    TNTVT_AVX512 static long avx512(uint8_t* dst, const Form& src, int width, const Weights& weights)
    {
        using namespace width_512;
        constexpr int step = Form::step_pixels_512;
        const VecWeights w = vec_weights(weights);
        const int sampled = src.sampled(width);
        int x = 0;
        for (; sampled - x >= step; x += step)
            for (int part = 0; part < step; part += 32)
                store_32(dst + (static_cast<long>(x) + part) * 4, interleaved(convert(w, src.operands(x, part, 32))));
        for (int part = 0; x + part < sampled; part += 32) {
            const int rest = sampled - x - part, pixels = rest < 32 ? rest : 32;
            store_pixels(dst + (static_cast<long>(x) + part) * 4,
                         interleaved(convert(w, src.operands(x, part, pixels))), pixels);
        }
        return sampled;
    }
#endif
};

// Callers keep source and destination apart.
template <class Form>
void line(InstructionSet level, uint8_t* dst, const Form& src, int width, const Weights& w)
{
    const long made = tintvert::run_simd<ConvertLine<Form>>(level, {{dst, width * 4L}}, {}, dst, src, width, w);
    scalar_line(dst, src, static_cast<int>(made), width, w);
}

}  // namespace ycbcr
