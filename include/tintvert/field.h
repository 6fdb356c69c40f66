/* Fields, deinterlacing, flips, interleaving and dissolve.
 *
 * The first field of a frame is its even lines 0, 2, 4 ..., the second its odd lines 1, 3, 5 ... Lines are
 * moved whole, slack included, and only the deinterlacer and the dissolve know channels. */
#ifndef TINTVERT_FIELD_H
#define TINTVERT_FIELD_H

#include <tintvert/export.h>

TNTVT_BEGIN

/* Rearranges the two fields of `dst`, by `mode`. D and S are the lines of `dst` and `src` at their own pitch, n is
 * `height` / 2, k runs from 0 to n - 1, and a `srcStride` of 0 is `dstStride`. A copy moves `srcStride` bytes.
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
 * Returns 0; -1 from mode 4 with a `height` below 2; -2 from modes 5 to 8, 11 and 12 with a null `src`. Any other mode
 * does nothing and returns 0. `height` is read as unsigned. An odd last line is not written, except by mode 4. Pitches
 * and their doubles wrap at 32 bits.
 *
 * Modes 1 to 4 ignore `src` and take their source lines from `dst` itself at the pitch `srcStride`.
 *
 * Mode 3 uses a scratch line of `dstStride` bytes, so `srcStride` must not be larger. If a copy throws, the error is
 * reported, the exchanged lines stay exchanged and 0 is returned. A `height` of 0 or 1 makes 2^32 rounds, and an odd
 * `height` never ends in modes 5 to 8.
 *
 * Mode 4 averages the first `width` x 4 bytes of line i with those at `dst` + i x `srcStride`, truncating. With equal
 * pitches that is the line itself and nothing changes.
 *
 * Modes 9 to 12 copy no line onto itself, and so work in place. The mean of modes 11 and 12 is over the `srcStride` / 4
 * pixels of a line, byte by byte, truncated; the byte at a pixel's lowest address is the sum of two halved bytes, one
 * less than the mean of two odd ones. The last line of mode 11 is the mean of a line with itself. Line 0 of mode 12
 * stays as it was in place, and is written even at a `height` of 0; that copy precedes even the result -2, and mode 11
 * makes it too if `src` or `dst` is null.
 *
 * Mode 13 moves `dstStride` bytes a line, mode 14 `srcStride`. With a null `src` they pack one field of `dst`, at the
 * pitch `srcStride`, into its top half and leave the bottom half as it was.
 *
 * Quirks: keeps_line_feed_before_carriage_return, keeps_source_pitch_on_dst, keeps_scratch_of_destination_pitch,
 * keeps_flip_without_guard, keeps_success_after_failure, keeps_even_heights_only, keeps_average_with_itself,
 * keeps_low_byte_of_halves, keeps_entry_copy, keeps_split_asymmetry, keeps_one_field_in_place. */
TNTVT_API int tntvt_change_field_rgb(unsigned char* dst, unsigned int mode, unsigned int width, unsigned int height,
                                     unsigned int dstStride, unsigned char* src, unsigned int srcStride);

/* Rearranges the two fields of a YCbCr frame: as tntvt_change_field_rgb, but no sample is computed. Mode 4 runs as
 * mode 1, mode 11 as mode 9, and mode 12 as mode 10.
 *
 * Quirks: keeps_line_feed_before_carriage_return, keeps_samples_uncomputed. */
TNTVT_API int tntvt_change_field_yuv(unsigned char* dst, unsigned int mode, unsigned int width, unsigned int height,
                                     unsigned int dstStride, unsigned char* src, unsigned int srcStride);

/* Detects combing against the line above and the line below, and replaces it. Returns 0. `width` counts elements of 8
 * bytes, of which bytes 0, 1 and 2 are examined; a replaced element has zero in bytes 3 to 7. `stride` is that of both
 * frames; a whole-line copy moves `stride` bytes.
 *
 *   mode     even lines                odd lines
 *    2       1-2-1 filter if combed    1-2-1 filter if combed
 *   16       whole-line copy           mean of the neighbours if combed
 *   17       copied by elements        whole-line copy
 *   other    copied by elements        mean of the neighbours if combed
 *
 * With a, b and c the channels above, below and here, an element is combed if its measure is above `threshold` squared.
 * For a `softness` of 0 the measure is the sum over the channels of w (a - c) (b - c), with w of 1, 6 and 3. Otherwise,
 * with K `softness` squared and at most 5500, each term is multiplied by K and divided by (a - b)^2 + K, truncating.
 * Both squares wrap at 32 bits and are read as signed; with K below 0 nothing is combed.
 *
 * Lines 0 and 1 use the next line on both sides, the last line uses the one above on both sides, and a frame of one
 * line or the second of two uses itself. `dst` may be `src`; then the line above has already been changed. The eighth
 * argument is ignored.
 *
 * Quirks: keeps_eight_byte_elements, keeps_next_line_for_first_two, keeps_changed_line_above,
 * keeps_wrapping_squares, keeps_plain_copy_of_mode_17. */
TNTVT_API int tntvt_deinterlace_rgb(unsigned char* dst, unsigned char* src, unsigned int width, unsigned int height,
                                    unsigned int stride, int threshold, int softness, long, int mode);

/* Does nothing and returns -1: YCbCr is not deinterlaced. The arguments are those of tntvt_deinterlace_rgb, so that
 * one function pointer serves both.
 *
 * Quirks: keeps_empty_deinterlace_yuv. */
TNTVT_API int tntvt_deinterlace_yuv(unsigned char* dst, unsigned char* src, unsigned int width, unsigned int height,
                                    unsigned int stride, int threshold, int softness, long, int mode);

/* Turns a frame upside down, in lines of `stride` bytes. `dst` may be `src`: lines are then exchanged through a scratch
 * line, and the middle one of an odd `height` stays. The third argument is ignored.
 *
 * With two frames a `height` below 1 does nothing. In place half of it is taken as unsigned, so a negative one runs out
 * of any frame. If a copy in place throws, the error is reported, the exchanged lines stay exchanged and the routine
 * returns. Line offsets wrap at 32 bits.
 *
 * Quirks: keeps_line_feed_before_carriage_return, keeps_success_after_failure, keeps_spare_byte,
 * keeps_unsigned_half_of_height. */
TNTVT_API void tntvt_flip_vert(unsigned char* dst, unsigned char* src, unsigned int, int height, unsigned int stride);

/* Turns a frame upside down: as tntvt_flip_vert, but from lines of `srcStride` bytes to lines of `dstStride` bytes. If
 * `dstStride` is larger, `flags` divides the difference into a left and a right margin:
 *
 *   flags & 0xF000000    left                right
 *   0x1000000            all                 none
 *   0x2000000            none                all
 *   0x4000000            half, rounded up    half
 *   0x8000000            half                half, rounded up
 *   any other            none                none
 *
 * The margins are cleared if `keepMargins` is 0. A `dstStride` below `srcStride` writes past the end of lines. The
 * third and fourth arguments are ignored. Line offsets, margins included, wrap at 32 bits.
 *
 * In place both halves use the pitch `dstStride` and no line moves within its stride: the margins of each top line are
 * cleared, `srcStride` bytes of the bottom line go to its start, and the whole top line goes down.
 *
 * Quirks: keeps_line_feed_before_carriage_return, keeps_success_after_failure, keeps_spare_byte,
 * keeps_unsigned_half_of_height, keeps_lines_unplaced_in_place. */
TNTVT_API void tntvt_flip_vert_flags(unsigned char* dst, unsigned char* src, unsigned int, unsigned int, int height,
                                     unsigned int dstStride, unsigned int srcStride, unsigned int flags,
                                     int keepMargins);

/* Mirrors the 4-byte pixels of each line about pixel `width` / 2: destination pixel i is source pixel `width` - i, for
 * i from 0 to `width` - 1. So the first pixel past the end of a line is read, and source pixel 0 is not. In place, with
 * `dst` equal to `src`, pixels i and `width` - i are exchanged for i below `width` / 2, which writes 4 bytes past the
 * end of the line.
 *
 * A `height` below 1 does nothing, and neither does a `width` below 1; in place `width` is read as unsigned, and 1 does
 * nothing. Offsets, those of pixels included, wrap at 32 bits.
 *
 * Quirks: keeps_mirror_past_the_line. */
TNTVT_API void tntvt_flip_horz(unsigned char* dst, unsigned char* src, int width, int height, unsigned int stride);

/* Two fields of 4-byte pixels interleaved into a frame: line l of the frame is line l / 2 of the first field if l is
 * even and of the second if it is odd. `height` counts the lines of the frame; an odd one gives the first field one
 * more. A line is `width` x 4 bytes, the product kept to 32 bits. Strides may be negative. Not for use in place. */
TNTVT_API void tntvt_fld_sep_to_mix32(unsigned char* dst, long dstStride, unsigned char* firstField,
                                      unsigned char* secondField, long fieldStride, unsigned int width,
                                      unsigned int height);

/* A frame of 4-byte pixels separated into its two fields: the reverse of tntvt_fld_sep_to_mix32. */
TNTVT_API void tntvt_fld_mix_to_sep32(unsigned char* firstField, unsigned char* secondField, long fieldStride,
                                      unsigned char* src, long srcStride, unsigned int width, unsigned int height);

/* Copies a frame between pitches. With equal strides it is one copy of `height` x `dstStride` bytes, the product kept
 * to 32 bits and `height` unchecked, or none if `dst` is `src`. With different strides it copies the smaller stride in
 * bytes for each line, and nothing for a `height` below 1. The fifth argument is ignored.
 *
 * Quirks: keeps_whole_copy_without_guard. */
TNTVT_API void tntvt_copy_interleaved(unsigned char* dst, long dstStride, unsigned char* src, long srcStride, long,
                                      long height);

/* Mixes half of `src` with half of `dst`, into `dst`; `stride` is that of both. The class of `fourcc` selects the
 * arithmetic, tested in this order:
 *
 *   fccIsYCbCr8                 `width` x 2 bytes a line, each halved before the sum, so 1 and 1 give 0
 *   fccIsYCbCr10, fccIsDPX      `width` x 2 / 3 words a line, three 10-bit fields each, halved after the
 *                               sum, so 1 and 1 give 1; bits 30 and 31 become 0
 *   fccIsRGB                    `width` x 4 bytes a line, as the first, alpha included
 *
 * Returns 0, or -1 for a code of no class. Two words for three pixels suit `v210`; of a format with a word for each
 * pixel only the first two thirds of a line are mixed. A `width` or `height` below 1 does nothing.
 *
 * Quirks: keeps_halves_before_sum, keeps_two_thirds_of_words. */
TNTVT_API int tntvt_copy_dissolve(unsigned char* dst, unsigned char* src, long stride, long width, long height,
                                  unsigned int fourcc);

TNTVT_END

#endif
