// RGB to `v210`: a matrix in double precision and a 1-2-1 chroma filter, a group of six pixels at a time.
#include <tintvert/ycbcr10.h>

#include <algorithm>

#include "frame/memory.h"
#include "frame/number.h"
#include "simd/simd.h"
#include "ycbcr10/rgb_to_v210_simd.h"
#include "ycbcr10/v210.h"

using namespace tintvert;

namespace {

// A field's value: truncated toward zero and not clamped. None of the matrices yields a negative one.
uint32_t code(double value) { return static_cast<uint32_t>(truncate(value)); }

// A matrix is its three rows and the half that is added to filtered chroma.
//
// ITU-R BT.601 weights times 256, 10-bit video range. Unfiltered chroma runs around 128.0, so the sum of the four of a
// filter is the 10-bit sample.
// QUIRK (keeps_half_before_truncation): this matrix alone adds 0.5 to the filtered chroma.
struct VideoRange601 {
    static constexpr Weights y = scaled({65.738, 129.057, 25.064, 4096.0}, 4.0 / 256);
    static constexpr Weights cb = scaled({-37.945, -74.494, 112.439, 32768.0}, 1.0 / 256);
    static constexpr Weights cr = scaled({112.439, -94.154, -18.285, 32768.0}, 1.0 / 256);
    static constexpr double half = 0.5, chroma_start = 512.0;
};

// ITU-R BT.601. The quarter of the filter is in the chroma's weights, here and below.
// QUIRK (keeps_8_bit_excursion): 10-bit offsets and weights times 1024 of 256 steps a channel, so
// the excursion is that of 8 bits. White is luma 283 by this matrix and 318 by the next.
struct Narrow601 {
    static constexpr Weights y = scaled({262.952, 516.228, 100.256, 65536.0}, 1.0 / 1024);
    static constexpr Weights cb = scaled({-151.78, -297.976, 449.756, 524288.0}, 0.25 / 1024);
    static constexpr Weights cr = scaled({449.756, -376.616, -73.14, 524288.0}, 0.25 / 1024);
    static constexpr double half = 0.0, chroma_start = 0.25 * 512.0;
};

// ITU-R BT.709, full-range weights.
struct Narrow709 {
    static constexpr Weights y = scaled({217.6, 732.57, 72.83, 65536.0}, 1.0 / 1024);
    static constexpr Weights cb = scaled({-117.248, -394.752, 512.0, 524288.0}, 0.25 / 1024);
    static constexpr Weights cr = scaled({512.0, -465.101, -46.899, 524288.0}, 0.25 / 1024);
    static constexpr double half = 0.0, chroma_start = 0.25 * 512.0;
};

// QUIRK (keeps_chroma_start_of_512): the chroma before the first pixel is 512.0 in every matrix. VideoRange601 has
// 128.0 for neutral, so the first Cb and the first Cr of its lines come out 384 too high.
template <class Matrix>
constexpr ChromaBefore chroma_start{Matrix::chroma_start, Matrix::chroma_start};

// Six pixels are read whole before four words are written.
// QUIRK (keeps_overflow_into_next_field): fields are joined with no mask. Pure blue at the head of a
// VideoRange601 line has Cb 1232, whose bit 10 is or-ed into the Y0 field.
template <class Matrix, class Order>
void convert_group(uint8_t* dst, const uint8_t* src, ChromaBefore& before)
{
    uint32_t y[6];
    double cb[7], cr[7];  // of P-1 to P5
    cb[0] = before.cb;
    cr[0] = before.cr;
    for (int i = 0; i < 6; ++i) {
        const uint8_t* pixel = src + i * Order::bytes;
        const double r = pixel[Order::at.r], g = pixel[Order::at.g], b = pixel[Order::at.b];
        y[i] = code(row(Matrix::y, r, g, b));
        cb[i + 1] = row(Matrix::cb, r, g, b);
        cr[i + 1] = row(Matrix::cr, r, g, b);
    }
    before = {cb[6], cr[6]};
    const auto at = [](const double* around) { return code(filtered(around[0], around[1], around[2]) + Matrix::half); };
    store(dst, v210_word(at(cb), y[0], at(cr)));
    store(dst + 4, v210_word(y[1], at(cb + 2), y[2]));
    store(dst + 8, v210_word(at(cr + 2), y[3], at(cb + 4)));
    store(dst + 12, v210_word(y[4], at(cr + 4), y[5]));
}

template <class Matrix, class Order>
struct ConvertGroups {
    static constexpr long src_bytes = v210_group_pixels * Order::bytes;
#if defined(__x86_64__)
    // The loads take bytes beyond the pixels at either end, so the first group and the last are not for steps.
    static long avx2(uint8_t* dst, const uint8_t* src, long groups, ChromaBefore& before)
    {
        convert_group<Matrix, Order>(dst, src, before);
        return 1 +
               width_256::convert_groups<Matrix, Order>(dst + v210_group_bytes, src + src_bytes, groups - 2, before);
    }
    static long avx512(uint8_t* dst, const uint8_t* src, long groups, ChromaBefore& before)
    {
        return width_512::convert_groups<Matrix, Order>(dst, src, groups, before);
    }
#endif
};

template <class Matrix, class Order>
void convert_groups(uint8_t* dst, const uint8_t* src, long groups, ChromaBefore& before, InstructionSet level)
{
    using Kernel = ConvertGroups<Matrix, Order>;
    long done = run_simd<Kernel>(level, {{dst, groups * v210_group_bytes}}, {{src, groups * Kernel::src_bytes}}, dst,
                                 src, groups, before);
    for (; done < groups; ++done)
        convert_group<Matrix, Order>(dst + done * v210_group_bytes, src + done * Kernel::src_bytes, before);
}

template <class Matrix, class Order>
void convert_line(unsigned int* dst, const uint8_t* src, int width)
{
    ChromaBefore before = chroma_start<Matrix>;
    convert_groups<Matrix, Order>(bytes(dst), src, (width + 5L) / v210_group_pixels, before, instruction_set());
}

// QUIRK (keeps_groups_across_lines): the counter runs over the frame, so a line is entered at the
// first multiple of 6 in it and gets as many groups as begin in it. Below a `width` of 6 lines are skipped.
// QUIRK (keeps_chroma_across_lines): the pixel before a line's first is the last one converted above.
template <class Matrix>
void convert_frame(void* dst, long dst_stride, void* src, long src_stride, long width, long total)
{
    const InstructionSet level = instruction_set();
    const long line = magnitude(width);
    ChromaBefore before = chroma_start<Matrix>;
    for (long i = 0, groups = 0; i < total; i += groups * v210_group_pixels) {
        groups = (std::min(line - i % line, total - i) + v210_group_pixels - 1) / v210_group_pixels;
        convert_groups<Matrix, Bgra>(advance(bytes(dst), line_offset(i / width, dst_stride)),
                                     advance(bytes(src), line_offset(i / width, src_stride)), groups, before, level);
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
