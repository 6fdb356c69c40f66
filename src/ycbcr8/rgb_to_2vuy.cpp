// RGB to `2vuy`: a matrix in double precision and a 1-2-1 chroma filter, two pixels at a time.
#include <tintvert/ycbcr8.h>

#include "frame/memory.h"
#include "frame/number.h"
#include "frame/simd.h"
#include "ycbcr8/rgb_to_2vuy_simd.h"

using namespace tintvert;

namespace {

struct Ycc {
    double y, cb, cr;
};

// ITU-R BT.601 weights times 256, video range. Every sum is formed in the order written; nothing is
// rounded before the last step, which is a truncation.
// QUIRK (keeps_truncation_of_grey): no half is added, so 51 of the 256 greys come out with a chroma
// of 127 where 128 is neutral.
struct VideoRange601 {
    static Ycc convert(double r, double g, double b)
    {
        return {((g * 129.057 + r * 65.738) + b * 25.064) * 0.00390625 + 16.0,
                ((r * -37.945 - g * 74.494) + b * 112.439) * 0.00390625 + 128.0,
                ((r * 112.439 - g * 94.154) - b * 18.285) * 0.00390625 + 128.0};
    }
    static constexpr Weights y = scaled({65.738, 129.057, 25.064, 4096.0}, 0.00390625);
    static constexpr Weights cb = scaled({-37.945, -74.494, 112.439, 32768.0}, 0.00390625);
    static constexpr Weights cr = scaled({112.439, -94.154, -18.285, 32768.0}, 0.00390625);
};

// ITU-R BT.709 weights times 1024, full range, luma without an offset, the half already in place.
// QUIRK (keeps_wrap_of_pure_blue_and_red): a run of pure blue or red reaches chroma 256.0, whose
// low byte is 0.
struct FullRange709 {
    static Ycc convert(double r, double g, double b)
    {
        return {((g * 732.365 + r * 217.702) + b * 73.716) * 0.0009765625 + 0.5,
                (((r * -117.35 - g * 394.65) + b * 512.0) * 0.0009765625 + 128.0) + 0.5,
                (((r * 512.0 - g * 465.101) - b * 47.002) * 0.0009765625 + 128.0) + 0.5};
    }
    static constexpr Weights y = scaled({217.702, 732.365, 73.716, 512.0}, 0.0009765625);
    static constexpr Weights cb = scaled({-117.35, -394.65, 512.0, 131072.0, 512.0}, 0.0009765625);
    static constexpr Weights cr = scaled({512.0, -465.101, -47.002, 131072.0, 512.0}, 0.0009765625);
};

constexpr Channels bgra_bytes{2, 1, 0}, argb_bytes{1, 2, 3};

template <class Matrix, const Channels& at>
Ycc pixel(const uint8_t* src)
{
    return Matrix::convert(src[at.r], src[at.g], src[at.b]);
}

// The odd pixel's chroma counts twice: once after the even pixel of its own pair and once before that of
// the next. No pixel behind the pair is looked at.
template <class Matrix, const Channels& at>
void convert_pair(uint8_t* dst, const uint8_t* src, Carried& previous)
{
    const Ycc even = pixel<Matrix, at>(src);
    const Ycc odd = pixel<Matrix, at>(src + 4);
    dst[0] = low_byte((previous.cb + even.cb + even.cb + odd.cb) * 0.25);
    dst[1] = low_byte(even.y);
    dst[2] = low_byte((previous.cr + even.cr + even.cr + odd.cr) * 0.25);
    dst[3] = low_byte(odd.y);
    previous = {odd.cb, odd.cr};
}

// Simd steps read the pixel before them.
template <class Matrix, const Channels& at>
long simd_pairs(uint8_t* dst, const uint8_t* src, long pairs)
{
    const InstructionSet widest = instruction_set();
    if (widest < InstructionSet::avx2 || pairs < 1 || !disjoint(dst, pairs * 4, src - 4, pairs * 8 + 4)) return 0;
    return widest == InstructionSet::avx512 ? pairs_avx512<Matrix, at>(dst, src, pairs)
                                            : pairs_avx2<Matrix, at>(dst, src, pairs);
}

// QUIRK (keeps_chroma_start_without_half): the chroma before the first pixel is 128.0 in both matrices.
// The first or the last byte of a run is alpha, which nothing reads; wide steps leave a pair at either end.
template <class Matrix, const Channels& at>
void convert_run(uint8_t* dst, const uint8_t* src, int pixels)
{
    Carried carried{128.0, 128.0};
    for (long i = 0; i < pixels; i += 2) {
        convert_pair<Matrix, at>(dst + i * 2, src + i * 4, carried);
        if (i > 0) continue;
        const long wide = simd_pairs<Matrix, at>(dst + 4, src + 8, pixels / 2 - 2);
        if (wide > 0) carried = carried_to<Matrix, at>(src + 8 + wide * 8);
        i += 2 * wide;
    }
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
