// Simd steps that are the plain pixels themselves, compiled for a wider processor: for forms whose pixels the
// compiler puts side by side. No pixel depends on another one where wide steps run.
#pragma once

#include <cstdint>

#include "frame/simd.h"

#if defined(__clang__)
#define TNTVT_PIXELS_APART _Pragma("clang loop vectorize(assume_safety)")
#else
#define TNTVT_PIXELS_APART _Pragma("GCC ivdep")
#endif

namespace tintvert {

template <class Form>
struct Autovectorized {
    TNTVT_AVX2 static long avx2(uint8_t* dst, const uint8_t* src, long pixels, bool)
    {
        TNTVT_PIXELS_APART
        for (long x = 0; x < pixels; ++x) Form::pixel(dst + x * Form::dst_bytes, src + x * Form::src_bytes);
        return pixels;
    }

    static long avx512(uint8_t* dst, const uint8_t* src, long pixels, bool down)
    {
        return avx2(dst, src, pixels, down);
    }
};

}  // namespace tintvert
