// `i420` and `yv12` to `2vuy`: a chroma line serves two lines, and nothing is interpolated.
#include <tintvert/ycbcr8.h>

#include "ycbcr8/groups_simd.h"
#include "ycbcr8/planes_420.h"

using namespace tintvert;

namespace {

// A group is one word: its four samples are read before any byte of it is written.
void put_line(InstructionSet level, uint8_t* dst, const uint8_t* y, const uint8_t* cb, const uint8_t* cr, long groups)
{
    for (long g = interleave_simd(level, dst, {y, cb, cr}, groups); g < groups; ++g) {
        const uint8_t b0 = cb[g], b1 = y[2 * g], b2 = cr[g], b3 = y[2 * g + 1];
        dst[4 * g] = b0;
        dst[4 * g + 1] = b1;
        dst[4 * g + 2] = b2;
        dst[4 * g + 3] = b3;
    }
}

// Where output line `r` gets its samples. `next` is the end of the luma line before it.
struct Progressive {
    static const uint8_t* luma(const uint8_t*, const uint8_t* next, uint32_t, uint32_t) { return next; }
    static uint32_t chroma(uint32_t width, uint32_t r) { return r / 2 * width / 2; }
};

// QUIRK (keeps_interlaced_line_order): luma lines 0, 2, 3, 2, 3, 4, 5, 6 ... and chroma lines
// 0, 1, 1, 0, 2, 1, 3, 2 ... An odd line sets the luma position afresh and an even line goes on from there,
// so line 1 is never shown.
struct Interlaced {
    static const uint8_t* luma(const uint8_t* plane, const uint8_t* next, uint32_t width, uint32_t r)
    {
        if (r % 2 == 0) return next;
        return advance(plane, (r == 1 ? 2 : r - 1) * width);
    }
    static uint32_t chroma(uint32_t width, uint32_t r)
    {
        if (r % 2 == 0) return r / 2 * width / 2;
        return r == 1 ? width >> 1 : (r - 1) / 2 * width / 2 - (width >> 1);
    }
};

// QUIRK (keeps_long_luma_lines_of_odd_width): an odd `width` moves the luma position on by `width` + 1.
template <class Order>
void to_2vuy(uint8_t* dst, uint32_t stride, const uint8_t* plane, const uint8_t* cb, const uint8_t* cr, uint32_t width,
             uint32_t height)
{
    if (width == 0) return;
    const InstructionSet level = instruction_set();
    const long groups = (long{width} + 1) / 2;
    const uint8_t* luma = plane;
    for (uint32_t r = 0; r < height; ++r) {
        luma = Order::luma(plane, luma, width, r);
        const uint32_t chroma = Order::chroma(width, r);
        put_line(level, advance(dst, r * stride), luma, advance(cb, chroma), advance(cr, chroma), groups);
        luma += 2 * groups;
    }
}

}  // namespace

void tntvt_i420_2vuy(unsigned char* dst, unsigned char* src, unsigned int width, unsigned int height,
                     unsigned int stride)
{
    const Planes420<const uint8_t> planes(src, width, height);
    to_2vuy<Progressive>(dst, stride_or_default(stride, width), planes.luma, planes.chroma1, planes.chroma2, width,
                         height);
}

void tntvt_yv12_2vuy(unsigned char* dst, unsigned char* src, unsigned int width, unsigned int height,
                     unsigned int stride, unsigned char interlaced)
{
    const Planes420<const uint8_t> planes(src, width, height);
    const auto convert = interlaced != 0 ? to_2vuy<Interlaced> : to_2vuy<Progressive>;
    convert(dst, stride_or_default(stride, width), planes.luma, planes.chroma2, planes.chroma1, width, height);
}
