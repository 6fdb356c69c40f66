/* RGB of more than 8 bits a channel: 16 bits, and packed 10 and 12 bits. Included by <tintvert/rgb.h>. */
#ifndef TINTVERT_RGB_DEEP_H
#define TINTVERT_RGB_DEEP_H

#include <tintvert/export.h>

TNTVT_BEGIN

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

TNTVT_END

#endif
