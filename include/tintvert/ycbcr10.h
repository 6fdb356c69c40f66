/* 10-bit YCbCr and RFC 4175 payloads. */
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
 * stores its own four samples and keeps the other fields of the group, so calls may share one; bits 30 and
 * 31 of a word that it completes become 0. */
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

TNTVT_END

#endif
