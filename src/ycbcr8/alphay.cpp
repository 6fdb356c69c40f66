// One plane of samples as the luma of a `2yuv` frame, and back.
#include <tintvert/ycbcr8.h>

#include <climits>

#include "frame/walk.h"
#include "ycbcr8/groups_simd.h"

using namespace tintvert;

namespace {

// Two samples to a pair with neutral chroma. A word is read before the pair is written, so in place the
// frame grows from its end.
struct AlphayTo2yuv {
    static constexpr long src_bytes = 2, dst_bytes = 4;
    using Simd = InterleaveLuma;
    static void pixel(uint8_t* dst, const uint8_t* src)
    {
        const uint32_t both = load<uint16_t>(src);
        store<uint32_t>(dst, 0x00800080 | (both & 0xFF) << 8 | (both >> 8) << 24);
    }
};

struct Alphay {
    static constexpr long src_bytes = 4, dst_bytes = 2;
    using Simd = DeinterleaveLuma;
    static void pixel(uint8_t* dst, const uint8_t* src)
    {
        dst[0] = src[1];
        dst[1] = src[3];
    }
};

struct StripChroma {
    static constexpr long src_bytes = 4, dst_bytes = 4;
    static void pixel(uint8_t* dst, const uint8_t* src)
    {
        store<uint32_t>(dst, (load<uint32_t>(src) & 0xFF00FF00) | 0x00800080);
    }
};

// An odd last pixel is dropped.
long pairs_in(long width) { return width >> 1; }

// Lines 0 to `height`, the last included. The greatest number has none after it.
long lines_to(long height) { return height == LONG_MAX ? height : height + 1; }

}  // namespace

// QUIRK (keeps_lines_at_end_of_stride): with pitches wider than the pixels, both lines end where their
// pitch ends.
int tntvt_alphay_to_2yuv(void* dst, long dstStride, void* src, long srcStride, long width, long height)
{
    walk_backward<AlphayTo2yuv>({dst, dstStride, src, srcStride}, pairs_in(width), height);
    return 0;
}

// QUIRK (keeps_one_line_more): lines 0 to `height`, the last included, here and below. A `height` of 0
// is one line, and -1 is none.
int tntvt_2yuv_to_alphay(void* dst, long dstStride, void* src, long srcStride, long width, long height)
{
    walk_forward<Alphay>({dst, dstStride, src, srcStride}, pairs_in(width), lines_to(height));
    return 0;
}

int tntvt_2yuv_strip_chroma(void* dst, long dstStride, void* src, long srcStride, long width, long height)
{
    walk_forward<StripChroma>({dst, dstStride, src, srcStride}, pairs_in(width), lines_to(height));
    return 0;
}
