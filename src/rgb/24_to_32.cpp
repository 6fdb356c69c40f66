// 24-bit pixels widened to 32 bits. Lines are right-aligned in their strides; last line first, rightmost
// pixel first, so that a frame can grow in place. The alpha is `a`, read for each pixel.
#include <tintvert/rgb.h>

#include "frame/bit_moves.h"
#include "frame/state.h"
#include "frame/walk.h"
#include "rgb/mirror.h"

using namespace tintvert;

namespace {

// One byte at a time, in the order written.
// QUIRK (keeps_ascending_writes_in_place): in place at tight strides the first pixels of line 0 read
// bytes that these stores have just replaced: d1 and d2 of pixel 1 and d2 of pixel 2.
struct Rgb24ToRgb32 {
    static constexpr long src_bytes = 3, dst_bytes = 4;
    using Simd = BitMoves<Rgb24ToRgb32>;
    static constexpr MovedByte moved(int byte) { return moved_byte<0, 1, 2, alpha_byte>(byte); }
    static constexpr void pixel(uint8_t* dst, const uint8_t* src)
    {
        dst[0] = src[0];
        dst[1] = src[1];
        dst[2] = src[2];
        dst[3] = alpha();
    }
};

// QUIRK (keeps_descending_writes_in_place): here it is d0 of pixels 0 and 1.
struct Rgb24ToBgr32 {
    static constexpr long src_bytes = 3, dst_bytes = 4;
    using Simd = BitMoves<Rgb24ToBgr32>;
    static constexpr MovedByte moved(int byte) { return moved_byte<2, 1, 0, alpha_byte>(byte); }
    static constexpr void pixel(uint8_t* dst, const uint8_t* src)
    {
        dst[2] = src[0];
        dst[1] = src[1];
        dst[0] = src[2];
        dst[3] = alpha();
    }
};

// Downwards: the one order of the three that harms no byte in place.
struct MacBgr24ToMacArgb32 {
    static constexpr long src_bytes = 3, dst_bytes = 4;
    using Simd = BitMoves<MacBgr24ToMacArgb32>;
    static constexpr MovedByte moved(int byte) { return moved_byte<alpha_byte, 0, 1, 2>(byte); }
    static constexpr void pixel(uint8_t* dst, const uint8_t* src)
    {
        dst[3] = src[2];
        dst[2] = src[1];
        dst[1] = src[0];
        dst[0] = alpha();
    }
};

void to_rgb32(const Frame& frame, long width, long height)
{
    walk_backward<Rgb24ToRgb32>(frame, width, magnitude(height));
}

void to_bgr32(const Frame& frame, long width, long height)
{
    walk_backward<Rgb24ToBgr32>(frame, width, magnitude(height));
}

}  // namespace

void tntvt_rgb24_rgba32_inplace(void* dst, long dstStride, void* src, long srcStride, long width, long height)
{
    to_rgb32({dst, dstStride, src, srcStride}, width, height);
}

void tntvt_rgb24_rgba32(void* dst, long dstStride, void* src, long srcStride, long width, long height)
{
    to_rgb32({dst, dstStride, src, srcStride}, width, height);
}

void tntvt_rgb24_rgb32_inplace(void* dst, long dstStride, void* src, long srcStride, long width, long height)
{
    to_rgb32({dst, dstStride, src, srcStride}, width, height);
}

void tntvt_rgb24_rgb32(void* dst, long dstStride, void* src, long srcStride, long width, long height)
{
    to_rgb32({dst, dstStride, src, srcStride}, width, height);
}

void tntvt_rgb24_bgra32_inplace(void* dst, long dstStride, void* src, long srcStride, long width, long height)
{
    to_bgr32({dst, dstStride, src, srcStride}, width, height);
}

void tntvt_rgb24_bgr32_inplace(void* dst, long dstStride, void* src, long srcStride, long width, long height)
{
    to_bgr32({dst, dstStride, src, srcStride}, width, height);
}

void tntvt_macbgr24_macargb32_inplace(void* dst, long dstStride, void* src, long srcStride, long width, long height)
{
    walk_backward<MacBgr24ToMacArgb32>({dst, dstStride, src, srcStride}, width, height);
}

// QUIRK (keeps_crossed_pointers): the first pointer is read and the third written, and each goes
// with the stride after the other. Written line i ends at `dst` + i strides, so that line 0 is before
// `dst`; read line i ends at `src` + (`height` - 1 - i) strides, by the signed number.
//
// The walker counts the lines r from `lines` down to 1, so i is `lines` - r and the read line
// r + (`height` - 1 - `lines`).
void tntvt_rgba24_rgb32_invert(void* src, long dstStride, void* dst, long srcStride, long width, long height)
{
    const long lines = magnitude(height);
    const long first = line_sum(line_sum(height, -1), line_offset(-1, lines));
    const Frame frame{dst, dstStride, advance(bytes(src), line_offset(first, srcStride)), srcStride};
    walk_backward<Rgb24ToRgb32>(mirrored(frame, lines), width, lines);
}
