// The three source forms: where the samples of a line are. `pixel` is the definition. As far as `sampled` says that
// every pixel has chroma of its own, `step` converts `step_pixels` of them at once with AVX2, and `operands` loads up
// to 32, a part of `step_pixels_512`, with AVX-512.
#pragma once

#include <cstdint>
#include <cstring>

#include "matrix.h"

#define TNTVT_STEPS "convert.inc"
#include "simd/each_width.h"

#include "avx2.h"
#include "avx512.h"

namespace ycbcr {

// b0 Cb, b1 Y0, b2 Cr, b3 Y1.
struct Uyvy {
    const uint8_t* line;

    void pixel(uint8_t* dst, int x, const Weights& w) const
    {
        const uint8_t* pair = line + x / 2 * 4;
        put(dst, w, luma_8(pair[x % 2 * 2 + 1]), chroma_8(pair[0]), chroma_8(pair[2]));
    }

    // Of a pair that is begun, up to its Cr.
    static constexpr int bytes_of(int pixels) { return pixels * 2 + pixels % 2; }

    static int sampled(int width) { return width; }
    static constexpr int step_pixels = 16, step_pixels_512 = 32;
#if defined(__x86_64__)
    TNTVT_AVX2 void step(uint8_t* dst, int x, const width_256::VecWeights& w) const
    {
        using namespace width_256;
        store_16(dst, interleaved(convert(w, operands_of(load(line + x * 2)))));
    }

    TNTVT_AVX512 width_512::Operands operands(int step, int part, int pixels) const
    {
        using namespace width_512;
        return operands_of(load_bytes(line + (step + part) * 2, bytes_of(pixels)));
    }
#endif
};

//            29 ..... 20  19 ..... 10   9 ...... 0
//   word 0       Cr0          Y0           Cb0
//   word 1       Y2           Cb2          Y1
//   word 2       Cb4          Y3           Cr2
//   word 3       Y5           Cr4          Y4
// In the order Cb0, Y0, Cr0, Y1, Cb2 ... sample n is in word n / 3 from bit 10 * (n % 3) on.
struct V210 {
    const uint8_t* line;

    static int sample(const uint8_t* group, int n)
    {
        uint32_t word;
        std::memcpy(&word, group + n / 3 * 4, sizeof word);
        return static_cast<int>(word >> (n % 3 * 10) & 0x3FF);
    }

    void pixel(uint8_t* dst, int x, const Weights& w) const
    {
        const uint8_t* group = line + x / 6 * 16;
        const int n = x % 6, pair = n / 2 * 4;
        put(dst, w, luma_10(sample(group, n * 2 + 1)), chroma_10(sample(group, pair)),
            chroma_10(sample(group, pair + 2)));
    }

    // Up to the word of the last sample that is wanted: the Cr of a pair's first pixel, the luma of its second.
    static constexpr int bytes_of(int pixels) { return (2 * pixels - (pixels % 2 == 0 ? 1 : 0)) / 3 * 4 + 4; }

    // Two groups, one in each half. A field that begins at bit 0, 10 or 20 of its word lies in bytes 0-1, 1-2
    // or 2-3 from bit 0, 2 or 4 on; a product with 64, 16 or 4 moves it to the top of 16 bits and a mask
    // clears what lay below. The last two of the eight places are not used.
    static int sampled(int width) { return width; }
    static constexpr int step_pixels = 12, step_pixels_512 = 96;
#if defined(__x86_64__)
    TNTVT_AVX2 static __m256i fields(__m256i words, __m128i bytes, __m128i factors)
    {
        const __m256i places = _mm256_shuffle_epi8(words, width_256::in_every_quarter(bytes));
        return _mm256_and_si256(_mm256_mullo_epi16(places, width_256::in_every_quarter(factors)),
                                _mm256_set1_epi16(-64));
    }
    TNTVT_AVX2 void step(uint8_t* dst, int x, const width_256::VecWeights& w) const
    {
        using namespace width_256;
        const __m256i words = load(line + x / 6 * 16);
        const __m256i luma = fields(words, _mm_setr_epi8(1, 2, 4, 5, 6, 7, 9, 10, 12, 13, 14, 15, -1, -1, -1, -1),
                                    _mm_setr_epi16(16, 64, 4, 16, 64, 4, 0, 0));
        const __m256i chroma = fields(words, _mm_setr_epi8(0, 1, 2, 3, 5, 6, 8, 9, 10, 11, 13, 14, -1, -1, -1, -1),
                                      _mm_setr_epi16(64, 4, 16, 64, 4, 16, 0, 0));
        const Pixels p = interleaved(convert(w, {luma, centred(chroma)}));
        store_128(dst, _mm256_castsi256_si128(p.low));
        _mm_storel_epi64(reinterpret_cast<__m128i*>(dst + 16), _mm256_castsi256_si128(p.high));
        store_128(dst + 24, _mm256_extracti128_si256(p.low, 1));
        _mm_storel_epi64(reinterpret_cast<__m128i*>(dst + 40), _mm256_extracti128_si256(p.high, 1));
    }

    TNTVT_AVX512 width_512::Operands operands(int step, int part, int pixels) const
    {
        using namespace width_512;
        const int first = part % 6;
        const TwoRegisters groups = load_two(line + step / 6 * 16 + part / 6 * 16, bytes_of(first + pixels));
        return {to_words(luma_samples[first / 2], groups), centred(to_words(chroma_samples[first / 2], groups))};
    }
#endif
};

static_assert(V210::bytes_of(1) == 4 && V210::bytes_of(2) == 8 && V210::bytes_of(3) == 12 && V210::bytes_of(4) == 12);
static_assert(V210::bytes_of(5) == 16 && V210::bytes_of(6) == 16 && V210::bytes_of(7) == 20 &&
              V210::bytes_of(4 + 32) == 96);

// A luma line and the chroma lines that serve it; null where there is no chroma line.
struct Planar {
    const uint8_t* y;
    const uint8_t* cb;
    const uint8_t* cr;
    int samples;  // of a chroma line

    void pixel(uint8_t* dst, int x, const Weights& w) const
    {
        const int last = samples - 1, c = x / 2 < last ? x / 2 : last;
        put(dst, w, luma_8(y[x]), c < 0 ? 0 : chroma_8(cb[c]), c < 0 ? 0 : chroma_8(cr[c]));
    }

    int sampled(int) const { return samples * 2; }
    static constexpr int step_pixels = 16, step_pixels_512 = 32;
#if defined(__x86_64__)
    TNTVT_AVX2 void step(uint8_t* dst, int x, const width_256::VecWeights& w) const
    {
        using namespace width_256;
        const __m128i pairs = _mm_unpacklo_epi8(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(cb + x / 2)),
                                                _mm_loadl_epi64(reinterpret_cast<const __m128i*>(cr + x / 2)));
        const __m256i luma = shift_words_left<8>(_mm256_cvtepu8_epi16(load_128(y + x)));
        const __m256i chroma = shift_words_left<8>(_mm256_cvtepu8_epi16(pairs));
        store_16(dst, interleaved(convert(w, {luma, centred(chroma)})));
    }

    TNTVT_AVX512 width_512::Operands operands(int step, int part, int pixels) const
    {
        using namespace width_512;
        const int x = step + part;
        const auto pairs = static_cast<__mmask16>(~0U >> (32 - pixels / 2));
        const __m128i first = _mm_maskz_loadu_epi8(pairs, cb + x / 2), second = _mm_maskz_loadu_epi8(pairs, cr + x / 2);
        const __m512i chroma = _mm512_castsi256_si512(_mm256_set_m128i(second, first));
        return {to_upper_halves(bytes_to_words, load_bytes(y + x, pixels)),
                centred(to_upper_halves(two_rows_to_words, chroma))};
    }
#endif
};

}  // namespace ycbcr
