/* RGB of 8 bits a channel: orders of 32-bit pixels, 24 and 16-bit pixels, frame copy. Included by <tintvert/rgb.h>. */
#ifndef TINTVERT_RGB_8BIT_H
#define TINTVERT_RGB_8BIT_H

#include <tintvert/export.h>

TNTVT_BEGIN

/* 32-bit pixels b0, b1, b2, b3 (lowest address first) to b1, b2, b3, b0: one run, destination first.
 *
 * The letters in the names of this routine and the ten that follow are the bytes of the word from the most significant
 * down, and do not say what a routine does: read its comment.
 *
 * First pixel first, and each pixel is read whole before it is written. In place the result is the same as with two
 * buffers; where the runs overlap otherwise, a later read sees earlier writes. `pixels` of 0 does nothing. */
TNTVT_API void rgba2argb(unsigned char* dst, unsigned char* src, unsigned int pixels);

/* 32-bit pixels b0, b1, b2, b3 to b1, b2, b3, b0. The same as rgba2argb. */
TNTVT_API void bgra2abgr(unsigned char* dst, unsigned char* src, unsigned int pixels);

/* 32-bit pixels b0, b1, b2, b3 to b1, b2, b3, b0. The same as rgba2argb. */
TNTVT_API void bgra2abgrMMX(unsigned char* dst, unsigned char* src, unsigned int pixels);

/* 32-bit pixels b0, b1, b2, b3 to b1, b2, b3, b0. The same as rgba2argb. It rotates in the opposite direction to
 * abgr2bgra, and each undoes the other.
 *
 * Quirks: keeps_kernels_that_rotate_apart. */
TNTVT_API void abgr2bgraMMX(unsigned char* dst, unsigned char* src, unsigned int pixels);

/* 32-bit pixels b0, b1, b2, b3 to b3, b0, b1, b2, one run; order and overlap as in rgba2argb. */
TNTVT_API void argb2rgba(unsigned char* dst, unsigned char* src, unsigned int pixels);

/* 32-bit pixels b0, b1, b2, b3 to b3, b0, b1, b2. The same as argb2rgba. It rotates in the opposite direction to
 * abgr2bgraMMX, and each undoes the other.
 *
 * Quirks: keeps_kernels_that_rotate_apart. */
TNTVT_API void abgr2bgra(unsigned char* dst, unsigned char* src, unsigned int pixels);

/* 32-bit pixels b0, b1, b2, b3 to b3, b2, b1, b0, one run; order and overlap as in rgba2argb. */
TNTVT_API void bgra2argb(unsigned char* dst, unsigned char* src, unsigned int pixels);

/* 32-bit pixels b0, b1, b2, b3 to b3, b2, b1, b0. The same as bgra2argb. */
TNTVT_API void argb2bgra(unsigned char* dst, unsigned char* src, unsigned int pixels);

/* 32-bit pixels b0, b1, b2, b3 to b2, b1, b0, b3, one run; order and overlap as in rgba2argb. */
TNTVT_API void abgr2argb(unsigned char* dst, unsigned char* src, unsigned int pixels);

/* 32-bit pixels b0, b1, b2, b3 to b2, b1, b0, b3. The same as abgr2argb. */
TNTVT_API void argb2abgr(unsigned char* dst, unsigned char* src, unsigned int pixels);

/* 32-bit pixels b0, b1, b2, b3 to b2, b1, b0, b3. The same as abgr2argb. */
TNTVT_API void bgra2rgba(unsigned char* dst, unsigned char* src, unsigned int pixels);

/* `rgba32` to `bgra32`, a frame: b0, b1, b2, b3 become b2, b1, b0, b3.
 *
 * Lines are at the start of their strides. The sign of `height` is ignored. In place, with equal strides, the result is
 * the same as with two frames. */
TNTVT_API void tntvt_rgba32_bgra32_inplace(void* dst, long dstStride, void* src, long srcStride, long width,
                                           long height);

/* `rgb32` to `bgr32`, a frame. The same as tntvt_rgba32_bgra32_inplace. */
TNTVT_API void tntvt_rgb32_bgr32_inplace(void* dst, long dstStride, void* src, long srcStride, long width, long height);

/* `rgba32` to `abgr32`, a frame: b0, b1, b2, b3 become b3, b2, b1, b0. Lines, `height` and in-place use as in
 * tntvt_rgba32_bgra32_inplace. */
TNTVT_API void tntvt_rgba32_abgr32_inplace(void* dst, long dstStride, void* src, long srcStride, long width,
                                           long height);

/* `rgba32` to `argb32`, a frame: b0, b1, b2, b3 become b1, b2, b3, b0. Lines, `height` and in-place use as in
 * tntvt_rgba32_bgra32_inplace. */
TNTVT_API void tntvt_rgba32_argb32(void* dst, long dstStride, void* src, long srcStride, long width, long height);

/* The alpha byte b3 of each pixel as a 32-bit number, plus 1 where b2 and b1 are 0 and b0 is below 8. The colours are
 * lost, and a b3 of 255 can become 256, the bytes 0, 1, 0, 0. This is no rotation and does not undo
 * tntvt_rgba32_argb32; argb2rgba does.
 *
 * Lines, `height` and in-place use as in tntvt_rgba32_bgra32_inplace.
 *
 * Quirks: keeps_counted_alpha. */
TNTVT_API void tntvt_argb32_rgba32(void* dst, long dstStride, void* src, long srcStride, long width, long height);

/* `rgba32` to `rgb24`: b0, b1, b2 packed; b3 is not read.
 *
 * Lines are at the start of their strides. The sign of `height` is ignored. First line and first pixel first, one byte
 * at a time: in place the result is the same as with two frames if `dstStride` is not above `srcStride`. */
TNTVT_API void tntvt_rgba32_rgb24(void* dst, long dstStride, void* src, long srcStride, long width, long height);

/* `rgba32` to `rgb24`. The same as tntvt_rgba32_rgb24. */
TNTVT_API void tntvt_rgba32_rgb24_inplace(void* dst, long dstStride, void* src, long srcStride, long width,
                                          long height);

/* `rgb32` to `rgb24`. The same as tntvt_rgba32_rgb24. */
TNTVT_API void tntvt_rgb32_rgb24_inplace(void* dst, long dstStride, void* src, long srcStride, long width, long height);

/* `rgb32` to `rgb24`. The same as tntvt_rgba32_rgb24. */
TNTVT_API void tntvt_rgb32_rgb24(void* dst, long dstStride, void* src, long srcStride, long width, long height);

/* `rgba32` to `bgr24`: b2, b1, b0 packed; b3 is not read.
 *
 * Lines are at the start of their strides. The sign of `height` is ignored. First line and first pixel first; b0 is
 * stored before b1 is read, and b1 before b2.
 *
 * Only the frame's first pixel is read whole before it is written. In place at strides of `width` x 3 and `width` x 4
 * the middle byte of pixel 1 of line 0 is b0 and not b1. In place with equal strides every line has that, and every
 * line but line 0 also has b0 and not b2 in the first byte of its pixel 0.
 *
 * Quirks: keeps_guard_of_first_pixel_only. */
TNTVT_API void tntvt_rgba32_bgr24_inplace(void* dst, long dstStride, void* src, long srcStride, long width,
                                          long height);

/* `rgb32` to `bgr24`. The same as tntvt_rgba32_bgr24_inplace.
 *
 * Quirks: keeps_guard_of_first_pixel_only. */
TNTVT_API void tntvt_rgb32_bgr24_inplace(void* dst, long dstStride, void* src, long srcStride, long width, long height);

/* `rgba32` to `rgb24`, upside down: source line i goes to destination line `height` - 1 - i, as b0, b1, b2 packed; b3
 * is not read. Lines are at the start of their strides. Not for use in place.
 *
 * A negative `height` converts as many lines as its magnitude, but with its sign in the addresses: to line `height` - 1
 * and those before it, all before the start of `dst`.
 *
 * Quirks: keeps_signed_height_in_addresses. */
TNTVT_API void tntvt_rgba32_rgb24_invert(void* dst, long dstStride, void* src, long srcStride, long width, long height);

/* `rgb24` to `rgba32`: s0, s1, s2 become s0, s1, s2, 255.
 *
 * Lines are right-aligned in their strides; slack is before the pixels and is neither read nor written. The sign of
 * `height` is ignored. Last line and last pixel first, one byte at a time, lowest byte first.
 *
 * In place at strides of `width` x 4 and `width` x 3, bytes 1 and 2 of pixel 1 and byte 2 of the pixel after it in
 * memory come out wrong; all others are as with two frames.
 *
 * Quirks: keeps_ascending_writes_in_place. */
TNTVT_API void tntvt_rgb24_rgba32(void* dst, long dstStride, void* src, long srcStride, long width, long height);

/* `rgb24` to `rgba32`. The same as tntvt_rgb24_rgba32.
 *
 * Quirks: keeps_ascending_writes_in_place. */
TNTVT_API void tntvt_rgb24_rgba32_inplace(void* dst, long dstStride, void* src, long srcStride, long width,
                                          long height);

/* `rgb24` to `rgb32`. The same as tntvt_rgb24_rgba32.
 *
 * Quirks: keeps_ascending_writes_in_place. */
TNTVT_API void tntvt_rgb24_rgb32_inplace(void* dst, long dstStride, void* src, long srcStride, long width, long height);

/* `rgb24` to `rgb32`. The same as tntvt_rgb24_rgba32.
 *
 * Quirks: keeps_ascending_writes_in_place. */
TNTVT_API void tntvt_rgb24_rgb32(void* dst, long dstStride, void* src, long srcStride, long width, long height);

/* `rgb24` to `bgra32`: s0, s1, s2 become s2, s1, s0, 255.
 *
 * Lines are right-aligned in their strides. The sign of `height` is ignored. Last line and last pixel first; byte 2 is
 * stored first, then 1, 0 and 3.
 *
 * In place at strides of `width` x 4 and `width` x 3, byte 0 of the first two pixels in memory comes out wrong; all
 * others are as with two frames.
 *
 * Quirks: keeps_descending_writes_in_place. */
TNTVT_API void tntvt_rgb24_bgra32_inplace(void* dst, long dstStride, void* src, long srcStride, long width,
                                          long height);

/* `rgb24` to `bgr32`. The same as tntvt_rgb24_bgra32_inplace.
 *
 * Quirks: keeps_descending_writes_in_place. */
TNTVT_API void tntvt_rgb24_bgr32_inplace(void* dst, long dstStride, void* src, long srcStride, long width, long height);

/* `rgb16` (x1 r5 g5 b5, the top bit ignored) to `rgba32`: blue, green, red, 255, with the five bits at the top of each
 * byte. The low three bits are 0, so that 31 becomes 248.
 *
 * Lines are right-aligned in their strides. The sign of `height` is ignored. Last line and last pixel first; in place
 * at strides of `width` x 4 and `width` x 2 the result is the same as with two frames.
 *
 * Quirks: keeps_low_bits_of_rgb16_clear. */
TNTVT_API void tntvt_rgb16_rgba32(void* dst, long dstStride, void* src, long srcStride, long width, long height);

/* `rgb16` to `rgba32`. The same as tntvt_rgb16_rgba32.
 *
 * Quirks: keeps_low_bits_of_rgb16_clear. */
TNTVT_API void tntvt_rgb16_rgba32_inplace(void* dst, long dstStride, void* src, long srcStride, long width,
                                          long height);

/* `rgb16` to `rgb32`. The same as tntvt_rgb16_rgba32.
 *
 * Quirks: keeps_low_bits_of_rgb16_clear. */
TNTVT_API void tntvt_rgb16_rgb32_inplace(void* dst, long dstStride, void* src, long srcStride, long width, long height);

/* `rgb16` to `rgb32`. The same as tntvt_rgb16_rgba32.
 *
 * Quirks: keeps_low_bits_of_rgb16_clear. */
TNTVT_API void tntvt_rgb16_rgb32(void* dst, long dstStride, void* src, long srcStride, long width, long height);

/* `macbgr24` to `macargb32`: s0, s1, s2 become 255, s0, s1, s2.
 *
 * Lines are right-aligned in their strides. A `height` below 1 does nothing. Last line and last pixel first; in place
 * at strides of `width` x 4 and `width` x 3 the result is the same as with two frames. */
TNTVT_API void tntvt_macbgr24_macargb32_inplace(void* dst, long dstStride, void* src, long srcStride, long width,
                                                long height);

/* 24-bit pixels s0, s1, s2 to s0, s1, s2, 255, upside down.
 *
 * The first pointer is read and the third is written, and the stride after each belongs to the other. Written line i
 * ends just before `dst` + i x `dstStride`, and comes from the line that ends just before `src` + (`height` - 1 - i) x
 * `srcStride`, with the sign of `height`. So the first written line and the last line read are before the start of
 * their pointers: pass each pointer one stride past the first byte of its frame.
 *
 * Quirks: keeps_crossed_pointers. */
TNTVT_API void tntvt_rgba24_rgb32_invert(void* src, long dstStride, void* dst, long srcStride, long width, long height);

/* Empty entry for `rgb8` to `rgb32`: returns at once and touches nothing.
 *
 * Quirks: keeps_empty_entries. */
TNTVT_API void tntvt_rgb8_rgb32(void* dst, long dstStride, void* src, long srcStride, long width, long height);

/* Empty entry for `rgb8` to `rgba32`: returns at once and touches nothing.
 *
 * Quirks: keeps_empty_entries. */
TNTVT_API void tntvt_rgb8_rgba32(void* dst, long dstStride, void* src, long srcStride, long width, long height);

/* Empty entry for `rgb16` to `rgb24`: returns at once and touches nothing.
 *
 * Quirks: keeps_empty_entries. */
TNTVT_API void tntvt_rgb16_rgb24(void* dst, long dstStride, void* src, long srcStride, long width, long height);

/* Empty entry for `rgb32` to `rgb16`: returns at once and touches nothing.
 *
 * Quirks: keeps_empty_entries. */
TNTVT_API void tntvt_rgb32_rgb16(void* dst, long dstStride, void* src, long srcStride, long width, long height);

/* Empty entry for `rgb32` to 16 bits, 5-6-5: returns at once and touches nothing.
 *
 * Quirks: keeps_empty_entries. */
TNTVT_API void tntvt_rgb32_rgb16_565(void* dst, long dstStride, void* src, long srcStride, long width, long height);

/* Empty entry for `rgb32` to `rgb16`, dithered: returns at once and touches nothing.
 *
 * Quirks: keeps_empty_entries. */
TNTVT_API void tntvt_rgb32_rgb16_dithered(void* dst, long dstStride, void* src, long srcStride, long width,
                                          long height);

/* Empty entry for `rgb32` to 16 bits, 5-6-5, dithered: returns at once and touches nothing.
 *
 * Quirks: keeps_empty_entries. */
TNTVT_API void tntvt_rgb32_rgb16_565_dithered(void* dst, long dstStride, void* src, long srcStride, long width,
                                              long height);

/* Empty entry for `rgb32` to `rgb32`: returns at once and touches nothing.
 *
 * Quirks: keeps_empty_entries. */
TNTVT_API void tntvt_rgb32_rgb32(void* dst, long dstStride, void* src, long srcStride, long width, long height);

/* Empty entry for `rgba32` to `rgb16`: returns at once and touches nothing.
 *
 * Quirks: keeps_empty_entries. */
TNTVT_API void tntvt_rgba32_rgb16(void* dst, long dstStride, void* src, long srcStride, long width, long height);

/* Copies a frame of 3-byte or 4-byte pixels. The bytes a pixel of each side are its stride divided by `width`,
 * truncated. No value is changed and no alpha is made: 4 to 3 drops the fourth byte, 3 to 4 leaves the destination's
 * fourth byte as it was.
 *
 * Sides of equal strides are one CopyMemoryFast of bytes a pixel x `width` x `height` bytes, a 32-bit product with
 * `height` unchecked: slack is copied too, and a frame that has it loses its last lines. With different strides it
 * copies line by line, from the last to the first, each at the start of its stride: 3 to 3 moves 3 bytes a pixel, and 4
 * to 4 and every other pair a 32-bit word a pixel, whatever the sizes. A `height` or `width` below 1 does nothing
 * there.
 *
 * A null `dst` or `src`, or the same buffer with the same stride on both sides, does nothing. In any other call a
 * `width` of 0 divides by zero.
 *
 * Quirks: keeps_block_of_pixels, keeps_division_first, keeps_words_for_other_sizes. */
TNTVT_API void tntvt_rgba_full(void* dst, long dstStride, void* src, long srcStride, long width, long height);

TNTVT_END

#endif
