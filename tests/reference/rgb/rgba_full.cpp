#include "reference/rgb/rgba_full.h"

#include <vector>

namespace tintvert::reference {

void rgba_full(uint8_t* dst, long dstStride, const uint8_t* src, long srcStride, long width, long height)
{
    if (dst == src && dstStride == srcStride) return;
    const long from_bytes = srcStride / width, to_bytes = dstStride / width;
    if (dstStride == srcStride) {
        const long size = from_bytes * width * height;
        if (size >= 0 && size < 1l << 31)
            for (const uint8_t byte : std::vector<uint8_t>(src, src + size)) *dst++ = byte;
        return;
    }
    const bool three =
        (from_bytes == 3 || from_bytes == 4) && (to_bytes == 3 || to_bytes == 4) && !(from_bytes == 4 && to_bytes == 4);
    for (long line = height - 1; line >= 0; --line)
        for (long x = 0; x < width; ++x) {
            uint8_t* const to = dst + line * dstStride + x * (three ? to_bytes : 4);
            const uint8_t* const from = src + line * srcStride + x * (three ? from_bytes : 4);
            if (three) {
                for (int i = 0; i < 3; ++i) to[i] = from[i];
            } else {
                const uint8_t word[] = {from[0], from[1], from[2], from[3]};
                for (int i = 0; i < 4; ++i) to[i] = word[i];
            }
        }
}

}  // namespace tintvert::reference
