// `rgb16` widened to 32 bits. Lines are right-aligned in their strides; last line first, rightmost pixel
// first, so that a frame can grow in place. The alpha is `a`, read for each pixel.
#include <tintvert/rgb.h>

#include "frame/bit_moves.h"
#include "frame/state.h"
#include "frame/walk.h"

using namespace tintvert;

namespace {

//   bit   15   14 ... 10   9 ... 5   4 ... 0
//        none      d2        d1        d0
//
// The word is read again for each byte, highest byte first: pixel 0 overwrites its own word in place,
// and the part of it that is still needed stays until then.
// QUIRK (keeps_low_bits_of_rgb16_clear): five bits move to the top of a byte and are not repeated
// below, so that 31 becomes 248.
struct Rgb16ToRgb32 {
    static constexpr long src_bytes = 2, dst_bytes = 4;
    using Simd = BitMoves<Rgb16ToRgb32>;
    static constexpr MovedByte moved(int byte)
    {
        return byte == 3 ? moved_byte<alpha_byte>(0) : moved_bits(5 * byte - 3, 0xF8);
    }
    static constexpr void pixel(uint8_t* dst, const uint8_t* src)
    {
        dst[2] = static_cast<uint8_t>(load<uint16_t>(src) >> 7 & 0xF8);
        dst[1] = static_cast<uint8_t>(load<uint16_t>(src) >> 2 & 0xF8);
        dst[0] = static_cast<uint8_t>(load<uint16_t>(src) << 3);
        dst[3] = alpha();
    }
};

void to_rgb32(const Frame& frame, long width, long height)
{
    walk_backward<Rgb16ToRgb32>(frame, width, magnitude(height));
}

}  // namespace

void tntvt_rgb16_rgba32_inplace(void* dst, long dstStride, void* src, long srcStride, long width, long height)
{
    to_rgb32({dst, dstStride, src, srcStride}, width, height);
}

void tntvt_rgb16_rgba32(void* dst, long dstStride, void* src, long srcStride, long width, long height)
{
    to_rgb32({dst, dstStride, src, srcStride}, width, height);
}

void tntvt_rgb16_rgb32_inplace(void* dst, long dstStride, void* src, long srcStride, long width, long height)
{
    to_rgb32({dst, dstStride, src, srcStride}, width, height);
}

void tntvt_rgb16_rgb32(void* dst, long dstStride, void* src, long srcStride, long width, long height)
{
    to_rgb32({dst, dstStride, src, srcStride}, width, height);
}
