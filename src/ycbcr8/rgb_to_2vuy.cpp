// RGB to `2vuy`: a matrix in double precision and a 1-2-1 chroma filter, two pixels at a time.
#include <tintvert/ycbcr8.h>

#include "frame/memory.h"
#include "frame/number.h"
#include "simd/simd.h"
#include "ycbcr8/rgb_to_2vuy_simd.h"

using namespace tintvert;

namespace {

// A matrix is its three rows, those of chroma with the quarter of the filter.
//
// ITU-R BT.601 weights times 256, video range. Nothing is rounded before the last step, which is a truncation.
// QUIRK (keeps_truncation_of_grey): no half is added, so 51 of the 256 greys come out with a chroma
// of 127 where 128 is neutral.
struct VideoRange601 {
    static constexpr Weights y = scaled({65.738, 129.057, 25.064, 4096.0}, 1.0 / 256);
    static constexpr Weights cb = scaled({-37.945, -74.494, 112.439, 32768.0}, 0.25 / 256);
    static constexpr Weights cr = scaled({112.439, -94.154, -18.285, 32768.0}, 0.25 / 256);
};

// ITU-R BT.709 weights times 1024, full range, luma without an offset, the half already in place.
// QUIRK (keeps_wrap_of_pure_blue_and_red): a run of pure blue or red reaches chroma 256.0, whose
// low byte is 0.
struct FullRange709 {
    static constexpr Weights y = scaled({217.702, 732.365, 73.716, 512.0}, 1.0 / 1024);
    static constexpr Weights cb = scaled({-117.35, -394.65, 512.0, 131072.0, 512.0}, 0.25 / 1024);
    static constexpr Weights cr = scaled({512.0, -465.101, -47.002, 131072.0, 512.0}, 0.25 / 1024);
};

constexpr Channels bgra_bytes{2, 1, 0}, argb_bytes{1, 2, 3};

template <const Channels& at>
double row_of(const Weights& w, const uint8_t* pixel)
{
    return row(w, pixel[at.r], pixel[at.g], pixel[at.b]);
}

// The odd pixel's chroma counts twice: once after the even pixel of its own pair and once before that of
// the next. No pixel after the pair is looked at.
template <class Matrix, const Channels& at>
void convert_pair(uint8_t* dst, const uint8_t* src, ChromaBefore& before)
{
    const uint8_t *const even = src, *const odd = src + 4;
    const double y0 = row_of<at>(Matrix::y, even), y1 = row_of<at>(Matrix::y, odd);
    const double cb_even = row_of<at>(Matrix::cb, even), cr_even = row_of<at>(Matrix::cr, even);
    const ChromaBefore next = {row_of<at>(Matrix::cb, odd), row_of<at>(Matrix::cr, odd)};
    dst[0] = low_byte(filtered(before.cb, cb_even, next.cb));
    dst[1] = low_byte(y0);
    dst[2] = low_byte(filtered(before.cr, cr_even, next.cr));
    dst[3] = low_byte(y1);
    before = next;
}

// QUIRK (keeps_chroma_start_without_half): the chroma before the first pixel is 128.0 in both matrices.
// Steps read the pixel before them. The first or the last byte of a run is alpha, which nothing reads; so the kernel
// leaves a pair at either end.
template <class Matrix, const Channels& at>
void convert_run(uint8_t* dst, const uint8_t* src, int pixels)
{
    if (pixels < 1) return;
    ChromaBefore before{0.25 * 128.0, 0.25 * 128.0};
    convert_pair<Matrix, at>(dst, src, before);
    const long inner = pixels / 2 - 2;
    const long made = run_simd<ConvertPairs<Matrix, at>>(instruction_set(), {{dst + 4, inner * 4}},
                                                         {{src + 4, inner * 8 + 4}}, dst + 4, src + 8, inner);
    if (made > 0) before = chroma_before<Matrix, at>(src + 8 + made * 8);
    for (long i = 2 + 2 * made; i < pixels; i += 2) convert_pair<Matrix, at>(dst + i * 2, src + i * 4, before);
}

}  // namespace

void argb_to_2vuy(unsigned char* src, unsigned char* dst, int pixels)
{
    convert_run<VideoRange601, argb_bytes>(dst, src, pixels);
}

void bgra_to_2vuy(unsigned char* src, unsigned char* dst, int pixels)
{
    convert_run<VideoRange601, bgra_bytes>(dst, src, pixels);
}

void hd_rgb_to_2vuy(unsigned char* src, unsigned char* dst, int pixels, int bgra)
{
    if (bgra != 0)
        convert_run<FullRange709, bgra_bytes>(dst, src, pixels);
    else
        convert_run<FullRange709, argb_bytes>(dst, src, pixels);
}

// QUIRK (keeps_one_run_whatever_the_strides): the frame is one run of pixels on both sides; a
// caller that has gaps at line ends compacts the frame first.
void tntvt_rgb32_2vuy(void* dst, long, void* src, long, long width, long height)
{
    bgra_to_2vuy(bytes(src), bytes(dst), wrapping_product(width, height));
}
