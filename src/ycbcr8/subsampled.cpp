// QUIRK (keeps_empty_subsampled_entries): the 4:1:1 and 4:2:0 names are part of the interface and
// convert nothing.
#include <tintvert/ycbcr8.h>

void tntvt_yuv411_yuv422_8(unsigned char*, unsigned char*, unsigned int, unsigned int, unsigned int) {}
void tntvt_yuv422_yuv411_8(unsigned char*, unsigned char*, unsigned int, unsigned int, unsigned int) {}
void tntvt_yuv420_yuv422_8(unsigned char*, unsigned char*, unsigned int, unsigned int, unsigned int) {}
void tntvt_yuv422_yuv420_8(unsigned char*, unsigned char*, unsigned int, unsigned int, unsigned int) {}
void tntvt_yuv420_yuv411_8(unsigned char*, unsigned char*, unsigned int, unsigned int, unsigned int) {}
void tntvt_yuv411_yuv420_8(unsigned char*, unsigned char*, unsigned int, unsigned int, unsigned int) {}
