// QUIRK (keeps_empty_entries): names that accept a call and do nothing with it.
#include <tintvert/rgb.h>

void tntvt_rgb8_rgb32(void*, long, void*, long, long, long) {}
void tntvt_rgb8_rgba32(void*, long, void*, long, long, long) {}
void tntvt_rgb16_rgb24(void*, long, void*, long, long, long) {}
void tntvt_rgb32_rgb16(void*, long, void*, long, long, long) {}
void tntvt_rgb32_rgb16_565(void*, long, void*, long, long, long) {}
void tntvt_rgb32_rgb16_dithered(void*, long, void*, long, long, long) {}
void tntvt_rgb32_rgb16_565_dithered(void*, long, void*, long, long, long) {}
void tntvt_rgb32_rgb32(void*, long, void*, long, long, long) {}
void tntvt_rgba32_rgb16(void*, long, void*, long, long, long) {}
