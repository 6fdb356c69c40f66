// `v210` to 32-bit RGB by tables of its own, all ten bits kept up to the final clip.
#include <tintvert/decode.h>

#include "decode/v210_tables.h"
#include "frame/first_use.h"
#include "frame/memory.h"
#include "frame/number.h"
#include "ycbcr10/v210.h"

using namespace tintvert;

namespace {

v210FourWords split(const uint8_t* group)
{
    const auto at = [=](uint32_t n) { return static_cast<uint16_t>(v210_sample(group, n)); };
    return {at(0), at(1), at(2), at(3), at(4), at(5), at(6), at(7), at(8), at(9), at(10), at(11)};
}

// Two pixels of B, G, R, 255 or of 255, R, G, B, the same word turned round.
void put_pair(uint8_t* dst, uint16_t cb, uint16_t y0, uint16_t cr, uint16_t y1, bool bgra)
{
    const V210Terms b = v210_BEtab[cb], d = v210_DCtab[cr];
    const auto pixel = [=](uint16_t y) {
        const int32_t a = v210_Atab[y];
        const uint32_t red = v210_clip(a + d.first);
        const uint32_t green = v210_clip(a + b.first + d.second);
        const uint32_t blue = v210_clip(a + b.second);
        return blue | green << 8 | red << 16 | 0xFF000000u;
    };
    const uint32_t first = pixel(y0), second = pixel(y1);
    store(dst, bgra ? first : byte_reverse(first));
    store(dst + 4, bgra ? second : byte_reverse(second));
}

TNTVT_FIRST_USE void need_v210_tables()
{
    if (_v210_to_rgb_initted == 0) init_v210_to_rgb();
}

}  // namespace

unsigned int* _v210_get_next_4words(unsigned int* src, v210FourWords* out)
{
    store(out, split(bytes(src)));
    return advance(src, v210_group_bytes);
}

// DELIBERATE (keeps_stride_at_common_multiples): groups and pixels run on across line ends. `dstStride` is
// looked at only where a line begins with a group: at a `width` of 1280 that is every third line.
// DELIBERATE (keeps_whole_last_group): all six pixels of the last group are written.
void _v210_to_rgb(void* src, void* dst, int width, int height, int dstStride, int bgraOrder)
{
    need_v210_tables();
    const long total = wrapping_product(height, width);
    const uint8_t* group = bytes(src);
    uint8_t* pixel = nullptr;
    for (long i = 0; i < total; i += v210_group_pixels) {
        if (i % width == 0) pixel = advance(bytes(dst), wrapping_product(i / width, dstStride));
        const v210FourWords s = split(group);
        put_pair(pixel, s.Cb0, s.Y0, s.Cr0, s.Y1, bgraOrder != 0);
        put_pair(pixel + 8, s.Cb2, s.Y2, s.Cr2, s.Y3, bgraOrder != 0);
        put_pair(pixel + 16, s.Cb4, s.Y4, s.Cr4, s.Y5, bgraOrder != 0);
        group += v210_group_bytes;
        pixel += 4 * v210_group_pixels;
    }
}
