/* RGB: channel orders, depths, packed 10 and 12 bits, run-length images, frame copy. */
#ifndef TINTVERT_RGB_H
#define TINTVERT_RGB_H

#include <tintvert/export.h>

TNTVT_BEGIN

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
 * samples, rounded up to a multiple of 8. It never stores behind `dstStride` bytes, whatever its length, and
 * nothing at all in a stride below 1. The sign of `height` says nothing. */
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

/* These do nothing. */
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
