// 8-bit planes, the reference implementation: one byte at a time. Names and arguments are those of the routines.
#pragma once

namespace tintvert::reference {

void tntvt_planar_2vuy(unsigned char* dst, unsigned char* y, unsigned char* cb, unsigned char* cr, unsigned int,
                       unsigned int, unsigned int, unsigned int count);
void tntvt_2vuy_planar(unsigned char* y, unsigned char* cb, unsigned char* cr, unsigned int, unsigned int, unsigned int,
                       unsigned char* src, unsigned int count);
void tntvt_planarfields_2vuy(unsigned char* dst, unsigned char* y1, unsigned char* cb1, unsigned char* cr1,
                             unsigned char* y2, unsigned char* cb2, unsigned char* cr2, unsigned int, unsigned int,
                             unsigned int, unsigned int groups, unsigned int total);
void tntvt_i420_2vuy(unsigned char* dst, unsigned char* src, unsigned int width, unsigned int height,
                     unsigned int stride);
void tntvt_yv12_2vuy(unsigned char* dst, unsigned char* src, unsigned int width, unsigned int height,
                     unsigned int stride, unsigned char interlaced);
void tntvt_2vuy_i420(unsigned char* dst, unsigned char* src, unsigned int width, unsigned int height,
                     unsigned int stride);
void tntvt_2vuy_yv12(unsigned char* dst, unsigned char* src, unsigned int width, unsigned int height,
                     unsigned int stride);
void YUY2toYV12(unsigned char* src, unsigned char* y, unsigned char* cb, unsigned char* cr, int width, int height,
                int srcPitch, int dstPitch);

}  // namespace tintvert::reference
