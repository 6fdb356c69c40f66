// A line in the scalar version and in each wide one. All make the same bytes.
#pragma once

#include "forms.h"

namespace ycbcr {

enum class InstructionSet { scalar, avx2, avx512 };

inline bool machine_has(InstructionSet level)
{
    switch (level) {
        case InstructionSet::scalar:
            return true;
        case InstructionSet::avx2:
            return __builtin_cpu_supports("avx2");
        case InstructionSet::avx512:
            return __builtin_cpu_supports("avx512f") && __builtin_cpu_supports("avx512bw") &&
                   __builtin_cpu_supports("avx512vl") && __builtin_cpu_supports("avx512dq") &&
                   __builtin_cpu_supports("avx512vbmi");
    }
    return false;
}

inline InstructionSet best_level()
{
    return machine_has(InstructionSet::avx512) ? InstructionSet::avx512
           : machine_has(InstructionSet::avx2) ? InstructionSet::avx2
                                               : InstructionSet::scalar;
}

template <class Form>
void line_plain(uint8_t* dst, const Form& src, int from, int width, const Weights& w)
{
    for (int x = from; x < width; ++x) src.pixel(dst + static_cast<long>(x) * 4, x, w);
}

// Whole steps, and the rest in the scalar version.
template <class Form>
YCBCR_AVX2 void line_avx2(uint8_t* dst, const Form& src, int width, const Weights& w)
{
    const SimdWeights wide = widen(w);
    const int sampled = src.sampled(width);
    int x = 0;
    for (; sampled - x >= Form::step_pixels; x += Form::step_pixels) src.step(dst + static_cast<long>(x) * 4, x, wide);
    line_plain(dst, src, x, width, w);
}

// Whole steps, and what has chroma of its own of the rest behind masks, 32 pixels a part.
template <class Form>
YCBCR_AVX512 void line_avx512(uint8_t* dst, const Form& src, int width, const Weights& w)
{
    constexpr int step = Form::step_pixels_512;
    const Weights512 wide = widen_512(w);
    const int sampled = src.sampled(width);
    int x = 0;
    for (; sampled - x >= step; x += step)
        for (int part = 0; part < step; part += 32)
            store_32(dst + (static_cast<long>(x) + part) * 4, convert(wide, src.operands(x, part, 32)));
    for (int part = 0; x + part < sampled; part += 32) {
        const int rest = sampled - x - part, pixels = rest < 32 ? rest : 32;
        store_pixels(dst + (static_cast<long>(x) + part) * 4, convert(wide, src.operands(x, part, pixels)), pixels);
    }
    line_plain(dst, src, sampled, width, w);
}

template <class Form>
void line(InstructionSet level, uint8_t* dst, const Form& src, int width, const Weights& w)
{
    switch (level) {
        case InstructionSet::scalar:
            return line_plain(dst, src, 0, width, w);
        case InstructionSet::avx2:
            return line_avx2(dst, src, width, w);
        case InstructionSet::avx512:
            return line_avx512(dst, src, width, w);
    }
}

}  // namespace ycbcr
