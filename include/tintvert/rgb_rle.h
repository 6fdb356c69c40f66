/* RGB from run-length coded images with a palette. Included by <tintvert/rgb.h>. */
#ifndef TINTVERT_RGB_RLE_H
#define TINTVERT_RGB_RLE_H

#include <tintvert/export.h>

TNTVT_BEGIN

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

TNTVT_END

#endif
