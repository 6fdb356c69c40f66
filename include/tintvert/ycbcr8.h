/* 8-bit YCbCr: into `2vuy` from RGB, from other 8-bit layouts, and from planes and back.
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
 * apart, `cb` and `cr` lines half of that. A `width` or `height` below 1 does nothing.
 *
 * An odd `height` takes its last line as a pair: one line beyond it is read and written. An odd `width` takes
 * its last group whole, one pixel beyond, and makes the lines of each further pair stand 2 bytes later in the
 * source and 1 byte later in `y` (and in `cb` and `cr` if `dstPitch` is odd) than the pitches say. */
TNTVT_API void YUY2toYV12(unsigned char* src, unsigned char* y, unsigned char* cb, unsigned char* cr, int width,
                          int height, int srcPitch, int dstPitch);

TNTVT_END

#endif
