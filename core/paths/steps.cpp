#include "paths/steps.h"

namespace tintvert::core::paths {
namespace {

using enum Matrix;

constexpr std::string_view filtered = "averaged over neighbouring pixels", dropped = "dropped",
                           averaged = "averaged over two lines";

constexpr StepRule all[] = {
    // RGB and YCbCr
    {.routine = "tntvt_rgb32_2vuy", .matrix = bt601, .chroma_by = filtered},
    {.routine = "argb_to_2vuy", .from = "abgr32", .matrix = bt601, .chroma_by = filtered},
    {.routine = "tntvt_yuv422_8_rgb32", .matrix = by_size},
    {.routine = "tntvt_yuv422_10_rgb32", .matrix = by_size},
    {.routine = "tntvt_i420_rgb32", .matrix = by_size},
    {.routine = "tntvt_yv12_rgb32", .matrix = by_size},
    {.routine = "tntvt_yuv422_rgb24", .matrix = bt601},
    {.routine = "tntvt_v210_rgb24", .matrix = bt601},
    {.routine = "tntvt_yuvijg_rgb32", .matrix = bt601, .wraps = true, .alpha_0 = true},
    // YCbCr
    {.routine = "tntvt_yuv2_2vuy", .from_full_range = true},
    {.routine = "tntvt_yuvs_2vuy", .from_full_range = true},
    {.routine = "tntvt_yuv444_yuv422_8", .chroma_by = dropped},
    {.routine = "tntvt_yuv422_yuv444_8"},
    {.routine = "tntvt_planar_2vuy"},
    {.routine = "tntvt_2vuy_planar"},
    {.routine = "tntvt_planarfields_2vuy"},
    {.routine = "tntvt_i420_2vuy"},
    {.routine = "tntvt_2vuy_i420", .chroma_by = dropped},
    {.routine = "tntvt_yv12_2vuy"},
    {.routine = "tntvt_2vuy_yv12", .chroma_by = dropped},
    {.routine = "YUY2toYV12", .to = "i420", .chroma_by = averaged},
    {.routine = "tntvt_alphay_to_2yuv", .to = "2vuy"},
    {.routine = "tntvt_2yuv_to_alphay", .from = "2vuy", .chroma_by = dropped},
    {.routine = "tntvt_2vuy_v210"},
    {.routine = "tntvt_v210_2vuy"},
    {.routine = "tntvt_YCbCr10Packed_to_v210"},
    // RGB of 8 bits and less
    {.routine = "tntvt_rgba32_rgb24"},
    {.routine = "tntvt_rgb32_bgr24_inplace"},
    {.routine = "tntvt_rgb24_rgb32"},
    {.routine = "tntvt_rgb24_bgr32_inplace"},
    {.routine = "tntvt_rgb24_bgr32_inplace", .from = "bgr24", .to = "rgb32"},
    {.routine = "tntvt_macbgr24_macargb32_inplace", .from = "bgr24", .to = "abgr32"},
    {.routine = "tntvt_rgba32_bgra32_inplace"},
    {.routine = "tntvt_rgba32_bgra32_inplace", .from = "bgra32", .to = "rgb32"},
    {.routine = "tntvt_rgba32_abgr32_inplace"},
    {.routine = "tntvt_rgba32_abgr32_inplace", .from = "abgr32", .to = "rgb32"},
    {.routine = "tntvt_rgba32_argb32"},
    {.routine = "argb2rgba"},
    {.routine = "tntvt_rgb16_rgb32"},
    {.routine = "tntvt_alpha_to_rgba"},
    // RGB of 10 to 16 bits
    {.routine = "tntvt_rgb10_rgba32"},
    {.routine = "tntvt_rgb12_bgr48"},
    {.routine = "tntvt_rgb48_rgb12"},
    {.routine = "tntvt_rgb48_12_rgb12"},
    {.routine = "tntvt_rgb48_rgba32", .alpha_0 = true},
    {.routine = "tntvt_bgr48_rgba32", .alpha_0 = true},
    {.routine = "tntvt_rgba64_rgba32"},
    {.routine = "tntvt_argb64_rgba32"},
    {.routine = "tntvt_abgr64_rgba32"},
    {.routine = "tntvt_bgra64_rgba32"},
    {.routine = "tntvt_rgba32_rgb48"},
    {.routine = "tntvt_rgba32_bgr48"},
    {.routine = "tntvt_rgba32_rgba64"},
    {.routine = "tntvt_rgba32_argb64"},
    {.routine = "tntvt_bgra32_rgba64"},
    {.routine = "tntvt_argb64be_rgba64"},
    {.routine = "tntvt_argb64be_rgb48"},
    {.routine = "tntvt_argb64be_rgba32"},
    {.routine = "tntvt_argb64be_rgb24"},
};

}  // namespace

std::span<const StepRule> steps() { return all; }

}  // namespace tintvert::core::paths
