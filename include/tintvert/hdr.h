/* SMPTE ST 2084 (PQ): six tables, and the conversions that use the two 8-bit ones. */
#ifndef TINTVERT_HDR_H
#define TINTVERT_HDR_H

#include <tintvert/export.h>

TNTVT_BEGIN

/* Table of 256 entries: 8-bit linear code to 8-bit ST 2084 code, truncated. Entry i is the curve at i / 256 of
 * 10000 cd/m2. Returns the first entry; a caller may apply the table to its own samples and must not write it.
 *
 * The six tables are one block in memory, in the order RGB_to 8, to_RGB 8, RGB_to 12, RGB_to 10, to_RGB 12,
 * to_RGB 10. */
TNTVT_API unsigned int* get_ardwRGB_to_SMPTE2048_8Bit(void);

/* Table of 1024 entries: 10-bit linear code to 10-bit ST 2084 code, truncated. Entry i is the curve at i / 1024
 * of 10000 cd/m2. Constant, as all six. */
TNTVT_API unsigned int* get_ardwRGB_to_SMPTE2048_10Bit(void);

/* Table of 4096 entries: 12-bit linear code to 12-bit ST 2084 code, truncated. Entry i is the curve at i / 4096
 * of 10000 cd/m2. Constant, as all six. */
TNTVT_API unsigned int* get_ardwRGB_to_SMPTE2048_12Bit(void);

/* Table of 256 entries, no inverse of the 8-bit forward table: codes up to 16 as they are, then a power curve
 * (exponent 1.9) from code 16 to 129 onto the video range 16 to 235, then 235. Constant, as all six. */
TNTVT_API unsigned int* get_ardwSMPTE2048_to_RGB_8Bit(void);

/* Table of 1024 entries, no inverse of the 10-bit forward table: codes up to 64 as they are, then a straight
 * line from code 64 to 512 onto the video range 64 to 940, then 940. Constant, as all six. */
TNTVT_API unsigned int* get_ardwSMPTE2048_to_RGB_10Bit(void);

/* Table of 4096 entries: 12-bit ST 2084 code to 12-bit linear code, truncated; the inverse curve of the 12-bit
 * forward table, and the only inverse among the six. Constant, as all six. */
TNTVT_API unsigned int* get_ardwSMPTE2048_to_RGB_12Bit(void);

/* Linear to ST 2084: every byte of a line, alpha included, through the 8-bit table. Returns 0.
 *
 * There is no width. A line is m bytes, the smaller of the two strides, at the start of its stride. Line offsets
 * are 32-bit products. `height` is used as an unsigned count, so a negative one is a very large one; a `height`
 * or m of 0 does nothing. `src` and `dst` may be the same memory if the strides are equal. */
TNTVT_API int tntvt_rgb_to_st2084(unsigned char* dst, unsigned char* src, unsigned int dstStride,
                                  unsigned int srcStride, int height);

/* ST 2084 to the video range: every byte of a line, alpha included, through the 8-bit table, which is no inverse
 * of the one of tntvt_rgb_to_st2084. Returns 0. Lines, `height` and in-place use as there. */
TNTVT_API int tntvt_st2084_to_rgb(unsigned char* dst, unsigned char* src, unsigned int dstStride,
                                  unsigned int srcStride, int height);

/* Linear to ST 2084 in bytes 1 and 3 of each whole group of four, by the 8-bit table: the luma of `2vuy`, the
 * chroma of `yuv2`. No other byte is written. Returns 0. Lines, `height` and in-place use as in
 * tntvt_rgb_to_st2084; a line below 4 bytes does nothing. */
TNTVT_API int tntvt_yuv2_to_st2084(unsigned char* dst, unsigned char* src, unsigned int dstStride,
                                   unsigned int srcStride, int height);

/* ST 2084 to the video range in bytes 1 and 3 of each whole group of four. Unlike tntvt_yuv2_to_st2084 it first
 * copies source bytes 1 to 4 of each group, so it also writes byte 2 of each group and one byte past the last
 * group, and never writes byte 0 of a line. Returns 0. Lines, `height` and in-place use as in
 * tntvt_rgb_to_st2084; a line below 4 bytes does nothing.
 *
 * Quirks: keeps_copy_of_bytes_1_to_4. */
TNTVT_API int tntvt_st2084_to_yuv2(unsigned char* dst, unsigned char* src, unsigned int dstStride,
                                   unsigned int srcStride, int height);

/* Linear to ST 2084 for `v210` words, in groups of 16 bytes, at least one a line. Every word is read and written
 * one byte past its place, so byte 0 of a line is never touched, and the last group reads and writes up to 16
 * bytes past the line.
 *
 * Words 0 and 2 of a group keep bits 0 to 9 and 20 to 29 and OR in the entry of bits 12 to 21, at that place; words 1
 * and 3 keep bits 10 to 19 and OR in the entries of bits 2 to 11 and 22 to 31. All other bits become 0. The
 * 10-bit value is the index into the 8-bit table: above 255 the entry comes from the tables that follow it in the
 * block, and entries above 1023 spill into the neighbouring bits. Returns 0. Lines, `height` and in-place use as in
 * tntvt_rgb_to_st2084.
 *
 * Quirks: keeps_10_bit_index_into_8_bit_table, keeps_unmasked_entries, keeps_words_one_byte_on. */
TNTVT_API int tntvt_v210_to_st2084(unsigned char* dst, unsigned char* src, unsigned int dstStride,
                                   unsigned int srcStride, int height);

/* ST 2084 to the video range for `v210` words: as tntvt_v210_to_st2084, starting at the other 8-bit table.
 *
 * Quirks: keeps_10_bit_index_into_8_bit_table, keeps_unmasked_entries, keeps_words_one_byte_on. */
TNTVT_API int tntvt_st2084_to_v210(unsigned char* dst, unsigned char* src, unsigned int dstStride,
                                   unsigned int srcStride, int height);

TNTVT_END

#endif
