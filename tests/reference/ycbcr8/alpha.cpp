#include "reference/ycbcr8/alpha.h"

#include <cstdint>
#include <cstdlib>
#include <cstring>

namespace tintvert::reference {
namespace {

uint8_t* bytes_of(void* memory) { return static_cast<uint8_t*>(memory); }

// What modes 2 to 6 make of the second luma `t` between the first lumas `prev` and `cur`.
int pulled_back(int mode, int prev, int t, int cur)
{
    const bool gated = mode == 2 || mode == 4;
    if (gated && prev >= 128) return t;
    if (std::abs(prev - cur) >= 8 || std::abs(prev - t) < 11) return t;
    if (mode == 2 || mode == 3) return prev;
    return ((mode == 6 ? cur : t) + prev) / 2;
}

}  // namespace

int tntvt_alphay_to_2yuv(void* dst, long dstStride, void* src, long srcStride, long width, long height)
{
    const long words = width >> 1;
    if (height < 1 || words < 1) return 0;
    for (long line = height - 1; line >= 0; --line) {
        const uint8_t* from = bytes_of(src) + (line + 1) * srcStride;
        uint8_t* to = bytes_of(dst) + (line + 1) * dstStride;
        for (long i = 0; i < words; ++i) {
            from -= 2;
            to -= 4;
            const uint8_t four[4] = {0x80, from[0], 0x80, from[1]};
            std::memcpy(to, four, 4);
        }
    }
    return 0;
}

int tntvt_2yuv_to_alphay(void* dst, long dstStride, void* src, long srcStride, long width, long height)
{
    if (height < 0) return 0;
    for (long line = 0; line <= height; ++line) {
        for (long group = 0; group < width >> 1; ++group) {
            const uint8_t* const from = bytes_of(src) + line * srcStride + 4 * group;
            const uint8_t two[2] = {from[1], from[3]};
            std::memcpy(bytes_of(dst) + line * dstStride + 2 * group, two, 2);
        }
    }
    return 0;
}

int tntvt_2yuv_strip_chroma(void* dst, long dstStride, void* src, long srcStride, long width, long height)
{
    if (height < 0) return 0;
    for (long line = 0; line <= height; ++line) {
        for (long group = 0; group < width >> 1; ++group) {
            const uint8_t* const from = bytes_of(src) + line * srcStride + 4 * group;
            const uint8_t four[4] = {0x80, from[1], 0x80, from[3]};
            std::memcpy(bytes_of(dst) + line * dstStride + 4 * group, four, 4);
        }
    }
    return 0;
}

int tntvt_alpha_to_rgba(void* dst, long, void* src, long dstStride, long width, long height)
{
    for (long line = 0; line < height; ++line)
        for (long i = 0; i < width; ++i)
            std::memset(bytes_of(dst) + line * dstStride + 4 * i, bytes_of(src)[line * width + i], 4);
    return 0;
}

int tntvt_rgba_to_alpha(void* dst, long, void* src, long srcStride, long width, long height)
{
    for (long line = 0; line < height; ++line)
        for (long i = 0; i < width; ++i) bytes_of(dst)[line * width + i] = bytes_of(src)[line * srcStride + 4 * i];
    return 0;
}

int tntvt_rgba_setalpha(void* dst, long dstStride, unsigned int alpha, long width, long height)
{
    for (long line = 0; line < height; ++line)
        for (long i = 0; i < width; ++i) bytes_of(dst)[line * dstStride + 4 * i + 3] = static_cast<uint8_t>(alpha);
    return 0;
}

int tntvt_rgba_addalpha(void* src, void* dst, long srcStride, long dstStride, unsigned int alpha, int width, int height)
{
    const uint32_t count = static_cast<uint32_t>(width);
    for (int line = height - 1; line >= 0; --line) {
        for (uint32_t i = 0; i < count; ++i) {
            uint8_t* const to = bytes_of(dst) + line * dstStride + 4 * int64_t{i};
            for (int byte = 0; byte < 3; ++byte) to[byte] = bytes_of(src)[line * srcStride + 3 * int64_t{i} + byte];
            to[3] = static_cast<uint8_t>(alpha);
        }
    }
    return 0;
}

int tntvt_2yuv_average_2y(void* buf, unsigned int bytes, int mode)
{
    uint8_t* const line = bytes_of(buf);
    if (mode < 1 || mode > 6 || bytes < 2) return 0;
    if (mode == 1) {
        for (uint64_t i = 1; i < bytes; i += 4) line[i + 2] = static_cast<uint8_t>((line[i + 2] + line[i]) / 2);
        return 0;
    }
    int prev = line[1];
    for (uint64_t i = 5;; i += 4) {
        const int cur = line[i];
        line[i - 2] = static_cast<uint8_t>(pulled_back(mode, prev, line[i - 2], cur));
        prev = cur;
        if (i >= bytes) return 0;
    }
}

}  // namespace tintvert::reference
