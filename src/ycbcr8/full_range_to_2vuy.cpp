// `yuv2`, `yuvu` and `yuvs` to `2vuy`.
#include <tintvert/ycbcr8.h>

#include "frame/number.h"
#include "ycbcr8/full_range.h"

using namespace tintvert;

// Signed chroma: the top bit turned over makes it an offset from 0.
void yuv2_to_2vuy(unsigned char* src, unsigned char* dst, int pixels) { to_video_range<0x80>(dst, src, pixels); }

void yuvs_to_2vuy(unsigned char* src, unsigned char* dst, int pixels) { to_video_range<0>(dst, src, pixels); }

void tntvt_yuv2_2vuy(unsigned char* dst, unsigned char* src, int width, int height)
{
    yuv2_to_2vuy(src, dst, wrapping_product(width, height));
}

void tntvt_yuvu_2vuy(unsigned char* dst, unsigned char* src, int width, int height)
{
    yuv2_to_2vuy(src, dst, wrapping_product(width, height));
}

void tntvt_yuvs_2vuy(unsigned char* dst, unsigned char* src, int width, int height)
{
    yuvs_to_2vuy(src, dst, wrapping_product(width, height));
}
