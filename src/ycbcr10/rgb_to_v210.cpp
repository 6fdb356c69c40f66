// RGB to `v210`: a matrix in double precision and a 1-2-1 chroma filter, a group of six pixels at a time.
#include <tintvert/ycbcr10.h>

#include <algorithm>

#include "frame/memory.h"
#include "frame/number.h"
#include "frame/simd.h"
#include "ycbcr10/rgb_to_v210_simd.h"
#include "ycbcr10/v210.h"

using namespace tintvert;

namespace {

// A field's value: truncated toward zero and not clamped. None of the matrices yields a negative one.
uint32_t code(double value) { return static_cast<uint32_t>(truncate(value)); }

// Sums are formed in the order written. ITU-R BT.601 weights times 256, 10-bit video range.
// QUIRK (keeps_half_before_truncation): this matrix alone adds 0.5 to the filtered chroma.
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
    // The luma's factor of 4 is in its weights.
    static constexpr Weights y = scaled({65.738, 129.057, 25.064, 4096.0}, 0.015625);
    static constexpr Weights cb_row = scaled({-37.945, -74.494, 112.439, 32768.0}, 0.00390625);
    static constexpr Weights cr_row = scaled({112.439, -94.154, -18.285, 32768.0}, 0.00390625);
    static constexpr double chroma_scale = 1.0, filter_half = 0.5;
};

// QUIRK (keeps_8_bit_excursion): 10-bit offsets and weights times 1024 of 256 steps a channel, so
// the excursion is that of 8 bits. White is luma 283 by the first of these and 318 by the second.
struct NarrowChroma {
    static uint32_t filtered(double previous, double centre, double next)
    {
        return code((((previous + centre) + centre) + next) * 0.25);
    }
    // Simd steps have the quarter in the chroma's weights.
    static constexpr double chroma_scale = 0.25, filter_half = 0.0;
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
    static constexpr Weights y = scaled({262.952, 516.228, 100.256, 65536.0}, 0.0009765625);
    static constexpr Weights cb_row = scaled({-151.78, -297.976, 449.756, 524288.0}, 0.000244140625);
    static constexpr Weights cr_row = scaled({449.756, -376.616, -73.14, 524288.0}, 0.000244140625);
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
    static constexpr Weights y = scaled({217.6, 732.57, 72.83, 65536.0}, 0.0009765625);
    static constexpr Weights cb_row = scaled({-117.248, -394.752, 512.0, 524288.0}, 0.000244140625);
    static constexpr Weights cr_row = scaled({512.0, -465.101, -46.899, 524288.0}, 0.000244140625);
};

// Six pixels are read whole before four words are written.
// QUIRK (keeps_overflow_into_next_field): fields are joined with no mask. Pure blue at the head of a
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
        const double r = pixel[Order::at.r], g = pixel[Order::at.g], b = pixel[Order::at.b];
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
void convert_plainly(uint8_t* dst, const uint8_t* src, long groups, Carried& carried)
{
    for (; groups > 0; --groups) {
        convert_group<Matrix, Order>(dst, src, carried);
        dst += v210_group_bytes;
        src += v210_group_pixels * Order::bytes;
    }
}

// AVX2 has no loads that leave a byte out, and its steps leave the last group.
template <class Matrix, class Order>
void convert_groups(uint8_t* dst, const uint8_t* src, long groups, Carried& carried, InstructionSet widest)
{
    constexpr long src_group_bytes = v210_group_pixels * Order::bytes;
    long done = 0;
    if (groups > 0 && disjoint(dst, groups * v210_group_bytes, src, groups * src_group_bytes)) {
        if (widest == InstructionSet::avx512)
            done = groups_avx512<Matrix, Order>(dst, src, groups, carried);
        else if (widest == InstructionSet::avx2) {
            convert_group<Matrix, Order>(dst, src, carried);
            done = 1 + groups_avx2<Matrix, Order>(dst + v210_group_bytes, src + src_group_bytes, groups - 2, carried);
        }
    }
    convert_plainly<Matrix, Order>(dst + done * v210_group_bytes, src + done * src_group_bytes, groups - done, carried);
}

template <class Matrix, class Order>
void convert_line(unsigned int* dst, const uint8_t* src, int width)
{
    Carried carried;
    convert_groups<Matrix, Order>(bytes(dst), src, (width + 5L) / v210_group_pixels, carried, instruction_set());
}

// QUIRK (keeps_groups_across_lines): the counter runs over the frame, so a line is entered at the
// first multiple of 6 in it and gets as many groups as begin in it. Below a `width` of 6 lines are skipped.
// QUIRK (keeps_chroma_across_lines): the pixel before a line's first is the last one converted above.
template <class Matrix>
void convert_frame(void* dst, long dst_stride, void* src, long src_stride, long width, long total)
{
    const InstructionSet widest = instruction_set();
    const long line = magnitude(width);
    Carried carried;
    for (long i = 0, groups = 0; i < total; i += groups * v210_group_pixels) {
        groups = (std::min(line - i % line, total - i) + v210_group_pixels - 1) / v210_group_pixels;
        convert_groups<Matrix, Bgra>(advance(bytes(dst), line_offset(i / width, dst_stride)),
                                     advance(bytes(src), line_offset(i / width, src_stride)), groups, carried, widest);
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

// QUIRK (keeps_matrix_change_at_962): the width alone picks the matrix.
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
