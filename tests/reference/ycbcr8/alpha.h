// Alpha and luma planes, the reference implementation: one pixel at a time. Names and arguments are those of the
// routines.
#pragma once

namespace tintvert::reference {

int tntvt_alphay_to_2yuv(void* dst, long dstStride, void* src, long srcStride, long width, long height);
int tntvt_2yuv_to_alphay(void* dst, long dstStride, void* src, long srcStride, long width, long height);
int tntvt_2yuv_strip_chroma(void* dst, long dstStride, void* src, long srcStride, long width, long height);
int tntvt_alpha_to_rgba(void* dst, long, void* src, long dstStride, long width, long height);
int tntvt_rgba_to_alpha(void* dst, long, void* src, long srcStride, long width, long height);
int tntvt_rgba_setalpha(void* dst, long dstStride, unsigned int alpha, long width, long height);
int tntvt_rgba_addalpha(void* src, void* dst, long srcStride, long dstStride, unsigned int alpha, int width,
                        int height);
int tntvt_2yuv_average_2y(void* buf, unsigned int bytes, int mode);

}  // namespace tintvert::reference
