/* YCbCr to RGB. */
#ifndef TINTVERT_DECODE_H
#define TINTVERT_DECODE_H

#include <tintvert/export.h>

TNTVT_BEGIN

/* `2vuy` to RGB by fixed-point tables: ITU-R BT.601, video range in, full range out, chroma repeated
 * over the pair. `width` and `height` are those of the source; `scale` 1, 2 or 4 shrinks the picture in
 * both directions by dropping lines, groups and second pixels, with no filter. Only whole groups of
 * `scale` lines yield an output line; a `height` that yields none, a negative one included, and a
 * `width` below 1 do nothing.
 *
 * tntvt_yuv422_rgb24 writes `rgb24` (B, G, R), or `rgb32` (B, G, R, 255) if (`width` / `scale`) x 4 is
 * at most `dstStride`: the stride picks the form, and a 24-bit frame with that much slack comes out as
 * 32-bit. A `scale` of 0 divides by zero.
 *
 * tntvt_yuv422_rgb16 writes `rgb16` (x1 r5 g5 b5) from the first luma of each pair, at `scale` 1 twice.
 * It exchanges neighbouring lines: output line r shows source line r + 1 for even r and r - 1 for odd
 * r, and an odd line count reads the line after the last one. A `scale` of 0 counts as 1.
 *
 * Any other `scale` drops lines like its number and keeps every pixel of a line. An odd `width` runs its
 * last group whole: one pixel more than `width` is read and, at `scale` 1, written. */
TNTVT_API void tntvt_yuv422_rgb24(void* dst, long dstStride, void* src, long srcStride, long width, long height,
                                  long scale);
TNTVT_API void tntvt_yuv422_rgb16(void* dst, long dstStride, void* src, long srcStride, long width, long height,
                                  long scale);

TNTVT_END

#endif
