/* libycbcr: whole frames of YCbCr to 32-bit RGB with a matrix of choice. */
#ifndef YCBCR_H
#define YCBCR_H

#ifdef __cplusplus
extern "C" {
#endif

#define YCBCR_API __attribute__((visibility("default")))

/* Set in `flags` to turn the picture upside down: the first source line becomes the last one written. */
#define CYCBCR_BOTTOM_UP 0x8000u

/* 8-bit 4:2:2 (Cb, Y0, Cr, Y1) to four bytes a pixel: blue, green, red, 255. Video range (Y 16 to 235, chroma 16 to
 * 240) to full range, within one code of the matrix in exact arithmetic for every input; out-of-range colours are
 * clipped. Chroma is repeated over the pixels that share it and not interpolated, as monitors, previews and hardware
 * overlays do. Returns 0.
 *
 * `matrix` is 601, 709 or 2020, the ITU-R BT. recommendation whose weights apply; any other number means 709.
 *
 * |`height`| lines are converted; a `width` or `height` of 0, or a negative `width`, does nothing. Strides are bytes
 * from line to line, used as given, and may be negative. A line writes `width` x 4 bytes and reads up to the last
 * sample that its pixels need: four bytes for two pixels and three for one. `src` and `dst` must not overlap.
 *
 * A call may run on any number of threads. It selects scalar, AVX2 or AVX-512 (F, BW, VL, DQ and VBMI) code by the
 * processor; all write the same bytes. */
YCBCR_API int cycbcr_uyvy_to_rgb32(void* dst, void* src, int width, int height, int dstStride, int srcStride,
                                   unsigned int matrix, unsigned int flags);

/* `v210` (six pixels in four little-endian words) to four bytes a pixel, with all ten bits of a sample. Range, matrix,
 * lines and threads as in cycbcr_uyvy_to_rgb32. A line reads 16 bytes for six pixels, and 4, 8, 12, 12 and 16 for one
 * to five. Returns 0. */
YCBCR_API int cycbcr_012v_to_rgb32(void* dst, void* src, int width, int height, int dstStride, int srcStride,
                                   unsigned int matrix, unsigned int flags);

/* `i420` to four bytes a pixel. Range, matrix, lines and threads as in cycbcr_uyvy_to_rgb32. Returns 0.
 *
 * `srcStride` is the distance between two luma lines. With n = `srcStride` x |`height`| the Cb plane starts n bytes
 * after `src` and the Cr plane n >> 2 after that. Chroma lines are `srcStride` / 2 apart, have `width` / 2 samples and
 * serve two luma lines. The last pixel of an odd `width` and the last line of an odd `height` use the chroma before
 * them, or neutral chroma if there is none. */
YCBCR_API int cycbcr_i420_to_rgb32(void* dst, void* src, int width, int height, int dstStride, int srcStride,
                                   unsigned int matrix, unsigned int flags);

/* `yv12` to four bytes a pixel: as cycbcr_i420_to_rgb32, with Cr before Cb. Returns 0. */
YCBCR_API int cycbcr_yv12_to_rgb32(void* dst, void* src, int width, int height, int dstStride, int srcStride,
                                   unsigned int matrix, unsigned int flags);

#ifdef __cplusplus
}
#endif

#endif
