// Runs of RGB pixels through the routines to `2vuy`.
#pragma once

#include <tintvert.h>

#include <cstdint>
#include <vector>

namespace tintvert::test {

using Memory = std::vector<uint8_t>;

struct Rgb {
    uint8_t r, g, b;
};
constexpr Rgb black{0, 0, 0}, white{255, 255, 255}, red{255, 0, 0}, green{0, 255, 0}, blue{0, 0, 255};

inline Rgb grey(int level)
{
    return {static_cast<uint8_t>(level), static_cast<uint8_t>(level), static_cast<uint8_t>(level)};
}

inline Memory bgrx(const std::vector<Rgb>& run, uint8_t x = 0xA5)
{
    Memory bytes;
    for (const Rgb& pixel : run) bytes.insert(bytes.end(), {pixel.b, pixel.g, pixel.r, x});
    return bytes;
}

inline Memory xrgb(const std::vector<Rgb>& run, uint8_t x = 0xA5)
{
    Memory bytes;
    for (const Rgb& pixel : run) bytes.insert(bytes.end(), {x, pixel.r, pixel.g, pixel.b});
    return bytes;
}

// A run through each routine, into exactly the bytes that its pairs fill.
inline size_t bytes_for(size_t pixels) { return (pixels + 1) / 2 * 4; }

inline Memory argb_run(const std::vector<Rgb>& run)
{
    Memory src = xrgb(run), dst(bytes_for(run.size()), 0xEE);
    argb_to_2vuy(src.data(), dst.data(), static_cast<int>(run.size()));
    return dst;
}

inline Memory bgra_run(const std::vector<Rgb>& run)
{
    Memory src = bgrx(run), dst(bytes_for(run.size()), 0xEE);
    bgra_to_2vuy(src.data(), dst.data(), static_cast<int>(run.size()));
    return dst;
}

inline Memory hd_run(const std::vector<Rgb>& run)
{
    Memory src = bgrx(run), dst(bytes_for(run.size()), 0xEE);
    hd_rgb_to_2vuy(src.data(), dst.data(), static_cast<int>(run.size()), 1);
    return dst;
}

inline Memory frame_run(const std::vector<Rgb>& frame, long width, long height, long dstStride, long srcStride)
{
    Memory src = bgrx(frame), dst(bytes_for(frame.size()), 0xEE);
    tntvt_rgb32_2vuy(dst.data(), dstStride, src.data(), srcStride, width, height);
    return dst;
}

inline std::vector<Rgb> six(Rgb colour) { return std::vector<Rgb>(6, colour); }

}  // namespace tintvert::test
