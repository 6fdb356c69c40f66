/* SMPTE ST 2084 (PQ): six tables and the conversions that use the two 8-bit ones. */
#ifndef TINTVERT_HDR_H
#define TINTVERT_HDR_H

#include <tintvert/export.h>

TNTVT_BEGIN

/* The first entry of a table of 32-bit entries: 256, 1024 or 4096, by the depth in its name. The tables are
 * constant: a caller may apply them to samples of its own and never writes them.
 *
 * RGB_to_SMPTE2048: linear code to ST 2084 code, at each depth. The whole code range stands for 0 to 10000
 * cd/m2, divided by a power of two, so that the last entry stays below 1.0 of the curve.
 * SMPTE2048_to_RGB, 12-bit: ST 2084 code to linear code, the inverse of its forward table.
 * SMPTE2048_to_RGB, 10-bit: a straight line from code 64 to 512 onto the video range 64 to 940, no inverse.
 * SMPTE2048_to_RGB, 8-bit: a power curve from code 16 to 129 onto the video range 16 to 235, no inverse.
 *
 * The six stand in one block in the order RGB_to 8, to_RGB 8, RGB_to 12, RGB_to 10, to_RGB 12, to_RGB 10. */
TNTVT_API unsigned int* get_ardwRGB_to_SMPTE2048_8Bit(void);
TNTVT_API unsigned int* get_ardwRGB_to_SMPTE2048_10Bit(void);
TNTVT_API unsigned int* get_ardwRGB_to_SMPTE2048_12Bit(void);
TNTVT_API unsigned int* get_ardwSMPTE2048_to_RGB_8Bit(void);
TNTVT_API unsigned int* get_ardwSMPTE2048_to_RGB_10Bit(void);
TNTVT_API unsigned int* get_ardwSMPTE2048_to_RGB_12Bit(void);

/* All six conversions: a line is m bytes, the smaller of the two strides, and stands at the start of its
 * stride; line offsets are 32-bit products; `height` is used as a count, so a negative one is a very large
 * one; a `height` or m of 0 does nothing. `src` and `dst` may be the same memory with equal strides. They
 * return 0. */

/* Every byte of a line, alpha among them, through the 8-bit table. */
TNTVT_API int tntvt_rgb_to_st2084(unsigned char* dst, unsigned char* src, unsigned int dstStride,
                                  unsigned int srcStride, int height);
TNTVT_API int tntvt_st2084_to_rgb(unsigned char* dst, unsigned char* src, unsigned int dstStride,
                                  unsigned int srcStride, int height);

/* Bytes 1 and 3 of each whole group of four, by position: the luma of `2vuy`, the chroma of `yuv2`. An m
 * below 4 does nothing. tntvt_yuv2_to_st2084 writes those bytes alone. tntvt_st2084_to_yuv2 first copies
 * the source bytes 1 to 4 of each group, so it also writes byte 2 of each group and the byte behind the
 * last one. */
TNTVT_API int tntvt_yuv2_to_st2084(unsigned char* dst, unsigned char* src, unsigned int dstStride,
                                   unsigned int srcStride, int height);
TNTVT_API int tntvt_st2084_to_yuv2(unsigned char* dst, unsigned char* src, unsigned int dstStride,
                                   unsigned int srcStride, int height);

/* `v210` words in groups of 16 bytes, each word read and written one byte past its place, so that byte 0 of
 * a line is never touched and the last group reaches up to 16 bytes past m. A 10-bit field is the index
 * into the 8-bit table as it is: above 255 the tables behind it in the block supply the entry, and entries
 * above 1023 spill into the neighbouring fields. */
TNTVT_API int tntvt_v210_to_st2084(unsigned char* dst, unsigned char* src, unsigned int dstStride,
                                   unsigned int srcStride, int height);
TNTVT_API int tntvt_st2084_to_v210(unsigned char* dst, unsigned char* src, unsigned int dstStride,
                                   unsigned int srcStride, int height);

TNTVT_END

#endif
