#include "ycbcr.h"

#include "lines.h"

namespace {

using namespace ycbcr;

struct Picture {
    uint8_t* dst;
    const uint8_t* src;
    int width;
    long lines, dst_stride, src_stride;
    unsigned matrix, flags;

    Picture(void* to, void* from, int pixels, int height, int to_stride, int from_stride, unsigned selector,
            unsigned flag_word)
        : dst(static_cast<uint8_t*>(to)),
          src(static_cast<const uint8_t*>(from)),
          width(pixels),
          lines(height < 0 ? -static_cast<long>(height) : height),
          dst_stride(to_stride),
          src_stride(from_stride),
          matrix(selector),
          flags(flag_word)
    {}
};

// Summed as integers: a stride may point anywhere, and a picture of no pixels be null.
template <class Byte>
Byte* advance(Byte* from, long offset)
{
    return reinterpret_cast<Byte*>(reinterpret_cast<uintptr_t>(from) + static_cast<uintptr_t>(offset));
}

template <class LineOf>
int decode(const Picture& picture, LineOf form_of_line)
{
    const Weights& w = weights_of(picture.matrix);
    const InstructionSet level = tintvert::instruction_set();
    for (long y = 0; y < picture.lines; ++y) {
        const long place = (picture.flags & CYCBCR_BOTTOM_UP) != 0 ? picture.lines - 1 - y : y;
        uint8_t* dst = advance(picture.dst, place * picture.dst_stride);
        line(level, dst, form_of_line(y), picture.width, w);
    }
    return 0;
}

// The last chroma line serves an odd last luma line too; a frame of one line or one pixel has none.
int decode_420(const Picture& picture, bool cb_first)
{
    const long n = picture.src_stride * picture.lines;
    const uint8_t* const first = advance(picture.src, n);
    const uint8_t* const second = advance(first, n >> 2);
    const long last = picture.lines / 2 - 1;
    return decode(picture, [&](long line) {
        const long chroma = (line / 2 < last ? line / 2 : last) * (picture.src_stride / 2);
        const int samples = last < 0 ? 0 : picture.width / 2;
        const uint8_t* const one = samples == 0 ? nullptr : advance(first, chroma);
        const uint8_t* const other = samples == 0 ? nullptr : advance(second, chroma);
        return Planar{advance(picture.src, line * picture.src_stride), cb_first ? one : other, cb_first ? other : one,
                      samples};
    });
}

}  // namespace

int cycbcr_uyvy_to_rgb32(void* dst, void* src, int width, int height, int dstStride, int srcStride, unsigned int matrix,
                         unsigned int flags)
{
    const Picture picture(dst, src, width, height, dstStride, srcStride, matrix, flags);
    return decode(picture, [&](long line) { return Uyvy{advance(picture.src, line * picture.src_stride)}; });
}

int cycbcr_012v_to_rgb32(void* dst, void* src, int width, int height, int dstStride, int srcStride, unsigned int matrix,
                         unsigned int flags)
{
    const Picture picture(dst, src, width, height, dstStride, srcStride, matrix, flags);
    return decode(picture, [&](long line) { return V210{advance(picture.src, line * picture.src_stride)}; });
}

int cycbcr_i420_to_rgb32(void* dst, void* src, int width, int height, int dstStride, int srcStride, unsigned int matrix,
                         unsigned int flags)
{
    return decode_420({dst, src, width, height, dstStride, srcStride, matrix, flags}, true);
}

int cycbcr_yv12_to_rgb32(void* dst, void* src, int width, int height, int dstStride, int srcStride, unsigned int matrix,
                         unsigned int flags)
{
    return decode_420({dst, src, width, height, dstStride, srcStride, matrix, flags}, false);
}
