// A strided routine and its reference implementation on random frames in one memory: apart, in place and overlapping.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "reference/strided_frame.h"
#include "support/random.h"

namespace tintvert::test {

using reference::PixelBytes;
using reference::StridedFrame;

using Work = std::function<void(const StridedFrame&)>;

struct PixelBits {
    long dst, src;

    PixelBits(long dst_bits, long src_bits) : dst(dst_bits), src(src_bits) {}
    PixelBits(PixelBytes bytes) : PixelBits(8L * bytes.dst, 8L * bytes.src) {}
};

struct Twins {
    std::string name;
    PixelBits bits;
    Work routine, reference;
};

// A call of a function that takes the six numbers of a frame, and `more`.
template <class... Types, class... More>
Work calling(void (*function)(Types...), More... more)
{
    return [=](const StridedFrame& f) {
        function(f.dst, f.dst_stride, const_cast<uint8_t*>(f.src), f.src_stride, f.width, f.height, more...);
    };
}

// Tight (most often), with slack, shorter than a line, 0, negative, and any number at all.
long any_stride(Random& random, long line_bytes);

// Small, mostly; of both signs of `height`, and some without a pixel. Its pointers are null.
StridedFrame any_frame(Random& random, PixelBits bits);

// A distance at which the two frames share no byte.
long apart(const StridedFrame& frame);

// Whether both leave the same memory, with the destination `distance` bytes after the source.
testing::AssertionResult agree(Random& random, const Twins& twins, StridedFrame frame, long distance);

// `each` random frames at every distance from -64 to 64, and as many apart, in place and at any distance at which they
// may still overlap. The first disagreement, or success.
testing::AssertionResult agree_everywhere(const Twins& twins, int each = 4);

}  // namespace tintvert::test
