/* RGB: channel orders, depths, packed 10 and 12 bits, run-length images, frame copy. */
#ifndef TINTVERT_RGB_H
#define TINTVERT_RGB_H

#include <tintvert/export.h>

TNTVT_BEGIN

/* 32-bit pixels in another order, one run of them, destination first.
 *
 * A pixel is the bytes b0, b1, b2, b3 from the lowest address. The letters of a name are the bytes of the
 * word from the most significant down, and no guide to what it does; that is
 *
 *   b1, b2, b3, b0   rgba2argb, bgra2abgr, bgra2abgrMMX, abgr2bgraMMX
 *   b3, b0, b1, b2   argb2rgba, abgr2bgra
 *   b3, b2, b1, b0   bgra2argb, argb2bgra
 *   b2, b1, b0, b3   abgr2argb, argb2abgr, bgra2rgba
 *
 * Deliberate: abgr2bgra and abgr2bgraMMX rotate in opposite directions, and each undoes the other.
 *
 * First pixel first, each read whole before it is written: in place gives the same as apart, and where
 * the runs overlap otherwise, a later read sees what an earlier write left. `pixels` of 0 does nothing. */
TNTVT_API void rgba2argb(unsigned char* dst, unsigned char* src, unsigned int pixels);
TNTVT_API void bgra2abgr(unsigned char* dst, unsigned char* src, unsigned int pixels);
TNTVT_API void bgra2abgrMMX(unsigned char* dst, unsigned char* src, unsigned int pixels);
TNTVT_API void abgr2bgraMMX(unsigned char* dst, unsigned char* src, unsigned int pixels);
TNTVT_API void argb2rgba(unsigned char* dst, unsigned char* src, unsigned int pixels);
TNTVT_API void abgr2bgra(unsigned char* dst, unsigned char* src, unsigned int pixels);
TNTVT_API void bgra2argb(unsigned char* dst, unsigned char* src, unsigned int pixels);
TNTVT_API void argb2bgra(unsigned char* dst, unsigned char* src, unsigned int pixels);
TNTVT_API void abgr2argb(unsigned char* dst, unsigned char* src, unsigned int pixels);
TNTVT_API void argb2abgr(unsigned char* dst, unsigned char* src, unsigned int pixels);
TNTVT_API void bgra2rgba(unsigned char* dst, unsigned char* src, unsigned int pixels);

/* Frames of 32-bit pixels in another order, b0, b1, b2, b3 becoming
 *
 *   b2, b1, b0, b3   tntvt_rgba32_bgra32_inplace, tntvt_rgb32_bgr32_inplace
 *   b3, b2, b1, b0   tntvt_rgba32_abgr32_inplace
 *   b1, b2, b3, b0   tntvt_rgba32_argb32
 *
 * A line stands at the start of its stride. The sign of `height` says nothing. In place, with both
 * strides the same, the result is the same as apart. */
TNTVT_API void tntvt_rgba32_bgra32_inplace(void* dst, long dstStride, void* src, long srcStride, long width,
                                           long height);
TNTVT_API void tntvt_rgb32_bgr32_inplace(void* dst, long dstStride, void* src, long srcStride, long width, long height);
TNTVT_API void tntvt_rgba32_abgr32_inplace(void* dst, long dstStride, void* src, long srcStride, long width,
                                           long height);
TNTVT_API void tntvt_rgba32_argb32(void* dst, long dstStride, void* src, long srcStride, long width, long height);

/* The alpha byte b3 of each pixel as a 32-bit number, plus 1 where b2 and b1 are 0 and b0 is below 8. The
 * colours are lost, and b3 of 255 can come out as 256, the bytes 0, 1, 0, 0.
 *
 * Deliberate: this is no rotation and does not undo tntvt_rgba32_argb32; argb2rgba does.
 *
 * A line stands at the start of its stride. The sign of `height` says nothing. In place, with both
 * strides the same, the result is the same as apart. */
TNTVT_API void tntvt_argb32_rgba32(void* dst, long dstStride, void* src, long srcStride, long width, long height);

/* 32-bit pixels cut down to 24: b0, b1, b2 packed; b3 is not read.
 *
 * A line stands at the start of its stride. The sign of `height` says nothing. First line and leftmost
 * pixel first, one byte at a time: in place the result is the same as apart as long as `dstStride` is
 * not above `srcStride`. The four are one routine. */
TNTVT_API void tntvt_rgba32_rgb24_inplace(void* dst, long dstStride, void* src, long srcStride, long width,
                                          long height);
TNTVT_API void tntvt_rgba32_rgb24(void* dst, long dstStride, void* src, long srcStride, long width, long height);
TNTVT_API void tntvt_rgb32_rgb24_inplace(void* dst, long dstStride, void* src, long srcStride, long width, long height);
TNTVT_API void tntvt_rgb32_rgb24(void* dst, long dstStride, void* src, long srcStride, long width, long height);

/* 32-bit pixels cut down to 24 and reversed: b2, b1, b0 packed; b3 is not read.
 *
 * A line stands at the start of its stride. The sign of `height` says nothing. First line and leftmost
 * pixel first; b0 is stored before b1 is read, and b1 before b2. The two are one routine.
 *
 * Deliberate: only the frame's first pixel is read whole before it is written. In place at strides of
 * `width` x 3 and `width` x 4 the middle byte of pixel 1 of line 0 shows b0 and not b1. In place with
 * both strides the same each line has that, and each but line 0 also shows b0 and not b2 in the first
 * byte of its pixel 0. */
TNTVT_API void tntvt_rgba32_bgr24_inplace(void* dst, long dstStride, void* src, long srcStride, long width,
                                          long height);
TNTVT_API void tntvt_rgb32_bgr24_inplace(void* dst, long dstStride, void* src, long srcStride, long width, long height);

/* 32-bit pixels cut down to 24, upside down: source line i goes to destination line `height` - 1 - i, as
 * b0, b1, b2 packed; b3 is not read. A line stands at the start of its stride.
 *
 * Deliberate: a negative `height` counts lines by its magnitude and places them as it stands, at line
 * `height` - 1 and the ones in front of it, so all of them lie in front of `dst`. Not for use in place. */
TNTVT_API void tntvt_rgba32_rgb24_invert(void* dst, long dstStride, void* src, long srcStride, long width, long height);

/* 24-bit pixels s0, s1, s2 widened to 32: s0, s1, s2, 255.
 *
 * A line stands at the end of its stride; slack in front of the pixels is neither read nor written. The
 * sign of `height` says nothing. Last line and rightmost pixel first, one byte at a time, lowest byte
 * first. The four are one routine.
 *
 * Deliberate: in place at strides of `width` x 4 and `width` x 3, bytes 1 and 2 of pixel 1 and byte 2 of
 * the pixel after it in memory come out wrong, all others as apart. */
TNTVT_API void tntvt_rgb24_rgba32_inplace(void* dst, long dstStride, void* src, long srcStride, long width,
                                          long height);
TNTVT_API void tntvt_rgb24_rgba32(void* dst, long dstStride, void* src, long srcStride, long width, long height);
TNTVT_API void tntvt_rgb24_rgb32_inplace(void* dst, long dstStride, void* src, long srcStride, long width, long height);
TNTVT_API void tntvt_rgb24_rgb32(void* dst, long dstStride, void* src, long srcStride, long width, long height);

/* 24-bit pixels s0, s1, s2 widened to 32 and reversed: s2, s1, s0, 255.
 *
 * A line stands at the end of its stride. The sign of `height` says nothing. Last line and rightmost
 * pixel first, byte 2 stored first, then 1, 0 and 3. The two are one routine.
 *
 * Deliberate: in place at strides of `width` x 4 and `width` x 3, byte 0 of the first two pixels in memory
 * comes out wrong, all others as apart. */
TNTVT_API void tntvt_rgb24_bgra32_inplace(void* dst, long dstStride, void* src, long srcStride, long width,
                                          long height);
TNTVT_API void tntvt_rgb24_bgr32_inplace(void* dst, long dstStride, void* src, long srcStride, long width, long height);

/* `rgb16` (x1 r5 g5 b5, the top bit ignored) widened to 32: blue, green, red, 255, five bits at the top of
 * each byte.
 *
 * A line stands at the end of its stride. The sign of `height` says nothing. Last line and rightmost
 * pixel first; in place at strides of `width` x 4 and `width` x 2 the result is the same as apart. The four
 * are one routine.
 *
 * Deliberate: the low three bits are 0, so that 31 becomes 248. */
TNTVT_API void tntvt_rgb16_rgba32_inplace(void* dst, long dstStride, void* src, long srcStride, long width,
                                          long height);
TNTVT_API void tntvt_rgb16_rgba32(void* dst, long dstStride, void* src, long srcStride, long width, long height);
TNTVT_API void tntvt_rgb16_rgb32_inplace(void* dst, long dstStride, void* src, long srcStride, long width, long height);
TNTVT_API void tntvt_rgb16_rgb32(void* dst, long dstStride, void* src, long srcStride, long width, long height);

/* 24-bit pixels s0, s1, s2 widened to 32 with alpha in front: 255, s0, s1, s2.
 *
 * A line stands at the end of its stride. A `height` below 1 does nothing. Last line and rightmost pixel
 * first; in place at strides of `width` x 4 and `width` x 3 the result is the same as apart. */
TNTVT_API void tntvt_macbgr24_macargb32_inplace(void* dst, long dstStride, void* src, long srcStride, long width,
                                                long height);

/* 24-bit pixels s0, s1, s2 widened to 32, s0, s1, s2, 255, upside down.
 *
 * Deliberate: the first pointer is read and the third is written, and the stride behind each belongs to
 * the other. Written line i ends just before `dst` + i x `dstStride`, and comes from the line that ends
 * just before `src` + (`height` - 1 - i) x `srcStride`, by the signed `height`. The first written line and
 * the last line read lie in front of the two pointers, so a caller passes each pointer one stride past
 * the first byte of its frame. */
TNTVT_API void tntvt_rgba24_rgb32_invert(void* src, long dstStride, void* dst, long srcStride, long width, long height);

/* Accepted, and nothing is done: no argument is used and no memory is touched. */
TNTVT_API void tntvt_rgb8_rgb32(void* dst, long dstStride, void* src, long srcStride, long width, long height);
TNTVT_API void tntvt_rgb8_rgba32(void* dst, long dstStride, void* src, long srcStride, long width, long height);
TNTVT_API void tntvt_rgb16_rgb24(void* dst, long dstStride, void* src, long srcStride, long width, long height);
TNTVT_API void tntvt_rgb32_rgb16(void* dst, long dstStride, void* src, long srcStride, long width, long height);
TNTVT_API void tntvt_rgb32_rgb16_565(void* dst, long dstStride, void* src, long srcStride, long width, long height);
TNTVT_API void tntvt_rgb32_rgb16_dithered(void* dst, long dstStride, void* src, long srcStride, long width,
                                          long height);
TNTVT_API void tntvt_rgb32_rgb16_565_dithered(void* dst, long dstStride, void* src, long srcStride, long width,
                                              long height);
TNTVT_API void tntvt_rgb32_rgb32(void* dst, long dstStride, void* src, long srcStride, long width, long height);
TNTVT_API void tntvt_rgba32_rgb16(void* dst, long dstStride, void* src, long srcStride, long width, long height);

/* RGB of 16 bits a channel reduced to 8: each channel shifted down by `bits` - 8, of which the low eight
 * bits are kept. `bits` is the number of significant bits in a channel, little-endian. Channels s0, s1, ...
 * become
 *
 *   s0, s1, s2, 0    tntvt_rgb48_rgba32
 *   s2, s1, s0, 0    tntvt_bgr48_rgba32
 *   s0, s1, s2, s3   tntvt_rgba64_rgba32
 *   s1, s2, s3, s0   tntvt_argb64_rgba32
 *   s3, s2, s1, s0   tntvt_abgr64_rgba32
 *   s2, s1, s0, s3   tntvt_bgra64_rgba32
 *
 * A line stands at the end of its stride. Last line and rightmost pixel first, each pixel read before it
 * is written.
 *
 * The routines from four channels do nothing if `height` is below 1. Those from three turn the picture
 * upside down if it is negative.
 *
 * Deliberate: nothing is rounded, and a value of more than `bits` bits wraps. The shift is taken modulo 32,
 * so that `bits` below 8 gives 0 everywhere. The alpha made for three channels is 0. The flip of
 * tntvt_bgr48_rgba32 falls one line short: the last source line goes to the line that ends just before
 * `dst`, and the last destination line is not written; its lines are counted in 32 bits. */
TNTVT_API void tntvt_rgb48_rgba32(void* dst, long dstStride, void* src, long srcStride, long width, long height,
                                  unsigned int bits);
TNTVT_API void tntvt_bgr48_rgba32(void* dst, long dstStride, void* src, long srcStride, long width, long height,
                                  unsigned int bits);
TNTVT_API void tntvt_rgba64_rgba32(void* dst, long dstStride, void* src, long srcStride, long width, long height,
                                   unsigned int bits);
TNTVT_API void tntvt_argb64_rgba32(void* dst, long dstStride, void* src, long srcStride, long width, long height,
                                   unsigned int bits);
TNTVT_API void tntvt_abgr64_rgba32(void* dst, long dstStride, void* src, long srcStride, long width, long height,
                                   unsigned int bits);
TNTVT_API void tntvt_bgra64_rgba32(void* dst, long dstStride, void* src, long srcStride, long width, long height,
                                   unsigned int bits);

/* 32-bit RGB widened to 16 bits a channel: each byte shifted up by `bits` - 8, of which the low 16 bits are
 * kept. Bytes b0, b1, b2, b3 become the channels
 *
 *   b0, b1, b2       tntvt_rgba32_rgb48
 *   b2, b1, b0       tntvt_rgba32_bgr48
 *   b0, b1, b2, b3   tntvt_rgba32_rgba64
 *   b3, b0, b1, b2   tntvt_rgba32_argb64
 *   b2, b1, b0, b3   tntvt_bgra32_rgba64, for which `bits` is always 16
 *
 * A line stands at the end of its stride. Last line and rightmost pixel first, each pixel read before it
 * is written. b3 is not read where it has no place.
 *
 * The routines to four channels do nothing if `height` is below 1. Those to three turn the picture upside
 * down if it is negative.
 *
 * Deliberate: the low bits stay 0, so that at 16 bits 255 becomes 0xFF00. The shift is taken modulo 32.
 * The flip of tntvt_rgba32_bgr48 falls one line short, as that of tntvt_bgr48_rgba32 does. */
TNTVT_API void tntvt_rgba32_rgb48(void* dst, long dstStride, void* src, long srcStride, long width, long height,
                                  unsigned int bits);
TNTVT_API void tntvt_rgba32_bgr48(void* dst, long dstStride, void* src, long srcStride, long width, long height,
                                  unsigned int bits);
TNTVT_API void tntvt_rgba32_rgba64(void* dst, long dstStride, void* src, long srcStride, long width, long height,
                                   unsigned int bits);
TNTVT_API void tntvt_rgba32_argb64(void* dst, long dstStride, void* src, long srcStride, long width, long height,
                                   unsigned int bits);
TNTVT_API void tntvt_bgra32_rgba64(void* dst, long dstStride, void* src, long srcStride, long width, long height);

/* Big-endian pixels of four 16-bit channels s0, s1, s2, s3, in an order chosen by number:
 *
 *   `order`   four channels    three channels
 *   0         s3, s2, s1, s0   s3, s2, s1
 *   1         s0, s3, s2, s1   nothing written
 *   2         s1, s2, s3, s0   s1, s2, s3
 *   3         s0, s1, s2, s3   nothing written
 *
 * Any other `order` writes nothing. tntvt_argb64be_rgba64 and tntvt_argb64be_rgb48 store the channels as
 * 16 bits, little-endian, and ignore the seventh argument. tntvt_argb64be_rgba32 and tntvt_argb64be_rgb24
 * reduce them to 8 bits as tntvt_rgba64_rgba32 does.
 *
 * A line stands at the end of its stride. Last line and rightmost pixel first, each pixel read before it
 * is written. A `height` below 1 does nothing, but a negative one turns the picture of
 * tntvt_argb64be_rgb24 upside down. */
TNTVT_API void tntvt_argb64be_rgba64(void* dst, long dstStride, void* src, long srcStride, long width, long height,
                                     unsigned int ignored, unsigned int order);
TNTVT_API void tntvt_argb64be_rgb48(void* dst, long dstStride, void* src, long srcStride, long width, long height,
                                    unsigned int ignored, unsigned int order);
TNTVT_API void tntvt_argb64be_rgba32(void* dst, long dstStride, void* src, long srcStride, long width, long height,
                                     unsigned int bits, unsigned int order);
TNTVT_API void tntvt_argb64be_rgb24(void* dst, long dstStride, void* src, long srcStride, long width, long height,
                                    unsigned int bits, unsigned int order);

TNTVT_END

#endif
