/* 10-bit YCbCr and RFC 4175 payloads.
 *
 * `v210` is 4:2:2 in groups of six pixels, four 32-bit little-endian words with three 10-bit samples each,
 * from low bits to high: Cb0 Y0 Cr0, Y1 Cb2 Y2, Cr2 Y3 Cb4, Y4 Cr4 Y5. */
#ifndef TINTVERT_YCBCR10_H
#define TINTVERT_YCBCR10_H

#include <tintvert/export.h>

TNTVT_BEGIN

/* RFC 4175 payload, 10-bit YCbCr 4:2:2, to `v210`: one run of pgroups, five bytes for two pixels, most
 * significant bit first. Returns 0.
 *
 * `dst` is the group that holds the first pixel. A `startPhase` of 2 or 4 says that this is pixel 2 or 4 of
 * the group: two pgroups or one complete it, which `pgroupCount` does not count; every other value means
 * pixel 0. Then `pgroupCount` pgroups follow, three a group; a negative count is none.
 *
 * `payloadSize` bounds the reads alone: samples past it are 0 and are written like any others. A pgroup
 * stores its own four samples and keeps the other fields of the group, so calls may share one; bits
 * 30 and 31 of the words that it writes become 0, but for the second word of a group under its first pgroup. */
TNTVT_API int tntvt_4175_to_v210(void* dst, unsigned char* payload, long payloadSize, long pgroupCount,
                                 long startPhase);

/* Packed 10-bit YCbCr 4:2:2, a frame of pgroups as RFC 4175 has them, to `v210`. Returns 0.
 *
 * A source line is `width` x 20 / 8 bytes, truncated, and starts on a byte; a destination line is 128 bytes
 * for each 48 pixels or part of them. Both are 32-bit products. A line never reads into the next: an odd
 * `width` takes one pair more than its line holds, whose missing bits are 0. Groups that `width` does not
 * fill keep their other fields, and the padding behind the last group is untouched. */
TNTVT_API int tntvt_YCbCr10Packed_to_v210(unsigned char* dst, unsigned char* src, unsigned int width,
                                          unsigned int height);

/* Walks a `v210` frame (lines of 128 bytes for each 48 pixels) and forms an RTP packet with the RFC 4175
 * payload header for each line, every one at byte 0 of `packet`, the very buffer that holds the frame.
 * Nothing is sent: what stands at the end is the packet of the last line over the frame's first 1395 bytes.
 * Returns 0.
 *
 * Twenty bytes of header: version 2 with extension, payload type 96, the sequence number from `*seq`,
 * `timestamp`, `ssrc`, `extSeq`, the length (1375, or 224 for a `width` up to 550), the line number from 1,
 * the offset. The last packet has the marker bit. The upper bytes of line number and offset are only ORed,
 * so their F and C bits stay as they were and the bits of earlier numbers pile up.
 *
 * The payload is the first pgroup of the line, `width` / 2 times but at most 275. It is read after the
 * header is stamped, and lines that start below byte 1395 are read as earlier packets left them.
 *
 * `*seq` comes back grown by one for each line, modulo 65536; `*outA` and `*outB` become 0. A `width` or
 * `height` of 0 forms no packet and sets the marker bit alone. An odd `width` never returns. `packetSize`
 * limits nothing: the buffer holds at least 1395 bytes and the whole frame. The seventh argument is
 * ignored. */
TNTVT_API int tntvt_v210_frame_to_rtp_4175(void* packet, long packetSize, unsigned short* seq, unsigned int timestamp,
                                           unsigned int ssrc, unsigned short extSeq, unsigned int* notUsed,
                                           unsigned int width, unsigned int height, unsigned int* outA,
                                           unsigned int* outB);
/* RGB to `v210`, one line. argb_to_v210 reads bytes ignored, R, G, B, or with `hasAlpha` zero three bytes a
 * pixel R, G, B; bgra_to_v210 reads B, G, R, ignored.
 *
 * The arithmetic is double precision up to a truncation. Nothing is clamped, and samples are joined with no
 * mask. Chroma is sited on the even pixels through a 1-2-1 filter that begins at 512.0 in both routines.
 *
 * argb_to_v210 uses the ITU-R BT.601 weights at 10-bit video range: black 64, white 940, neutral 512. Its
 * filter works on values around 128, so the first Cb and the first Cr of a line are 384 too high: 896 for
 * neutral pixels; for a pure blue first pixel Cb is 1232, whose high bit lands in the Y0 field.
 * bgra_to_v210 uses the same weights on 10-bit offsets with an 8-bit excursion: black 64, white 283, Cb and
 * Cr 512 and up to 111 on either side.
 *
 * `width` below 1 does nothing. A `width` that is no multiple of 6 reads six whole pixels for its last group
 * and writes it whole. */
TNTVT_API void argb_to_v210(unsigned char* src, unsigned int* dst, int width, int hasAlpha);
TNTVT_API void bgra_to_v210(unsigned char* src, unsigned int* dst, int width);

/* `rgb32` (B, G, R, alpha) to `v210`, a frame, lines at the start of their strides. A `dstStride` of 0 is 128
 * bytes for every 48 pixels begun; a `srcStride` of 0 is `width` x 4.
 *
 * Up to a `width` of 961 the numbers are those of bgra_to_v210. From 962 on they are the ITU-R BT.709 weights
 * with the same narrow excursion: black 64, white 318, chroma 512 and up to 128 on either side.
 *
 * The frame is `width` x `height` pixels, the product kept to 32 bits; below 1 nothing is done. Groups are
 * counted over the whole frame: a line begins at the first of its pixels whose number in the frame is a
 * multiple of 6, which is written to the line's start, and gets as many groups as begin in it. With a `width`
 * of 1280 the first line of three gets 214 groups and reads four pixels past its end, and the other two get
 * 213 and leave their last two pixels out. Below a `width` of 6 lines are skipped. The chroma filter runs on
 * from line to line. */
TNTVT_API void tntvt_rgb32_v210(void* dst, long dstStride, void* src, long srcStride, long width, long height);

/* `yuv2` and `yuvs`, 8-bit 4:2:2 at full range, to `2vuy` at video range, a run of `width` pixels of two bytes
 * each. What the names say of `v210` they do not do. Luma becomes Y * 219 / 255 + 16; chroma, whose top bit
 * yuv2_to_v210 inverts first, becomes (c * 224 - 224) / 254 + 16, and 16 for 0. `width` below 1 does nothing.
 * `src` and `dst` may be the same memory. */
TNTVT_API void yuv2_to_v210(unsigned char* src, unsigned char* dst, int width);
TNTVT_API void yuvs_to_v210(unsigned char* src, unsigned char* dst, int width);

/* `2vuy` to `v210`, a frame: samples times 4. `2vuy` lines are `width` x 2 bytes. A `dstStride` of 0 is
 * `width` x 16 / 6 rounded up to a multiple of 64: 5120 for 1920, 3456 for 1280, 320 for 100.
 *
 * Lines go from last to first. A `width` that is no multiple of 6 reads and writes its last group whole; the
 * padding behind that is left alone. A `width` of 0 does nothing. A `height` of 0 is 2^32 lines: not to be
 * called. tntvt_yuv422_8_yuv422_10 is the same under another name. */
TNTVT_API void tntvt_2vuy_v210(unsigned char* dst, unsigned char* src, unsigned int width, unsigned int height,
                               unsigned int dstStride);
TNTVT_API void tntvt_yuv422_8_yuv422_10(unsigned char* dst, unsigned char* src, unsigned int width, unsigned int height,
                                        unsigned int dstStride);

/* `v210` to `2vuy`, a frame: the two low bits of each sample are dropped. `2vuy` lines are `width` x 2 bytes.
 * A `srcStride` of 0 is `width` x 16 / 6 with no rounding up: 5120 for 1920, but 3413 for 1280, where the
 * opposite direction writes 3456.
 *
 * A line runs on to twice its length: `width` / 3 groups, rounded up, are read, 16 bytes each, and 12 bytes
 * written for each. Lines go from first to last, each over the surplus of the one before, so the frame comes
 * out right. Leave `width` x 2 bytes (rounded up to a whole group) behind the last line of `dst`, and the same
 * number of groups again behind the last line of `src`.
 *
 * Offsets of lines are kept to 32 bits. A `width` or a `height` of 0 does nothing. tntvt_yuv422_10_yuv422_8
 * is the same under another name. */
TNTVT_API void tntvt_v210_2vuy(unsigned char* dst, unsigned char* src, unsigned int width, unsigned int height,
                               unsigned int srcStride);
TNTVT_API void tntvt_yuv422_10_yuv422_8(unsigned char* dst, unsigned char* src, unsigned int width, unsigned int height,
                                        unsigned int srcStride);

TNTVT_END

#endif
