/* 8-bit YCbCr: into `2vuy` from RGB and from other 8-bit layouts, planes and fields, alpha and luma planes,
 * and range.
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

/* 4:2:2 planes to `2vuy` and back. `count` is the number of luma samples; an odd last one is dropped, and
 * below 2 nothing is done. Planes and packed frame are unbroken runs. The three unnamed numbers are ignored:
 * they are no strides. */
TNTVT_API void tntvt_planar_2vuy(unsigned char* dst, unsigned char* y, unsigned char* cb, unsigned char* cr,
                                 unsigned int, unsigned int, unsigned int, unsigned int count);
TNTVT_API void tntvt_2vuy_planar(unsigned char* y, unsigned char* cb, unsigned char* cr, unsigned int, unsigned int,
                                 unsigned int, unsigned char* src, unsigned int count);

/* Two fields of 4:2:2 planes woven into one `2vuy` frame: a line of the first field, a line of the second,
 * and so on with no gap. `groups` is the number of 4-byte groups in a line, half the width; `total` is groups
 * times lines of the whole frame. (`total` / 2) / `groups` pairs of lines are written, what is left over is
 * dropped, and a `groups` of 0 divides by zero. The three unnamed numbers are ignored. */
TNTVT_API void tntvt_planarfields_2vuy(unsigned char* dst, unsigned char* y1, unsigned char* cb1, unsigned char* cr1,
                                       unsigned char* y2, unsigned char* cb2, unsigned char* cr2, unsigned int,
                                       unsigned int, unsigned int, unsigned int groups, unsigned int total);

/* `i420` and `yv12` (4:2:0 in one buffer: luma, then Cb and Cr, in `yv12` Cr and Cb) to `2vuy`. The first
 * chroma plane begins `width` x `height` bytes into `src` and the second a quarter of that, rounded down,
 * later; a chroma line serves two lines, and nothing is interpolated.
 *
 * `stride` is that of `dst`, whose lines stand at its start; 0 and 0xFFFFFFFF mean `width` x 2. Sizes and line
 * offsets are kept to 32 bits. A `width` or `height` of 0 writes nothing.
 *
 * An odd `width` runs the last group of a line whole: 2 bytes past the line are written, and luma lines are
 * taken `width` + 1 samples apart, so that the last of them reaches `height` samples into the chroma.
 *
 * `interlaced`, of which zero means progressive, gives the lines of a `yv12` frame an order of their own:
 *
 *     output line   0  1  2  3  4  5  6  7   even r, 4 and above   odd r, 3 and above
 *     luma line     0  2  3  2  3  4  5  6   r - 1                 r - 1
 *     chroma line   0  1  1  0  2  1  3  2   r / 2                 (r - 1) / 2 - 1
 *
 * Luma line 1 is never read, and neither is the last one of a frame of 5 lines or more. A frame of 2 or 3
 * lines reads one line of luma more than it has. Even lines go on in luma where the line before ended; odd
 * lines are found at a multiple of `width`. */
TNTVT_API void tntvt_i420_2vuy(unsigned char* dst, unsigned char* src, unsigned int width, unsigned int height,
                               unsigned int stride);
TNTVT_API void tntvt_yv12_2vuy(unsigned char* dst, unsigned char* src, unsigned int width, unsigned int height,
                               unsigned int stride, unsigned char interlaced);

/* `2vuy` to `i420` and `yv12`, planes as above. Chroma is taken from lines 0, 2, 4 ... and dropped from the
 * others.
 *
 * `stride` is that of `src`, whose lines stand at its start; 0 and 0xFFFFFFFF mean `width` x 2. A line is all
 * of its stride, in whole groups of 4 bytes: slack goes into the planes as if it were pixels, and a `stride`
 * above `width` x 2 makes luma run on into chroma. Pass exactly `width` x 2, or 0. Each plane is filled
 * without gaps; where luma and chroma meet, the chroma of a group is stored after its luma. A `height` of 0
 * and a stride that comes to 0 do nothing. */
TNTVT_API void tntvt_2vuy_i420(unsigned char* dst, unsigned char* src, unsigned int width, unsigned int height,
                               unsigned int stride);
TNTVT_API void tntvt_2vuy_yv12(unsigned char* dst, unsigned char* src, unsigned int width, unsigned int height,
                               unsigned int stride);

/* `YUY2` (Y, chroma, Y, chroma) to three 4:2:0 planes. The chroma of two lines is averaged, halves rounded
 * up; luma is copied. Source first.
 *
 * `srcPitch` counts pixels, so source lines are 2 x `srcPitch` bytes apart. `y` lines are `dstPitch` bytes
 * apart, `cb` and `cr` lines half of that. Distances are `int` and wrap at 32 bits. A `width` or `height` below
 * 1 does nothing.
 *
 * An odd `height` takes its last line as a pair: one line beyond it is read and written. An odd `width` takes
 * its last group whole, one pixel beyond, and makes the lines of each further pair stand 2 bytes later in the
 * source and 1 byte later in `y` (and in `cb` and `cr` if `dstPitch` is odd) than the pitches say. */
TNTVT_API void YUY2toYV12(unsigned char* src, unsigned char* y, unsigned char* cb, unsigned char* cr, int width,
                          int height, int srcPitch, int dstPitch);

/* `alphay` (one byte a pixel) to `2yuv` (chroma, luma, chroma, luma) with neutral chroma, 0x80.
 *
 * Backward: lines stand at the end of their strides on both sides, and the last line and last pair are done
 * first, so that a frame may grow in place. An odd last pixel is dropped; a `width` below 2 or a `height`
 * below 1 does nothing. Returns 0. */
TNTVT_API int tntvt_alphay_to_2yuv(void* dst, long dstStride, void* src, long srcStride, long width, long height);

/* The luma of a `2yuv` frame as `alphay`, and a `2yuv` frame with its chroma set to 0x80 and its luma kept.
 *
 * Forward, lines at the start of their strides. `height` + 1 lines are handled: one for a `height` of 0, none
 * for a negative one. An odd last pixel is dropped, and a `width` below 2 does nothing. Both work in place.
 * Return 0. */
TNTVT_API int tntvt_2yuv_to_alphay(void* dst, long dstStride, void* src, long srcStride, long width, long height);
TNTVT_API int tntvt_2yuv_strip_chroma(void* dst, long dstStride, void* src, long srcStride, long width, long height);

/* An alpha plane, whose pitch is `width`, to `rgba`, each sample in all four bytes of its pixel, and from
 * `rgba` by byte 0 of each pixel (not byte 3, which the two routines below write). The stride is that of the
 * `rgba` side in both, at the fourth place; the second argument is ignored. Forward, so only the second works
 * in place; a `width` or `height` below 1 does nothing. Return 0. */
TNTVT_API int tntvt_alpha_to_rgba(void* dst, long, void* src, long dstStride, long width, long height);
TNTVT_API int tntvt_rgba_to_alpha(void* dst, long, void* src, long srcStride, long width, long height);

/* Stores the low byte of `alpha` in byte 3 of each pixel and touches no other byte. Forward; a `width` or
 * `height` below 1 does nothing. Returns 0. */
TNTVT_API int tntvt_rgba_setalpha(void* dst, long dstStride, unsigned int alpha, long width, long height);

/* Three bytes a pixel to four: bytes 0 to 2 as they are, the low byte of `alpha` in byte 3. Source first.
 *
 * Lines stand at the start of their strides; the last line is done first, but pixels from first to last, so
 * it does not work in place. A `width` of 0 or a `height` below 1 does nothing; a negative `width` counts as
 * unsigned, from 2^31 pixels up. Returns 0. */
TNTVT_API int tntvt_rgba_addalpha(void* src, void* dst, long srcStride, long dstStride, unsigned int alpha, int width,
                                  int height);

/* Removes isolated errors in the second luma of the pairs of one `2yuv` line, in place. Returns 0.
 *
 * Mode 1 halves the way from the second luma to the first in every pair, truncating. In modes 2 to 6 the
 * first luma of a pair, `prev`, and that of the next, `cur`, are references: where they agree within 7 and the
 * second luma `t` between them is 11 or more from `prev`, it is replaced. Other modes do nothing. No byte is
 * stored but a second luma, in modes 2 to 6 only one that is replaced.
 *
 *     mode   replacement        where
 *     2      prev               `prev` below 128
 *     3      prev               everywhere
 *     4      (t + prev) >> 1    `prev` below 128
 *     5      (t + prev) >> 1    everywhere
 *     6      (cur + prev) >> 1  everywhere
 *
 * `bytes` below 2 does nothing. Mode 1 runs its last pair whole, up to index `bytes` + 1. The others run one
 * round past the end: they read up to index `bytes` + 3 and write up to index `bytes` + 1. */
TNTVT_API int tntvt_2yuv_average_2y(void* buf, unsigned int bytes, int mode);

/* Scales a `2vuy` buffer in place by tables: from full to video range if `up` is zero, from video to full
 * range otherwise.
 *
 * Down is i x 219 / 255 + 16 for luma and i x 224 / 254 + 16 for chroma, where 255 becomes 241. Up has the two
 * tables exchanged: chroma bytes take the luma rule, 256 x (i - 16) / 220 + 0.5, and luma bytes the chroma
 * rule, 256 x (i - 16) / 225 + 0.5, each clamped to 0 and 255. Up is not the inverse of down: a chroma of 128
 * stays 128 going down and comes back as 130.
 *
 * A `bytes` that is no multiple of 4 runs its last group whole, up to 3 bytes past the end. The tables are
 * filled on the first call. While several threads make their first calls at once, a chroma of 255 may for a
 * moment be scaled down to 240. */
TNTVT_API void tntvt_2vuy_scale(unsigned char* buffer, unsigned int bytes, unsigned int up);

TNTVT_END

#endif
