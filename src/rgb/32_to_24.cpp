// 32-bit pixels cut down to their first three bytes. Lines are left-aligned in their strides; first
// line first, leftmost pixel first, so that a frame can shrink in place.
#include <tintvert/rgb.h>

#include "frame/bit_moves.h"
#include "frame/walk.h"
#include "rgb/mirror.h"

using namespace tintvert;

namespace {

// One byte at a time. Where the pixels overlap, a later byte is read after an earlier one is written, and
// that is the result, so no form gathers the bytes of a pixel first.
struct Rgb32ToRgb24 {
    static constexpr long src_bytes = 4, dst_bytes = 3;
    using Simd = BitMoves<Rgb32ToRgb24>;
    static constexpr MovedByte moved(int byte) { return moved_byte<0, 1, 2>(byte); }
    static constexpr void pixel(uint8_t* dst, const uint8_t* src)
    {
        dst[0] = src[0];
        dst[1] = src[1];
        dst[2] = src[2];
    }
};

struct Rgb32ToBgr24 {
    static constexpr long src_bytes = 4, dst_bytes = 3;
    using Simd = BitMoves<Rgb32ToBgr24>;
    static constexpr MovedByte moved(int byte) { return moved_byte<2, 1, 0>(byte); }
    static constexpr void pixel(uint8_t* dst, const uint8_t* src)
    {
        dst[2] = src[0];
        dst[1] = src[1];
        dst[0] = src[2];
    }
};

void to_rgb24(const Frame& frame, long width, long height)
{
    walk_forward<Rgb32ToRgb24>(frame, width, magnitude(height));
}

// QUIRK (keeps_guard_of_first_pixel_only): the frame's first pixel is read whole before it is
// written, no other is. In place at tight strides pixel 1 writes its b0 over its b1 at byte 5, and reads
// it from there; with both strides the same, each further line has that, and b0 where its pixel 0 should
// have b2.
void to_bgr24(const Frame& frame, long width, long height)
{
    const long lines = magnitude(height);
    if (lines < 1 || width < 1) return;

    uint8_t* const dst = bytes(frame.dst);
    uint8_t* const src = bytes(frame.src);
    const uint8_t b0 = src[0], b1 = src[1], b2 = src[2];
    dst[2] = b0;
    dst[1] = b1;
    dst[0] = b2;
    walk_forward<Rgb32ToBgr24>({dst + 3, 0, src + 4, 0}, width - 1, 1);
    walk_forward<Rgb32ToBgr24>(
        {advance(dst, frame.dst_stride), frame.dst_stride, advance(src, frame.src_stride), frame.src_stride}, width,
        lines - 1);
}

}  // namespace

void tntvt_rgba32_rgb24_inplace(void* dst, long dstStride, void* src, long srcStride, long width, long height)
{
    to_rgb24({dst, dstStride, src, srcStride}, width, height);
}

void tntvt_rgba32_bgr24_inplace(void* dst, long dstStride, void* src, long srcStride, long width, long height)
{
    to_bgr24({dst, dstStride, src, srcStride}, width, height);
}

// QUIRK (keeps_signed_height_in_addresses): the lines are counted by the magnitude and placed by the
// signed number. At a `height` of -2 they go to lines -3 and -4, before `dst`.
void tntvt_rgba32_rgb24_invert(void* dst, long dstStride, void* src, long srcStride, long width, long height)
{
    to_rgb24(mirrored({dst, dstStride, src, srcStride}, line_sum(height, -1)), width, height);
}

void tntvt_rgb32_rgb24_inplace(void* dst, long dstStride, void* src, long srcStride, long width, long height)
{
    to_rgb24({dst, dstStride, src, srcStride}, width, height);
}

void tntvt_rgb32_rgb24(void* dst, long dstStride, void* src, long srcStride, long width, long height)
{
    to_rgb24({dst, dstStride, src, srcStride}, width, height);
}

void tntvt_rgba32_rgb24(void* dst, long dstStride, void* src, long srcStride, long width, long height)
{
    to_rgb24({dst, dstStride, src, srcStride}, width, height);
}

void tntvt_rgb32_bgr24_inplace(void* dst, long dstStride, void* src, long srcStride, long width, long height)
{
    to_bgr24({dst, dstStride, src, srcStride}, width, height);
}
