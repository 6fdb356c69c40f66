/* libycbcr: whole frames of YCbCr to 32-bit RGB with a matrix of choice. */
#ifndef YCBCR_H
#define YCBCR_H

#ifdef __cplusplus
extern "C" {
#endif

#define YCBCR_API __attribute__((visibility("default")))

/* Set in `flags` to turn the picture upside down: the first source line becomes the last one written. */
#define CYCBCR_BOTTOM_UP 0x8000u

/* Video range in (Y 16 to 235, chroma 16 to 240, or four times that in ten bits), full range out: four
 * bytes a pixel, blue, green, red, 255. The result lies within one code of the matrix in exact arithmetic
 * for every input; out-of-range colours are clipped. All ten bits of a `v210` sample count.
 *
 * `matrix` is 601, 709 or 2020, the ITU-R BT. recommendation whose weights apply; any other number means
 * 709.
 *
 * Chroma is repeated over the pixels that share it and not interpolated: monitors, previews and the
 * hardware overlays that these pictures are compared with do the same, and it costs nothing.
 *
 * |`height`| lines are converted; a `width` or `height` of 0, or a negative `width`, is no work. Strides are
 * bytes from line to line, used as given, and may be negative. A line writes `width` x 4 bytes and reads up to
 * the last sample that its pixels need: four bytes for two pixels of `uyvy` and three for one; 16 bytes for six
 * pixels of `v210`, and 4, 8, 12, 12 and 16 for one to five. `src` and `dst` do not overlap. All return 0 and may
 * run on any number of threads.
 *
 * Each call uses the best instruction set that the processor has: scalar code, AVX2, or AVX-512 (F, BW, VL, DQ and
 * VBMI). All write the same bytes.
 *
 * uyvy: Cb, Y0, Cr, Y1.
 * 012v: v210, six pixels in four little-endian words.
 * i420 and yv12: `srcStride` is the distance of two luma lines. With n = `srcStride` x |`height`| the first
 * chroma plane (Cb in i420, Cr in yv12) starts n bytes after `src` and the second n >> 2 after that; chroma
 * lines lie `srcStride` / 2 apart, hold `width` / 2 samples and serve two luma lines. The last pixel of an
 * odd `width` and the last line of an odd `height` take the chroma before them, or neutral chroma if there
 * is none. */
YCBCR_API int cycbcr_uyvy_to_rgb32(void* dst, void* src, int width, int height, int dstStride, int srcStride,
                                   unsigned int matrix, unsigned int flags);
YCBCR_API int cycbcr_012v_to_rgb32(void* dst, void* src, int width, int height, int dstStride, int srcStride,
                                   unsigned int matrix, unsigned int flags);
YCBCR_API int cycbcr_i420_to_rgb32(void* dst, void* src, int width, int height, int dstStride, int srcStride,
                                   unsigned int matrix, unsigned int flags);
YCBCR_API int cycbcr_yv12_to_rgb32(void* dst, void* src, int width, int height, int dstStride, int srcStride,
                                   unsigned int matrix, unsigned int flags);

#ifdef __cplusplus
}
#endif

#endif
