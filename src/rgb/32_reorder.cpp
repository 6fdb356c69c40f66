// Frames of 32-bit pixels in another order. They are left-aligned in their strides and are walked
// forward.
#include <tintvert/rgb.h>

#include "frame/autovectorized.h"
#include "frame/walk.h"
#include "rgb/word_order.h"

using namespace tintvert;

namespace {

// QUIRK (keeps_counted_alpha): the alpha byte as a number, one more where b2 and b1 are 0 and b0 is
// below 8, stored as a whole word. The colours are lost; argb2rgba rotates.
constexpr uint32_t counted_alpha(uint32_t x) { return (x >> 24) + ((x & 0x00FFFFFF) < 8 ? 1 : 0); }

static_assert(counted_alpha(0x000000FF) == 0);
static_assert(counted_alpha(0x00000007) == 1);
static_assert(counted_alpha(0x12345678) == 0x12);
static_assert(counted_alpha(0xFF000007) == 0x100);

struct CountedAlpha {
    static constexpr long src_bytes = 4, dst_bytes = 4;
    using Simd = Autovectorized<CountedAlpha>;
    static void pixel(uint8_t* dst, const uint8_t* src) { store(dst, counted_alpha(load<uint32_t>(src))); }
};

}  // namespace

void tntvt_rgba32_bgra32_inplace(void* dst, long dstStride, void* src, long srcStride, long width, long height)
{
    walk_forward<EachWord<swap_low_pair>>({dst, dstStride, src, srcStride}, width, magnitude(height));
}

void tntvt_rgb32_bgr32_inplace(void* dst, long dstStride, void* src, long srcStride, long width, long height)
{
    walk_forward<EachWord<swap_low_pair>>({dst, dstStride, src, srcStride}, width, magnitude(height));
}

void tntvt_rgba32_abgr32_inplace(void* dst, long dstStride, void* src, long srcStride, long width, long height)
{
    walk_forward<EachWord<reverse_bytes>>({dst, dstStride, src, srcStride}, width, magnitude(height));
}

void tntvt_rgba32_argb32(void* dst, long dstStride, void* src, long srcStride, long width, long height)
{
    walk_forward<EachWord<rotate_right_8>>({dst, dstStride, src, srcStride}, width, magnitude(height));
}

void tntvt_argb32_rgba32(void* dst, long dstStride, void* src, long srcStride, long width, long height)
{
    walk_forward<CountedAlpha>({dst, dstStride, src, srcStride}, width, magnitude(height));
}
