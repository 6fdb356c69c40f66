/* Fields, deinterlacing, flips, mixing and dissolve.
 *
 * The first field of a frame is its even lines 0, 2, 4 ..., the second its odd lines 1, 3, 5 ... Lines are
 * moved whole, slack included, and no routine but the deinterlacer and the dissolve looks at channels. */
#ifndef TINTVERT_FIELD_H
#define TINTVERT_FIELD_H

#include <tintvert/export.h>

TNTVT_BEGIN

/* Rearranges the two fields of `dst`, by `mode`. D and S are the lines of `dst` and `src` at their own
 * pitch, n is `height` / 2, k runs from 0 to n - 1, and a `srcStride` of 0 is `dstStride`. A copy moves
 * `srcStride` bytes.
 *
 *    1   double first               D 2k to D 2k+1
 *    2   double second              D 2k+1 to D 2k
 *    3   flip                       D 2k and D 2k+1 exchanged
 *    4   blend                      each line averaged with itself, see below
 *    5   second to second           S 2k+1 to D 2k+1
 *    6   first to second            S 2k to D 2k+1
 *    7   second to first            S 2k+1 to D 2k
 *    8   first to first             S 2k to D 2k
 *    9   repeat first               S 2k to D 2k and D 2k+1
 *   10   repeat second              S 2k+1 to D 2k and D 2k+1
 *   11   interpolate first          S 2k to D 2k, mean of S 2k and S 2k+2 to D 2k+1
 *   12   interpolate second         S 1 to D 0, S 2k+1 to D 2k+1, mean of S 2k+1 and S 2k+3 to D 2k+2
 *   13   first field on top         S 2k to D k, S 2k+1 to D n+k
 *   14   second field on top        S 2k to D n+k, S 2k+1 to D k
 *
 * Returns 0; -1 from mode 4 with a `height` below 2; -2 from modes 5 to 8, 11 and 12 with a null `src`. Any
 * other mode does nothing and returns 0. `height` is never negative: it is read as unsigned. An odd last
 * line is not written, except by mode 4. Pitches and their doubles wrap at 32 bits.
 *
 * Modes 1 to 4 ignore `src` and take their source lines from `dst` itself at the pitch `srcStride`.
 *
 * Mode 3 goes through a scratch line of `dstStride` bytes, so `srcStride` is no larger. If a copy throws,
 * the failure is reported, the exchanged lines stay exchanged and 0 is returned. A `height` of 0 or 1 makes
 * 2^32 rounds, and an odd `height` never ends in modes 5 to 8.
 *
 * Mode 4 averages the first `width` x 4 bytes of line i with those at `dst` + i x `srcStride`, truncating.
 * With equal pitches that is the line itself and nothing changes.
 *
 * Modes 9 to 12 copy no line onto itself, and so work in place. The mean of modes 11 and 12 is of the
 * `srcStride` / 4 pixels of a line, byte by byte, truncated; the byte at a pixel's lowest address is the
 * sum of two halved bytes, one less than the mean of two odd ones. The last line of mode 11 is the mean of a
 * line with itself. Line 0 of mode 12 stays as it was in place, and is written at a `height` of 0, too; the
 * copy to it comes even before the answer -2, and with a null `src` or `dst` in mode 11 as well.
 *
 * Mode 13 moves `dstStride` bytes a line, mode 14 `srcStride`. With `src` null they pack one field of `dst`,
 * at the pitch `srcStride`, into its top half and leave the bottom half as it was.
 *
 * tntvt_change_field_yuv computes no sample: it runs mode 1 for 4, 9 for 11 and 10 for 12. */
TNTVT_API int tntvt_change_field_rgb(unsigned char* dst, unsigned int mode, unsigned int width, unsigned int height,
                                     unsigned int dstStride, unsigned char* src, unsigned int srcStride);
TNTVT_API int tntvt_change_field_yuv(unsigned char* dst, unsigned int mode, unsigned int width, unsigned int height,
                                     unsigned int dstStride, unsigned char* src, unsigned int srcStride);

/* Replaces what stands out from the line above and the line below. Returns 0. `width` counts elements of 8
 * bytes, of which bytes 0, 1 and 2 are examined; a replaced element has zero in bytes 3 to 7. `stride`
 * serves both frames; a whole-line copy moves `stride` bytes.
 *
 *   mode     even lines                odd lines
 *    2       1-2-1 filter if combed    1-2-1 filter if combed
 *   16       whole-line copy           mean of the neighbours if combed
 *   17       copied by elements        whole-line copy
 *   other    copied by elements        mean of the neighbours if combed
 *
 * With a, b and c the channels above, below and here, an element is combed if its measure is above
 * `threshold` squared. For a `softness` of 0 the measure is the sum over the channels of
 * w (a - c) (b - c), w being 1, 6 and 3; otherwise, with K `softness` squared and at most 5500, each term is
 * multiplied by K and divided by (a - b)^2 + K, truncating. Both squares wrap at 32 bits and are read as
 * signed; with K below 0 nothing is combed.
 *
 * Lines 0 and 1 have the next line on both sides, the last line has the one above on both sides, and a
 * frame of one line or the second of two has itself. `dst` may be `src`; then the line above is the
 * repaired one. The eighth argument is ignored.
 *
 * tntvt_deinterlace_yuv does nothing and returns -1. Its arguments are those of its sister, so that one
 * pointer to a function serves both. */
TNTVT_API int tntvt_deinterlace_rgb(unsigned char* dst, unsigned char* src, unsigned int width, unsigned int height,
                                    unsigned int stride, int threshold, int softness, long, int mode);
TNTVT_API int tntvt_deinterlace_yuv(unsigned char* dst, unsigned char* src, unsigned int width, unsigned int height,
                                    unsigned int stride, int threshold, int softness, long, int mode);

/* Turns a frame upside down. `dst` may be `src`: then lines are exchanged through a scratch line, and the
 * middle one of an odd `height` stays. With two frames a `height` below 1 does nothing; in place half of it
 * is taken as an unsigned number, so a negative one runs out of any frame. If a copy in place throws, the
 * failure is reported, the exchanged lines stay exchanged and the routine returns. Line offsets, margins
 * included, wrap at 32 bits. The third argument, and the fourth of tntvt_flip_vert_flags, are ignored.
 *
 * tntvt_flip_vert_flags copies lines of `srcStride` bytes into lines of `dstStride` bytes and puts what is
 * left over, if that is more than nothing, on the side that `flags` tell:
 *
 *   flags & 0xF000000    left                right
 *   0x1000000            all                 none
 *   0x2000000            none                all
 *   0x4000000            half, rounded up    half
 *   0x8000000            half                half, rounded up
 *   any other            none                none
 *
 * The left and right bytes are cleared if `keepMargins` is 0. A `dstStride` below `srcStride` runs over the
 * ends of lines. In place both halves stand at the pitch `dstStride` and no line moves within its stride: the
 * margins of each top line are cleared, `srcStride` bytes of the bottom line come up to its start, and the
 * whole top line goes down. */
TNTVT_API void tntvt_flip_vert(unsigned char* dst, unsigned char* src, unsigned int, int height, unsigned int stride);
TNTVT_API void tntvt_flip_vert_flags(unsigned char* dst, unsigned char* src, unsigned int, unsigned int, int height,
                                     unsigned int dstStride, unsigned int srcStride, unsigned int flags,
                                     int keepMargins);

/* Mirrors the 4-byte pixels of each line about pixel `width` / 2, so that the first pixel past the line
 * takes part: destination pixel i is source pixel `width` - i, for i from 0 to `width` - 1, and source pixel
 * 0 is not read. In place, with `dst` equal to `src`, pixels i and `width` - i are exchanged for i below
 * `width` / 2. The frame has 4 bytes of room behind its last line. A `height` below 1 does nothing, nor does
 * a `width` below 1; in place `width` is read as unsigned, and 1 does nothing. Offsets, those of pixels among
 * them, wrap at 32 bits. */
TNTVT_API void tntvt_flip_horz(unsigned char* dst, unsigned char* src, int width, int height, unsigned int stride);

/* Two fields of 4-byte pixels to a frame and back: line l of the frame is line l / 2 of the first field if
 * l is even and of the second if it is odd. `height` counts the lines of the frame; an odd one gives the
 * first field one more. A line is `width` x 4 bytes, the product kept to 32 bits. Strides may be negative. */
TNTVT_API void tntvt_fld_sep_to_mix32(unsigned char* dst, long dstStride, unsigned char* firstField,
                                      unsigned char* secondField, long fieldStride, unsigned int width,
                                      unsigned int height);
TNTVT_API void tntvt_fld_mix_to_sep32(unsigned char* firstField, unsigned char* secondField, long fieldStride,
                                      unsigned char* src, long srcStride, unsigned int width, unsigned int height);

/* Copies a frame between pitches. With equal strides it is one copy of `height` x `dstStride` bytes, the
 * product kept to 32 bits and `height` untested, or none if `dst` is `src`. With unequal ones it copies the
 * smaller stride in bytes for each line, and nothing for a `height` below 1. The fifth argument is ignored. */
TNTVT_API void tntvt_copy_interleaved(unsigned char* dst, long dstStride, unsigned char* src, long srcStride, long,
                                      long height);

/* Mixes half of `src` into half of `dst`. The class of `fourcc` tells how, and is asked in this order:
 *
 *   fccIsYCbCr8                 `width` x 2 bytes a line, each halved before the sum, so 1 and 1 give 0
 *   fccIsYCbCr10, fccIsDPX      `width` x 2 / 3 words a line, three 10-bit fields each, halved after the
 *                               sum, so 1 and 1 give 1; bits 30 and 31 come out as zero
 *   fccIsRGB                    `width` x 4 bytes a line, as the first, alpha included
 *
 * Returns 0, or -1 for a code of no class. Two words for three pixels suits `v210`; a format with a word for
 * each pixel has the first two thirds of its lines mixed. A `width` or `height` below 1 does nothing. */
TNTVT_API int tntvt_copy_dissolve(unsigned char* dst, unsigned char* src, long stride, long width, long height,
                                  unsigned int fourcc);

TNTVT_END

#endif
