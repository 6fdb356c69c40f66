// `yuv444` to `2vuy` and back: bytes are dropped or repeated, nothing is computed.
#include <tintvert/ycbcr8.h>

#include <cstddef>

namespace {

// DELIBERATE (keeps_frames_of_444_unbroken): both frames are one run of pixels, whatever `stride` is. Two
// pixels a group, 6 bytes of `yuv444`; an odd last pixel makes a whole group.
size_t groups_in(unsigned int width, unsigned int height)
{
    const uint32_t bytes = width * height * 3;
    return (size_t{bytes} + 5) / 6;
}

}  // namespace

// The odd pixel's chroma is dropped.
// DELIBERATE (keeps_store_before_load_of_444): byte by byte in the order of the destination, here and
// below, so neither works in place.
void tntvt_yuv444_yuv422_8(unsigned char* dst, unsigned char* src, unsigned int width, unsigned int height,
                           unsigned int)
{
    const size_t groups = groups_in(width, height);
    for (size_t g = 0; g < groups; ++g, src += 6, dst += 4) {
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
    const size_t groups = groups_in(width, height);
    for (size_t g = 0; g < groups; ++g, src += 4, dst += 6) {
        dst[0] = src[1];
        dst[1] = src[0];
        dst[2] = src[2];
        dst[3] = src[3];
        dst[4] = src[0];
        dst[5] = src[2];
    }
}
