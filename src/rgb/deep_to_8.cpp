// RGB of 16 bits a channel reduced to 8.
#include <tintvert/rgb.h>

#include "rgb/deep_channel.h"

using namespace tintvert;

namespace {

template <class Height, int channels, class Places>
void reduce(const Frame& frame, long width, long height, uint32_t bits)
{
    with_shift_of(bits, [&](auto k) {
        using Channel = Reduced<std::endian::little, decltype(k)>;
        Height::walk(frame, width, height, Deep<Channel, channels, Places>{{k}});
    });
}

}  // namespace

// QUIRK (keeps_transparent_alpha): where the source has no alpha, that of the result is 0 and not `a`.
void tntvt_rgb48_rgba32(void* dst, long dstStride, void* src, long srcStride, long width, long height,
                        unsigned int bits)
{
    reduce<ExactFlip, 3, Order<0, 1, 2, zero>>({dst, dstStride, src, srcStride}, width, height, bits);
}

void tntvt_bgr48_rgba32(void* dst, long dstStride, void* src, long srcStride, long width, long height,
                        unsigned int bits)
{
    reduce<FlipOneLineOff, 3, Order<2, 1, 0, zero>>({dst, dstStride, src, srcStride}, width, height, bits);
}

void tntvt_rgba64_rgba32(void* dst, long dstStride, void* src, long srcStride, long width, long height,
                         unsigned int bits)
{
    reduce<PositiveOnly, 4, Order<0, 1, 2, 3>>({dst, dstStride, src, srcStride}, width, height, bits);
}

void tntvt_argb64_rgba32(void* dst, long dstStride, void* src, long srcStride, long width, long height,
                         unsigned int bits)
{
    reduce<PositiveOnly, 4, Order<1, 2, 3, 0>>({dst, dstStride, src, srcStride}, width, height, bits);
}

void tntvt_abgr64_rgba32(void* dst, long dstStride, void* src, long srcStride, long width, long height,
                         unsigned int bits)
{
    reduce<PositiveOnly, 4, Order<3, 2, 1, 0>>({dst, dstStride, src, srcStride}, width, height, bits);
}

void tntvt_bgra64_rgba32(void* dst, long dstStride, void* src, long srcStride, long width, long height,
                         unsigned int bits)
{
    reduce<PositiveOnly, 4, Order<2, 1, 0, 3>>({dst, dstStride, src, srcStride}, width, height, bits);
}
