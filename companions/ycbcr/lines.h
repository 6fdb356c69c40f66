// A line in the plain form and in each wide one. All make the same bytes.
#pragma once

#include "forms.h"

namespace ycbcr {

enum class Tier { plain, avx2, vbmi };

inline bool machine_has(Tier tier)
{
    switch (tier) {
        case Tier::plain:
            return true;
        case Tier::avx2:
            return __builtin_cpu_supports("avx2");
        case Tier::vbmi:
            return __builtin_cpu_supports("avx512f") && __builtin_cpu_supports("avx512bw") &&
                   __builtin_cpu_supports("avx512vl") && __builtin_cpu_supports("avx512dq") &&
                   __builtin_cpu_supports("avx512vbmi");
    }
    return false;
}

inline Tier best_tier()
{
    return machine_has(Tier::vbmi) ? Tier::vbmi : machine_has(Tier::avx2) ? Tier::avx2 : Tier::plain;
}

template <class Form>
void line_plain(uint8_t* dst, const Form& src, int from, int width, const Weights& w)
{
    for (int x = from; x < width; ++x) src.pixel(dst + static_cast<long>(x) * 4, x, w);
}

// Whole steps, and the rest in the plain form.
template <class Form>
YCBCR_AVX2 void line_avx2(uint8_t* dst, const Form& src, int width, const Weights& w)
{
    const WideWeights wide = widen(w);
    const int sampled = src.sampled(width);
    int x = 0;
    for (; sampled - x >= Form::step_pixels; x += Form::step_pixels) src.step(dst + static_cast<long>(x) * 4, x, wide);
    line_plain(dst, src, x, width, w);
}

// Whole steps, and what has chroma of its own of the rest behind masks, 32 pixels a part.
template <class Form>
YCBCR_VBMI void line_vbmi(uint8_t* dst, const Form& src, int width, const Weights& w)
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
void line(Tier tier, uint8_t* dst, const Form& src, int width, const Weights& w)
{
    switch (tier) {
        case Tier::plain:
            return line_plain(dst, src, 0, width, w);
        case Tier::avx2:
            return line_avx2(dst, src, width, w);
        case Tier::vbmi:
            return line_vbmi(dst, src, width, w);
    }
}

}  // namespace ycbcr
