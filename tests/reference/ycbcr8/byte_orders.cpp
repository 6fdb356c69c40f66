#include "reference/ycbcr8/byte_orders.h"

#include <cstdint>

namespace tintvert::reference {
namespace {

unsigned char scaled(int value, int span, int full)
{
    int result = 16;
    for (int rest = value * span; rest >= full; rest -= full) ++result;
    return static_cast<unsigned char>(result);
}

void run(const unsigned char* src, unsigned char* dst, int pixels, int flip)
{
    for (int64_t i = 0; i < pixels; ++i) {
        const int luma = src[2 * i];
        const int chroma = src[2 * i + 1] ^ flip;
        dst[2 * i + 1] = scaled(luma, 219, 255);
        dst[2 * i] = chroma == 0 ? 16 : scaled(chroma - 1, 224, 254);
    }
}

int product(int width, int height)
{
    return static_cast<int>(static_cast<uint32_t>(static_cast<int64_t>(width) * height));
}

}  // namespace

void yuv2_to_2vuy(unsigned char* src, unsigned char* dst, int pixels) { run(src, dst, pixels, 0x80); }

void yuvs_to_2vuy(unsigned char* src, unsigned char* dst, int pixels) { run(src, dst, pixels, 0); }

void tntvt_yuv2_2vuy(unsigned char* dst, unsigned char* src, int width, int height)
{
    run(src, dst, product(width, height), 0x80);
}

void tntvt_yuvs_2vuy(unsigned char* dst, unsigned char* src, int width, int height)
{
    run(src, dst, product(width, height), 0);
}

void tntvt_yuv444_yuv422_8(unsigned char* dst, unsigned char* src, unsigned int width, unsigned int height,
                           unsigned int)
{
    const uint32_t size = width * height * 3;
    for (uint64_t s = 0, d = 0; s < size; s += 6, d += 4) {
        dst[d] = src[s + 1];
        dst[d + 1] = src[s];
        dst[d + 2] = src[s + 2];
        dst[d + 3] = src[s + 3];
    }
}

void tntvt_yuv422_yuv444_8(unsigned char* dst, unsigned char* src, unsigned int width, unsigned int height,
                           unsigned int)
{
    const uint32_t size = width * height * 3;
    for (uint64_t g = 0; 6 * g < size; ++g) {
        dst[6 * g] = src[4 * g + 1];
        dst[6 * g + 1] = src[4 * g];
        dst[6 * g + 2] = src[4 * g + 2];
        dst[6 * g + 3] = src[4 * g + 3];
        dst[6 * g + 4] = src[4 * g];
        dst[6 * g + 5] = src[4 * g + 2];
    }
}

}  // namespace tintvert::reference
