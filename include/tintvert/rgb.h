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
 * Quirks: abgr2bgra and abgr2bgraMMX rotate in opposite directions, and each undoes the other.
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
 * Quirks: this is no rotation and does not undo tntvt_rgba32_argb32; argb2rgba does.
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
 * Quirks: only the frame's first pixel is read whole before it is written. In place at strides of
 * `width` x 3 and `width` x 4 the middle byte of pixel 1 of line 0 shows b0 and not b1. In place with
 * both strides the same each line has that, and each but line 0 also shows b0 and not b2 in the first
 * byte of its pixel 0. */
TNTVT_API void tntvt_rgba32_bgr24_inplace(void* dst, long dstStride, void* src, long srcStride, long width,
                                          long height);
TNTVT_API void tntvt_rgb32_bgr24_inplace(void* dst, long dstStride, void* src, long srcStride, long width, long height);

/* 32-bit pixels cut down to 24, upside down: source line i goes to destination line `height` - 1 - i, as
 * b0, b1, b2 packed; b3 is not read. A line stands at the start of its stride.
 *
 * Quirks: a negative `height` counts lines by its magnitude and places them as it stands, at line
 * `height` - 1 and the ones in front of it, so all of them lie in front of `dst`. Not for use in place. */
TNTVT_API void tntvt_rgba32_rgb24_invert(void* dst, long dstStride, void* src, long srcStride, long width, long height);

/* 24-bit pixels s0, s1, s2 widened to 32: s0, s1, s2, 255.
 *
 * A line stands at the end of its stride; slack in front of the pixels is neither read nor written. The
 * sign of `height` says nothing. Last line and rightmost pixel first, one byte at a time, lowest byte
 * first. The four are one routine.
 *
 * Quirks: in place at strides of `width` x 4 and `width` x 3, bytes 1 and 2 of pixel 1 and byte 2 of
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
 * Quirks: in place at strides of `width` x 4 and `width` x 3, byte 0 of the first two pixels in memory
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
 * Quirks: the low three bits are 0, so that 31 becomes 248. */
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
 * Quirks: the first pointer is read and the third is written, and the stride behind each belongs to
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
 * Quirks: nothing is rounded, and a value of more than `bits` bits wraps. The shift is taken modulo 32,
 * so that `bits` below 8 gives 0 everywhere. The alpha made for three channels is 0. The flip of
 * tntvt_bgr48_rgba32 falls one line short: the last source line goes to the line that ends just before
 * `dst`, and the last destination line is not written; its lines are
 * the low 32 bits of the magnitude of `height`, as a signed number, so that 2^31 to 2^32 lines are no work. */
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
 * Quirks: the low bits stay 0, so that at 16 bits 255 becomes 0xFF00. The shift is taken modulo 32.
 * The flip of tntvt_rgba32_bgr48 falls one line short, as that of tntvt_bgr48_rgba32 does,
 * and its lines are counted like those. */
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

/* `rgb10` (words of three 10-bit fields: field 1 in bits 31 to 22, field 2 in 21 to 12, field 3 in 11 to 2)
 * to 16 or 8 bits a channel. Both frames are tight, `width` pixels a line with no gap; the strides are
 * ignored. A `width` or `height` below 1 does nothing.
 *
 * A non-zero `swapBytes` says that the words are big-endian. The order of the source lines hangs on both
 * flags: with big-endian words a non-zero `flipLines` walks the source from the bottom up, with
 * little-endian words a zero `flipLines` does. Walking up, tntvt_rgb10_rgba32 begins at line `height` - 1;
 * the two 16-bit forms begin at line `height`, one beyond the last, and never read line 0.
 *
 * tntvt_rgb10_rgba32 writes the top eight bits of fields 3, 2 and 1, and 255. The 16-bit forms cut three
 * channels out of the word w: V1 = (w >> 16) & 0xFF30, V2 = (w >> 6) & 0xFF30, V3 = (w >> 4) & 0xFF30. The
 * fields are not spread over 16 bits, and V3 begins two bits into field 2. tntvt_rgb10_rgba64 writes V3,
 * V2, V1, 0xFFFF and tntvt_rgb10_rgb48 V1, V2, V3. */
TNTVT_API void tntvt_rgb10_rgba64(void* dst, long dstStride, void* src, long srcStride, long width, long height,
                                  unsigned char swapBytes, unsigned char flipLines);
TNTVT_API void tntvt_rgb10_rgb48(void* dst, long dstStride, void* src, long srcStride, long width, long height,
                                 unsigned char swapBytes, unsigned char flipLines);
TNTVT_API void tntvt_rgb10_rgba32(void* dst, long dstStride, void* src, long srcStride, long width, long height,
                                  unsigned char swapBytes, unsigned char flipLines);

/* Packed `rgb12` to wider forms. Sample n of a line is bits 12n to 12n + 11 of its little-endian words, and
 * the samples of a pixel are red, green, blue. A line stands at the start of its stride. The sign of
 * `height` says nothing. Lines run in whole rounds, each read before it is written:
 *
 * tntvt_rgb12_bgr48: rounds of 8 samples, 12 bytes in and 16 out, up to the round that holds sample
 * 3 x `width` - 1. 16-bit words with the low four bits zero, in the order of the stream.
 *
 * tntvt_rgb12_rgb48: the same with the three samples of each pixel reversed, and a round is 24 samples, 36
 * bytes in and 48 out, of which a line makes as many as tntvt_rgb12_bgr48 makes of its rounds: about three
 * times the pixels of the line. A `width` of 8 makes 3 rounds, 108 bytes in and 144 out. Lines run over
 * each other in this, upward, and behind the last line there has to be room.
 *
 * tntvt_rgb12_rgba32: rounds of 8 pixels, 36 bytes in and 32 out. Blue, green, red by their upper eight
 * bits, and 255; but byte 0 of the third pixel of a round is the red of its first pixel.
 *
 * tntvt_rgb12_rgb48_sse4 does nothing. */
TNTVT_API void tntvt_rgb12_bgr48(void* dst, long dstStride, void* src, long srcStride, long width, long height);
TNTVT_API void tntvt_rgb12_rgb48(void* dst, long dstStride, void* src, long srcStride, long width, long height);
TNTVT_API void tntvt_rgb12_rgba32(void* dst, long dstStride, void* src, long srcStride, long width, long height);
TNTVT_API void tntvt_rgb12_rgb48_sse4(void* dst, long dstStride, void* src, long srcStride, long width, long height);

/* 16-bit words to packed `rgb12`: the low 12 bits of each word in tntvt_rgb48_12_rgb12, the upper 12 in
 * tntvt_rgb48_rgb12. Samples keep their order and are written highest bit first, three bytes for two; the
 * unpackers above read another arrangement. A line stands at the start of its stride and walks 3 x `width`
 * samples, rounded up to a multiple of 8, each read just before its bits are written. It never stores behind
 * `dstStride` bytes, whatever its length, and nothing at all in a stride below 1. The sign of `height` says
 * nothing. */
TNTVT_API void tntvt_rgb48_12_rgb12(void* dst, long dstStride, void* src, long srcStride, long width, long height);
TNTVT_API void tntvt_rgb48_rgb12(void* dst, long dstStride, void* src, long srcStride, long width, long height);

/* Writes one byte a line: the first byte of each destination line receives bits 4 to 11 of each 16-bit word
 * of the source line in turn and keeps those of the last, word number 3 x `width`, rounded up to a multiple of
 * 8, less 1. The rest of the line stays as it was. The sign of `height` says nothing. */
TNTVT_API void tntvt_rgb48_12_rgba32(void* dst, long dstStride, void* src, long srcStride, long width, long height);

/* Run-length coded, palette-indexed images. `src` is a stream of two-byte codes c, v: c > 0 is a run of
 * entry v; 0, 0 ends a line; 0, 1 ends the bitmap, and so does 0, 2, whose offsets are not read; 0 and v of
 * 3 or more announces v single indices, padded to an even count. `palette` is the colour table, indexed by
 * a full byte. `width` and `srcStride` are ignored. Nothing compares a line's pixels with a width, and
 * nothing knows where stream or destination end: the stream has to end in a code that stops the decode.
 *
 * tntvt_rle8_rgba32 and tntvt_rle8_rgb32: 4 bytes a palette entry, of which the first three are copied, and
 * 4 bytes a pixel, of which the fourth is 0. Line i of the stream goes to line `height` - 1 - i, at the
 * start of its stride. As many lines are decoded as `height` has magnitude; a negative `height` therefore
 * writes in front of `dst`, from line `height` - 1 down, and a `height` of 0 does nothing.
 *
 * tntvt_rle8_rgb24: 3 bytes a palette entry and a pixel. A run has c + 1 pixels. Single indices are not
 * decoded: only their code and the pad are stepped over, and the indices are read as codes. `dstStride` is
 * ignored and lines lie end to end, from `dst` on. The decode stops after `height` ends of line; a `height`
 * of 0 or below is stopped by an end of bitmap alone. */
TNTVT_API void tntvt_rle8_rgb24(void* dst, long dstStride, void* src, long srcStride, long width, long height,
                                void* palette);
TNTVT_API void tntvt_rle8_rgba32(void* dst, long dstStride, void* src, long srcStride, long width, long height,
                                 void* palette);
TNTVT_API void tntvt_rle8_rgb32(void* dst, long dstStride, void* src, long srcStride, long width, long height,
                                void* palette);

/* 4-bit run-length images are not decoded: accepted, and nothing is done. */
TNTVT_API void tntvt_rle4_rgb24(void* dst, long dstStride, void* src, long srcStride, long width, long height,
                                void* palette);
TNTVT_API void tntvt_rle4_rgba32(void* dst, long dstStride, void* src, long srcStride, long width, long height,
                                 void* palette);
TNTVT_API void tntvt_rle4_rgb32(void* dst, long dstStride, void* src, long srcStride, long width, long height,
                                void* palette);

/* Copies a frame of 3-byte or 4-byte pixels. The bytes a pixel of each side are its stride divided by
 * `width`, truncated. No value is changed and no alpha is made.
 *
 * 4 to 3 drops the fourth byte, 3 to 4 leaves the destination's fourth byte as it was. Sides of equal
 * strides are one CopyMemoryFast of bytes a pixel x `width` x `height` bytes, a 32-bit product taken without
 * a look at `height`: slack goes along, and a frame that has it loses its last lines. 3 to 3 with different
 * strides moves 3 bytes a pixel, and any other pair with different strides a 32-bit word a pixel, whatever
 * the sizes. Line by line, lines stand at the start of their stride, the last is copied first, and a
 * `height` or `width` below 1 does nothing.
 *
 * A null `dst` or `src`, or the same buffer with the same stride on both sides, does nothing. In any other
 * call a `width` of 0 divides by zero. */
TNTVT_API void tntvt_rgba_full(void* dst, long dstStride, void* src, long srcStride, long width, long height);

TNTVT_END

#endif
