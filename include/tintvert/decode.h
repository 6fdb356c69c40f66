/* YCbCr to RGB. */
#ifndef TINTVERT_DECODE_H
#define TINTVERT_DECODE_H

#include <tintvert/export.h>

TNTVT_BEGIN

/* `2vuy` to `rgb24` (B, G, R) or `rgb32` (B, G, R, 255) by fixed-point tables: ITU-R BT.601, video range to full
 * range, chroma repeated over the pair. The stride selects the format: `rgb32` if (`width` / `scale`) x 4 is at most
 * `dstStride`, so a 24-bit frame with that much slack comes out as 32-bit.
 *
 * `width` and `height` are those of the source. A `scale` of 2 or 4 shrinks the picture in both directions by
 * dropping lines, pairs and second pixels, with no filter; any other `scale` drops lines by its number and keeps
 * every pixel of a line. Only whole groups of `scale` lines yield an output line. A line yields half of `width`,
 * rounded up, at 2, and half of `width` / 2, rounded up, at 4.
 *
 * Lines are at the start of their strides. An odd `width` processes its last pair whole: one pixel more is read and,
 * at `scale` 1, written. A `width` below 1 and a `height` that yields no line, negative ones included, do nothing. A
 * `scale` of 0 divides by zero. Not for use in place.
 *
 * Quirks: keeps_form_by_stride. */
TNTVT_API void tntvt_yuv422_rgb24(void* dst, long dstStride, void* src, long srcStride, long width, long height,
                                  long scale);

/* `2vuy` to `rgb16` (x1 r5 g5 b5) by the tables of tntvt_yuv422_rgb24, from the first luma of each pair, which at
 * `scale` 1 gives both pixels. Neighbouring lines are exchanged: output line r shows source line r + 1 for even r and
 * r - 1 for odd r, and an odd line count reads one line past the last.
 *
 * `scale`, lines and odd widths as in tntvt_yuv422_rgb24, but a `scale` of 0 counts as 1.
 *
 * Quirks: keeps_first_luma_for_both, keeps_swapped_line_pairs. */
TNTVT_API void tntvt_yuv422_rgb16(void* dst, long dstStride, void* src, long srcStride, long width, long height,
                                  long scale);

/* `v210` to `rgb24` or `rgb32` by the tables of tntvt_yuv422_rgb24: of each 10-bit sample the top eight bits are
 * used; bits 30 and 31 of a word are ignored. The stride selects the format as in tntvt_yuv422_rgb24.
 *
 * `scale` shrinks as there. A line yields half of `width`, rounded up, at 2 and a quarter of it, rounded up, at 4. A
 * `scale` of 0 divides by zero.
 *
 * Lines are at the start of their strides, and each begins with a group. An odd `width` processes its last pair
 * whole; of the last group only the bytes with needed samples are read. A `width` below 1 and a `height` that yields
 * no line do nothing. Not for use in place.
 *
 * Quirks: keeps_form_by_stride. */
TNTVT_API void tntvt_v210_rgb24(void* dst, long dstStride, void* src, long srcStride, long width, long height,
                                long scale);

/* `v210` to `rgb16` (x1 r5 g5 b5), from the first luma of each pair, which at `scale` 1 gives both pixels. Lines keep
 * their order; those of tntvt_yuv422_rgb16 are exchanged. `scale`, lines and odd widths as in tntvt_v210_rgb24, but a
 * `scale` of 0 counts as 1.
 *
 * Quirks: keeps_first_luma_of_v210_pairs, keeps_line_order. */
TNTVT_API void tntvt_v210_rgb16(void* dst, long dstStride, void* src, long srcStride, long width, long height,
                                long scale);

/* One group of `v210`: twelve 10-bit samples in word order, and within a word from low bits to high. */
typedef struct v210FourWords {
    uint16_t Cb0, Y0, Cr0, Y1, Cb2, Y2, Cr2, Y3, Cb4, Y4, Cr4, Y5;
} v210FourWords;

/* Fills the tables of _v210_to_rgb, on every call and always with the same values. Optional: the first call of
 * _v210_to_rgb fills them too.
 *
 * Quirks: keeps_filling_on_every_call. */
TNTVT_API void init_v210_to_rgb(void);

/* Splits the group of four words at `src` into `out` and returns `src` plus four words. Bits 30 and 31 of a word are
 * dropped. */
TNTVT_API unsigned int* _v210_get_next_4words(unsigned int* src, v210FourWords* out);

/* `v210` to 32-bit RGB with all ten bits kept up to the final clip: ITU-R BT.601, video range to full range, chroma
 * repeated over the pair. White, Y 940, comes out as 254. A pixel is B, G, R, 255 if `bgraOrder` is non-zero and
 * 255, R, G, B if it is zero. Source first.
 *
 * The source has no stride: its groups follow each other with no gap between lines. The frame is one run of `width` x
 * `height` pixels, the product kept to 32 bits; below 1 nothing is converted. The output pointer is set to line x
 * `dstStride` only where a line begins with a group, and runs on everywhere else: if `width` is no multiple of 6,
 * `width` x 4 is the only `dstStride` that gives a correct frame. `dstStride` has no default; its products are kept
 * to 32 bits.
 *
 * The last group is read and written whole, up to five pixels past the end of the frame.
 *
 * Quirks: keeps_254_for_white, keeps_stride_at_common_multiples, keeps_whole_last_group. */
TNTVT_API void _v210_to_rgb(void* src, void* dst, int width, int height, int dstStride, int bgraOrder);

/* `v210` to `rgb24` or `rgb32`: tntvt_v210_rgb24 at every `scale`, with default strides. A `dstStride` of 0 or below
 * is `width` x 3, and a `srcStride` of 0 or below is 128 bytes for each 48 pixels or part of them.
 *
 * The stride, default or given, selects the format, so with the default a picture shrunk by 2 or 4 is 32-bit. Returns
 * 0. */
TNTVT_API int tntvt_yuv422_10_rgb24(void* dst, long dstStride, void* src, long srcStride, long width, long height,
                                    long scale);

/* `v210` to `rgb32` with default strides. A `dstStride` of 0 or below is `width` x 4, and a `srcStride` of 0 or below
 * is 128 bytes for each 48 pixels or part of them.
 *
 * At a `scale` of 1 libycbcr decodes the frame, with the matrix that GetMatrixBySize gives for its size; a negative
 * `height` sets flag 0x8000, which turns the picture upside down. At any other `scale` it is tntvt_v210_rgb24: BT.601
 * for every size, the stride selects the format, and a `scale` of 0 divides by zero.
 *
 * Returns libycbcr's result at a `scale` of 1, and 0 otherwise. Neither reports an error. */
TNTVT_API int tntvt_yuv422_10_rgb32(void* dst, long dstStride, void* src, long srcStride, long width, long height,
                                    long scale);

/* `2vuy` to `rgb24` by its name, with default strides. A `dstStride` of 0 or below is `width` x 3, and a `srcStride`
 * of 0 or below is `width` x 2.
 *
 * At a `scale` of 1 the 8-bit frame, with its strides, goes to the `v210` decoder of libycbcr, which reads 16 bytes
 * for each six pixels and writes `width` x 4 bytes a line; a negative `height` sets flag 0x8000. At any other `scale`
 * it is tntvt_yuv422_rgb24: the stride selects the format, so with the default a shrunk picture is 32-bit, and a
 * `scale` of 0 divides by zero.
 *
 * Returns libycbcr's result at a `scale` of 1, and 0 otherwise. Neither reports an error.
 *
 * Quirks: keeps_10_bit_decoder_for_8_bit_data. */
TNTVT_API int tntvt_yuv422_8_rgb24(void* dst, long dstStride, void* src, long srcStride, long width, long height,
                                   long scale);

/* `2vuy` to `rgb32` with default strides. A `dstStride` of 0 or below is `width` x 4, and a `srcStride` of 0 or below
 * is `width` x 2.
 *
 * At a `scale` of 1 libycbcr decodes the frame, with the matrix that GetMatrixBySize gives for its size; a negative
 * `height` sets flag 0x8000, which turns the picture upside down. At any other `scale` it is tntvt_yuv422_rgb24:
 * BT.601 for every size, the stride selects the format, and a `scale` of 0 divides by zero.
 *
 * Returns libycbcr's result at a `scale` of 1, and 0 otherwise. Neither reports an error. */
TNTVT_API int tntvt_yuv422_8_rgb32(void* dst, long dstStride, void* src, long srcStride, long width, long height,
                                   long scale);

/* `i420` to `rgb32` by libycbcr, with the matrix that GetMatrixBySize gives for the frame's size. Destination lines
 * are `width` x 4 bytes with no slack. `srcStride` is the distance between two luma lines and has no default.
 * Returns libycbcr's result, which reports no error. */
TNTVT_API int tntvt_i420_rgb32(void* dst, void* src, unsigned int width, unsigned int height, unsigned int srcStride);

/* `yv12` to `rgb32` by libycbcr: as tntvt_i420_rgb32, with Cr before Cb. */
TNTVT_API int tntvt_yv12_rgb32(void* dst, void* src, unsigned int width, unsigned int height, unsigned int srcStride);

/* `yuvijg` (Y, Cb, Cr at full range) to B, G, R, 0 with the JPEG coefficients, ITU-R BT.601 at full range, in double
 * precision, truncated. Nothing is clamped: colours outside the RGB cube wrap.
 *
 * Lines are at the start of their strides. A `width` or `height` below 1 does nothing.
 *
 * Quirks: keeps_wrap_outside_the_cube, keeps_alpha_0_of_yuvijg. */
TNTVT_API void tntvt_yuvijg_rgb32(void* dst, long dstStride, void* src, long srcStride, long width, long height);

TNTVT_END

#endif
