/* 8-bit YCbCr: into `2vuy` from RGB and from other 8-bit layouts.
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

/* `yuv2` and `yuvs` (Y, chroma; Cb on even pixels, Cr on odd ones) to `2vuy`, one run of pixels, two bytes
 * a pixel on both sides. The bytes of each pixel change places and go from full range to video range in
 * truncating integers: Y x 219 / 255 + 16, and (c - 1) x 224 / 254 + 16 with a c of 0 counted as 1, so that
 * 1, 128 and 255 become 16, 128 and 240. c is the chroma byte itself in yuvs_to_2vuy, and the byte
 * exclusive-or 0x80 in yuv2_to_2vuy, whose chroma is signed.
 *
 * `pixels` below 1 does nothing. Pixels are done one by one, so an odd `pixels` reaches no further than
 * itself, and `src` may equal `dst`. */
TNTVT_API void yuv2_to_2vuy(unsigned char* src, unsigned char* dst, int pixels);
TNTVT_API void yuvs_to_2vuy(unsigned char* src, unsigned char* dst, int pixels);

/* The same, a frame as one run of `width` x `height` pixels, the product kept to 32 bits. There is no
 * stride: a frame with gaps between its lines is compacted first. `yuvu` is converted as `yuv2`. */
TNTVT_API void tntvt_yuv2_2vuy(unsigned char* dst, unsigned char* src, int width, int height);
TNTVT_API void tntvt_yuvu_2vuy(unsigned char* dst, unsigned char* src, int width, int height);
TNTVT_API void tntvt_yuvs_2vuy(unsigned char* dst, unsigned char* src, int width, int height);

/* `yuv444` (Y, Cb, Cr, 3 bytes a pixel) to `2vuy` and back, without arithmetic. To 4:2:2 the odd pixel's
 * chroma is dropped; to 4:4:4 the pair's chroma is repeated.
 *
 * Both frames are one run of `width` x `height` pixels, and `stride` is ignored. An odd product runs a last
 * group whole: to 4:2:2 it reads one byte past the end and writes 4 bytes; to 4:4:4 it reads 4 bytes and
 * writes 3 bytes past the end. `width` x `height` x 3 is kept to 32 bits, and 0 does nothing.
 *
 * Neither works in place: each byte is stored before the next one is read. */
TNTVT_API void tntvt_yuv444_yuv422_8(unsigned char* dst, unsigned char* src, unsigned int width, unsigned int height,
                                     unsigned int stride);
TNTVT_API void tntvt_yuv422_yuv444_8(unsigned char* dst, unsigned char* src, unsigned int width, unsigned int height,
                                     unsigned int stride);

/* Empty entries: they return at once and touch nothing. */
TNTVT_API void tntvt_yuv411_yuv422_8(unsigned char*, unsigned char*, unsigned int, unsigned int, unsigned int);
TNTVT_API void tntvt_yuv422_yuv411_8(unsigned char*, unsigned char*, unsigned int, unsigned int, unsigned int);
TNTVT_API void tntvt_yuv420_yuv422_8(unsigned char*, unsigned char*, unsigned int, unsigned int, unsigned int);
TNTVT_API void tntvt_yuv422_yuv420_8(unsigned char*, unsigned char*, unsigned int, unsigned int, unsigned int);
TNTVT_API void tntvt_yuv420_yuv411_8(unsigned char*, unsigned char*, unsigned int, unsigned int, unsigned int);
TNTVT_API void tntvt_yuv411_yuv420_8(unsigned char*, unsigned char*, unsigned int, unsigned int, unsigned int);

TNTVT_END

#endif
