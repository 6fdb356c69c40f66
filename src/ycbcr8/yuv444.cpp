// `yuv444` to `2vuy` and back: bytes are dropped or repeated, nothing is computed.
#include <tintvert/ycbcr8.h>

#include "ycbcr8/yuv444_simd.h"

using namespace tintvert;

namespace {

// QUIRK (keeps_frames_of_444_unbroken): both frames are one run of pixels, whatever `stride` is. Two
// pixels a group, 6 bytes of `yuv444`; an odd last pixel makes a whole group.
long groups_in(unsigned int width, unsigned int height)
{
    const uint32_t bytes = width * height * 3;
    return (long{bytes} + 5) / 6;
}

}  // namespace

// The odd pixel's chroma is dropped.
// QUIRK (keeps_store_before_load_of_444): byte by byte in the order of the destination, here and
// below, so neither works in place.
void tntvt_yuv444_yuv422_8(unsigned char* dst, unsigned char* src, unsigned int width, unsigned int height,
                           unsigned int)
{
    const long groups = groups_in(width, height);
    long g = run_simd<To422>(instruction_set(), {{dst, groups * 4}}, {{src, groups * 6}}, dst, src, groups);
    src += g * 6;
    dst += g * 4;
    for (; g < groups; ++g, src += 6, dst += 4) {
        dst[0] = src[1];
        dst[1] = src[0];
        dst[2] = src[2];
        dst[3] = src[3];
    }
}

// The even pixel's chroma serves both.
void tntvt_yuv422_yuv444_8(unsigned char* dst, unsigned char* src, unsigned int width, unsigned int height,
                           unsigned int)
{
    const long groups = groups_in(width, height);
    long g = run_simd<To444>(instruction_set(), {{dst, groups * 6}}, {{src, groups * 4}}, dst, src, groups);
    src += g * 4;
    dst += g * 6;
    for (; g < groups; ++g, src += 4, dst += 6) {
        dst[0] = src[1];
        dst[1] = src[0];
        dst[2] = src[2];
        dst[3] = src[3];
        dst[4] = src[0];
        dst[5] = src[2];
    }
}
