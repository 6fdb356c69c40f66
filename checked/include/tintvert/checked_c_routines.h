/* Made from the catalogue by checked_generate; do not edit. Included by <tintvert_checked.h>. */
#ifndef TINTVERT_CHECKED_C_ROUTINES_H
#define TINTVERT_CHECKED_C_ROUTINES_H

#include <tintvert_checked.h>

#ifdef __cplusplus
extern "C" {
#endif

/* Notes the processor's feature bit 0x20; no conversion needs it. */
tntvt_checked_result checked_tnvtt_open(unsigned int, unsigned int, unsigned int, unsigned int,
                                        const tntvt_checked_options* options);

/* Obtains a block with a 32-byte aligned pointer into it. */
tntvt_checked_result checked_malloc_own_cache_lines(int size, tntvt_checked_buffer raw, tntvt_checked_buffer aligned,
                                                    const tntvt_checked_options* options);

/* Releases a block from malloc_own_cache_lines. */
tntvt_checked_result checked_free_own_cache_lines(tntvt_checked_buffer raw, tntvt_checked_buffer aligned,
                                                  const tntvt_checked_options* options);

/* RGB to 4:2:2, BT.601 video range, one run of pixels. */
tntvt_checked_result checked_argb_to_2vuy(tntvt_checked_buffer src, tntvt_checked_buffer dst, int pixels,
                                          const tntvt_checked_options* options);

/* RGB to 4:2:2, BT.601 video range, one run of pixels. */
tntvt_checked_result checked_bgra_to_2vuy(tntvt_checked_buffer src, tntvt_checked_buffer dst, int pixels,
                                          const tntvt_checked_options* options);

/* RGB to 4:2:2, BT.709 full range, one run of pixels. */
tntvt_checked_result checked_hd_rgb_to_2vuy(tntvt_checked_buffer src, tntvt_checked_buffer dst, int pixels, int bgra,
                                            const tntvt_checked_options* options);

/* RGB to 4:2:2, BT.601 video range, the frame as one run. */
tntvt_checked_result checked_tntvt_rgb32_2vuy(tntvt_checked_buffer dst, long dstStride, tntvt_checked_buffer src,
                                              long srcStride, long width, long height,
                                              const tntvt_checked_options* options);

/* Full-range 4:2:2 with signed chroma to video range, one run of pixels. */
tntvt_checked_result checked_yuv2_to_2vuy(tntvt_checked_buffer src, tntvt_checked_buffer dst, int pixels,
                                          const tntvt_checked_options* options);

/* Full-range 4:2:2 to video range, one run of pixels. */
tntvt_checked_result checked_yuvs_to_2vuy(tntvt_checked_buffer src, tntvt_checked_buffer dst, int pixels,
                                          const tntvt_checked_options* options);

/* Full-range 4:2:2 with signed chroma to video range, the frame as one run. */
tntvt_checked_result checked_tntvt_yuv2_2vuy(tntvt_checked_buffer dst, tntvt_checked_buffer src, int width, int height,
                                             const tntvt_checked_options* options);

/* Full-range 4:2:2 with signed chroma to video range, the frame as one run. */
tntvt_checked_result checked_tntvt_yuvu_2vuy(tntvt_checked_buffer dst, tntvt_checked_buffer src, int width, int height,
                                             const tntvt_checked_options* options);

/* Full-range 4:2:2 to video range, the frame as one run. */
tntvt_checked_result checked_tntvt_yuvs_2vuy(tntvt_checked_buffer dst, tntvt_checked_buffer src, int width, int height,
                                             const tntvt_checked_options* options);

/* 4:4:4 to 4:2:2, the chroma of odd pixels dropped. */
tntvt_checked_result checked_tntvt_yuv444_yuv422_8(tntvt_checked_buffer dst, tntvt_checked_buffer src,
                                                   unsigned int width, unsigned int height, unsigned int,
                                                   const tntvt_checked_options* options);

/* 4:2:2 to 4:4:4, chroma repeated. */
tntvt_checked_result checked_tntvt_yuv422_yuv444_8(tntvt_checked_buffer dst, tntvt_checked_buffer src,
                                                   unsigned int width, unsigned int height, unsigned int,
                                                   const tntvt_checked_options* options);

/* Empty. */
tntvt_checked_result checked_tntvt_yuv411_yuv422_8(tntvt_checked_buffer, tntvt_checked_buffer, unsigned int,
                                                   unsigned int, unsigned int, const tntvt_checked_options* options);

/* Empty. */
tntvt_checked_result checked_tntvt_yuv422_yuv411_8(tntvt_checked_buffer, tntvt_checked_buffer, unsigned int,
                                                   unsigned int, unsigned int, const tntvt_checked_options* options);

/* Empty. */
tntvt_checked_result checked_tntvt_yuv420_yuv422_8(tntvt_checked_buffer, tntvt_checked_buffer, unsigned int,
                                                   unsigned int, unsigned int, const tntvt_checked_options* options);

/* Empty. */
tntvt_checked_result checked_tntvt_yuv422_yuv420_8(tntvt_checked_buffer, tntvt_checked_buffer, unsigned int,
                                                   unsigned int, unsigned int, const tntvt_checked_options* options);

/* Empty. */
tntvt_checked_result checked_tntvt_yuv420_yuv411_8(tntvt_checked_buffer, tntvt_checked_buffer, unsigned int,
                                                   unsigned int, unsigned int, const tntvt_checked_options* options);

/* Empty. */
tntvt_checked_result checked_tntvt_yuv411_yuv420_8(tntvt_checked_buffer, tntvt_checked_buffer, unsigned int,
                                                   unsigned int, unsigned int, const tntvt_checked_options* options);

/* 4:2:2 planes to packed 4:2:2, unbroken runs. */
tntvt_checked_result checked_tntvt_planar_2vuy(tntvt_checked_buffer dst, tntvt_checked_buffer y,
                                               tntvt_checked_buffer cb, tntvt_checked_buffer cr, unsigned int,
                                               unsigned int, unsigned int, unsigned int count,
                                               const tntvt_checked_options* options);

/* Packed 4:2:2 to planes, unbroken runs. */
tntvt_checked_result checked_tntvt_2vuy_planar(tntvt_checked_buffer y, tntvt_checked_buffer cb, tntvt_checked_buffer cr,
                                               unsigned int, unsigned int, unsigned int, tntvt_checked_buffer src,
                                               unsigned int count, const tntvt_checked_options* options);

/* Two fields of 4:2:2 planes woven into one packed frame. */
tntvt_checked_result checked_tntvt_planarfields_2vuy(tntvt_checked_buffer dst, tntvt_checked_buffer y1,
                                                     tntvt_checked_buffer cb1, tntvt_checked_buffer cr1,
                                                     tntvt_checked_buffer y2, tntvt_checked_buffer cb2,
                                                     tntvt_checked_buffer cr2, unsigned int, unsigned int, unsigned int,
                                                     unsigned int groups, unsigned int total,
                                                     const tntvt_checked_options* options);

/* 4:2:0 to 4:2:2, chroma lines repeated. */
tntvt_checked_result checked_tntvt_i420_2vuy(tntvt_checked_buffer dst, tntvt_checked_buffer src, unsigned int width,
                                             unsigned int height, unsigned int stride,
                                             const tntvt_checked_options* options);

/* 4:2:2 to 4:2:0, the chroma of odd lines dropped. */
tntvt_checked_result checked_tntvt_2vuy_i420(tntvt_checked_buffer dst, tntvt_checked_buffer src, unsigned int width,
                                             unsigned int height, unsigned int stride,
                                             const tntvt_checked_options* options);

/* 4:2:0, Cr first, to 4:2:2, in order or in the interlaced line order. */
tntvt_checked_result checked_tntvt_yv12_2vuy(tntvt_checked_buffer dst, tntvt_checked_buffer src, unsigned int width,
                                             unsigned int height, unsigned int stride, unsigned char interlaced,
                                             const tntvt_checked_options* options);

/* 4:2:2 to 4:2:0, Cr first, the chroma of odd lines dropped. */
tntvt_checked_result checked_tntvt_2vuy_yv12(tntvt_checked_buffer dst, tntvt_checked_buffer src, unsigned int width,
                                             unsigned int height, unsigned int stride,
                                             const tntvt_checked_options* options);

/* 4:2:2 to three 4:2:0 planes, chroma averaged over two lines. */
tntvt_checked_result checked_YUY2toYV12(tntvt_checked_buffer src, tntvt_checked_buffer y, tntvt_checked_buffer cb,
                                        tntvt_checked_buffer cr, int width, int height, int srcPitch, int dstPitch,
                                        const tntvt_checked_options* options);

/* A luma plane to 4:2:2 with neutral chroma; may run in place. */
tntvt_checked_result checked_tntvt_alphay_to_2yuv(tntvt_checked_buffer dst, long dstStride, tntvt_checked_buffer src,
                                                  long srcStride, long width, long height,
                                                  const tntvt_checked_options* options);

/* The luma of 4:2:2 as a plane, height + 1 lines. */
tntvt_checked_result checked_tntvt_2yuv_to_alphay(tntvt_checked_buffer dst, long dstStride, tntvt_checked_buffer src,
                                                  long srcStride, long width, long height,
                                                  const tntvt_checked_options* options);

/* 4:2:2 with its chroma made neutral, height + 1 lines. */
tntvt_checked_result checked_tntvt_2yuv_strip_chroma(tntvt_checked_buffer dst, long dstStride, tntvt_checked_buffer src,
                                                     long srcStride, long width, long height,
                                                     const tntvt_checked_options* options);

/* An alpha plane in all four bytes of each pixel. */
tntvt_checked_result checked_tntvt_alpha_to_rgba(tntvt_checked_buffer dst, long, tntvt_checked_buffer src,
                                                 long dstStride, long width, long height,
                                                 const tntvt_checked_options* options);

/* Byte 0 of each pixel as an alpha plane. */
tntvt_checked_result checked_tntvt_rgba_to_alpha(tntvt_checked_buffer dst, long, tntvt_checked_buffer src,
                                                 long srcStride, long width, long height,
                                                 const tntvt_checked_options* options);

/* One alpha in byte 3 of each pixel. */
tntvt_checked_result checked_tntvt_rgba_setalpha(tntvt_checked_buffer dst, long dstStride, unsigned int alpha,
                                                 long width, long height, const tntvt_checked_options* options);

/* 24 to 32 bits with one alpha in byte 3. */
tntvt_checked_result checked_tntvt_rgba_addalpha(tntvt_checked_buffer src, tntvt_checked_buffer dst, long srcStride,
                                                 long dstStride, unsigned int alpha, int width, int height,
                                                 const tntvt_checked_options* options);

/* Isolated errors in the second luma of pairs, removed in place. */
tntvt_checked_result checked_tntvt_2yuv_average_2y(tntvt_checked_buffer buf, unsigned int bytes, int mode,
                                                   const tntvt_checked_options* options);

/* 4:2:2 between video and full range by tables, in place. */
tntvt_checked_result checked_tntvt_2vuy_scale(tntvt_checked_buffer buffer, unsigned int bytes, unsigned int up,
                                              const tntvt_checked_options* options);

/* 4:2:2 to 24 or 32-bit RGB by tables, reduced by 1, 2 or 4. */
tntvt_checked_result checked_tntvt_yuv422_rgb24(tntvt_checked_buffer dst, long dstStride, tntvt_checked_buffer src,
                                                long srcStride, long width, long height, long scale,
                                                const tntvt_checked_options* options);

/* 4:2:2 to 15-bit RGB by tables, neighbouring lines exchanged. */
tntvt_checked_result checked_tntvt_yuv422_rgb16(tntvt_checked_buffer dst, long dstStride, tntvt_checked_buffer src,
                                                long srcStride, long width, long height, long scale,
                                                const tntvt_checked_options* options);

/* 10-bit 4:2:2 to 24 or 32-bit RGB by 8-bit tables, reduced by 1, 2 or 4. */
tntvt_checked_result checked_tntvt_v210_rgb24(tntvt_checked_buffer dst, long dstStride, tntvt_checked_buffer src,
                                              long srcStride, long width, long height, long scale,
                                              const tntvt_checked_options* options);

/* 10-bit 4:2:2 to 15-bit RGB by 8-bit tables, lines in their order. */
tntvt_checked_result checked_tntvt_v210_rgb16(tntvt_checked_buffer dst, long dstStride, tntvt_checked_buffer src,
                                              long srcStride, long width, long height, long scale,
                                              const tntvt_checked_options* options);

/* Fills the tables of _v210_to_rgb. */
tntvt_checked_result checked_init_v210_to_rgb(const tntvt_checked_options* options);

/* Splits one group into its twelve samples. */
tntvt_checked_result checked__v210_get_next_4words(tntvt_checked_buffer src, tntvt_checked_buffer out,
                                                   const tntvt_checked_options* options);

/* 10-bit 4:2:2 to 32-bit RGB by 10-bit tables, the frame as one run. */
tntvt_checked_result checked__v210_to_rgb(tntvt_checked_buffer src, tntvt_checked_buffer dst, int width, int height,
                                          int dstStride, int bgraOrder, const tntvt_checked_options* options);

/* v210 to 24-bit RGB by tables, with default strides. */
tntvt_checked_result checked_tntvt_yuv422_10_rgb24(tntvt_checked_buffer dst, long dstStride, tntvt_checked_buffer src,
                                                   long srcStride, long width, long height, long scale,
                                                   const tntvt_checked_options* options);

/* v210 to 32-bit RGB, by libycbcr or reduced by tables. */
tntvt_checked_result checked_tntvt_yuv422_10_rgb32(tntvt_checked_buffer dst, long dstStride, tntvt_checked_buffer src,
                                                   long srcStride, long width, long height, long scale,
                                                   const tntvt_checked_options* options);

/* 4:2:2 to RGB, by the v210 decoder of libycbcr or reduced by tables. */
tntvt_checked_result checked_tntvt_yuv422_8_rgb24(tntvt_checked_buffer dst, long dstStride, tntvt_checked_buffer src,
                                                  long srcStride, long width, long height, long scale,
                                                  const tntvt_checked_options* options);

/* 4:2:2 to 32-bit RGB, by libycbcr or reduced by tables. */
tntvt_checked_result checked_tntvt_yuv422_8_rgb32(tntvt_checked_buffer dst, long dstStride, tntvt_checked_buffer src,
                                                  long srcStride, long width, long height, long scale,
                                                  const tntvt_checked_options* options);

/* 4:2:0 to 32-bit RGB by libycbcr, Cb plane first. */
tntvt_checked_result checked_tntvt_i420_rgb32(tntvt_checked_buffer dst, tntvt_checked_buffer src, unsigned int width,
                                              unsigned int height, unsigned int srcStride,
                                              const tntvt_checked_options* options);

/* 4:2:0 to 32-bit RGB by libycbcr, Cr plane first. */
tntvt_checked_result checked_tntvt_yv12_rgb32(tntvt_checked_buffer dst, tntvt_checked_buffer src, unsigned int width,
                                              unsigned int height, unsigned int srcStride,
                                              const tntvt_checked_options* options);

/* 4:4:4 to 32-bit RGB with the JPEG coefficients, unclamped. */
tntvt_checked_result checked_tntvt_yuvijg_rgb32(tntvt_checked_buffer dst, long dstStride, tntvt_checked_buffer src,
                                                long srcStride, long width, long height,
                                                const tntvt_checked_options* options);

/* RGB to 10-bit 4:2:2 with an 8-bit excursion, BT.601 up to a width of 961, BT.709 above. */
tntvt_checked_result checked_tntvt_rgb32_v210(tntvt_checked_buffer dst, long dstStride, tntvt_checked_buffer src,
                                              long srcStride, long width, long height,
                                              const tntvt_checked_options* options);

/* RGB to 10-bit 4:2:2, BT.601 video range, one line. */
tntvt_checked_result checked_argb_to_v210(tntvt_checked_buffer src, tntvt_checked_buffer dst, int width, int hasAlpha,
                                          const tntvt_checked_options* options);

/* RGB to 10-bit 4:2:2 with an 8-bit excursion, BT.601, one line. */
tntvt_checked_result checked_bgra_to_v210(tntvt_checked_buffer src, tntvt_checked_buffer dst, int width,
                                          const tntvt_checked_options* options);

/* 8-bit 4:2:2 with signed chroma to chroma first and video range. */
tntvt_checked_result checked_yuv2_to_v210(tntvt_checked_buffer src, tntvt_checked_buffer dst, int width,
                                          const tntvt_checked_options* options);

/* 8-bit 4:2:2 to chroma first and video range. */
tntvt_checked_result checked_yuvs_to_v210(tntvt_checked_buffer src, tntvt_checked_buffer dst, int width,
                                          const tntvt_checked_options* options);

/* 8-bit to 10-bit 4:2:2, samples times 4. */
tntvt_checked_result checked_tntvt_2vuy_v210(tntvt_checked_buffer dst, tntvt_checked_buffer src, unsigned int width,
                                             unsigned int height, unsigned int dstStride,
                                             const tntvt_checked_options* options);

/* 10-bit to 8-bit 4:2:2, low bits dropped; lines run to twice their length. */
tntvt_checked_result checked_tntvt_v210_2vuy(tntvt_checked_buffer dst, tntvt_checked_buffer src, unsigned int width,
                                             unsigned int height, unsigned int srcStride,
                                             const tntvt_checked_options* options);

/* tntvt_2vuy_v210 under another name. */
tntvt_checked_result checked_tntvt_yuv422_8_yuv422_10(tntvt_checked_buffer dst, tntvt_checked_buffer src,
                                                      unsigned int width, unsigned int height, unsigned int dstStride,
                                                      const tntvt_checked_options* options);

/* tntvt_v210_2vuy under another name. */
tntvt_checked_result checked_tntvt_yuv422_10_yuv422_8(tntvt_checked_buffer dst, tntvt_checked_buffer src,
                                                      unsigned int width, unsigned int height, unsigned int srcStride,
                                                      const tntvt_checked_options* options);

/* RFC 4175 payload, a run of pgroups, to v210, bit by bit. */
tntvt_checked_result checked_tntvt_4175_to_v210(tntvt_checked_buffer dst, tntvt_checked_buffer payload,
                                                long payloadSize, long pgroupCount, long startPhase,
                                                const tntvt_checked_options* options);

/* A packed 10-bit frame to v210. */
tntvt_checked_result checked_tntvt_YCbCr10Packed_to_v210(tntvt_checked_buffer dst, tntvt_checked_buffer src,
                                                         unsigned int width, unsigned int height,
                                                         const tntvt_checked_options* options);

/* An RTP packet for each line, all formed over the head of the frame. */
tntvt_checked_result checked_tntvt_v210_frame_to_rtp_4175(tntvt_checked_buffer packet, long packetSize,
                                                          tntvt_checked_buffer seq, unsigned int timestamp,
                                                          unsigned int ssrc, unsigned short extSeq,
                                                          tntvt_checked_buffer, unsigned int width, unsigned int height,
                                                          tntvt_checked_buffer outA, tntvt_checked_buffer outB,
                                                          const tntvt_checked_options* options);

/* 10-bit words to 16-bit channels, masked with 0xFF30, opaque alpha. */
tntvt_checked_result checked_tntvt_rgb10_rgba64(tntvt_checked_buffer dst, long, tntvt_checked_buffer src, long,
                                                long width, long height, unsigned char swapBytes,
                                                unsigned char flipLines, const tntvt_checked_options* options);

/* 10-bit words to 16-bit channels, masked with 0xFF30. */
tntvt_checked_result checked_tntvt_rgb10_rgb48(tntvt_checked_buffer dst, long, tntvt_checked_buffer src, long,
                                               long width, long height, unsigned char swapBytes,
                                               unsigned char flipLines, const tntvt_checked_options* options);

/* 10-bit words to the top 8 bits of each field, opaque alpha. */
tntvt_checked_result checked_tntvt_rgb10_rgba32(tntvt_checked_buffer dst, long, tntvt_checked_buffer src, long,
                                                long width, long height, unsigned char swapBytes,
                                                unsigned char flipLines, const tntvt_checked_options* options);

/* Packed 12-bit samples to 16-bit words, in the order of the stream. */
tntvt_checked_result checked_tntvt_rgb12_bgr48(tntvt_checked_buffer dst, long dstStride, tntvt_checked_buffer src,
                                               long srcStride, long width, long height,
                                               const tntvt_checked_options* options);

/* Packed 12-bit samples to 16-bit words, reversed in each pixel, over three times the width. */
tntvt_checked_result checked_tntvt_rgb12_rgb48(tntvt_checked_buffer dst, long dstStride, tntvt_checked_buffer src,
                                               long srcStride, long width, long height,
                                               const tntvt_checked_options* options);

/* Packed 12-bit samples to their upper 8 bits, opaque alpha. */
tntvt_checked_result checked_tntvt_rgb12_rgba32(tntvt_checked_buffer dst, long dstStride, tntvt_checked_buffer src,
                                                long srcStride, long width, long height,
                                                const tntvt_checked_options* options);

/* The low 12 bits of 16-bit words to packed samples, highest bit first. */
tntvt_checked_result checked_tntvt_rgb48_12_rgb12(tntvt_checked_buffer dst, long dstStride, tntvt_checked_buffer src,
                                                  long srcStride, long width, long height,
                                                  const tntvt_checked_options* options);

/* The upper 12 bits of 16-bit words to packed samples, highest bit first. */
tntvt_checked_result checked_tntvt_rgb48_rgb12(tntvt_checked_buffer dst, long dstStride, tntvt_checked_buffer src,
                                               long srcStride, long width, long height,
                                               const tntvt_checked_options* options);

/* One byte a line: bits 4 to 11 of the line's last word. */
tntvt_checked_result checked_tntvt_rgb48_12_rgba32(tntvt_checked_buffer dst, long dstStride, tntvt_checked_buffer src,
                                                   long srcStride, long width, long height,
                                                   const tntvt_checked_options* options);

/* Does nothing. */
tntvt_checked_result checked_tntvt_rgb12_rgb48_sse4(tntvt_checked_buffer, long, tntvt_checked_buffer, long, long, long,
                                                    const tntvt_checked_options* options);

/* Run-length coded indices to 24-bit pixels, lines end to end, runs one pixel longer than coded. */
tntvt_checked_result checked_tntvt_rle8_rgb24(tntvt_checked_buffer dst, long, tntvt_checked_buffer src, long, long,
                                              long height, tntvt_checked_buffer palette,
                                              const tntvt_checked_options* options);

/* Run-length coded indices to 32-bit pixels of alpha 0, bottom line first. */
tntvt_checked_result checked_tntvt_rle8_rgba32(tntvt_checked_buffer dst, long dstStride, tntvt_checked_buffer src, long,
                                               long, long height, tntvt_checked_buffer palette,
                                               const tntvt_checked_options* options);

/* Run-length coded indices to 32-bit pixels of alpha 0, bottom line first. */
tntvt_checked_result checked_tntvt_rle8_rgb32(tntvt_checked_buffer dst, long dstStride, tntvt_checked_buffer src, long,
                                              long, long height, tntvt_checked_buffer palette,
                                              const tntvt_checked_options* options);

/* Does nothing. */
tntvt_checked_result checked_tntvt_rle4_rgb24(tntvt_checked_buffer, long, tntvt_checked_buffer, long, long, long,
                                              tntvt_checked_buffer, const tntvt_checked_options* options);

/* Does nothing. */
tntvt_checked_result checked_tntvt_rle4_rgba32(tntvt_checked_buffer, long, tntvt_checked_buffer, long, long, long,
                                               tntvt_checked_buffer, const tntvt_checked_options* options);

/* Does nothing. */
tntvt_checked_result checked_tntvt_rle4_rgb32(tntvt_checked_buffer, long, tntvt_checked_buffer, long, long, long,
                                              tntvt_checked_buffer, const tntvt_checked_options* options);

/* Copies a frame of 3-byte or 4-byte pixels, the pixel size given by each stride. */
tntvt_checked_result checked_tntvt_rgba_full(tntvt_checked_buffer dst, long dstStride, tntvt_checked_buffer src,
                                             long srcStride, long width, long height,
                                             const tntvt_checked_options* options);

/* Words rotated right by 8 bits: b1, b2, b3, b0. */
tntvt_checked_result checked_rgba2argb(tntvt_checked_buffer dst, tntvt_checked_buffer src, unsigned int pixels,
                                       const tntvt_checked_options* options);

/* Words rotated right by 8 bits: b1, b2, b3, b0. */
tntvt_checked_result checked_bgra2abgr(tntvt_checked_buffer dst, tntvt_checked_buffer src, unsigned int pixels,
                                       const tntvt_checked_options* options);

/* Words rotated right by 8 bits: b1, b2, b3, b0. */
tntvt_checked_result checked_bgra2abgrMMX(tntvt_checked_buffer dst, tntvt_checked_buffer src, unsigned int pixels,
                                          const tntvt_checked_options* options);

/* Words rotated right by 8 bits: b1, b2, b3, b0. */
tntvt_checked_result checked_abgr2bgraMMX(tntvt_checked_buffer dst, tntvt_checked_buffer src, unsigned int pixels,
                                          const tntvt_checked_options* options);

/* Words rotated left by 8 bits: b3, b0, b1, b2. */
tntvt_checked_result checked_argb2rgba(tntvt_checked_buffer dst, tntvt_checked_buffer src, unsigned int pixels,
                                       const tntvt_checked_options* options);

/* Words rotated left by 8 bits: b3, b0, b1, b2. */
tntvt_checked_result checked_abgr2bgra(tntvt_checked_buffer dst, tntvt_checked_buffer src, unsigned int pixels,
                                       const tntvt_checked_options* options);

/* Words with their bytes reversed: b3, b2, b1, b0. */
tntvt_checked_result checked_bgra2argb(tntvt_checked_buffer dst, tntvt_checked_buffer src, unsigned int pixels,
                                       const tntvt_checked_options* options);

/* Words with their bytes reversed: b3, b2, b1, b0. */
tntvt_checked_result checked_argb2bgra(tntvt_checked_buffer dst, tntvt_checked_buffer src, unsigned int pixels,
                                       const tntvt_checked_options* options);

/* Words with bytes 0 and 2 exchanged: b2, b1, b0, b3. */
tntvt_checked_result checked_abgr2argb(tntvt_checked_buffer dst, tntvt_checked_buffer src, unsigned int pixels,
                                       const tntvt_checked_options* options);

/* Words with bytes 0 and 2 exchanged: b2, b1, b0, b3. */
tntvt_checked_result checked_argb2abgr(tntvt_checked_buffer dst, tntvt_checked_buffer src, unsigned int pixels,
                                       const tntvt_checked_options* options);

/* Words with bytes 0 and 2 exchanged: b2, b1, b0, b3. */
tntvt_checked_result checked_bgra2rgba(tntvt_checked_buffer dst, tntvt_checked_buffer src, unsigned int pixels,
                                       const tntvt_checked_options* options);

/* Bytes 0 and 2 exchanged. */
tntvt_checked_result checked_tntvt_rgba32_bgra32_inplace(tntvt_checked_buffer dst, long dstStride,
                                                         tntvt_checked_buffer src, long srcStride, long width,
                                                         long height, const tntvt_checked_options* options);

/* Bytes 0 and 2 exchanged. */
tntvt_checked_result checked_tntvt_rgb32_bgr32_inplace(tntvt_checked_buffer dst, long dstStride,
                                                       tntvt_checked_buffer src, long srcStride, long width,
                                                       long height, const tntvt_checked_options* options);

/* The four bytes reversed. */
tntvt_checked_result checked_tntvt_rgba32_abgr32_inplace(tntvt_checked_buffer dst, long dstStride,
                                                         tntvt_checked_buffer src, long srcStride, long width,
                                                         long height, const tntvt_checked_options* options);

/* Words rotated right by 8 bits. */
tntvt_checked_result checked_tntvt_rgba32_argb32(tntvt_checked_buffer dst, long dstStride, tntvt_checked_buffer src,
                                                 long srcStride, long width, long height,
                                                 const tntvt_checked_options* options);

/* The alpha as a 32-bit number; the colours are lost. */
tntvt_checked_result checked_tntvt_argb32_rgba32(tntvt_checked_buffer dst, long dstStride, tntvt_checked_buffer src,
                                                 long srcStride, long width, long height,
                                                 const tntvt_checked_options* options);

/* 32-bit pixels cut down to their first three bytes. */
tntvt_checked_result checked_tntvt_rgba32_rgb24_inplace(tntvt_checked_buffer dst, long dstStride,
                                                        tntvt_checked_buffer src, long srcStride, long width,
                                                        long height, const tntvt_checked_options* options);

/* 32-bit pixels cut down to their first three bytes. */
tntvt_checked_result checked_tntvt_rgba32_rgb24(tntvt_checked_buffer dst, long dstStride, tntvt_checked_buffer src,
                                                long srcStride, long width, long height,
                                                const tntvt_checked_options* options);

/* 32-bit pixels cut down to their first three bytes. */
tntvt_checked_result checked_tntvt_rgb32_rgb24_inplace(tntvt_checked_buffer dst, long dstStride,
                                                       tntvt_checked_buffer src, long srcStride, long width,
                                                       long height, const tntvt_checked_options* options);

/* 32-bit pixels cut down to their first three bytes. */
tntvt_checked_result checked_tntvt_rgb32_rgb24(tntvt_checked_buffer dst, long dstStride, tntvt_checked_buffer src,
                                               long srcStride, long width, long height,
                                               const tntvt_checked_options* options);

/* 32-bit pixels cut down to their first three bytes, reversed. */
tntvt_checked_result checked_tntvt_rgba32_bgr24_inplace(tntvt_checked_buffer dst, long dstStride,
                                                        tntvt_checked_buffer src, long srcStride, long width,
                                                        long height, const tntvt_checked_options* options);

/* 32-bit pixels cut down to their first three bytes, reversed. */
tntvt_checked_result checked_tntvt_rgb32_bgr24_inplace(tntvt_checked_buffer dst, long dstStride,
                                                       tntvt_checked_buffer src, long srcStride, long width,
                                                       long height, const tntvt_checked_options* options);

/* 32-bit pixels cut down to their first three bytes, upside down. */
tntvt_checked_result checked_tntvt_rgba32_rgb24_invert(tntvt_checked_buffer dst, long dstStride,
                                                       tntvt_checked_buffer src, long srcStride, long width,
                                                       long height, const tntvt_checked_options* options);

/* 24-bit pixels with an alpha of 255 added. */
tntvt_checked_result checked_tntvt_rgb24_rgba32_inplace(tntvt_checked_buffer dst, long dstStride,
                                                        tntvt_checked_buffer src, long srcStride, long width,
                                                        long height, const tntvt_checked_options* options);

/* 24-bit pixels with an alpha of 255 added. */
tntvt_checked_result checked_tntvt_rgb24_rgba32(tntvt_checked_buffer dst, long dstStride, tntvt_checked_buffer src,
                                                long srcStride, long width, long height,
                                                const tntvt_checked_options* options);

/* 24-bit pixels with an alpha of 255 added. */
tntvt_checked_result checked_tntvt_rgb24_rgb32_inplace(tntvt_checked_buffer dst, long dstStride,
                                                       tntvt_checked_buffer src, long srcStride, long width,
                                                       long height, const tntvt_checked_options* options);

/* 24-bit pixels with an alpha of 255 added. */
tntvt_checked_result checked_tntvt_rgb24_rgb32(tntvt_checked_buffer dst, long dstStride, tntvt_checked_buffer src,
                                               long srcStride, long width, long height,
                                               const tntvt_checked_options* options);

/* 24-bit pixels reversed, with an alpha of 255 added. */
tntvt_checked_result checked_tntvt_rgb24_bgra32_inplace(tntvt_checked_buffer dst, long dstStride,
                                                        tntvt_checked_buffer src, long srcStride, long width,
                                                        long height, const tntvt_checked_options* options);

/* 24-bit pixels reversed, with an alpha of 255 added. */
tntvt_checked_result checked_tntvt_rgb24_bgr32_inplace(tntvt_checked_buffer dst, long dstStride,
                                                       tntvt_checked_buffer src, long srcStride, long width,
                                                       long height, const tntvt_checked_options* options);

/* 15-bit RGB to 32 bits, five bits at the top of each byte, alpha 255. */
tntvt_checked_result checked_tntvt_rgb16_rgba32_inplace(tntvt_checked_buffer dst, long dstStride,
                                                        tntvt_checked_buffer src, long srcStride, long width,
                                                        long height, const tntvt_checked_options* options);

/* 15-bit RGB to 32 bits, five bits at the top of each byte, alpha 255. */
tntvt_checked_result checked_tntvt_rgb16_rgba32(tntvt_checked_buffer dst, long dstStride, tntvt_checked_buffer src,
                                                long srcStride, long width, long height,
                                                const tntvt_checked_options* options);

/* 15-bit RGB to 32 bits, five bits at the top of each byte, alpha 255. */
tntvt_checked_result checked_tntvt_rgb16_rgb32_inplace(tntvt_checked_buffer dst, long dstStride,
                                                       tntvt_checked_buffer src, long srcStride, long width,
                                                       long height, const tntvt_checked_options* options);

/* 15-bit RGB to 32 bits, five bits at the top of each byte, alpha 255. */
tntvt_checked_result checked_tntvt_rgb16_rgb32(tntvt_checked_buffer dst, long dstStride, tntvt_checked_buffer src,
                                               long srcStride, long width, long height,
                                               const tntvt_checked_options* options);

/* 24-bit pixels with an alpha of 255 in front. */
tntvt_checked_result checked_tntvt_macbgr24_macargb32_inplace(tntvt_checked_buffer dst, long dstStride,
                                                              tntvt_checked_buffer src, long srcStride, long width,
                                                              long height, const tntvt_checked_options* options);

/* 24-bit pixels with an alpha of 255 added, upside down, the pointers crossed. */
tntvt_checked_result checked_tntvt_rgba24_rgb32_invert(tntvt_checked_buffer src, long dstStride,
                                                       tntvt_checked_buffer dst, long srcStride, long width,
                                                       long height, const tntvt_checked_options* options);

/* Does nothing. */
tntvt_checked_result checked_tntvt_rgb8_rgb32(tntvt_checked_buffer, long, tntvt_checked_buffer, long, long, long,
                                              const tntvt_checked_options* options);

/* Does nothing. */
tntvt_checked_result checked_tntvt_rgb8_rgba32(tntvt_checked_buffer, long, tntvt_checked_buffer, long, long, long,
                                               const tntvt_checked_options* options);

/* Does nothing. */
tntvt_checked_result checked_tntvt_rgb16_rgb24(tntvt_checked_buffer, long, tntvt_checked_buffer, long, long, long,
                                               const tntvt_checked_options* options);

/* Does nothing. */
tntvt_checked_result checked_tntvt_rgb32_rgb16(tntvt_checked_buffer, long, tntvt_checked_buffer, long, long, long,
                                               const tntvt_checked_options* options);

/* Does nothing. */
tntvt_checked_result checked_tntvt_rgb32_rgb16_565(tntvt_checked_buffer, long, tntvt_checked_buffer, long, long, long,
                                                   const tntvt_checked_options* options);

/* Does nothing. */
tntvt_checked_result checked_tntvt_rgb32_rgb16_dithered(tntvt_checked_buffer, long, tntvt_checked_buffer, long, long,
                                                        long, const tntvt_checked_options* options);

/* Does nothing. */
tntvt_checked_result checked_tntvt_rgb32_rgb16_565_dithered(tntvt_checked_buffer, long, tntvt_checked_buffer, long,
                                                            long, long, const tntvt_checked_options* options);

/* Does nothing. */
tntvt_checked_result checked_tntvt_rgb32_rgb32(tntvt_checked_buffer, long, tntvt_checked_buffer, long, long, long,
                                               const tntvt_checked_options* options);

/* Does nothing. */
tntvt_checked_result checked_tntvt_rgba32_rgb16(tntvt_checked_buffer, long, tntvt_checked_buffer, long, long, long,
                                                const tntvt_checked_options* options);

/* 16 bits a channel reduced to 8, alpha 0. */
tntvt_checked_result checked_tntvt_rgb48_rgba32(tntvt_checked_buffer dst, long dstStride, tntvt_checked_buffer src,
                                                long srcStride, long width, long height, unsigned int bits,
                                                const tntvt_checked_options* options);

/* 16 bits a channel reduced to 8, alpha 0. */
tntvt_checked_result checked_tntvt_bgr48_rgba32(tntvt_checked_buffer dst, long dstStride, tntvt_checked_buffer src,
                                                long srcStride, long width, long height, unsigned int bits,
                                                const tntvt_checked_options* options);

/* 16 bits a channel reduced to 8. */
tntvt_checked_result checked_tntvt_rgba64_rgba32(tntvt_checked_buffer dst, long dstStride, tntvt_checked_buffer src,
                                                 long srcStride, long width, long height, unsigned int bits,
                                                 const tntvt_checked_options* options);

/* 16 bits a channel reduced to 8. */
tntvt_checked_result checked_tntvt_argb64_rgba32(tntvt_checked_buffer dst, long dstStride, tntvt_checked_buffer src,
                                                 long srcStride, long width, long height, unsigned int bits,
                                                 const tntvt_checked_options* options);

/* 16 bits a channel reduced to 8. */
tntvt_checked_result checked_tntvt_abgr64_rgba32(tntvt_checked_buffer dst, long dstStride, tntvt_checked_buffer src,
                                                 long srcStride, long width, long height, unsigned int bits,
                                                 const tntvt_checked_options* options);

/* 16 bits a channel reduced to 8. */
tntvt_checked_result checked_tntvt_bgra64_rgba32(tntvt_checked_buffer dst, long dstStride, tntvt_checked_buffer src,
                                                 long srcStride, long width, long height, unsigned int bits,
                                                 const tntvt_checked_options* options);

/* 8 bits a channel widened to 16. */
tntvt_checked_result checked_tntvt_rgba32_rgb48(tntvt_checked_buffer dst, long dstStride, tntvt_checked_buffer src,
                                                long srcStride, long width, long height, unsigned int bits,
                                                const tntvt_checked_options* options);

/* 8 bits a channel widened to 16. */
tntvt_checked_result checked_tntvt_rgba32_bgr48(tntvt_checked_buffer dst, long dstStride, tntvt_checked_buffer src,
                                                long srcStride, long width, long height, unsigned int bits,
                                                const tntvt_checked_options* options);

/* 8 bits a channel widened to 16. */
tntvt_checked_result checked_tntvt_rgba32_rgba64(tntvt_checked_buffer dst, long dstStride, tntvt_checked_buffer src,
                                                 long srcStride, long width, long height, unsigned int bits,
                                                 const tntvt_checked_options* options);

/* 8 bits a channel widened to 16. */
tntvt_checked_result checked_tntvt_rgba32_argb64(tntvt_checked_buffer dst, long dstStride, tntvt_checked_buffer src,
                                                 long srcStride, long width, long height, unsigned int bits,
                                                 const tntvt_checked_options* options);

/* 8 bits a channel times 256. */
tntvt_checked_result checked_tntvt_bgra32_rgba64(tntvt_checked_buffer dst, long dstStride, tntvt_checked_buffer src,
                                                 long srcStride, long width, long height,
                                                 const tntvt_checked_options* options);

/* Big-endian channels in a chosen order. */
tntvt_checked_result checked_tntvt_argb64be_rgba64(tntvt_checked_buffer dst, long dstStride, tntvt_checked_buffer src,
                                                   long srcStride, long width, long height, unsigned int,
                                                   unsigned int order, const tntvt_checked_options* options);

/* Big-endian channels in a chosen order, without alpha. */
tntvt_checked_result checked_tntvt_argb64be_rgb48(tntvt_checked_buffer dst, long dstStride, tntvt_checked_buffer src,
                                                  long srcStride, long width, long height, unsigned int,
                                                  unsigned int order, const tntvt_checked_options* options);

/* Big-endian channels reduced to 8 bits in a chosen order. */
tntvt_checked_result checked_tntvt_argb64be_rgba32(tntvt_checked_buffer dst, long dstStride, tntvt_checked_buffer src,
                                                   long srcStride, long width, long height, unsigned int bits,
                                                   unsigned int order, const tntvt_checked_options* options);

/* Big-endian channels reduced to 8 bits in a chosen order, without alpha. */
tntvt_checked_result checked_tntvt_argb64be_rgb24(tntvt_checked_buffer dst, long dstStride, tntvt_checked_buffer src,
                                                  long srcStride, long width, long height, unsigned int bits,
                                                  unsigned int order, const tntvt_checked_options* options);

/* Rearranges the two fields of a frame, by mode 1 to 14. */
tntvt_checked_result checked_tntvt_change_field_rgb(tntvt_checked_buffer dst, unsigned int mode, unsigned int width,
                                                    unsigned int height, unsigned int dstStride,
                                                    tntvt_checked_buffer src, unsigned int srcStride,
                                                    const tntvt_checked_options* options);

/* Rearranges the two fields of a frame and computes no sample. */
tntvt_checked_result checked_tntvt_change_field_yuv(tntvt_checked_buffer dst, unsigned int mode, unsigned int width,
                                                    unsigned int height, unsigned int dstStride,
                                                    tntvt_checked_buffer src, unsigned int srcStride,
                                                    const tntvt_checked_options* options);

/* Replaces combing against the lines above and below. */
tntvt_checked_result checked_tntvt_deinterlace_rgb(tntvt_checked_buffer dst, tntvt_checked_buffer src,
                                                   unsigned int width, unsigned int height, unsigned int stride,
                                                   int threshold, int softness, long, int mode,
                                                   const tntvt_checked_options* options);

/* Does nothing and returns -1. */
tntvt_checked_result checked_tntvt_deinterlace_yuv(tntvt_checked_buffer, tntvt_checked_buffer, unsigned int,
                                                   unsigned int, unsigned int, int, int, long, int,
                                                   const tntvt_checked_options* options);

/* Turns a frame upside down. */
tntvt_checked_result checked_tntvt_flip_vert(tntvt_checked_buffer dst, tntvt_checked_buffer src, unsigned int,
                                             int height, unsigned int stride, const tntvt_checked_options* options);

/* Turns a frame upside down and places its lines in wider ones. */
tntvt_checked_result checked_tntvt_flip_vert_flags(tntvt_checked_buffer dst, tntvt_checked_buffer src, unsigned int,
                                                   unsigned int, int height, unsigned int dstStride,
                                                   unsigned int srcStride, unsigned int flags, int keepMargins,
                                                   const tntvt_checked_options* options);

/* Mirrors the 4-byte pixels of each line about pixel width / 2. */
tntvt_checked_result checked_tntvt_flip_horz(tntvt_checked_buffer dst, tntvt_checked_buffer src, int width, int height,
                                             unsigned int stride, const tntvt_checked_options* options);

/* Weaves two fields of 4-byte pixels into a frame. */
tntvt_checked_result checked_tntvt_fld_sep_to_mix32(tntvt_checked_buffer dst, long dstStride,
                                                    tntvt_checked_buffer firstField, tntvt_checked_buffer secondField,
                                                    long fieldStride, unsigned int width, unsigned int height,
                                                    const tntvt_checked_options* options);

/* Takes a frame of 4-byte pixels apart into two fields. */
tntvt_checked_result checked_tntvt_fld_mix_to_sep32(tntvt_checked_buffer firstField, tntvt_checked_buffer secondField,
                                                    long fieldStride, tntvt_checked_buffer src, long srcStride,
                                                    unsigned int width, unsigned int height,
                                                    const tntvt_checked_options* options);

/* Copies a frame between pitches. */
tntvt_checked_result checked_tntvt_copy_interleaved(tntvt_checked_buffer dst, long dstStride, tntvt_checked_buffer src,
                                                    long srcStride, long, long height,
                                                    const tntvt_checked_options* options);

/* Mixes half of a frame into half of another, by class of FourCC. */
tntvt_checked_result checked_tntvt_copy_dissolve(tntvt_checked_buffer dst, tntvt_checked_buffer src, long stride,
                                                 long width, long height, unsigned int fourcc,
                                                 const tntvt_checked_options* options);

/* The table: 8-bit linear code to ST 2084 code. */
tntvt_checked_result checked_get_ardwRGB_to_SMPTE2048_8Bit(const tntvt_checked_options* options);

/* The table: 10-bit linear code to ST 2084 code. */
tntvt_checked_result checked_get_ardwRGB_to_SMPTE2048_10Bit(const tntvt_checked_options* options);

/* The table: 12-bit linear code to ST 2084 code. */
tntvt_checked_result checked_get_ardwRGB_to_SMPTE2048_12Bit(const tntvt_checked_options* options);

/* The table: 8-bit ST 2084 code to video range, a power curve. */
tntvt_checked_result checked_get_ardwSMPTE2048_to_RGB_8Bit(const tntvt_checked_options* options);

/* The table: 10-bit ST 2084 code to video range, a straight line. */
tntvt_checked_result checked_get_ardwSMPTE2048_to_RGB_10Bit(const tntvt_checked_options* options);

/* The table: 12-bit ST 2084 code to linear code. */
tntvt_checked_result checked_get_ardwSMPTE2048_to_RGB_12Bit(const tntvt_checked_options* options);

/* Every byte through the 8-bit linear to ST 2084 table. */
tntvt_checked_result checked_tntvt_rgb_to_st2084(tntvt_checked_buffer dst, tntvt_checked_buffer src,
                                                 unsigned int dstStride, unsigned int srcStride, int height,
                                                 const tntvt_checked_options* options);

/* Every byte through the 8-bit ST 2084 to video range table. */
tntvt_checked_result checked_tntvt_st2084_to_rgb(tntvt_checked_buffer dst, tntvt_checked_buffer src,
                                                 unsigned int dstStride, unsigned int srcStride, int height,
                                                 const tntvt_checked_options* options);

/* Bytes 1 and 3 of four through the 8-bit linear to ST 2084 table. */
tntvt_checked_result checked_tntvt_yuv2_to_st2084(tntvt_checked_buffer dst, tntvt_checked_buffer src,
                                                  unsigned int dstStride, unsigned int srcStride, int height,
                                                  const tntvt_checked_options* options);

/* Bytes 1 and 3 of four through the 8-bit ST 2084 to video range table. */
tntvt_checked_result checked_tntvt_st2084_to_yuv2(tntvt_checked_buffer dst, tntvt_checked_buffer src,
                                                  unsigned int dstStride, unsigned int srcStride, int height,
                                                  const tntvt_checked_options* options);

/* 10-bit fields as indexes from the 8-bit linear to ST 2084 table on. */
tntvt_checked_result checked_tntvt_v210_to_st2084(tntvt_checked_buffer dst, tntvt_checked_buffer src,
                                                  unsigned int dstStride, unsigned int srcStride, int height,
                                                  const tntvt_checked_options* options);

/* 10-bit fields as indexes from the 8-bit ST 2084 to video range table on. */
tntvt_checked_result checked_tntvt_st2084_to_v210(tntvt_checked_buffer dst, tntvt_checked_buffer src,
                                                  unsigned int dstStride, unsigned int srcStride, int height,
                                                  const tntvt_checked_options* options);

#ifdef __cplusplus
}
#endif

#endif
