#include "reference/rgb/rle8.h"

namespace tintvert::reference {
namespace {

void put(uint8_t*& dst, const uint8_t* entry)
{
    for (int i = 0; i < 3; ++i) *dst++ = entry[i];
}

}  // namespace

bool rle8_rgb32(uint8_t* dst, long dstStride, const uint8_t* src, long height, const uint8_t* palette, long codes)
{
    const long lines = height < 0 ? -height : height;
    const auto put_with_alpha = [&](uint8_t*& to, int index) {
        put(to, palette + 4 * index);
        *to++ = 0;
    };
    for (long i = 0; i < lines; ++i) {
        uint8_t* to = dst + (height - 1 - i) * dstStride;
        for (bool in_line = true; in_line;) {
            if (codes-- == 0) return false;
            const int c = *src++;
            const int v = *src++;
            if (c > 0)
                for (int n = 0; n < c; ++n) put_with_alpha(to, v);
            else if (v == 0)
                in_line = false;
            else if (v == 1 || v == 2)
                return true;
            else {
                for (int n = 0; n < v; ++n) put_with_alpha(to, *src++);
                if (v % 2 == 1) ++src;
            }
        }
    }
    return true;
}

bool rle8_rgb24(uint8_t* dst, const uint8_t* src, long height, const uint8_t* palette, long codes)
{
    uint64_t lines_left = static_cast<uint64_t>(height);
    while (codes-- > 0) {
        const int c = *src++;
        const int v = *src++;
        if (c > 0) {
            for (int n = 0; n <= c; ++n) put(dst, palette + 3 * v);
        } else if (v == 0) {
            if (--lines_left == 0) return true;
        } else if (v == 1 || v == 2) {
            return true;
        } else if (v % 2 == 1) {
            ++src;
        }
    }
    return false;
}

}  // namespace tintvert::reference
