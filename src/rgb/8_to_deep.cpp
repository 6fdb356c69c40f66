// 32-bit RGB widened to 16 bits a channel.
#include <tintvert/rgb.h>

#include "rgb/deep_channel.h"

using namespace tintvert;

namespace {

template <class Height, class Places>
void widen(const Frame& frame, long width, long height, uint32_t bits)
{
    with_shift_of(bits,
                  [&](auto k) { Height::walk(frame, width, height, Deep<Widened<decltype(k)>, 4, Places>{{k}}); });
}

}  // namespace

void tntvt_rgba32_rgb48(void* dst, long dstStride, void* src, long srcStride, long width, long height,
                        unsigned int bits)
{
    widen<ExactFlip, Order<0, 1, 2>>({dst, dstStride, src, srcStride}, width, height, bits);
}

void tntvt_rgba32_bgr48(void* dst, long dstStride, void* src, long srcStride, long width, long height,
                        unsigned int bits)
{
    widen<FlipOneLineOff, Order<2, 1, 0>>({dst, dstStride, src, srcStride}, width, height, bits);
}

void tntvt_rgba32_rgba64(void* dst, long dstStride, void* src, long srcStride, long width, long height,
                         unsigned int bits)
{
    widen<PositiveOnly, Order<0, 1, 2, 3>>({dst, dstStride, src, srcStride}, width, height, bits);
}

void tntvt_rgba32_argb64(void* dst, long dstStride, void* src, long srcStride, long width, long height,
                         unsigned int bits)
{
    widen<PositiveOnly, Order<3, 0, 1, 2>>({dst, dstStride, src, srcStride}, width, height, bits);
}

void tntvt_bgra32_rgba64(void* dst, long dstStride, void* src, long srcStride, long width, long height)
{
    widen<PositiveOnly, Order<2, 1, 0, 3>>({dst, dstStride, src, srcStride}, width, height, 16);
}
