#include "reference/strided_frame.h"

namespace tintvert::reference {

void forward(const StridedFrame& frame, PixelBytes bytes, const Pixel& pixel, const LinePlace& place)
{
    const long lines = frame.height < 0 ? -frame.height : frame.height;
    for (long i = 0; i < lines; ++i) {
        const long to = place ? place(i) : i;
        for (long x = 0; x < frame.width; ++x)
            pixel(frame.dst + to * frame.dst_stride + x * bytes.dst, frame.src + i * frame.src_stride + x * bytes.src);
    }
}

void backward(const StridedFrame& frame, long lines, PixelBytes bytes, const Pixel& pixel, const LinePlace& place)
{
    for (long r = lines; r >= 1; --r) {
        const long to = place ? place(r) : r;
        for (long x = 1; x <= frame.width; ++x)
            pixel(frame.dst + to * frame.dst_stride - x * bytes.dst, frame.src + r * frame.src_stride - x * bytes.src);
    }
}

}  // namespace tintvert::reference
