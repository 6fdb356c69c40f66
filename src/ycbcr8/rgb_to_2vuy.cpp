// RGB to `2vuy`: a matrix in double precision and a 1-2-1 chroma filter, two pixels at a time.
#include <tintvert/ycbcr8.h>

#include <cstddef>

#include "frame/memory.h"
#include "frame/number.h"

using namespace tintvert;

namespace {

struct Ycc {
    double y, cb, cr;
};

// ITU-R BT.601 weights times 256, video range. Every sum is formed in the order written; nothing is
// rounded before the last step, which is a truncation.
// DELIBERATE (keeps_truncation_of_grey): no half is added, so 51 of the 256 greys come out with a chroma
// of 127 where 128 is neutral.
struct VideoRange601 {
    static Ycc convert(double r, double g, double b)
    {
        return {((g * 129.057 + r * 65.738) + b * 25.064) * 0.00390625 + 16.0,
                ((r * -37.945 - g * 74.494) + b * 112.439) * 0.00390625 + 128.0,
                ((r * 112.439 - g * 94.154) - b * 18.285) * 0.00390625 + 128.0};
    }
};

// ITU-R BT.709 weights times 1024, full range, luma without an offset, the half already in place.
// DELIBERATE (keeps_wrap_of_pure_blue_and_red): a run of pure blue or red reaches chroma 256.0, whose
// low byte is 0.
struct FullRange709 {
    static Ycc convert(double r, double g, double b)
    {
        return {((g * 732.365 + r * 217.702) + b * 73.716) * 0.0009765625 + 0.5,
                (((r * -117.35 - g * 394.65) + b * 512.0) * 0.0009765625 + 128.0) + 0.5,
                (((r * 512.0 - g * 465.101) - b * 47.002) * 0.0009765625 + 128.0) + 0.5};
    }
};

struct Bgra {
    static constexpr int r = 2, g = 1, b = 0;
};
struct Argb {
    static constexpr int r = 1, g = 2, b = 3;
};

template <class Matrix, class Order>
Ycc pixel(const uint8_t* src)
{
    return Matrix::convert(src[Order::r], src[Order::g], src[Order::b]);
}

// The odd pixel's chroma counts twice: once after the even pixel of its own pair and once before that of
// the next. No pixel behind the pair is looked at.
// DELIBERATE (keeps_chroma_start_without_half): the pixel before the first is 128.0 in both matrices.
template <class Matrix, class Order>
void convert_run(uint8_t* dst, const uint8_t* src, int pixels)
{
    double previous_cb = 128.0, previous_cr = 128.0;
    for (long i = 0; i < pixels; i += 2, src += 8, dst += 4) {
        const Ycc even = pixel<Matrix, Order>(src);
        const Ycc odd = pixel<Matrix, Order>(src + 4);
        dst[0] = low_byte((previous_cb + even.cb + even.cb + odd.cb) * 0.25);
        dst[1] = low_byte(even.y);
        dst[2] = low_byte((previous_cr + even.cr + even.cr + odd.cr) * 0.25);
        dst[3] = low_byte(odd.y);
        previous_cb = odd.cb;
        previous_cr = odd.cr;
    }
}

}  // namespace

void argb_to_2vuy(unsigned char* src, unsigned char* dst, int pixels)
{
    convert_run<VideoRange601, Argb>(dst, src, pixels);
}

void bgra_to_2vuy(unsigned char* src, unsigned char* dst, int pixels)
{
    convert_run<VideoRange601, Bgra>(dst, src, pixels);
}

void hd_rgb_to_2vuy(unsigned char* src, unsigned char* dst, int pixels, int bgra)
{
    if (bgra != 0)
        convert_run<FullRange709, Bgra>(dst, src, pixels);
    else
        convert_run<FullRange709, Argb>(dst, src, pixels);
}

// DELIBERATE (keeps_one_run_whatever_the_strides): the frame is one run of pixels on both sides; a
// caller that has gaps at line ends compacts the frame first.
void tntvt_rgb32_2vuy(void* dst, long, void* src, long, long width, long height)
{
    bgra_to_2vuy(bytes(src), bytes(dst), wrapping_product(width, height));
}
