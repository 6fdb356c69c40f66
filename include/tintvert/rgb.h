/* RGB: channel orders, depths, packed 10 and 12 bits, run-length images, frame copy. */
#ifndef TINTVERT_RGB_H
#define TINTVERT_RGB_H

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

/* `rgb48` to `rgba32`: s0, s1, s2 become s0, s1, s2, 0. Each little-endian channel is shifted down by `bits` - 8, of
 * which the low eight bits are kept; `bits` is the number of significant bits in a channel. Nothing is rounded, a value
 * of more than `bits` bits wraps, and the shift is taken modulo 32, so that `bits` below 8 gives 0 everywhere.
 *
 * Lines are right-aligned in their strides. Last line and last pixel first, each pixel read before it is written. A
 * negative `height` turns the picture upside down.
 *
 * Quirks: keeps_wrap_of_wide_values, keeps_shift_modulo_32, keeps_transparent_alpha. */
TNTVT_API void tntvt_rgb48_rgba32(void* dst, long dstStride, void* src, long srcStride, long width, long height,
                                  unsigned int bits);

/* `bgr48` to `rgba32`: s0, s1, s2 become s2, s1, s0, 0. Channels, lines and order as in tntvt_rgb48_rgba32.
 *
 * A negative `height` turns the picture upside down one line too low: the last source line goes to the line that ends
 * just before the start of `dst`, and the last destination line is not written. The lines are the low 32 bits of the
 * magnitude of `height`, as a signed number, so that 2^31 to 2^32 lines are no work.
 *
 * Quirks: keeps_wrap_of_wide_values, keeps_shift_modulo_32, keeps_transparent_alpha, keeps_flip_one_line_off,
 * keeps_signed_32_bit_count. */
TNTVT_API void tntvt_bgr48_rgba32(void* dst, long dstStride, void* src, long srcStride, long width, long height,
                                  unsigned int bits);

/* `rgba64` to `rgba32`: s0, s1, s2, s3 in the same order. Channels, lines and order as in tntvt_rgb48_rgba32. A
 * `height` below 1 does nothing.
 *
 * Quirks: keeps_wrap_of_wide_values, keeps_shift_modulo_32. */
TNTVT_API void tntvt_rgba64_rgba32(void* dst, long dstStride, void* src, long srcStride, long width, long height,
                                   unsigned int bits);

/* `argb64` to `rgba32`: s0, s1, s2, s3 become s1, s2, s3, s0. Everything else as in tntvt_rgba64_rgba32.
 *
 * Quirks: keeps_wrap_of_wide_values, keeps_shift_modulo_32. */
TNTVT_API void tntvt_argb64_rgba32(void* dst, long dstStride, void* src, long srcStride, long width, long height,
                                   unsigned int bits);

/* `abgr64` to `rgba32`: s0, s1, s2, s3 become s3, s2, s1, s0. Everything else as in tntvt_rgba64_rgba32.
 *
 * Quirks: keeps_wrap_of_wide_values, keeps_shift_modulo_32. */
TNTVT_API void tntvt_abgr64_rgba32(void* dst, long dstStride, void* src, long srcStride, long width, long height,
                                   unsigned int bits);

/* `bgra64` to `rgba32`: s0, s1, s2, s3 become s2, s1, s0, s3. Everything else as in tntvt_rgba64_rgba32.
 *
 * Quirks: keeps_wrap_of_wide_values, keeps_shift_modulo_32. */
TNTVT_API void tntvt_bgra64_rgba32(void* dst, long dstStride, void* src, long srcStride, long width, long height,
                                   unsigned int bits);

/* `rgba32` to `rgb48`: channels b0, b1, b2; b3 is not read. Each byte is shifted up by `bits` - 8, of which the low 16
 * bits are kept, little-endian. The low bits stay 0, so that at 16 bits 255 becomes 0xFF00. The shift is taken modulo
 * 32.
 *
 * Lines are right-aligned in their strides. Last line and last pixel first, each pixel read before it is written. A
 * negative `height` turns the picture upside down.
 *
 * Quirks: keeps_shift_modulo_32, keeps_low_bits_of_deep_channels_clear. */
TNTVT_API void tntvt_rgba32_rgb48(void* dst, long dstStride, void* src, long srcStride, long width, long height,
                                  unsigned int bits);

/* `rgba32` to `bgr48`: channels b2, b1, b0; b3 is not read. Channels, lines and order as in tntvt_rgba32_rgb48. A
 * negative `height` turns the picture upside down one line too low, and lines are counted, as in tntvt_bgr48_rgba32.
 *
 * Quirks: keeps_shift_modulo_32, keeps_flip_one_line_off, keeps_signed_32_bit_count,
 * keeps_low_bits_of_deep_channels_clear. */
TNTVT_API void tntvt_rgba32_bgr48(void* dst, long dstStride, void* src, long srcStride, long width, long height,
                                  unsigned int bits);

/* `rgba32` to `rgba64`: channels b0, b1, b2, b3. Channels, lines and order as in tntvt_rgba32_rgb48. A `height` below 1
 * does nothing.
 *
 * Quirks: keeps_shift_modulo_32, keeps_low_bits_of_deep_channels_clear. */
TNTVT_API void tntvt_rgba32_rgba64(void* dst, long dstStride, void* src, long srcStride, long width, long height,
                                   unsigned int bits);

/* `rgba32` to `argb64`: channels b3, b0, b1, b2. Everything else as in tntvt_rgba32_rgba64.
 *
 * Quirks: keeps_shift_modulo_32, keeps_low_bits_of_deep_channels_clear. */
TNTVT_API void tntvt_rgba32_argb64(void* dst, long dstStride, void* src, long srcStride, long width, long height,
                                   unsigned int bits);

/* `bgra32` to `rgba64`: channels b2, b1, b0, b3, each byte times 256. Everything else as in tntvt_rgba32_rgba64.
 *
 * Quirks: keeps_low_bits_of_deep_channels_clear. */
TNTVT_API void tntvt_bgra32_rgba64(void* dst, long dstStride, void* src, long srcStride, long width, long height);

/* `argb64be` (four big-endian 16-bit channels s0, s1, s2, s3) to four little-endian channels. `order` selects
 *
 *   0   s3, s2, s1, s0
 *   1   s0, s3, s2, s1
 *   2   s1, s2, s3, s0
 *   3   s0, s1, s2, s3
 *
 * and any other `order` writes nothing. The seventh argument is ignored.
 *
 * Lines are right-aligned in their strides. Last line and last pixel first, each pixel read before it is written. A
 * `height` below 1 does nothing. */
TNTVT_API void tntvt_argb64be_rgba64(void* dst, long dstStride, void* src, long srcStride, long width, long height,
                                     unsigned int ignored, unsigned int order);

/* `argb64be` to three little-endian channels. `order` 0 selects s3, s2, s1 and 2 selects s1, s2, s3; any other `order`
 * writes nothing. Everything else as in tntvt_argb64be_rgba64.
 *
 * Quirks: keeps_orders_that_write_nothing. */
TNTVT_API void tntvt_argb64be_rgb48(void* dst, long dstStride, void* src, long srcStride, long width, long height,
                                    unsigned int ignored, unsigned int order);

/* `argb64be` to four bytes: channels selected by `order` as in tntvt_argb64be_rgba64, then reduced to 8 bits by `bits`
 * as in tntvt_rgb48_rgba32. Lines and `height` as in tntvt_argb64be_rgba64.
 *
 * Quirks: keeps_wrap_of_wide_values, keeps_shift_modulo_32. */
TNTVT_API void tntvt_argb64be_rgba32(void* dst, long dstStride, void* src, long srcStride, long width, long height,
                                     unsigned int bits, unsigned int order);

/* `argb64be` to three bytes: channels selected by `order` as in tntvt_argb64be_rgb48, then reduced to 8 bits by `bits`
 * as in tntvt_rgb48_rgba32. Lines as in tntvt_argb64be_rgba64, but a negative `height` turns the picture upside down.
 *
 * Quirks: keeps_wrap_of_wide_values, keeps_shift_modulo_32, keeps_orders_that_write_nothing. */
TNTVT_API void tntvt_argb64be_rgb24(void* dst, long dstStride, void* src, long srcStride, long width, long height,
                                    unsigned int bits, unsigned int order);

/* `rgb10` (words of three 10-bit fields: field 1 in bits 31 to 22, field 2 in 21 to 12, field 3 in 11 to 2) to
 * `rgba64`.
 *
 * The fields are not spread over 16 bits. Three channels are extracted from the word w, V1 = (w >> 16) & 0xFF30, V2 =
 * (w >> 6) & 0xFF30, V3 = (w >> 4) & 0xFF30, where V3 begins two bits into field 2, and written as V3, V2, V1, 0xFFFF.
 *
 * Both frames are tight, `width` pixels a line with no gap; the strides are ignored. A `width` or `height` below 1 does
 * nothing. A non-zero `swapBytes` means big-endian words. The order of the source lines depends on both flags: with
 * big-endian words a non-zero `flipLines` reads from the bottom up, with little-endian words a zero `flipLines` does.
 * Reading up starts at line `height`, one past the last, and never reads line 0.
 *
 * Quirks: keeps_mask_and_shifts, keeps_opposite_channel_orders, keeps_flip_sense_by_byte_order,
 * keeps_start_one_line_below. */
TNTVT_API void tntvt_rgb10_rgba64(void* dst, long dstStride, void* src, long srcStride, long width, long height,
                                  unsigned char swapBytes, unsigned char flipLines);

/* `rgb10` to `rgb48`: the channels of tntvt_rgb10_rgba64 as V1, V2, V3. Frames and flags as there.
 *
 * Quirks: keeps_mask_and_shifts, keeps_opposite_channel_orders, keeps_flip_sense_by_byte_order,
 * keeps_start_one_line_below. */
TNTVT_API void tntvt_rgb10_rgb48(void* dst, long dstStride, void* src, long srcStride, long width, long height,
                                 unsigned char swapBytes, unsigned char flipLines);

/* `rgb10` to `rgba32`: the top eight bits of fields 3, 2 and 1, and 255. Frames and flags as in tntvt_rgb10_rgba64, but
 * reading up starts at line `height` - 1.
 *
 * Quirks: keeps_flip_sense_by_byte_order. */
TNTVT_API void tntvt_rgb10_rgba32(void* dst, long dstStride, void* src, long srcStride, long width, long height,
                                  unsigned char swapBytes, unsigned char flipLines);

/* `rgb12` to `bgr48`: 16-bit words with the low four bits zero, in the order of the samples. Sample n of a line is bits
 * 12n to 12n + 11 of its little-endian words, and the samples of a pixel are red, green, blue.
 *
 * Lines are at the start of their strides. The sign of `height` is ignored. A line is processed in rounds of 8 samples,
 * 12 bytes in and 16 out, each read before it is written; the round with sample 3 x `width` - 1 is the last, and is
 * read and written whole. */
TNTVT_API void tntvt_rgb12_bgr48(void* dst, long dstStride, void* src, long srcStride, long width, long height);

/* `rgb12` to `rgb48`: as tntvt_rgb12_bgr48 with the three samples of each pixel reversed.
 *
 * A round is 24 samples, 36 bytes in and 48 out, but a line makes as many as tntvt_rgb12_bgr48 makes of its rounds:
 * about three times the pixels of the line. A `width` of 8 makes 3 rounds, 108 bytes in and 144 out. Lines go from
 * first to last, each over the surplus of the one before; both buffers need room for the surplus past the last line.
 *
 * Quirks: keeps_triple_rounds. */
TNTVT_API void tntvt_rgb12_rgb48(void* dst, long dstStride, void* src, long srcStride, long width, long height);

/* `rgb12` to `rgba32`: blue, green, red by their upper eight bits, and 255; but byte 0 of the third pixel of a round is
 * the red of the round's first pixel.
 *
 * Lines are at the start of their strides. The sign of `height` is ignored. A line is processed in whole rounds of 8
 * pixels, 36 bytes in and 32 out, each read before it is written.
 *
 * Quirks: keeps_red_in_one_blue_byte. */
TNTVT_API void tntvt_rgb12_rgba32(void* dst, long dstStride, void* src, long srcStride, long width, long height);

/* Empty entry for `rgb12` to `rgb48`: returns at once and touches nothing. */
TNTVT_API void tntvt_rgb12_rgb48_sse4(void* dst, long dstStride, void* src, long srcStride, long width, long height);

/* 16-bit words to packed `rgb12`: the low 12 bits of each word, in the same order, highest bit first, three bytes for
 * two samples. tntvt_rgb12_rgb48 and its neighbours read another bit order.
 *
 * Lines are at the start of their strides. The sign of `height` is ignored. A line reads 3 x `width` samples, rounded
 * up to a multiple of 8, each just before its bits are written. Nothing is stored past `dstStride` bytes of a line, and
 * nothing at all with a stride below 1.
 *
 * Quirks: keeps_bits_behind_the_limit, keeps_two_bit_orders. */
TNTVT_API void tntvt_rgb48_12_rgb12(void* dst, long dstStride, void* src, long srcStride, long width, long height);

/* `rgb48` to packed `rgb12`: the upper 12 bits of each word. Everything else as in tntvt_rgb48_12_rgb12.
 *
 * Quirks: keeps_bits_behind_the_limit, keeps_two_bit_orders. */
TNTVT_API void tntvt_rgb48_rgb12(void* dst, long dstStride, void* src, long srcStride, long width, long height);

/* Writes one byte a line: the first byte of each destination line receives bits 4 to 11 of each 16-bit word of the
 * source line in turn and keeps those of the last, word number 3 x `width`, rounded up to a multiple of 8, less 1. The
 * rest of the line stays as it was. Lines are at the start of their strides. The sign of `height` is ignored.
 *
 * Quirks: keeps_one_byte_a_line. */
TNTVT_API void tntvt_rgb48_12_rgba32(void* dst, long dstStride, void* src, long srcStride, long width, long height);

/* Run-length coded, palette-indexed image to 3 bytes a pixel; `palette` has 3 bytes an entry. The codes are those of
 * tntvt_rle8_rgba32, with these differences: a run has c + 1 pixels; single indices are not decoded, only their code
 * and the pad are skipped, and the indices are read as codes.
 *
 * `width`, `srcStride` and `dstStride` are ignored: lines follow each other from `dst` on with no gap. The decode stops
 * after `height` ends of line; with a `height` of 0 or below only an end of bitmap stops it. Neither the end of the
 * stream nor that of the destination is checked.
 *
 * Quirks: keeps_delta_as_end, keeps_lines_end_to_end, keeps_count_wrap, keeps_one_pixel_more,
 * keeps_indices_as_codes. */
TNTVT_API void tntvt_rle8_rgb24(void* dst, long dstStride, void* src, long srcStride, long width, long height,
                                void* palette);

/* Run-length coded, palette-indexed image to 4 bytes a pixel. `palette` has 4 bytes an entry, indexed by a full byte;
 * the first three are copied, and the fourth byte of a pixel is 0.
 *
 * `src` is a stream of two-byte codes c, v: c > 0 is a run of c pixels of entry v; 0, 0 ends a line; 0, 1 ends the
 * bitmap, and so does 0, 2, whose offsets are not read; 0 and v of 3 or more is followed by v single indices, padded to
 * an even count. `width` and `srcStride` are ignored. The pixels of a line are not compared with a width, and neither
 * the end of the stream nor that of the destination is checked: the stream has to end with a code that stops the
 * decode.
 *
 * Line i of the stream goes to line `height` - 1 - i, at the start of its stride. As many lines are decoded as `height`
 * has magnitude; a negative `height` therefore writes before the start of `dst`, from line `height` - 1 down, and a
 * `height` of 0 does nothing.
 *
 * Quirks: keeps_delta_as_end, keeps_zero_alpha, keeps_lines_below_the_frame. */
TNTVT_API void tntvt_rle8_rgba32(void* dst, long dstStride, void* src, long srcStride, long width, long height,
                                 void* palette);

/* Run-length coded, palette-indexed image to 4 bytes a pixel. The same as tntvt_rle8_rgba32.
 *
 * Quirks: keeps_delta_as_end, keeps_zero_alpha, keeps_lines_below_the_frame. */
TNTVT_API void tntvt_rle8_rgb32(void* dst, long dstStride, void* src, long srcStride, long width, long height,
                                void* palette);

/* Empty entry for 4-bit run-length coded images to `rgb24`: returns at once and touches nothing. */
TNTVT_API void tntvt_rle4_rgb24(void* dst, long dstStride, void* src, long srcStride, long width, long height,
                                void* palette);

/* Empty entry for 4-bit run-length coded images to `rgba32`: returns at once and touches nothing. */
TNTVT_API void tntvt_rle4_rgba32(void* dst, long dstStride, void* src, long srcStride, long width, long height,
                                 void* palette);

/* Empty entry for 4-bit run-length coded images to `rgb32`: returns at once and touches nothing. */
TNTVT_API void tntvt_rle4_rgb32(void* dst, long dstStride, void* src, long srcStride, long width, long height,
                                void* palette);

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
