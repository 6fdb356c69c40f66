// Made from the catalogue by checked_generate; do not edit. Included by <tintvert/checked.h>.
#ifndef TINTVERT_CHECKED_ROUTINES_H
#define TINTVERT_CHECKED_ROUTINES_H

#include <tintvert/checked.h>

namespace tintvert::checked {

// Notes the processor's feature bit 0x20; no conversion needs it.
Result<int> tnvtt_open(unsigned int, unsigned int, unsigned int, unsigned int, const Options& options = {});

// Obtains a block with a 32-byte aligned pointer into it.
Result<void> malloc_own_cache_lines(int size, Buffer raw, Buffer aligned, const Options& options = {});

// Releases a block from malloc_own_cache_lines.
Result<void> free_own_cache_lines(Buffer raw, Buffer aligned, const Options& options = {});

// RGB to 4:2:2, BT.601 video range, one run of pixels.
Result<void> argb_to_2vuy(Buffer src, Buffer dst, int pixels, const Options& options = {});

// RGB to 4:2:2, BT.601 video range, one run of pixels.
Result<void> bgra_to_2vuy(Buffer src, Buffer dst, int pixels, const Options& options = {});

// RGB to 4:2:2, BT.709 full range, one run of pixels.
Result<void> hd_rgb_to_2vuy(Buffer src, Buffer dst, int pixels, int bgra, const Options& options = {});

// RGB to 4:2:2, BT.601 video range, the frame as one run.
Result<void> tntvt_rgb32_2vuy(Buffer dst, long dstStride, Buffer src, long srcStride, long width, long height,
                              const Options& options = {});

// Full-range 4:2:2 with signed chroma to video range, one run of pixels.
Result<void> yuv2_to_2vuy(Buffer src, Buffer dst, int pixels, const Options& options = {});

// Full-range 4:2:2 to video range, one run of pixels.
Result<void> yuvs_to_2vuy(Buffer src, Buffer dst, int pixels, const Options& options = {});

// Full-range 4:2:2 with signed chroma to video range, the frame as one run.
Result<void> tntvt_yuv2_2vuy(Buffer dst, Buffer src, int width, int height, const Options& options = {});

// Full-range 4:2:2 with signed chroma to video range, the frame as one run.
Result<void> tntvt_yuvu_2vuy(Buffer dst, Buffer src, int width, int height, const Options& options = {});

// Full-range 4:2:2 to video range, the frame as one run.
Result<void> tntvt_yuvs_2vuy(Buffer dst, Buffer src, int width, int height, const Options& options = {});

// 4:4:4 to 4:2:2, the chroma of odd pixels dropped.
Result<void> tntvt_yuv444_yuv422_8(Buffer dst, Buffer src, unsigned int width, unsigned int height, unsigned int,
                                   const Options& options = {});

// 4:2:2 to 4:4:4, chroma repeated.
Result<void> tntvt_yuv422_yuv444_8(Buffer dst, Buffer src, unsigned int width, unsigned int height, unsigned int,
                                   const Options& options = {});

// Empty.
Result<void> tntvt_yuv411_yuv422_8(Buffer, Buffer, unsigned int, unsigned int, unsigned int,
                                   const Options& options = {});

// Empty.
Result<void> tntvt_yuv422_yuv411_8(Buffer, Buffer, unsigned int, unsigned int, unsigned int,
                                   const Options& options = {});

// Empty.
Result<void> tntvt_yuv420_yuv422_8(Buffer, Buffer, unsigned int, unsigned int, unsigned int,
                                   const Options& options = {});

// Empty.
Result<void> tntvt_yuv422_yuv420_8(Buffer, Buffer, unsigned int, unsigned int, unsigned int,
                                   const Options& options = {});

// Empty.
Result<void> tntvt_yuv420_yuv411_8(Buffer, Buffer, unsigned int, unsigned int, unsigned int,
                                   const Options& options = {});

// Empty.
Result<void> tntvt_yuv411_yuv420_8(Buffer, Buffer, unsigned int, unsigned int, unsigned int,
                                   const Options& options = {});

// 4:2:2 planes to packed 4:2:2, unbroken runs.
Result<void> tntvt_planar_2vuy(Buffer dst, Buffer y, Buffer cb, Buffer cr, unsigned int, unsigned int, unsigned int,
                               unsigned int count, const Options& options = {});

// Packed 4:2:2 to planes, unbroken runs.
Result<void> tntvt_2vuy_planar(Buffer y, Buffer cb, Buffer cr, unsigned int, unsigned int, unsigned int, Buffer src,
                               unsigned int count, const Options& options = {});

// Two fields of 4:2:2 planes woven into one packed frame.
Result<void> tntvt_planarfields_2vuy(Buffer dst, Buffer y1, Buffer cb1, Buffer cr1, Buffer y2, Buffer cb2, Buffer cr2,
                                     unsigned int, unsigned int, unsigned int, unsigned int groups, unsigned int total,
                                     const Options& options = {});

// 4:2:0 to 4:2:2, chroma lines repeated.
Result<void> tntvt_i420_2vuy(Buffer dst, Buffer src, unsigned int width, unsigned int height, unsigned int stride,
                             const Options& options = {});

// 4:2:2 to 4:2:0, the chroma of odd lines dropped.
Result<void> tntvt_2vuy_i420(Buffer dst, Buffer src, unsigned int width, unsigned int height, unsigned int stride,
                             const Options& options = {});

// 4:2:0, Cr first, to 4:2:2, in order or in the interlaced line order.
Result<void> tntvt_yv12_2vuy(Buffer dst, Buffer src, unsigned int width, unsigned int height, unsigned int stride,
                             unsigned char interlaced, const Options& options = {});

// 4:2:2 to 4:2:0, Cr first, the chroma of odd lines dropped.
Result<void> tntvt_2vuy_yv12(Buffer dst, Buffer src, unsigned int width, unsigned int height, unsigned int stride,
                             const Options& options = {});

// 4:2:2 to three 4:2:0 planes, chroma averaged over two lines.
Result<void> YUY2toYV12(Buffer src, Buffer y, Buffer cb, Buffer cr, int width, int height, int srcPitch, int dstPitch,
                        const Options& options = {});

// A luma plane to 4:2:2 with neutral chroma; may run in place.
Result<int> tntvt_alphay_to_2yuv(Buffer dst, long dstStride, Buffer src, long srcStride, long width, long height,
                                 const Options& options = {});

// The luma of 4:2:2 as a plane, height + 1 lines.
Result<int> tntvt_2yuv_to_alphay(Buffer dst, long dstStride, Buffer src, long srcStride, long width, long height,
                                 const Options& options = {});

// 4:2:2 with its chroma made neutral, height + 1 lines.
Result<int> tntvt_2yuv_strip_chroma(Buffer dst, long dstStride, Buffer src, long srcStride, long width, long height,
                                    const Options& options = {});

// An alpha plane in all four bytes of each pixel.
Result<int> tntvt_alpha_to_rgba(Buffer dst, long, Buffer src, long dstStride, long width, long height,
                                const Options& options = {});

// Byte 0 of each pixel as an alpha plane.
Result<int> tntvt_rgba_to_alpha(Buffer dst, long, Buffer src, long srcStride, long width, long height,
                                const Options& options = {});

// One alpha in byte 3 of each pixel.
Result<int> tntvt_rgba_setalpha(Buffer dst, long dstStride, unsigned int alpha, long width, long height,
                                const Options& options = {});

// 24 to 32 bits with one alpha in byte 3.
Result<int> tntvt_rgba_addalpha(Buffer src, Buffer dst, long srcStride, long dstStride, unsigned int alpha, int width,
                                int height, const Options& options = {});

// Isolated errors in the second luma of pairs, removed in place.
Result<int> tntvt_2yuv_average_2y(Buffer buf, unsigned int bytes, int mode, const Options& options = {});

// 4:2:2 between video and full range by tables, in place.
Result<void> tntvt_2vuy_scale(Buffer buffer, unsigned int bytes, unsigned int up, const Options& options = {});

// 4:2:2 to 24 or 32-bit RGB by tables, reduced by 1, 2 or 4.
Result<void> tntvt_yuv422_rgb24(Buffer dst, long dstStride, Buffer src, long srcStride, long width, long height,
                                long scale, const Options& options = {});

// 4:2:2 to 15-bit RGB by tables, neighbouring lines exchanged.
Result<void> tntvt_yuv422_rgb16(Buffer dst, long dstStride, Buffer src, long srcStride, long width, long height,
                                long scale, const Options& options = {});

// 10-bit 4:2:2 to 24 or 32-bit RGB by 8-bit tables, reduced by 1, 2 or 4.
Result<void> tntvt_v210_rgb24(Buffer dst, long dstStride, Buffer src, long srcStride, long width, long height,
                              long scale, const Options& options = {});

// 10-bit 4:2:2 to 15-bit RGB by 8-bit tables, lines in their order.
Result<void> tntvt_v210_rgb16(Buffer dst, long dstStride, Buffer src, long srcStride, long width, long height,
                              long scale, const Options& options = {});

// Fills the tables of _v210_to_rgb.
Result<void> init_v210_to_rgb(const Options& options = {});

// Splits one group into its twelve samples.
Result<unsigned int*> _v210_get_next_4words(Buffer src, Buffer out, const Options& options = {});

// 10-bit 4:2:2 to 32-bit RGB by 10-bit tables, the frame as one run.
Result<void> _v210_to_rgb(Buffer src, Buffer dst, int width, int height, int dstStride, int bgraOrder,
                          const Options& options = {});

// v210 to 24-bit RGB by tables, with default strides.
Result<int> tntvt_yuv422_10_rgb24(Buffer dst, long dstStride, Buffer src, long srcStride, long width, long height,
                                  long scale, const Options& options = {});

// v210 to 32-bit RGB, by libycbcr or reduced by tables.
Result<int> tntvt_yuv422_10_rgb32(Buffer dst, long dstStride, Buffer src, long srcStride, long width, long height,
                                  long scale, const Options& options = {});

// 4:2:2 to RGB, by the v210 decoder of libycbcr or reduced by tables.
Result<int> tntvt_yuv422_8_rgb24(Buffer dst, long dstStride, Buffer src, long srcStride, long width, long height,
                                 long scale, const Options& options = {});

// 4:2:2 to 32-bit RGB, by libycbcr or reduced by tables.
Result<int> tntvt_yuv422_8_rgb32(Buffer dst, long dstStride, Buffer src, long srcStride, long width, long height,
                                 long scale, const Options& options = {});

// 4:2:0 to 32-bit RGB by libycbcr, Cb plane first.
Result<int> tntvt_i420_rgb32(Buffer dst, Buffer src, unsigned int width, unsigned int height, unsigned int srcStride,
                             const Options& options = {});

// 4:2:0 to 32-bit RGB by libycbcr, Cr plane first.
Result<int> tntvt_yv12_rgb32(Buffer dst, Buffer src, unsigned int width, unsigned int height, unsigned int srcStride,
                             const Options& options = {});

// 4:4:4 to 32-bit RGB with the JPEG coefficients, unclamped.
Result<void> tntvt_yuvijg_rgb32(Buffer dst, long dstStride, Buffer src, long srcStride, long width, long height,
                                const Options& options = {});

// RGB to 10-bit 4:2:2 with an 8-bit excursion, BT.601 up to a width of 961, BT.709 above.
Result<void> tntvt_rgb32_v210(Buffer dst, long dstStride, Buffer src, long srcStride, long width, long height,
                              const Options& options = {});

// RGB to 10-bit 4:2:2, BT.601 video range, one line.
Result<void> argb_to_v210(Buffer src, Buffer dst, int width, int hasAlpha, const Options& options = {});

// RGB to 10-bit 4:2:2 with an 8-bit excursion, BT.601, one line.
Result<void> bgra_to_v210(Buffer src, Buffer dst, int width, const Options& options = {});

// 8-bit 4:2:2 with signed chroma to chroma first and video range.
Result<void> yuv2_to_v210(Buffer src, Buffer dst, int width, const Options& options = {});

// 8-bit 4:2:2 to chroma first and video range.
Result<void> yuvs_to_v210(Buffer src, Buffer dst, int width, const Options& options = {});

// 8-bit to 10-bit 4:2:2, samples times 4.
Result<void> tntvt_2vuy_v210(Buffer dst, Buffer src, unsigned int width, unsigned int height, unsigned int dstStride,
                             const Options& options = {});

// 10-bit to 8-bit 4:2:2, low bits dropped; lines run to twice their length.
Result<void> tntvt_v210_2vuy(Buffer dst, Buffer src, unsigned int width, unsigned int height, unsigned int srcStride,
                             const Options& options = {});

// tntvt_2vuy_v210 under another name.
Result<void> tntvt_yuv422_8_yuv422_10(Buffer dst, Buffer src, unsigned int width, unsigned int height,
                                      unsigned int dstStride, const Options& options = {});

// tntvt_v210_2vuy under another name.
Result<void> tntvt_yuv422_10_yuv422_8(Buffer dst, Buffer src, unsigned int width, unsigned int height,
                                      unsigned int srcStride, const Options& options = {});

// RFC 4175 payload, a run of pgroups, to v210, bit by bit.
Result<int> tntvt_4175_to_v210(Buffer dst, Buffer payload, long payloadSize, long pgroupCount, long startPhase,
                               const Options& options = {});

// A packed 10-bit frame to v210.
Result<int> tntvt_YCbCr10Packed_to_v210(Buffer dst, Buffer src, unsigned int width, unsigned int height,
                                        const Options& options = {});

// An RTP packet for each line, all formed over the head of the frame.
Result<int> tntvt_v210_frame_to_rtp_4175(Buffer packet, long packetSize, Buffer seq, unsigned int timestamp,
                                         unsigned int ssrc, unsigned short extSeq, Buffer, unsigned int width,
                                         unsigned int height, Buffer outA, Buffer outB, const Options& options = {});

// 10-bit words to 16-bit channels, masked with 0xFF30, opaque alpha.
Result<void> tntvt_rgb10_rgba64(Buffer dst, long, Buffer src, long, long width, long height, unsigned char swapBytes,
                                unsigned char flipLines, const Options& options = {});

// 10-bit words to 16-bit channels, masked with 0xFF30.
Result<void> tntvt_rgb10_rgb48(Buffer dst, long, Buffer src, long, long width, long height, unsigned char swapBytes,
                               unsigned char flipLines, const Options& options = {});

// 10-bit words to the top 8 bits of each field, opaque alpha.
Result<void> tntvt_rgb10_rgba32(Buffer dst, long, Buffer src, long, long width, long height, unsigned char swapBytes,
                                unsigned char flipLines, const Options& options = {});

// Packed 12-bit samples to 16-bit words, in the order of the stream.
Result<void> tntvt_rgb12_bgr48(Buffer dst, long dstStride, Buffer src, long srcStride, long width, long height,
                               const Options& options = {});

// Packed 12-bit samples to 16-bit words, reversed in each pixel, over three times the width.
Result<void> tntvt_rgb12_rgb48(Buffer dst, long dstStride, Buffer src, long srcStride, long width, long height,
                               const Options& options = {});

// Packed 12-bit samples to their upper 8 bits, opaque alpha.
Result<void> tntvt_rgb12_rgba32(Buffer dst, long dstStride, Buffer src, long srcStride, long width, long height,
                                const Options& options = {});

// The low 12 bits of 16-bit words to packed samples, highest bit first.
Result<void> tntvt_rgb48_12_rgb12(Buffer dst, long dstStride, Buffer src, long srcStride, long width, long height,
                                  const Options& options = {});

// The upper 12 bits of 16-bit words to packed samples, highest bit first.
Result<void> tntvt_rgb48_rgb12(Buffer dst, long dstStride, Buffer src, long srcStride, long width, long height,
                               const Options& options = {});

// One byte a line: bits 4 to 11 of the line's last word.
Result<void> tntvt_rgb48_12_rgba32(Buffer dst, long dstStride, Buffer src, long srcStride, long width, long height,
                                   const Options& options = {});

// Does nothing.
Result<void> tntvt_rgb12_rgb48_sse4(Buffer, long, Buffer, long, long, long, const Options& options = {});

// Run-length coded indices to 24-bit pixels, lines end to end, runs one pixel longer than coded.
Result<void> tntvt_rle8_rgb24(Buffer dst, long, Buffer src, long, long, long height, Buffer palette,
                              const Options& options = {});

// Run-length coded indices to 32-bit pixels of alpha 0, bottom line first.
Result<void> tntvt_rle8_rgba32(Buffer dst, long dstStride, Buffer src, long, long, long height, Buffer palette,
                               const Options& options = {});

// Run-length coded indices to 32-bit pixels of alpha 0, bottom line first.
Result<void> tntvt_rle8_rgb32(Buffer dst, long dstStride, Buffer src, long, long, long height, Buffer palette,
                              const Options& options = {});

// Does nothing.
Result<void> tntvt_rle4_rgb24(Buffer, long, Buffer, long, long, long, Buffer, const Options& options = {});

// Does nothing.
Result<void> tntvt_rle4_rgba32(Buffer, long, Buffer, long, long, long, Buffer, const Options& options = {});

// Does nothing.
Result<void> tntvt_rle4_rgb32(Buffer, long, Buffer, long, long, long, Buffer, const Options& options = {});

// Copies a frame of 3-byte or 4-byte pixels, the pixel size given by each stride.
Result<void> tntvt_rgba_full(Buffer dst, long dstStride, Buffer src, long srcStride, long width, long height,
                             const Options& options = {});

// Words rotated right by 8 bits: b1, b2, b3, b0.
Result<void> rgba2argb(Buffer dst, Buffer src, unsigned int pixels, const Options& options = {});

// Words rotated right by 8 bits: b1, b2, b3, b0.
Result<void> bgra2abgr(Buffer dst, Buffer src, unsigned int pixels, const Options& options = {});

// Words rotated right by 8 bits: b1, b2, b3, b0.
Result<void> bgra2abgrMMX(Buffer dst, Buffer src, unsigned int pixels, const Options& options = {});

// Words rotated right by 8 bits: b1, b2, b3, b0.
Result<void> abgr2bgraMMX(Buffer dst, Buffer src, unsigned int pixels, const Options& options = {});

// Words rotated left by 8 bits: b3, b0, b1, b2.
Result<void> argb2rgba(Buffer dst, Buffer src, unsigned int pixels, const Options& options = {});

// Words rotated left by 8 bits: b3, b0, b1, b2.
Result<void> abgr2bgra(Buffer dst, Buffer src, unsigned int pixels, const Options& options = {});

// Words with their bytes reversed: b3, b2, b1, b0.
Result<void> bgra2argb(Buffer dst, Buffer src, unsigned int pixels, const Options& options = {});

// Words with their bytes reversed: b3, b2, b1, b0.
Result<void> argb2bgra(Buffer dst, Buffer src, unsigned int pixels, const Options& options = {});

// Words with bytes 0 and 2 exchanged: b2, b1, b0, b3.
Result<void> abgr2argb(Buffer dst, Buffer src, unsigned int pixels, const Options& options = {});

// Words with bytes 0 and 2 exchanged: b2, b1, b0, b3.
Result<void> argb2abgr(Buffer dst, Buffer src, unsigned int pixels, const Options& options = {});

// Words with bytes 0 and 2 exchanged: b2, b1, b0, b3.
Result<void> bgra2rgba(Buffer dst, Buffer src, unsigned int pixels, const Options& options = {});

// Bytes 0 and 2 exchanged.
Result<void> tntvt_rgba32_bgra32_inplace(Buffer dst, long dstStride, Buffer src, long srcStride, long width,
                                         long height, const Options& options = {});

// Bytes 0 and 2 exchanged.
Result<void> tntvt_rgb32_bgr32_inplace(Buffer dst, long dstStride, Buffer src, long srcStride, long width, long height,
                                       const Options& options = {});

// The four bytes reversed.
Result<void> tntvt_rgba32_abgr32_inplace(Buffer dst, long dstStride, Buffer src, long srcStride, long width,
                                         long height, const Options& options = {});

// Words rotated right by 8 bits.
Result<void> tntvt_rgba32_argb32(Buffer dst, long dstStride, Buffer src, long srcStride, long width, long height,
                                 const Options& options = {});

// The alpha as a 32-bit number; the colours are lost.
Result<void> tntvt_argb32_rgba32(Buffer dst, long dstStride, Buffer src, long srcStride, long width, long height,
                                 const Options& options = {});

// 32-bit pixels cut down to their first three bytes.
Result<void> tntvt_rgba32_rgb24_inplace(Buffer dst, long dstStride, Buffer src, long srcStride, long width, long height,
                                        const Options& options = {});

// 32-bit pixels cut down to their first three bytes.
Result<void> tntvt_rgba32_rgb24(Buffer dst, long dstStride, Buffer src, long srcStride, long width, long height,
                                const Options& options = {});

// 32-bit pixels cut down to their first three bytes.
Result<void> tntvt_rgb32_rgb24_inplace(Buffer dst, long dstStride, Buffer src, long srcStride, long width, long height,
                                       const Options& options = {});

// 32-bit pixels cut down to their first three bytes.
Result<void> tntvt_rgb32_rgb24(Buffer dst, long dstStride, Buffer src, long srcStride, long width, long height,
                               const Options& options = {});

// 32-bit pixels cut down to their first three bytes, reversed.
Result<void> tntvt_rgba32_bgr24_inplace(Buffer dst, long dstStride, Buffer src, long srcStride, long width, long height,
                                        const Options& options = {});

// 32-bit pixels cut down to their first three bytes, reversed.
Result<void> tntvt_rgb32_bgr24_inplace(Buffer dst, long dstStride, Buffer src, long srcStride, long width, long height,
                                       const Options& options = {});

// 32-bit pixels cut down to their first three bytes, upside down.
Result<void> tntvt_rgba32_rgb24_invert(Buffer dst, long dstStride, Buffer src, long srcStride, long width, long height,
                                       const Options& options = {});

// 24-bit pixels with an alpha of 255 added.
Result<void> tntvt_rgb24_rgba32_inplace(Buffer dst, long dstStride, Buffer src, long srcStride, long width, long height,
                                        const Options& options = {});

// 24-bit pixels with an alpha of 255 added.
Result<void> tntvt_rgb24_rgba32(Buffer dst, long dstStride, Buffer src, long srcStride, long width, long height,
                                const Options& options = {});

// 24-bit pixels with an alpha of 255 added.
Result<void> tntvt_rgb24_rgb32_inplace(Buffer dst, long dstStride, Buffer src, long srcStride, long width, long height,
                                       const Options& options = {});

// 24-bit pixels with an alpha of 255 added.
Result<void> tntvt_rgb24_rgb32(Buffer dst, long dstStride, Buffer src, long srcStride, long width, long height,
                               const Options& options = {});

// 24-bit pixels reversed, with an alpha of 255 added.
Result<void> tntvt_rgb24_bgra32_inplace(Buffer dst, long dstStride, Buffer src, long srcStride, long width, long height,
                                        const Options& options = {});

// 24-bit pixels reversed, with an alpha of 255 added.
Result<void> tntvt_rgb24_bgr32_inplace(Buffer dst, long dstStride, Buffer src, long srcStride, long width, long height,
                                       const Options& options = {});

// 15-bit RGB to 32 bits, five bits at the top of each byte, alpha 255.
Result<void> tntvt_rgb16_rgba32_inplace(Buffer dst, long dstStride, Buffer src, long srcStride, long width, long height,
                                        const Options& options = {});

// 15-bit RGB to 32 bits, five bits at the top of each byte, alpha 255.
Result<void> tntvt_rgb16_rgba32(Buffer dst, long dstStride, Buffer src, long srcStride, long width, long height,
                                const Options& options = {});

// 15-bit RGB to 32 bits, five bits at the top of each byte, alpha 255.
Result<void> tntvt_rgb16_rgb32_inplace(Buffer dst, long dstStride, Buffer src, long srcStride, long width, long height,
                                       const Options& options = {});

// 15-bit RGB to 32 bits, five bits at the top of each byte, alpha 255.
Result<void> tntvt_rgb16_rgb32(Buffer dst, long dstStride, Buffer src, long srcStride, long width, long height,
                               const Options& options = {});

// 24-bit pixels with an alpha of 255 in front.
Result<void> tntvt_macbgr24_macargb32_inplace(Buffer dst, long dstStride, Buffer src, long srcStride, long width,
                                              long height, const Options& options = {});

// 24-bit pixels with an alpha of 255 added, upside down, the pointers crossed.
Result<void> tntvt_rgba24_rgb32_invert(Buffer src, long dstStride, Buffer dst, long srcStride, long width, long height,
                                       const Options& options = {});

// Does nothing.
Result<void> tntvt_rgb8_rgb32(Buffer, long, Buffer, long, long, long, const Options& options = {});

// Does nothing.
Result<void> tntvt_rgb8_rgba32(Buffer, long, Buffer, long, long, long, const Options& options = {});

// Does nothing.
Result<void> tntvt_rgb16_rgb24(Buffer, long, Buffer, long, long, long, const Options& options = {});

// Does nothing.
Result<void> tntvt_rgb32_rgb16(Buffer, long, Buffer, long, long, long, const Options& options = {});

// Does nothing.
Result<void> tntvt_rgb32_rgb16_565(Buffer, long, Buffer, long, long, long, const Options& options = {});

// Does nothing.
Result<void> tntvt_rgb32_rgb16_dithered(Buffer, long, Buffer, long, long, long, const Options& options = {});

// Does nothing.
Result<void> tntvt_rgb32_rgb16_565_dithered(Buffer, long, Buffer, long, long, long, const Options& options = {});

// Does nothing.
Result<void> tntvt_rgb32_rgb32(Buffer, long, Buffer, long, long, long, const Options& options = {});

// Does nothing.
Result<void> tntvt_rgba32_rgb16(Buffer, long, Buffer, long, long, long, const Options& options = {});

// 16 bits a channel reduced to 8, alpha 0.
Result<void> tntvt_rgb48_rgba32(Buffer dst, long dstStride, Buffer src, long srcStride, long width, long height,
                                unsigned int bits, const Options& options = {});

// 16 bits a channel reduced to 8, alpha 0.
Result<void> tntvt_bgr48_rgba32(Buffer dst, long dstStride, Buffer src, long srcStride, long width, long height,
                                unsigned int bits, const Options& options = {});

// 16 bits a channel reduced to 8.
Result<void> tntvt_rgba64_rgba32(Buffer dst, long dstStride, Buffer src, long srcStride, long width, long height,
                                 unsigned int bits, const Options& options = {});

// 16 bits a channel reduced to 8.
Result<void> tntvt_argb64_rgba32(Buffer dst, long dstStride, Buffer src, long srcStride, long width, long height,
                                 unsigned int bits, const Options& options = {});

// 16 bits a channel reduced to 8.
Result<void> tntvt_abgr64_rgba32(Buffer dst, long dstStride, Buffer src, long srcStride, long width, long height,
                                 unsigned int bits, const Options& options = {});

// 16 bits a channel reduced to 8.
Result<void> tntvt_bgra64_rgba32(Buffer dst, long dstStride, Buffer src, long srcStride, long width, long height,
                                 unsigned int bits, const Options& options = {});

// 8 bits a channel widened to 16.
Result<void> tntvt_rgba32_rgb48(Buffer dst, long dstStride, Buffer src, long srcStride, long width, long height,
                                unsigned int bits, const Options& options = {});

// 8 bits a channel widened to 16.
Result<void> tntvt_rgba32_bgr48(Buffer dst, long dstStride, Buffer src, long srcStride, long width, long height,
                                unsigned int bits, const Options& options = {});

// 8 bits a channel widened to 16.
Result<void> tntvt_rgba32_rgba64(Buffer dst, long dstStride, Buffer src, long srcStride, long width, long height,
                                 unsigned int bits, const Options& options = {});

// 8 bits a channel widened to 16.
Result<void> tntvt_rgba32_argb64(Buffer dst, long dstStride, Buffer src, long srcStride, long width, long height,
                                 unsigned int bits, const Options& options = {});

// 8 bits a channel times 256.
Result<void> tntvt_bgra32_rgba64(Buffer dst, long dstStride, Buffer src, long srcStride, long width, long height,
                                 const Options& options = {});

// Big-endian channels in a chosen order.
Result<void> tntvt_argb64be_rgba64(Buffer dst, long dstStride, Buffer src, long srcStride, long width, long height,
                                   unsigned int, unsigned int order, const Options& options = {});

// Big-endian channels in a chosen order, without alpha.
Result<void> tntvt_argb64be_rgb48(Buffer dst, long dstStride, Buffer src, long srcStride, long width, long height,
                                  unsigned int, unsigned int order, const Options& options = {});

// Big-endian channels reduced to 8 bits in a chosen order.
Result<void> tntvt_argb64be_rgba32(Buffer dst, long dstStride, Buffer src, long srcStride, long width, long height,
                                   unsigned int bits, unsigned int order, const Options& options = {});

// Big-endian channels reduced to 8 bits in a chosen order, without alpha.
Result<void> tntvt_argb64be_rgb24(Buffer dst, long dstStride, Buffer src, long srcStride, long width, long height,
                                  unsigned int bits, unsigned int order, const Options& options = {});

// Rearranges the two fields of a frame, by mode 1 to 14.
Result<int> tntvt_change_field_rgb(Buffer dst, unsigned int mode, unsigned int width, unsigned int height,
                                   unsigned int dstStride, Buffer src, unsigned int srcStride,
                                   const Options& options = {});

// Rearranges the two fields of a frame and computes no sample.
Result<int> tntvt_change_field_yuv(Buffer dst, unsigned int mode, unsigned int width, unsigned int height,
                                   unsigned int dstStride, Buffer src, unsigned int srcStride,
                                   const Options& options = {});

// Replaces combing against the lines above and below.
Result<int> tntvt_deinterlace_rgb(Buffer dst, Buffer src, unsigned int width, unsigned int height, unsigned int stride,
                                  int threshold, int softness, long, int mode, const Options& options = {});

// Does nothing and returns -1.
Result<int> tntvt_deinterlace_yuv(Buffer, Buffer, unsigned int, unsigned int, unsigned int, int, int, long, int,
                                  const Options& options = {});

// Turns a frame upside down.
Result<void> tntvt_flip_vert(Buffer dst, Buffer src, unsigned int, int height, unsigned int stride,
                             const Options& options = {});

// Turns a frame upside down and places its lines in wider ones.
Result<void> tntvt_flip_vert_flags(Buffer dst, Buffer src, unsigned int, unsigned int, int height,
                                   unsigned int dstStride, unsigned int srcStride, unsigned int flags, int keepMargins,
                                   const Options& options = {});

// Mirrors the 4-byte pixels of each line about pixel width / 2.
Result<void> tntvt_flip_horz(Buffer dst, Buffer src, int width, int height, unsigned int stride,
                             const Options& options = {});

// Weaves two fields of 4-byte pixels into a frame.
Result<void> tntvt_fld_sep_to_mix32(Buffer dst, long dstStride, Buffer firstField, Buffer secondField, long fieldStride,
                                    unsigned int width, unsigned int height, const Options& options = {});

// Takes a frame of 4-byte pixels apart into two fields.
Result<void> tntvt_fld_mix_to_sep32(Buffer firstField, Buffer secondField, long fieldStride, Buffer src, long srcStride,
                                    unsigned int width, unsigned int height, const Options& options = {});

// Copies a frame between pitches.
Result<void> tntvt_copy_interleaved(Buffer dst, long dstStride, Buffer src, long srcStride, long, long height,
                                    const Options& options = {});

// Mixes half of a frame into half of another, by class of FourCC.
Result<int> tntvt_copy_dissolve(Buffer dst, Buffer src, long stride, long width, long height, unsigned int fourcc,
                                const Options& options = {});

// The table: 8-bit linear code to ST 2084 code.
Result<unsigned int*> get_ardwRGB_to_SMPTE2048_8Bit(const Options& options = {});

// The table: 10-bit linear code to ST 2084 code.
Result<unsigned int*> get_ardwRGB_to_SMPTE2048_10Bit(const Options& options = {});

// The table: 12-bit linear code to ST 2084 code.
Result<unsigned int*> get_ardwRGB_to_SMPTE2048_12Bit(const Options& options = {});

// The table: 8-bit ST 2084 code to video range, a power curve.
Result<unsigned int*> get_ardwSMPTE2048_to_RGB_8Bit(const Options& options = {});

// The table: 10-bit ST 2084 code to video range, a straight line.
Result<unsigned int*> get_ardwSMPTE2048_to_RGB_10Bit(const Options& options = {});

// The table: 12-bit ST 2084 code to linear code.
Result<unsigned int*> get_ardwSMPTE2048_to_RGB_12Bit(const Options& options = {});

// Every byte through the 8-bit linear to ST 2084 table.
Result<int> tntvt_rgb_to_st2084(Buffer dst, Buffer src, unsigned int dstStride, unsigned int srcStride, int height,
                                const Options& options = {});

// Every byte through the 8-bit ST 2084 to video range table.
Result<int> tntvt_st2084_to_rgb(Buffer dst, Buffer src, unsigned int dstStride, unsigned int srcStride, int height,
                                const Options& options = {});

// Bytes 1 and 3 of four through the 8-bit linear to ST 2084 table.
Result<int> tntvt_yuv2_to_st2084(Buffer dst, Buffer src, unsigned int dstStride, unsigned int srcStride, int height,
                                 const Options& options = {});

// Bytes 1 and 3 of four through the 8-bit ST 2084 to video range table.
Result<int> tntvt_st2084_to_yuv2(Buffer dst, Buffer src, unsigned int dstStride, unsigned int srcStride, int height,
                                 const Options& options = {});

// 10-bit fields as indexes from the 8-bit linear to ST 2084 table on.
Result<int> tntvt_v210_to_st2084(Buffer dst, Buffer src, unsigned int dstStride, unsigned int srcStride, int height,
                                 const Options& options = {});

// 10-bit fields as indexes from the 8-bit ST 2084 to video range table on.
Result<int> tntvt_st2084_to_v210(Buffer dst, Buffer src, unsigned int dstStride, unsigned int srcStride, int height,
                                 const Options& options = {});

}  // namespace tintvert::checked

#endif
