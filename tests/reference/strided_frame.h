// Two frames in memory, and the two ways through them, a byte at a time.
#pragma once

#include <cstdint>
#include <functional>

namespace tintvert::reference {

struct StridedFrame {
    uint8_t* dst;
    long dst_stride;
    const uint8_t* src;
    long src_stride;
    long width, height;
};

struct PixelBytes {
    int dst, src;
};

using Pixel = std::function<void(uint8_t* dst, const uint8_t* src)>;

// Lines and pixels in rising order; a line begins at the start of its stride. As many lines as `height` has
// magnitude. `place` says on which destination line a source line falls; without it, on its own.
using LinePlace = std::function<long(long line)>;
void forward(const StridedFrame& frame, PixelBytes bytes, const Pixel& pixel, const LinePlace& place = {});

// Lines and pixels in falling order, from line number `lines` down to 1; line r ends r strides on from the
// pointer. `place` as above, in these numbers.
void backward(const StridedFrame& frame, long lines, PixelBytes bytes, const Pixel& pixel, const LinePlace& place = {});

}  // namespace tintvert::reference
