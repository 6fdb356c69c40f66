// The entry points that fill in default strides and choose a route: libycbcr with a matrix by frame size at
// full size, the shared tables at any other scale. What libycbcr returns is passed on; the tables return 0.
#include <tintvert/decode.h>

#include "frame/imports.h"
#include "ycbcr10/v210.h"

using namespace tintvert;

namespace {

using FrameDecoder = decltype(&cycbcr_uyvy_to_rgb32);

// The sign of `height` is passed on, and also sets a flag.
int decode_by_matrix(FrameDecoder decode, void* dst, long dst_stride, void* src, long src_stride, long width,
                     long height)
{
    const int pixels = static_cast<int>(width), lines = static_cast<int>(height);
    const unsigned int matrix = GetMatrixBySize(pixels, lines, 0);
    return decode(dst, src, pixels, lines, static_cast<int>(dst_stride), static_cast<int>(src_stride), matrix,
                  height < 0 ? 0x8000 : 0);
}

long or_default(long stride, long line_bytes) { return stride > 0 ? stride : line_bytes; }

}  // namespace

int tntvt_yuv422_10_rgb24(void* dst, long dstStride, void* src, long srcStride, long width, long height, long scale)
{
    tntvt_v210_rgb24(dst, or_default(dstStride, width * 3), src, or_default(srcStride, v210_line_of_48(width)), width,
                     height, scale);
    return 0;
}

int tntvt_yuv422_10_rgb32(void* dst, long dstStride, void* src, long srcStride, long width, long height, long scale)
{
    dstStride = or_default(dstStride, width * 4);
    srcStride = or_default(srcStride, v210_line_of_48(width));
    if (scale == 1) return decode_by_matrix(cycbcr_012v_to_rgb32, dst, dstStride, src, srcStride, width, height);
    tntvt_v210_rgb24(dst, dstStride, src, srcStride, width, height, scale);
    return 0;
}

// QUIRK (keeps_10_bit_decoder_for_8_bit_data): at full size the 8-bit frame goes, with its 8-bit stride
// and its 24-bit lines, to the `v210` decoder.
int tntvt_yuv422_8_rgb24(void* dst, long dstStride, void* src, long srcStride, long width, long height, long scale)
{
    dstStride = or_default(dstStride, width * 3);
    srcStride = or_default(srcStride, width * 2);
    if (scale == 1) return decode_by_matrix(cycbcr_012v_to_rgb32, dst, dstStride, src, srcStride, width, height);
    tntvt_yuv422_rgb24(dst, dstStride, src, srcStride, width, height, scale);
    return 0;
}

int tntvt_yuv422_8_rgb32(void* dst, long dstStride, void* src, long srcStride, long width, long height, long scale)
{
    dstStride = or_default(dstStride, width * 4);
    srcStride = or_default(srcStride, width * 2);
    if (scale == 1) return decode_by_matrix(cycbcr_uyvy_to_rgb32, dst, dstStride, src, srcStride, width, height);
    tntvt_yuv422_rgb24(dst, dstStride, src, srcStride, width, height, scale);
    return 0;
}

namespace {

// No default for `srcStride`, and the destination has no slack.
int decode_420(FrameDecoder decode, void* dst, void* src, unsigned int width, unsigned int height,
               unsigned int src_stride)
{
    const int pixels = static_cast<int>(width), lines = static_cast<int>(height);
    const unsigned int matrix = GetMatrixBySize(pixels, lines, 0);
    return decode(dst, src, pixels, lines, static_cast<int>(width * 4), static_cast<int>(src_stride), matrix, 0);
}

}  // namespace

int tntvt_i420_rgb32(void* dst, void* src, unsigned int width, unsigned int height, unsigned int srcStride)
{
    return decode_420(cycbcr_i420_to_rgb32, dst, src, width, height, srcStride);
}

int tntvt_yv12_rgb32(void* dst, void* src, unsigned int width, unsigned int height, unsigned int srcStride)
{
    return decode_420(cycbcr_yv12_to_rgb32, dst, src, width, height, srcStride);
}
