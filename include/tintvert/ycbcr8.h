/* 8-bit YCbCr: to `2vuy` from RGB and from other 8-bit layouts, planes and fields, alpha and luma planes, range.
 *
 * `2vuy` is 4:2:2 in groups of four bytes: Cb, Y of the even pixel, Cr, Y of the odd pixel. */
#ifndef TINTVERT_YCBCR8_H
#define TINTVERT_YCBCR8_H

#include <tintvert/export.h>

TNTVT_BEGIN

/* RGB (bytes ignored, R, G, B) to `2vuy`, one run of pixels, source first: four bytes a pixel in, two out.
 *
 * ITU-R BT.601 in double precision, truncated at the last step, to video range: Y 16 to 235, chroma 16 to 240, which
 * no input leaves. Chroma is sited on the even pixels by a 1-2-1 filter over odd, even, odd pixel. The filter starts
 * at 128.0 and carries the odd pixel's chroma, unrounded, from pair to pair.
 *
 * `pixels` below 1 does nothing. An odd `pixels` reads one pixel past the end and writes its last group whole. `src`
 * and `dst` may be the same memory.
 *
 * Quirks: keeps_truncation_of_grey. */
TNTVT_API void argb_to_2vuy(unsigned char* src, unsigned char* dst, int pixels);

/* RGB (B, G, R, ignored) to `2vuy`: as argb_to_2vuy, with the other byte order.
 *
 * Quirks: keeps_truncation_of_grey. */
TNTVT_API void bgra_to_2vuy(unsigned char* src, unsigned char* dst, int pixels);

/* RGB to `2vuy` by ITU-R BT.709 at full range: as argb_to_2vuy, but reading B, G, R, ignored if `bgra` is non-zero and
 * ignored, R, G, B if it is zero. Every value carries 0.5 before truncation, except the 128.0 at which the chroma
 * filter starts. Nothing is clamped: a run of pure blue reaches Cb 256 and a run of pure red Cr 256, stored as 0.
 *
 * Quirks: keeps_wrap_of_pure_blue_and_red, keeps_chroma_start_without_half. */
TNTVT_API void hd_rgb_to_2vuy(unsigned char* src, unsigned char* dst, int pixels, int bgra);

/* `rgb32` (B, G, R, alpha) to `2vuy`, a frame: one call of bgra_to_2vuy over `width` x `height` pixels, the product
 * kept to 32 bits. Both strides are ignored. Both frames are one run of pixels with no gap, so the chroma filter
 * continues across line ends, and with an odd `width` a pair spans two lines.
 *
 * Quirks: keeps_one_run_whatever_the_strides. */
TNTVT_API void tntvt_rgb32_2vuy(void* dst, long dstStride, void* src, long srcStride, long width, long height);

/* `yuv2` (Y, chroma, which is signed; Cb on even pixels, Cr on odd ones) to `2vuy`, one run of pixels, source first,
 * two bytes a pixel on both sides.
 *
 * The two bytes of each pixel are swapped and scaled from full range to video range in integers, truncating: Y x 219 /
 * 255 + 16, and (c - 1) x 224 / 254 + 16 where c is the chroma byte exclusive-or 0x80 and 0 counts as 1. So c of 1,
 * 128 and 255 become 16, 128 and 240.
 *
 * `pixels` below 1 does nothing. An odd `pixels` reads and writes nothing past the end. `src` and `dst` may be the
 * same memory.
 *
 * Quirks: keeps_zero_chroma_like_one. */
TNTVT_API void yuv2_to_2vuy(unsigned char* src, unsigned char* dst, int pixels);

/* `yuvs` to `2vuy`: as yuv2_to_2vuy with unsigned chroma, where c is the chroma byte itself.
 *
 * Quirks: keeps_zero_chroma_like_one. */
TNTVT_API void yuvs_to_2vuy(unsigned char* src, unsigned char* dst, int pixels);

/* `yuv2` to `2vuy`, a frame: yuv2_to_2vuy over `width` x `height` pixels, the product kept to 32 bits, destination
 * first. There is no stride: a frame with gaps between its lines has to be compacted first.
 *
 * Quirks: keeps_zero_chroma_like_one. */
TNTVT_API void tntvt_yuv2_2vuy(unsigned char* dst, unsigned char* src, int width, int height);

/* `yuvu` to `2vuy`, a frame. The same as tntvt_yuv2_2vuy.
 *
 * Quirks: keeps_zero_chroma_like_one. */
TNTVT_API void tntvt_yuvu_2vuy(unsigned char* dst, unsigned char* src, int width, int height);

/* `yuvs` to `2vuy`, a frame: yuvs_to_2vuy over `width` x `height` pixels, as tntvt_yuv2_2vuy.
 *
 * Quirks: keeps_zero_chroma_like_one. */
TNTVT_API void tntvt_yuvs_2vuy(unsigned char* dst, unsigned char* src, int width, int height);

/* `yuv444` (Y, Cb, Cr, 3 bytes a pixel) to `2vuy`, without arithmetic: the chroma of odd pixels is dropped.
 *
 * Both frames are one run of `width` x `height` pixels; `stride` is ignored. With an odd product the last group is
 * processed whole: one byte past the end is read, and 4 bytes are written. `width` x `height` x 3 is kept to 32 bits,
 * and 0 does nothing. Not for use in place: each byte is stored before the next is read.
 *
 * Quirks: keeps_frames_of_444_unbroken, keeps_store_before_load_of_444. */
TNTVT_API void tntvt_yuv444_yuv422_8(unsigned char* dst, unsigned char* src, unsigned int width, unsigned int height,
                                     unsigned int stride);

/* `2vuy` to `yuv444`, without arithmetic: the chroma of a pair is repeated.
 *
 * Both frames are one run of `width` x `height` pixels; `stride` is ignored. With an odd product the last group is
 * processed whole: 4 bytes are read, and 3 bytes are written past the end. `width` x `height` x 3 is kept to 32 bits,
 * and 0 does nothing. Not for use in place: each byte is stored before the next is read.
 *
 * Quirks: keeps_frames_of_444_unbroken, keeps_store_before_load_of_444. */
TNTVT_API void tntvt_yuv422_yuv444_8(unsigned char* dst, unsigned char* src, unsigned int width, unsigned int height,
                                     unsigned int stride);

/* Empty entry for 4:1:1 to 4:2:2: returns at once and touches nothing.
 *
 * Quirks: keeps_empty_subsampled_entries. */
TNTVT_API void tntvt_yuv411_yuv422_8(unsigned char*, unsigned char*, unsigned int, unsigned int, unsigned int);

/* Empty entry for 4:2:2 to 4:1:1: returns at once and touches nothing.
 *
 * Quirks: keeps_empty_subsampled_entries. */
TNTVT_API void tntvt_yuv422_yuv411_8(unsigned char*, unsigned char*, unsigned int, unsigned int, unsigned int);

/* Empty entry for 4:2:0 to 4:2:2: returns at once and touches nothing.
 *
 * Quirks: keeps_empty_subsampled_entries. */
TNTVT_API void tntvt_yuv420_yuv422_8(unsigned char*, unsigned char*, unsigned int, unsigned int, unsigned int);

/* Empty entry for 4:2:2 to 4:2:0: returns at once and touches nothing.
 *
 * Quirks: keeps_empty_subsampled_entries. */
TNTVT_API void tntvt_yuv422_yuv420_8(unsigned char*, unsigned char*, unsigned int, unsigned int, unsigned int);

/* Empty entry for 4:2:0 to 4:1:1: returns at once and touches nothing.
 *
 * Quirks: keeps_empty_subsampled_entries. */
TNTVT_API void tntvt_yuv420_yuv411_8(unsigned char*, unsigned char*, unsigned int, unsigned int, unsigned int);

/* Empty entry for 4:1:1 to 4:2:0: returns at once and touches nothing.
 *
 * Quirks: keeps_empty_subsampled_entries. */
TNTVT_API void tntvt_yuv411_yuv420_8(unsigned char*, unsigned char*, unsigned int, unsigned int, unsigned int);

/* Planes of 4:2:2 to `2vuy`. `count` is the number of luma samples; an odd last one is dropped, and below 2 nothing is
 * done. Planes and packed frame have no gaps. The three unnamed numbers are ignored; they are not strides.
 *
 * Quirks: keeps_planes_without_lines. */
TNTVT_API void tntvt_planar_2vuy(unsigned char* dst, unsigned char* y, unsigned char* cb, unsigned char* cr,
                                 unsigned int, unsigned int, unsigned int, unsigned int count);

/* `2vuy` to planes of 4:2:2. `count` and the unnamed numbers as in tntvt_planar_2vuy.
 *
 * Quirks: keeps_planes_without_lines. */
TNTVT_API void tntvt_2vuy_planar(unsigned char* y, unsigned char* cb, unsigned char* cr, unsigned int, unsigned int,
                                 unsigned int, unsigned char* src, unsigned int count);

/* Two fields of 4:2:2 planes interleaved into one `2vuy` frame: a line of the first field, a line of the second, and
 * so on with no gap. `groups` is the number of 4-byte groups in a line, half the width; `total` is groups times lines
 * of the whole frame. (`total` / 2) / `groups` pairs of lines are written and the rest is dropped. A `groups` of 0
 * divides by zero. The three unnamed numbers are ignored; they are not strides.
 *
 * Quirks: keeps_planes_without_lines, keeps_fault_of_no_groups. */
TNTVT_API void tntvt_planarfields_2vuy(unsigned char* dst, unsigned char* y1, unsigned char* cb1, unsigned char* cr1,
                                       unsigned char* y2, unsigned char* cb2, unsigned char* cr2, unsigned int,
                                       unsigned int, unsigned int, unsigned int groups, unsigned int total);

/* `i420` (4:2:0 in one buffer: luma, then Cb, then Cr) to `2vuy`. The Cb plane begins `width` x `height` bytes into
 * `src`, and the Cr plane a quarter of that, rounded down, after it. A chroma line serves two lines; nothing is
 * interpolated.
 *
 * `stride` is that of `dst`, whose lines are at its start; 0 and 0xFFFFFFFF mean `width` x 2. Sizes and line offsets
 * are kept to 32 bits. A `width` or `height` of 0 does nothing.
 *
 * An odd `width` processes the last group of a line whole: 2 bytes past the end of the line are written. Luma lines
 * are then taken `width` + 1 samples apart, so that the last one extends `height` samples into the chroma.
 *
 * Quirks: keeps_long_luma_lines_of_odd_width. */
TNTVT_API void tntvt_i420_2vuy(unsigned char* dst, unsigned char* src, unsigned int width, unsigned int height,
                               unsigned int stride);

/* `yv12` to `2vuy`: as tntvt_i420_2vuy, with Cr before Cb. A non-zero `interlaced` reads the lines in this order:
 *
 *     output line   0  1  2  3  4  5  6  7   even r, 4 and above   odd r, 3 and above
 *     luma line     0  2  3  2  3  4  5  6   r - 1                 r - 1
 *     chroma line   0  1  1  0  2  1  3  2   r / 2                 (r - 1) / 2 - 1
 *
 * There luma line 1 is never read, and neither is the last one of a frame of 5 lines or more. A frame of 2 or 3 lines
 * reads one line of luma past its last. Even lines continue in luma where the line before ended; odd lines start at a
 * multiple of `width`.
 *
 * Quirks: keeps_long_luma_lines_of_odd_width, keeps_interlaced_line_order. */
TNTVT_API void tntvt_yv12_2vuy(unsigned char* dst, unsigned char* src, unsigned int width, unsigned int height,
                               unsigned int stride, unsigned char interlaced);

/* `2vuy` to `i420`. Chroma is taken from lines 0, 2, 4 ... and dropped from the others; planes as in
 * tntvt_i420_2vuy.
 *
 * `stride` is that of `src`, whose lines are at its start; 0 and 0xFFFFFFFF mean `width` x 2. A line is its whole
 * stride in groups of 4 bytes: slack goes into the planes as if it were pixels, and a `stride` above `width` x 2 makes
 * luma run into chroma. Pass exactly `width` x 2, or 0. The planes are filled without gaps; where luma and chroma
 * overlap, the chroma of a group is stored after its luma. A `height` of 0 and a stride that comes to 0 do nothing.
 *
 * Quirks: keeps_slack_as_pixels. */
TNTVT_API void tntvt_2vuy_i420(unsigned char* dst, unsigned char* src, unsigned int width, unsigned int height,
                               unsigned int stride);

/* `2vuy` to `yv12`: as tntvt_2vuy_i420, with Cr before Cb.
 *
 * Quirks: keeps_slack_as_pixels. */
TNTVT_API void tntvt_2vuy_yv12(unsigned char* dst, unsigned char* src, unsigned int width, unsigned int height,
                               unsigned int stride);

/* `YUY2` (Y, chroma, Y, chroma) to three 4:2:0 planes, source first. The chroma of two lines is averaged, halves
 * rounded up; luma is copied.
 *
 * `srcPitch` counts pixels: source lines are 2 x `srcPitch` bytes apart. `y` lines are `dstPitch` bytes apart, `cb`
 * and `cr` lines half of that. Distances are `int` and wrap at 32 bits. A `width` or `height` below 1 does nothing.
 *
 * An odd `height` processes its last line as a pair: one line past the end is read and written. An odd `width`
 * processes its last group whole, one pixel past the end, and places each further pair of lines 2 bytes later in the
 * source and 1 byte later in `y` (and in `cb` and `cr` if `dstPitch` is odd) than the pitches say.
 *
 * Quirks: keeps_drift_of_odd_width. */
TNTVT_API void YUY2toYV12(unsigned char* src, unsigned char* y, unsigned char* cb, unsigned char* cr, int width,
                          int height, int srcPitch, int dstPitch);

/* `alphay` (one byte a pixel) to `2yuv` (chroma, luma, chroma, luma) with neutral chroma, 0x80. Returns 0.
 *
 * Lines are right-aligned in their strides on both sides. Last line and last pair first, so that a frame may grow in
 * place. An odd last pixel is dropped; a `width` below 2 or a `height` below 1 does nothing.
 *
 * Quirks: keeps_lines_at_end_of_stride. */
TNTVT_API int tntvt_alphay_to_2yuv(void* dst, long dstStride, void* src, long srcStride, long width, long height);

/* The luma of a `2yuv` frame as `alphay`. Returns 0.
 *
 * Lines are at the start of their strides. `height` + 1 lines are processed: one for a `height` of 0, none for a
 * negative one. An odd last pixel is dropped; a `width` below 2 does nothing. Works in place.
 *
 * Quirks: keeps_one_line_more. */
TNTVT_API int tntvt_2yuv_to_alphay(void* dst, long dstStride, void* src, long srcStride, long width, long height);

/* A `2yuv` frame with its luma kept and its chroma set to 0x80. Returns 0. Lines, their number, odd widths and in-place
 * use as in tntvt_2yuv_to_alphay.
 *
 * Quirks: keeps_one_line_more. */
TNTVT_API int tntvt_2yuv_strip_chroma(void* dst, long dstStride, void* src, long srcStride, long width, long height);

/* An alpha plane to `rgba`, each sample in all four bytes of its pixel. The pitch of the plane is `width`; the
 * stride of the `rgba` side is the fourth argument, and the second is ignored. Returns 0.
 *
 * Lines are at the start of their strides. A `width` or `height` below 1 does nothing. Not for use in place. */
TNTVT_API int tntvt_alpha_to_rgba(void* dst, long, void* src, long dstStride, long width, long height);

/* Byte 0 of each `rgba` pixel as an alpha plane; tntvt_rgba_setalpha and tntvt_rgba_addalpha write byte 3. The
 * pitch of the plane is `width`; the stride of the `rgba` side is the fourth argument, and the second is ignored.
 * Returns 0.
 *
 * Lines are at the start of their strides. A `width` or `height` below 1 does nothing. Works in place.
 *
 * Quirks: keeps_first_byte_as_alpha. */
TNTVT_API int tntvt_rgba_to_alpha(void* dst, long, void* src, long srcStride, long width, long height);

/* Stores the low byte of `alpha` in byte 3 of each pixel and touches no other byte. Returns 0. Lines are at the start
 * of their strides. A `width` or `height` below 1 does nothing. */
TNTVT_API int tntvt_rgba_setalpha(void* dst, long dstStride, unsigned int alpha, long width, long height);

/* Three bytes a pixel to four, source first: bytes 0 to 2 as they are, the low byte of `alpha` in byte 3. Returns 0.
 *
 * Lines are at the start of their strides. Last line first, but first pixel first, so not for use in place. A `width`
 * of 0 or a `height` below 1 does nothing; a negative `width` counts as unsigned, 2^31 pixels and more.
 *
 * Quirks: keeps_negative_width_as_unsigned. */
TNTVT_API int tntvt_rgba_addalpha(void* src, void* dst, long srcStride, long dstStride, unsigned int alpha, int width,
                                  int height);

/* Removes isolated errors in the second luma of the pairs of one `2yuv` line, in place. Returns 0.
 *
 * Mode 1 averages the second luma with the first in every pair, truncating. In modes 2 to 6 the first luma of a pair,
 * `prev`, and that of the next, `cur`, are references: where they differ by less than 8 and the second luma `t`
 * between them differs from `prev` by 11 or more, `t` is replaced. Other modes do nothing. No byte is stored but a
 * second luma, and in modes 2 to 6 only one that is replaced.
 *
 *     mode   replacement        where
 *     2      prev               `prev` below 128
 *     3      prev               everywhere
 *     4      (t + prev) >> 1    `prev` below 128
 *     5      (t + prev) >> 1    everywhere
 *     6      (cur + prev) >> 1  everywhere
 *
 * `bytes` below 2 does nothing. Mode 1 processes its last pair whole, up to index `bytes` + 1. The others run one
 * round past the end: they read up to index `bytes` + 3 and write up to index `bytes` + 1.
 *
 * Quirks: keeps_round_past_the_end. */
TNTVT_API int tntvt_2yuv_average_2y(void* buf, unsigned int bytes, int mode);

/* Scales a `2vuy` buffer in place by tables: from full to video range if `up` is zero, else from video to full range.
 *
 * Down is i x 219 / 255 + 16 for luma and i x 224 / 254 + 16 for chroma, where 255 becomes 241. Up uses the tables
 * the other way round: chroma bytes take the luma rule, 256 x (i - 16) / 220 + 0.5, and luma bytes the chroma rule,
 * 256 x (i - 16) / 225 + 0.5, each clamped to 0 and 255. Up is not the inverse of down: a chroma of 128 stays 128
 * going down and becomes 130 going up.
 *
 * A `bytes` that is no multiple of 4 processes its last group whole, up to 3 bytes past the end. The tables are filled
 * on the first call. While several threads make their first calls at once, a chroma of 255 may for a moment become
 * 240.
 *
 * Quirks: keeps_divisors_one_above_the_span, keeps_241_for_chroma_255, keeps_exchanged_tables_going_up. */
TNTVT_API void tntvt_2vuy_scale(unsigned char* buffer, unsigned int bytes, unsigned int up);

TNTVT_END

#endif
