// Big-endian 64-bit pixels, with the order of the channels chosen by number.
//
// An order that has no result leaves the destination as it was.
#include <tintvert/rgb.h>

#include "rgb/deep_channel.h"

using namespace tintvert;

namespace {

template <class Work>
void with_order_of_four(uint32_t order, Work work)
{
    switch (order) {
        case 0:
            return work(Order<3, 2, 1, 0>{});
        case 1:
            return work(Order<0, 3, 2, 1>{});
        case 2:
            return work(Order<1, 2, 3, 0>{});
        case 3:
            return work(Order<0, 1, 2, 3>{});
    }
}

// QUIRK (keeps_orders_that_write_nothing): of the four orders, 1 and 3 have no form without alpha.
template <class Work>
void with_order_of_three(uint32_t order, Work work)
{
    switch (order) {
        case 0:
            return work(Order<3, 2, 1>{});
        case 2:
            return work(Order<1, 2, 3>{});
    }
}

template <class Height, class Channel, class Places>
void convert(const Frame& frame, long width, long height, Channel channel, Places)
{
    Height::walk(frame, width, height, Deep<Channel, 4, Places>{channel});
}

template <class K>
using Reduce = Reduced<std::endian::big, K>;

}  // namespace

void tntvt_argb64be_rgba64(void* dst, long dstStride, void* src, long srcStride, long width, long height, unsigned int,
                           unsigned int order)
{
    with_order_of_four(order, [&](auto places) {
        convert<PositiveOnly>({dst, dstStride, src, srcStride}, width, height, Swapped{}, places);
    });
}

void tntvt_argb64be_rgb48(void* dst, long dstStride, void* src, long srcStride, long width, long height, unsigned int,
                          unsigned int order)
{
    with_order_of_three(order, [&](auto places) {
        convert<PositiveOnly>({dst, dstStride, src, srcStride}, width, height, Swapped{}, places);
    });
}

void tntvt_argb64be_rgba32(void* dst, long dstStride, void* src, long srcStride, long width, long height,
                           unsigned int bits, unsigned int order)
{
    with_order_of_four(order, [&](auto places) {
        with_shift_of(bits, [&](auto k) {
            convert<PositiveOnly>({dst, dstStride, src, srcStride}, width, height, Reduce<decltype(k)>{k}, places);
        });
    });
}

void tntvt_argb64be_rgb24(void* dst, long dstStride, void* src, long srcStride, long width, long height,
                          unsigned int bits, unsigned int order)
{
    with_order_of_three(order, [&](auto places) {
        with_shift_of(bits, [&](auto k) {
            convert<ExactFlip>({dst, dstStride, src, srcStride}, width, height, Reduce<decltype(k)>{k}, places);
        });
    });
}
