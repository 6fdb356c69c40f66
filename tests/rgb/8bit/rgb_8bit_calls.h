// The frame routines of 8 bits a channel, by what they do.
#pragma once

#include <tintvert.h>

#include <cstdint>
#include <span>
#include <vector>

namespace tintvert::test {

using Bytes = std::vector<uint8_t>;
using Strided = void(void*, long, void*, long, long, long);

struct Routine {
    const char* name;
    Strided* call;
    long src_bytes, dst_bytes;
};

inline const Routine reorder[] = {{"tntvt_rgba32_bgra32_inplace", tntvt_rgba32_bgra32_inplace, 4, 4},
                                  {"tntvt_rgb32_bgr32_inplace", tntvt_rgb32_bgr32_inplace, 4, 4},
                                  {"tntvt_rgba32_abgr32_inplace", tntvt_rgba32_abgr32_inplace, 4, 4},
                                  {"tntvt_rgba32_argb32", tntvt_rgba32_argb32, 4, 4},
                                  {"tntvt_argb32_rgba32", tntvt_argb32_rgba32, 4, 4}};
inline const Routine cut[] = {{"tntvt_rgba32_rgb24_inplace", tntvt_rgba32_rgb24_inplace, 4, 3},
                              {"tntvt_rgba32_rgb24", tntvt_rgba32_rgb24, 4, 3},
                              {"tntvt_rgb32_rgb24_inplace", tntvt_rgb32_rgb24_inplace, 4, 3},
                              {"tntvt_rgb32_rgb24", tntvt_rgb32_rgb24, 4, 3}};
inline const Routine cut_reversed[] = {{"tntvt_rgba32_bgr24_inplace", tntvt_rgba32_bgr24_inplace, 4, 3},
                                       {"tntvt_rgb32_bgr24_inplace", tntvt_rgb32_bgr24_inplace, 4, 3}};
inline const Routine widen_24[] = {{"tntvt_rgb24_rgba32_inplace", tntvt_rgb24_rgba32_inplace, 3, 4},
                                   {"tntvt_rgb24_rgba32", tntvt_rgb24_rgba32, 3, 4},
                                   {"tntvt_rgb24_rgb32_inplace", tntvt_rgb24_rgb32_inplace, 3, 4},
                                   {"tntvt_rgb24_rgb32", tntvt_rgb24_rgb32, 3, 4}};
inline const Routine widen_24_reversed[] = {{"tntvt_rgb24_bgra32_inplace", tntvt_rgb24_bgra32_inplace, 3, 4},
                                            {"tntvt_rgb24_bgr32_inplace", tntvt_rgb24_bgr32_inplace, 3, 4}};
inline const Routine widen_16[] = {{"tntvt_rgb16_rgba32_inplace", tntvt_rgb16_rgba32_inplace, 2, 4},
                                   {"tntvt_rgb16_rgba32", tntvt_rgb16_rgba32, 2, 4},
                                   {"tntvt_rgb16_rgb32_inplace", tntvt_rgb16_rgb32_inplace, 2, 4},
                                   {"tntvt_rgb16_rgb32", tntvt_rgb16_rgb32, 2, 4}};
inline const Routine alpha_first[] = {{"tntvt_macbgr24_macargb32_inplace", tntvt_macbgr24_macargb32_inplace, 3, 4}};
inline const Routine inverts[] = {{"tntvt_rgba32_rgb24_invert", tntvt_rgba32_rgb24_invert, 4, 3},
                                  {"tntvt_rgba24_rgb32_invert", tntvt_rgba24_rgb32_invert, 3, 4}};

template <size_t... n>
std::vector<Routine> together(const Routine (&... groups)[n])
{
    std::vector<Routine> all;
    const auto add = [&all](std::span<const Routine> group) {
        for (const Routine& routine : group) all.push_back(routine);
    };
    (add(groups), ...);
    return all;
}

// 0, 1, 2, ... 250, 0, 1, ...: bytes near each other differ, and none is 255.
inline Bytes counting(long count)
{
    Bytes result(static_cast<size_t>(count));
    for (size_t i = 0; i < result.size(); ++i) result[i] = static_cast<uint8_t>(i % 251);
    return result;
}

}  // namespace tintvert::test
