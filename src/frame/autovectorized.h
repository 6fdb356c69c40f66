// A kernel that is the scalar pixels themselves, compiled for AVX2: for forms whose pixels the compiler can put side by
// side. No pixel depends on another one where kernels run.
#pragma once

#include <cstdint>

#include "simd/simd.h"

#if defined(__clang__)
#define TNTVT_PIXELS_APART _Pragma("clang loop vectorize(assume_safety)")
#else
#define TNTVT_PIXELS_APART _Pragma("GCC ivdep")
#endif

namespace tintvert {

template <class Form>
struct Autovectorized {
    static constexpr bool in_place = Form::src_bytes == Form::dst_bytes;
#if defined(__x86_64__)
    TNTVT_AVX2 static long avx2(uint8_t* dst, const uint8_t* src, long pixels, bool)
    {
        TNTVT_PIXELS_APART
        for (long x = 0; x < pixels; ++x) Form::pixel(dst + x * Form::dst_bytes, src + x * Form::src_bytes);
        return pixels;
    }
#endif
};

}  // namespace tintvert
