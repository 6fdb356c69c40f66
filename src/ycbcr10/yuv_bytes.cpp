// Two routines with a `v210` name that write 8-bit 4:2:2, chroma first.
// QUIRK (keeps_8_bit_bytes_under_a_v210_name): two bytes a pixel, as the routines named for `2vuy`.
#include <tintvert/ycbcr10.h>

#include "ycbcr8/full_range.h"

using namespace tintvert;

void yuv2_to_v210(unsigned char* src, unsigned char* dst, int width) { to_video_range<0x80>(dst, src, width); }

void yuvs_to_v210(unsigned char* src, unsigned char* dst, int width) { to_video_range<0>(dst, src, width); }
