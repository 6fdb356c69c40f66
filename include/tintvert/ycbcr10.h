/* 10-bit YCbCr and RFC 4175 payloads.
 *
 * `v210` is 4:2:2 in groups of six pixels, four 32-bit little-endian words with three 10-bit samples each,
 * from low bits to high: Cb0 Y0 Cr0, Y1 Cb2 Y2, Cr2 Y3 Cb4, Y4 Cr4 Y5. */
#ifndef TINTVERT_YCBCR10_H
#define TINTVERT_YCBCR10_H

#include <tintvert/export.h>

TNTVT_BEGIN

/* RFC 4175 payload, 10-bit YCbCr 4:2:2, to `v210`: one run of pgroups, five bytes for two pixels, most significant bit
 * first. Returns 0.
 *
 * `dst` is the group of the first pixel. A `startPhase` of 2 or 4 starts at pixel 2 or 4 of that group: two pgroups or
 * one complete it and are not counted in `pgroupCount`. Every other value starts at pixel 0. Then `pgroupCount`
 * pgroups follow, three a group; a negative count is none.
 *
 * `payloadSize` limits only the reads: samples past it are 0 and are written like any others. A pgroup stores its own
 * four samples and keeps the other fields of the group, so that several calls may fill one group. Bits 30 and 31 of
 * the words that it writes become 0, except in word 1 of a group by its first pgroup. */
TNTVT_API int tntvt_4175_to_v210(void* dst, unsigned char* payload, long payloadSize, long pgroupCount,
                                 long startPhase);

/* Packed 10-bit YCbCr 4:2:2, a frame of RFC 4175 pgroups without headers, to `v210`. Returns 0.
 *
 * A source line is `width` x 20 / 8 bytes, truncated, and starts on a byte; a destination line is 128 bytes for each
 * 48 pixels or part of them. Line offsets are 32-bit products. A line never reads into the next: an odd `width` reads
 * one pair more than its line has, whose missing bits are 0. The last group of a line keeps the fields that `width`
 * does not fill, and the padding after it is untouched.
 *
 * Quirks: keeps_pair_past_odd_width. */
TNTVT_API int tntvt_YCbCr10Packed_to_v210(unsigned char* dst, unsigned char* src, unsigned int width,
                                          unsigned int height);

/* Reads a `v210` frame (lines of 128 bytes for each 48 pixels) and forms one RTP packet with the RFC 4175 payload
 * header for each line, always at byte 0 of `packet`, which is the buffer of the frame itself. Nothing is sent: at the
 * end the packet of the last line is left over the frame's first 1395 bytes. Returns 0.
 *
 * The header is 20 bytes: version 2 with extension, payload type 96, the sequence number from `*seq`, `timestamp`,
 * `ssrc`, `extSeq`, the length (1375, or 224 for a `width` up to 550), the line number from 1, the offset. The last
 * packet has the marker bit. The high bytes of line number and offset are ORed into the buffer, so their F and C bits
 * stay as they were and the bits of earlier line numbers accumulate.
 *
 * The payload is the first pgroup of the line, repeated `width` / 2 times but at most 275. It is read after the header
 * is written, and lines that start below byte 1395 are read as earlier packets left them.
 *
 * `*seq` grows by one for each line, modulo 65536; `*outA` and `*outB` become 0. A `width` or `height` of 0 forms no
 * packet and only sets the marker bit. An odd `width` never returns. `packetSize` limits nothing: the buffer must have
 * at least 1395 bytes and the whole frame. The seventh argument is ignored.
 *
 * Quirks: keeps_or_of_high_bits, keeps_fixed_length_224, keeps_place_in_line, keeps_endless_odd_width,
 * keeps_header_over_line_0. */
TNTVT_API int tntvt_v210_frame_to_rtp_4175(void* packet, long packetSize, unsigned short* seq, unsigned int timestamp,
                                           unsigned int ssrc, unsigned short extSeq, unsigned int* notUsed,
                                           unsigned int width, unsigned int height, unsigned int* outA,
                                           unsigned int* outB);

/* RGB to `v210`, one line, source first. Pixels are four bytes, ignored, R, G, B; with `hasAlpha` zero they are three
 * bytes, R, G, B.
 *
 * ITU-R BT.601 in double precision, truncated, at 10-bit video range: black 64, white 940, neutral chroma 512. Nothing
 * is clamped, and fields are combined without a mask. Chroma is sited on the even pixels by a 1-2-1 filter. The filter
 * starts at 512.0 but works on values around 128, so the first Cb and the first Cr of a line are 384 too high: 896 for
 * neutral pixels, and 1232 for Cb of a pure blue pixel, whose high bit lands in the Y0 field.
 *
 * A `width` below 1 does nothing. The last group is read and written whole: up to five pixels past the end of the line
 * are read.
 *
 * Quirks: keeps_half_before_truncation, keeps_chroma_start_of_512, keeps_overflow_into_next_field. */
TNTVT_API void argb_to_v210(unsigned char* src, unsigned int* dst, int width, int hasAlpha);

/* RGB (B, G, R, ignored) to `v210`, one line, source first.
 *
 * ITU-R BT.601 in double precision, truncated, with 10-bit offsets but an 8-bit excursion: black 64, white 283, Cb and
 * Cr 512 with up to 111 on either side. Nothing is clamped. Chroma is sited on the even pixels by a 1-2-1 filter that
 * starts at 512.0. `width` and the last group as in argb_to_v210.
 *
 * Quirks: keeps_8_bit_excursion. */
TNTVT_API void bgra_to_v210(unsigned char* src, unsigned int* dst, int width);

/* `rgb32` (B, G, R, alpha) to `v210`, a frame, with lines at the start of their strides. A `dstStride` of 0 is 128
 * bytes for each 48 pixels or part of them; a `srcStride` of 0 is `width` x 4.
 *
 * Up to a `width` of 961 the numbers are those of bgra_to_v210. From 962 on they are the ITU-R BT.709 weights with the
 * same 8-bit excursion: black 64, white 318, chroma 512 with up to 128 on either side.
 *
 * The frame is `width` x `height` pixels, the product kept to 32 bits; below 1 nothing is done. Groups are counted
 * over the whole frame, not line by line. A line begins at the first of its pixels whose number in the frame is a
 * multiple of 6, which is written to the start of the line, and gets as many groups as begin in it. With a `width` of
 * 1280 the first line of every three gets 214 groups and reads four pixels past its end; the other two get 213 and
 * leave out their last two pixels. Below a `width` of 6 lines are skipped. The chroma filter continues from line to
 * line.
 *
 * Quirks: keeps_8_bit_excursion, keeps_matrix_change_at_962, keeps_chroma_across_lines, keeps_groups_across_lines.
 * */
TNTVT_API void tntvt_rgb32_v210(void* dst, long dstStride, void* src, long srcStride, long width, long height);

/* `yuv2` to `2vuy`, in spite of the name: a run of `width` pixels of two bytes each, source first, full range to video
 * range. The same numbers as yuv2_to_2vuy: luma Y x 219 / 255 + 16; chroma, its top bit inverted first, (c x 224 -
 * 224) / 254 + 16, and 16 for 0. A `width` below 1 does nothing. `src` and `dst` may be the same memory.
 *
 * Quirks: keeps_8_bit_bytes_under_a_v210_name, keeps_divisors_255_and_254. */
TNTVT_API void yuv2_to_v210(unsigned char* src, unsigned char* dst, int width);

/* `yuvs` to `2vuy`, in spite of the name: as yuv2_to_v210 with unsigned chroma, which is taken as it is.
 *
 * Quirks: keeps_8_bit_bytes_under_a_v210_name, keeps_divisors_255_and_254. */
TNTVT_API void yuvs_to_v210(unsigned char* src, unsigned char* dst, int width);

/* `2vuy` to `v210`, a frame: every sample times 4. `2vuy` lines are `width` x 2 bytes with no gap. A `dstStride` of 0
 * is `width` x 16 / 6 rounded up to a multiple of 64: 5120 for 1920, 3456 for 1280, 320 for 100.
 *
 * Lines go from last to first. The last group of a line is read and written whole, up to five source pixels past the
 * end; the padding after it is untouched. A `width` of 0 does nothing. A `height` of 0 is 2^32 lines: never pass
 * it.
 *
 * Quirks: keeps_lines_of_64_bytes, keeps_last_line_first_without_guard. */
TNTVT_API void tntvt_2vuy_v210(unsigned char* dst, unsigned char* src, unsigned int width, unsigned int height,
                               unsigned int dstStride);

/* `2vuy` to `v210`, a frame. The same as tntvt_2vuy_v210. */
TNTVT_API void tntvt_yuv422_8_yuv422_10(unsigned char* dst, unsigned char* src, unsigned int width, unsigned int height,
                                        unsigned int dstStride);

/* `v210` to `2vuy`, a frame: the two low bits of each sample are dropped. `2vuy` lines are `width` x 2 bytes with no
 * gap. A `srcStride` of 0 is `width` x 16 / 6 with no rounding up: 5120 for 1920, but 3413 for 1280, where
 * tntvt_2vuy_v210 writes 3456.
 *
 * A line runs to twice its length: `width` / 3 groups, rounded up, of 16 bytes are read and 12 bytes written for each.
 * Lines go from first to last, each over the surplus of the one before, so the frame comes out right. After the last
 * line `dst` needs `width` x 2 more bytes (rounded up to a whole group), and `src` the same number of groups again.
 *
 * Line offsets are kept to 32 bits. A `width` or `height` of 0 does nothing.
 *
 * Quirks: keeps_unrounded_lines, keeps_double_length_lines. */
TNTVT_API void tntvt_v210_2vuy(unsigned char* dst, unsigned char* src, unsigned int width, unsigned int height,
                               unsigned int srcStride);

/* `v210` to `2vuy`, a frame. The same as tntvt_v210_2vuy. */
TNTVT_API void tntvt_yuv422_10_yuv422_8(unsigned char* dst, unsigned char* src, unsigned int width, unsigned int height,
                                        unsigned int srcStride);

TNTVT_END

#endif
