// RGB to `v210`: a matrix in double precision and a 1-2-1 chroma filter, a group of six pixels at a time.
#include <tintvert/ycbcr10.h>

#include "frame/memory.h"
#include "frame/number.h"
#include "ycbcr10/v210.h"

using namespace tintvert;

namespace {

// A field's value: truncated toward zero and not clamped. None of the matrices yields a negative one.
uint32_t code(double value) { return static_cast<uint32_t>(truncate(value)); }

// Sums are formed in the order written. ITU-R BT.601 weights times 256, 10-bit video range.
// DELIBERATE (keeps_half_before_truncation): this matrix alone adds 0.5 to the filtered chroma.
struct VideoRange601 {
    static uint32_t luma(double r, double g, double b)
    {
        return code(((b * 25.064 + (g * 129.057 + r * 65.738)) * 0.00390625 + 16.0) * 4.0);
    }
    static double cb(double r, double g, double b)
    {
        return (b * 112.439 + (r * -37.945 - g * 74.494)) * 0.00390625 + 128.0;
    }
    static double cr(double r, double g, double b)
    {
        return (r * 112.439 - g * 94.154 - b * 18.285) * 0.00390625 + 128.0;
    }
    // Unfiltered chroma runs around 128.0, so the sum of the four is the 10-bit sample.
    static uint32_t filtered(double previous, double centre, double next)
    {
        return code(((previous + centre) + centre) + next + 0.5);
    }
};

// DELIBERATE (keeps_8_bit_excursion): 10-bit offsets and weights times 1024 of 256 steps a channel, so
// the excursion is that of 8 bits. White is luma 283 by the first of these and 318 by the second.
struct NarrowChroma {
    static uint32_t filtered(double previous, double centre, double next)
    {
        return code((((previous + centre) + centre) + next) * 0.25);
    }
};

// ITU-R BT.601.
struct Narrow601 : NarrowChroma {
    static uint32_t luma(double r, double g, double b)
    {
        return code((b * 100.256 + (g * 516.228 + r * 262.952)) * 0.0009765625 + 64.0);
    }
    static double cb(double r, double g, double b)
    {
        return (b * 449.756 + (r * -151.78 - g * 297.976)) * 0.0009765625 + 512.0;
    }
    static double cr(double r, double g, double b)
    {
        return (r * 449.756 - g * 376.616 - b * 73.14) * 0.0009765625 + 512.0;
    }
};

// ITU-R BT.709, full-range weights.
struct Narrow709 : NarrowChroma {
    static uint32_t luma(double r, double g, double b)
    {
        return code((b * 72.83 + (g * 732.57 + r * 217.6)) * 0.0009765625 + 64.0);
    }
    static double cb(double r, double g, double b)
    {
        return (b * 512.0 + (r * -117.248 - g * 394.752)) * 0.0009765625 + 512.0;
    }
    static double cr(double r, double g, double b)
    {
        return (r * 512.0 - g * 465.101 - b * 46.899) * 0.0009765625 + 512.0;
    }
};

struct Bgra {
    static constexpr long bytes = 4;
    static constexpr int r = 2, g = 1, b = 0;
};
struct Argb {
    static constexpr long bytes = 4;
    static constexpr int r = 1, g = 2, b = 3;
};
struct Rgb {
    static constexpr long bytes = 3;
    static constexpr int r = 0, g = 1, b = 2;
};

// Unfiltered chroma of the pixel before the next group.
// DELIBERATE (keeps_chroma_start_of_512): it begins at 512.0 in every matrix. VideoRange601 has 128.0 for
// neutral, so the first Cb and the first Cr of its lines come out 384 too high.
struct Carried {
    double cb = 512.0, cr = 512.0;
};

// Six pixels are read whole before four words are written.
// DELIBERATE (keeps_overflow_into_next_field): fields are joined with no mask. Pure blue at the head of a
// VideoRange601 line has Cb 1232, whose bit 10 is or-ed into the Y0 field.
template <class Matrix, class Order>
void convert_group(uint8_t* dst, const uint8_t* src, Carried& carried)
{
    uint32_t y[6];
    double cb[7], cr[7];  // of P-1 to P5
    cb[0] = carried.cb;
    cr[0] = carried.cr;
    for (int i = 0; i < 6; ++i) {
        const uint8_t* pixel = src + i * Order::bytes;
        const double r = pixel[Order::r], g = pixel[Order::g], b = pixel[Order::b];
        y[i] = Matrix::luma(r, g, b);
        cb[i + 1] = Matrix::cb(r, g, b);
        cr[i + 1] = Matrix::cr(r, g, b);
    }
    carried = {cb[6], cr[6]};
    const auto at = [](const double* around) { return Matrix::filtered(around[0], around[1], around[2]); };
    store(dst, v210_word(at(cb), y[0], at(cr)));
    store(dst + 4, v210_word(y[1], at(cb + 2), y[2]));
    store(dst + 8, v210_word(at(cr + 2), y[3], at(cb + 4)));
    store(dst + 12, v210_word(y[4], at(cr + 4), y[5]));
}

template <class Matrix, class Order>
void convert_line(unsigned int* dst, const uint8_t* src, int width)
{
    Carried carried;
    uint8_t* group = bytes(dst);
    for (long i = 0; i < width; i += v210_group_pixels) {
        convert_group<Matrix, Order>(group, src, carried);
        group += v210_group_bytes;
        src += v210_group_pixels * Order::bytes;
    }
}

// DELIBERATE (keeps_groups_across_lines): the counter runs over the frame, so a line is entered at the
// first multiple of 6 in it and gets as many groups as begin in it. Below a `width` of 6 lines are skipped.
// DELIBERATE (keeps_chroma_across_lines): the pixel before a line's first is the last one converted above.
template <class Matrix>
void convert_frame(void* dst, long dst_stride, void* src, long src_stride, long width, long total)
{
    Carried carried;
    uint8_t* group = nullptr;
    const uint8_t* pixels = nullptr;
    for (long i = 0; i < total; i += v210_group_pixels) {
        if (i % width < v210_group_pixels) {
            group = advance(bytes(dst), line_offset(i / width, dst_stride));
            pixels = advance(bytes(src), line_offset(i / width, src_stride));
        }
        convert_group<Matrix, Bgra>(group, pixels, carried);
        group += v210_group_bytes;
        pixels += v210_group_pixels * Bgra::bytes;
    }
}

}  // namespace

void argb_to_v210(unsigned char* src, unsigned int* dst, int width, int hasAlpha)
{
    if (hasAlpha != 0)
        convert_line<VideoRange601, Argb>(dst, src, width);
    else
        convert_line<VideoRange601, Rgb>(dst, src, width);
}

void bgra_to_v210(unsigned char* src, unsigned int* dst, int width) { convert_line<Narrow601, Bgra>(dst, src, width); }

// DELIBERATE (keeps_matrix_change_at_962): the width alone picks the matrix.
void tntvt_rgb32_v210(void* dst, long dstStride, void* src, long srcStride, long width, long height)
{
    const long total = wrapping_product(width, height);
    if (total < 1) return;
    if (dstStride == 0) dstStride = v210_line_of_48(width);
    if (srcStride == 0) srcStride = line_offset(width, 4);
    if (width < 962)
        convert_frame<Narrow601>(dst, dstStride, src, srcStride, width, total);
    else
        convert_frame<Narrow709>(dst, dstStride, src, srcStride, width, total);
}
