// The table decoders of strided frames beside their reference implementations.
#pragma once

#include <gtest/gtest.h>
#include <tintvert.h>

#include "reference/decode/2vuy_rgb.h"
#include "reference/decode/v210_decoders.h"
#include "support/strided.h"

namespace tintvert::test {

struct Decoder {
    const char* name;
    int bytes_a_pixel;
    void (*routine)(void*, long, void*, long, long, long, long);
    void (*reference)(uint8_t*, int64_t, const uint8_t*, int64_t, int64_t, int64_t, int64_t);
    long (*src_line)(long width);

    Twins at_scale(long scale) const;
};

inline long line_of_2vuy(long width) { return width * 2; }
inline long line_of_v210(long width) { return (width + 5) / 6 * 16; }

inline constexpr Decoder decoders_of_2vuy[] = {
    {"tntvt_yuv422_rgb24", 3, tntvt_yuv422_rgb24, reference::yuv422_rgb24, line_of_2vuy},
    {"tntvt_yuv422_rgb16", 2, tntvt_yuv422_rgb16, reference::yuv422_rgb16, line_of_2vuy},
};
inline constexpr Decoder decoders_of_v210[] = {
    {"tntvt_v210_rgb24", 3, tntvt_v210_rgb24, reference::v210_rgb24, line_of_v210},
    {"tntvt_v210_rgb16", 2, tntvt_v210_rgb16, reference::v210_rgb16, line_of_v210},
};

// Random frames, the source and the destination far from each other. A negative height over a negative scale is a
// positive count of lines, and the source is walked upwards.
void expect_equal_frames(const Decoder& decoder, Random& random, int rounds, long scale);
// One memory, the destination at every distance from -64 to 64 of the source.
void expect_equal_overlapping(const Decoder& decoder, Random& random);

}  // namespace tintvert::test
