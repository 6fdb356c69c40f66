// 8-bit byte orders, the reference implementation: one byte at a time. Names and arguments are those of the routines.
#pragma once

namespace tintvert::reference {

void yuv2_to_2vuy(unsigned char* src, unsigned char* dst, int pixels);
void yuvs_to_2vuy(unsigned char* src, unsigned char* dst, int pixels);
void tntvt_yuv2_2vuy(unsigned char* dst, unsigned char* src, int width, int height);
void tntvt_yuvs_2vuy(unsigned char* dst, unsigned char* src, int width, int height);
void tntvt_yuv444_yuv422_8(unsigned char* dst, unsigned char* src, unsigned int width, unsigned int height,
                           unsigned int stride);
void tntvt_yuv422_yuv444_8(unsigned char* dst, unsigned char* src, unsigned int width, unsigned int height,
                           unsigned int stride);

}  // namespace tintvert::reference
