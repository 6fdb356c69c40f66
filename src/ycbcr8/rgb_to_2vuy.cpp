// RGB to `2vuy`: a matrix in double precision and a 1-2-1 chroma filter, two pixels at a time.
#include <tintvert/ycbcr8.h>

#include <array>

#include "frame/doubles.h"
#include "frame/memory.h"
#include "frame/number.h"
#include "frame/wide.h"

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
    static constexpr Weights y = scaled({65.738, 129.057, 25.064, 4096.0}, 0.00390625);
    static constexpr Weights cb = scaled({-37.945, -74.494, 112.439, 32768.0}, 0.00390625);
    static constexpr Weights cr = scaled({112.439, -94.154, -18.285, 32768.0}, 0.00390625);
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

// Chroma of the pixel before the next pair.
// DELIBERATE (keeps_chroma_start_without_half): before the first it is 128.0 in both matrices.
struct Carried {
    double cb = 128.0, cr = 128.0;
};

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

// Wide steps have the quarter of the filter in the chroma's weights, and carry a quarter of the chroma.
template <class Matrix>
struct Quartered {
    static constexpr Weights cb = scaled(Matrix::cb, 0.25), cr = scaled(Matrix::cr, 0.25);
};

// The low bytes of four pairs.
TNTVT_AVX2 inline __m128i groups_4(__m256d cb, __m256d y0, __m256d cr, __m256d y1)
{
    const __m128i low = _mm_set1_epi16(0xFF);
    const __m128i even = _mm_packs_epi32(_mm256_cvttpd_epi32(cb), _mm256_cvttpd_epi32(y0));
    const __m128i odd = _mm_packs_epi32(_mm256_cvttpd_epi32(cr), _mm256_cvttpd_epi32(y1));
    const __m128i bytes = _mm_packus_epi16(_mm_and_si128(even, low), _mm_and_si128(odd, low));
    return _mm_shuffle_epi8(bytes, _mm_setr_epi8(0, 4, 8, 12, 1, 5, 9, 13, 2, 6, 10, 14, 3, 7, 11, 15));
}

template <class Matrix, const Channels& at>
TNTVT_AVX2 long pairs_avx2(uint8_t* dst, const uint8_t* src, long pairs, Carried& carried)
{
    using Quarter = Quartered<Matrix>;
    __m256d previous_cb = _mm256_set1_pd(carried.cb * 0.25), previous_cr = _mm256_set1_pd(carried.cr * 0.25);
    long done = 0;
    for (; pairs - done >= 4; done += 4) {
        const __m256i pixels = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(src + done * 8));
        const Rgb4 even = channels_4(pixels, at, 0), odd = channels_4(pixels, at, 1);
        const __m256d cb = row_4(Quarter::cb, odd), cr = row_4(Quarter::cr, odd);
        const __m256d filtered_cb = filter_4(shifted_in_4(previous_cb, cb), row_4(Quarter::cb, even), cb);
        const __m256d filtered_cr = filter_4(shifted_in_4(previous_cr, cr), row_4(Quarter::cr, even), cr);
        _mm_storeu_si128(reinterpret_cast<__m128i*>(dst + done * 4),
                         groups_4(filtered_cb, row_4(Matrix::y, even), filtered_cr, row_4(Matrix::y, odd)));
        previous_cb = cb;
        previous_cr = cr;
    }
    carried = {last_4(previous_cb) * 4.0, last_4(previous_cr) * 4.0};
    return done;
}

// Places of the low bytes of eight integers and of eight others, for bytes `first` and `first` + 1 of each group.
constexpr std::array<uint8_t, 64> places_of_low_bytes(size_t first)
{
    std::array<uint8_t, 64> result{};
    for (size_t i = 0; i < 8; ++i) {
        result[4 * i + first] = static_cast<uint8_t>(8 * i);
        result[4 * i + first + 1] = static_cast<uint8_t>(64 + 8 * i);
    }
    return result;
}
alignas(64) constexpr std::array<uint8_t, 64> low_places[] = {places_of_low_bytes(0), places_of_low_bytes(2)};

// The low bytes of eight pairs.
TNTVT_VBMI inline __m256i groups_8(__m512d cb, __m512d y0, __m512d cr, __m512d y1)
{
    const __m512i even =
        _mm512_permutex2var_epi8(_mm512_cvttpd_epi64(cb), _mm512_loadu_si512(low_places), _mm512_cvttpd_epi64(y0));
    const __m512i odd =
        _mm512_permutex2var_epi8(_mm512_cvttpd_epi64(cr), _mm512_loadu_si512(low_places + 1), _mm512_cvttpd_epi64(y1));
    return _mm256_blend_epi16(_mm512_castsi512_si256(even), _mm512_castsi512_si256(odd), 0b10101010);
}

template <class Matrix, const Channels& at>
TNTVT_VBMI long pairs_vbmi(uint8_t* dst, const uint8_t* src, long pairs, Carried& carried)
{
    using Quarter = Quartered<Matrix>;
    __m512d previous_cb = _mm512_set1_pd(carried.cb * 0.25), previous_cr = _mm512_set1_pd(carried.cr * 0.25);
    long done = 0;
    for (; pairs - done >= 8; done += 8) {
        const __m512i pixels = _mm512_loadu_si512(src + done * 8);
        const Rgb8 even = channels_8(pixels, at, 0), odd = channels_8(pixels, at, 1);
        const __m512d cb = row_8(Quarter::cb, odd), cr = row_8(Quarter::cr, odd);
        const __m512d filtered_cb = filter_8(shifted_in_8(previous_cb, cb), row_8(Quarter::cb, even), cb);
        const __m512d filtered_cr = filter_8(shifted_in_8(previous_cr, cr), row_8(Quarter::cr, even), cr);
        _mm256_storeu_si256(reinterpret_cast<__m256i*>(dst + done * 4),
                            groups_8(filtered_cb, row_8(Matrix::y, even), filtered_cr, row_8(Matrix::y, odd)));
        previous_cb = cb;
        previous_cr = cr;
    }
    carried = {last_8(previous_cb) * 4.0, last_8(previous_cr) * 4.0};
    return done;
}

template <class Matrix, const Channels& at>
long wide_pairs(uint8_t* dst, const uint8_t* src, long pairs, Carried& carried)
{
    const Tier widest = tier();
    if (widest < Tier::avx2 || pairs < 1 || !disjoint(dst, pairs * 4, src, pairs * 8)) return 0;
    return widest == Tier::vbmi ? pairs_vbmi<Matrix, at>(dst, src, pairs, carried)
                                : pairs_avx2<Matrix, at>(dst, src, pairs, carried);
}

// The first or the last byte of a run is alpha, which nothing reads; wide steps leave a pair at either end.
template <class Matrix, const Channels& at>
void convert_run(uint8_t* dst, const uint8_t* src, int pixels)
{
    Carried carried;
    for (long i = 0; i < pixels; i += 2) {
        convert_pair<Matrix, at>(dst + i * 2, src + i * 4, carried);
        if (i == 0) i += 2 * wide_pairs<Matrix, at>(dst + 4, src + 8, pixels / 2 - 2, carried);
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

// DELIBERATE (keeps_one_run_whatever_the_strides): the frame is one run of pixels on both sides; a
// caller that has gaps at line ends compacts the frame first.
void tntvt_rgb32_2vuy(void* dst, long, void* src, long, long width, long height)
{
    bgra_to_2vuy(bytes(src), bytes(dst), wrapping_product(width, height));
}
