/* 8-bit YCbCr: into `2vuy` from RGB.
 *
 * `2vuy` is 4:2:2 in groups of four bytes: Cb, Y of the even pixel, Cr, Y of the odd pixel. */
#ifndef TINTVERT_YCBCR8_H
#define TINTVERT_YCBCR8_H

#include <tintvert/export.h>

TNTVT_BEGIN

/* RGB to `2vuy`, one run of pixels.
 *
 * Four bytes a pixel in, two out. argb_to_2vuy reads bytes ignored, R, G, B; bgra_to_2vuy reads B, G,
 * R, ignored; hd_rgb_to_2vuy reads as bgra_to_2vuy if `bgra` is non-zero and as argb_to_2vuy if it is
 * zero. Alpha is never read.
 *
 * The arithmetic is double precision to the last step, which truncates. argb_ and bgra_to_2vuy use the
 * ITU-R BT.601 weights and write video range (Y 16 to 235, chroma 16 to 240); no input leaves it.
 * hd_rgb_to_2vuy uses the ITU-R BT.709 weights at full range, and does not clamp: a run of pure blue
 * reaches Cb 256 and a run of pure red Cr 256, which are stored as 0.
 *
 * Chroma is sited on the even pixels through a 1-2-1 filter over odd, even, odd pixel. It begins at
 * 128.0 and carries on, unrounded, from pair to pair.
 *
 * `pixels` below 1 does nothing. An odd `pixels` reads one pixel past the run and writes its last group
 * whole. `src` and `dst` may be the same memory. */
TNTVT_API void argb_to_2vuy(unsigned char* src, unsigned char* dst, int pixels);
TNTVT_API void bgra_to_2vuy(unsigned char* src, unsigned char* dst, int pixels);
TNTVT_API void hd_rgb_to_2vuy(unsigned char* src, unsigned char* dst, int pixels, int bgra);

/* `rgb32` (B, G, R, alpha) to `2vuy`, a frame: one call of bgra_to_2vuy over `width` x `height` pixels,
 * the product kept to 32 bits. Both strides are ignored and both frames are unbroken runs of pixels, so
 * the chroma filter runs on across line ends, and with an odd `width` a pair straddles two lines. */
TNTVT_API void tntvt_rgb32_2vuy(void* dst, long dstStride, void* src, long srcStride, long width, long height);

TNTVT_END

#endif
