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

/* `v210` to RGB by the same tables as `2vuy`: each 10-bit sample is cut to its top eight bits, and bits 30
 * and 31 of a word change nothing. `scale` reduces as above, by dropping lines, pairs and second pixels; a
 * line yields half of `width`, rounded up, at 2 and a quarter of it at 4. Every line begins with a group.
 *
 * tntvt_v210_rgb24 writes `rgb24` or, if (`width` / `scale`) x 4 is at most `dstStride`, `rgb32` with a
 * fourth byte of 255. A `scale` of 0 divides by zero.
 *
 * tntvt_v210_rgb16 writes `rgb16` from the first luma of each pair, at `scale` 1 twice. It leaves lines in
 * their order, where tntvt_yuv422_rgb16 exchanges neighbours. A `scale` of 0 counts as 1.
 *
 * A `width` below 1 and a `height` that yields no output line do nothing. An odd `width` runs its last pair
 * whole. Of the last group only the bytes that hold a wanted sample are read. */
TNTVT_API void tntvt_v210_rgb24(void* dst, long dstStride, void* src, long srcStride, long width, long height,
                                long scale);
TNTVT_API void tntvt_v210_rgb16(void* dst, long dstStride, void* src, long srcStride, long width, long height,
                                long scale);

/* One group of `v210`: twelve 10-bit samples, word after word, from low bits to high. */
typedef struct v210FourWords {
    uint16_t Cb0, Y0, Cr0, Y1, Cb2, Y2, Cr2, Y3, Cb4, Y4, Cr4, Y5;
} v210FourWords;

/* Fills the tables of _v210_to_rgb, at every call with the same values. _v210_to_rgb does so by itself the
 * first time it is called; nobody need call this. */
TNTVT_API void init_v210_to_rgb(void);

/* Splits the group at `src` and returns `src` plus four words. Bits 30 and 31 of a word are dropped. */
TNTVT_API unsigned int* _v210_get_next_4words(unsigned int* src, v210FourWords* out);

/* `v210` to 32-bit RGB with all ten bits kept up to the final clip: ITU-R BT.601, video range in, full range
 * out, chroma repeated over the pair. White, Y 940, comes out as 254. A pixel is B, G, R, 255 if `bgraOrder`
 * is non-zero and 255, R, G, B if it is zero.
 *
 * The frame is one run of `width` x `height` pixels, the product kept to 32 bits; below 1 nothing is
 * converted. Groups follow each other with no gap between lines. Output starts afresh at line x `dstStride`
 * where a line begins with a group, and runs straight on everywhere else: with a `width` that is no multiple
 * of 6, `width` x 4 is the only `dstStride` that gives a correct frame. The last group is read and written
 * whole, up to five pixels behind the frame. `dstStride` has no default; its products are kept to 32 bits. */
TNTVT_API void _v210_to_rgb(void* src, void* dst, int width, int height, int dstStride, int bgraOrder);

/* YCbCr to RGB with default strides. A stride of 0 or below is replaced: `dstStride` by `width` x 3 in the
 * _rgb24 entries and `width` x 4 in the _rgb32 entries; `srcStride` by 128 bytes for each 48 pixels of `v210`
 * in the _10_ entries and `width` x 2 of `2vuy` in the _8_ entries.
 *
 * At a `scale` of 1 libycbcr decodes the frame with the matrix that GetMatrixBySize gives for its size, and
 * a negative `height` raises flag 0x8000, which turns the picture upside down. Two entries differ:
 * tntvt_yuv422_10_rgb24 always takes the tables, and tntvt_yuv422_8_rgb24 hands its 8-bit frame, with its
 * strides, to the `v210` decoder, which writes `width` x 4 bytes a line and reads 16 for each six pixels.
 *
 * At any other `scale` the tables decode it (tntvt_v210_rgb24, tntvt_yuv422_rgb24), with BT.601 whatever
 * the size; the resolved stride picks the form there, so that a reduced picture with default strides is
 * 32-bit from every entry. A `scale` of 0 divides by zero.
 *
 * They return what libycbcr returned, and 0 after the tables. Neither reports an error. */
TNTVT_API int tntvt_yuv422_10_rgb24(void* dst, long dstStride, void* src, long srcStride, long width, long height,
                                    long scale);
TNTVT_API int tntvt_yuv422_10_rgb32(void* dst, long dstStride, void* src, long srcStride, long width, long height,
                                    long scale);
TNTVT_API int tntvt_yuv422_8_rgb24(void* dst, long dstStride, void* src, long srcStride, long width, long height,
                                   long scale);
TNTVT_API int tntvt_yuv422_8_rgb32(void* dst, long dstStride, void* src, long srcStride, long width, long height,
                                   long scale);

/* `i420` and `yv12` to `rgb32` by libycbcr, with the matrix for the frame's size. Destination lines are
 * `width` x 4 bytes without slack; `srcStride` is the distance of two luma lines and has no default.
 * They return what libycbcr returned, which reports no error. */
TNTVT_API int tntvt_i420_rgb32(void* dst, void* src, unsigned int width, unsigned int height, unsigned int srcStride);
TNTVT_API int tntvt_yv12_rgb32(void* dst, void* src, unsigned int width, unsigned int height, unsigned int srcStride);

/* `yuvijg` (Y, Cb, Cr at full range) to B, G, R, 0 with the JPEG coefficients, ITU-R BT.601 at full range, in
 * double precision, truncated. Nothing is clamped: colours outside the RGB cube wrap. Lines stand at the
 * start of their strides. A `width` or `height` below 1 does nothing. */
TNTVT_API void tntvt_yuvijg_rgb32(void* dst, long dstStride, void* src, long srcStride, long width, long height);

TNTVT_END

#endif
