// `v210` to 32-bit RGB by tables of its own, all ten bits kept up to the final clip.
#include <tintvert/decode.h>

#include <algorithm>
#include <numeric>

#include "decode/lanes.h"
#include "decode/plane_forms.h"
#include "decode/v210_rows.h"
#include "decode/v210_tables.h"
#include "frame/first_use.h"
#include "frame/memory.h"
#include "frame/number.h"
#include "simd/simd.h"
#include "ycbcr10/v210.h"

using namespace tintvert;

namespace {

v210FourWords split(const uint8_t* group)
{
    const auto at = [=](uint32_t n) { return static_cast<uint16_t>(v210_sample(group, n)); };
    return {at(0), at(1), at(2), at(3), at(4), at(5), at(6), at(7), at(8), at(9), at(10), at(11)};
}

// Two pixels of B, G, R, 255 or of 255, R, G, B, the same word byte-reversed.
void put_pair(uint8_t* dst, uint16_t cb, uint16_t y0, uint16_t cr, uint16_t y1, bool bgra)
{
    const V210Terms b = v210_BEtab[cb], d = v210_DCtab[cr];
    const auto pixel = [=](uint16_t y) {
        const int32_t a = v210_Atab[y];
        const uint32_t red = v210_clip(a + d.first);
        const uint32_t green = v210_clip(a + b.first + d.second);
        const uint32_t blue = v210_clip(a + b.second);
        return blue | green << 8 | red << 16 | 0xFF000000u;
    };
    const uint32_t first = pixel(y0), second = pixel(y1);
    store(dst, bgra ? first : byte_reverse(first));
    store(dst + 4, bgra ? second : byte_reverse(second));
}

void convert_group(uint8_t* dst, const uint8_t* src, bool bgra)
{
    const v210FourWords s = split(src);
    put_pair(dst, s.Cb0, s.Y0, s.Cr0, s.Y1, bgra);
    put_pair(dst + 8, s.Cb2, s.Y2, s.Cr2, s.Y3, bgra);
    put_pair(dst + 16, s.Cb4, s.Y4, s.Cr4, s.Y5, bgra);
}

constexpr LaneTables<1024, 6> lane_tables_10()
{
    LaneTables<1024, 6> result{};
    for (int code = 0; code < 1024; ++code) {
        const auto at = static_cast<size_t>(code);
        const int16_t luma = v210_luma_term(code);
        const V210Terms b = v210_cb_terms(code), d = v210_cr_terms(code);
        result.luma[at] = {luma, luma, luma, 0};
        result.cb[at] = {b.second, b.first, 0, 255 << 6};
        result.cr[at] = {0, d.second, d.first, 0};
    }
    return result;
}
constexpr LaneTables<1024, 6> lane_terms_10 = lane_tables_10();

// Where sample `first` of 24 pairs is in two registers, as words of the two bytes that it spans, and how far
// up in its word.
struct SamplePlaces {
    alignas(64) std::array<uint8_t, 64> bytes;
    alignas(64) std::array<uint16_t, 32> row_shift, place_shift;
};

constexpr SamplePlaces sample_places(size_t first)
{
    SamplePlaces result{};
    for (size_t quarter = 0; quarter < 4; ++quarter)
        for (size_t place = 0; place < 8; ++place) {
            const size_t sample = pair_at(quarter, place) * 4 + first, at = quarter * 8 + place;
            const auto byte = static_cast<uint8_t>(sample / 3 * 4 + sample % 3);
            result.bytes[2 * at] = byte;
            result.bytes[2 * at + 1] = static_cast<uint8_t>(byte + 1);
            result.place_shift[at] = static_cast<uint16_t>(sample % 3 * 2);
            result.row_shift[at] = static_cast<uint16_t>(sample % 3 * 2 + 5);
        }
    return result;
}
constexpr SamplePlaces places_of_samples[] = {sample_places(0), sample_places(1), sample_places(2), sample_places(3)};

#if defined(__x86_64__)

template <bool bgra>
__m128i ordered_pair(const uint8_t* group, uint32_t n)
{
    const Codes codes = {v210_sample(group, n), v210_sample(group, n + 1), v210_sample(group, n + 2),
                         v210_sample(group, n + 3)};
    const __m128i pair = pair_of_pixels(lane_terms_10, codes);
    return bgra ? pair : _mm_shufflehi_epi16(_mm_shufflelo_epi16(pair, 0b00011011), 0b00011011);
}

template <bool bgra>
void put_four_pixels(uint8_t* dst, const uint8_t* one, uint32_t n, const uint8_t* other, uint32_t m)
{
    const __m128i pixels = _mm_packus_epi16(ordered_pair<bgra>(one, n), ordered_pair<bgra>(other, m));
    _mm_storeu_si128(reinterpret_cast<__m128i*>(dst), pixels);
}

TNTVT_AVX512 inline Rows rows(const SamplePlaces& places, __m512i low, __m512i high)
{
    const __m512i spans = _mm512_permutex2var_epi8(low, _mm512_loadu_si512(&places.bytes), high);
    return {_mm512_srlv_epi16(spans, _mm512_loadu_si512(&places.row_shift)),
            _mm512_srlv_epi16(spans, _mm512_loadu_si512(&places.place_shift))};
}

#endif

template <bool bgra>
struct ConvertGroups {
#if defined(__x86_64__)
    // Two groups a step.
    static long sse2(uint8_t* dst, const uint8_t* src, long groups)
    {
        long done = 0;
        for (; groups - done >= 2; done += 2, src += 2 * v210_group_bytes, dst += 48) {
            const uint8_t* const next = src + v210_group_bytes;
            put_four_pixels<bgra>(dst, src, 0, src, 4);
            put_four_pixels<bgra>(dst + 16, src, 8, next, 0);
            put_four_pixels<bgra>(dst + 32, next, 4, next, 8);
        }
        return done;
    }

    // Eight groups a step.
    TNTVT_AVX512 static long eights_avx512(uint8_t* dst, const uint8_t* src, long groups)
    {
        long done = 0;
        for (; groups - done >= 8; done += 8, src += 128, dst += 192) {
            const __m512i low = _mm512_loadu_si512(src), high = _mm512_loadu_si512(src + 64);
            const Rows cb = rows(places_of_samples[0], low, high), cr = rows(places_of_samples[2], low, high);
            const WordPair luma = {terms(row_terms.luma, rows(places_of_samples[1], low, high)),
                                   terms(row_terms.luma, rows(places_of_samples[3], low, high))};
            const __m512i taken = _mm512_add_epi16(terms(row_terms.green_of_cb, cb), terms(row_terms.green_of_cr, cr));
            const __m512i blue = clipped_bytes<6>(luma, terms(row_terms.blue, cb));
            const __m512i green = clipped_bytes<6>(luma, _mm512_sub_epi16(_mm512_setzero_si512(), taken));
            const __m512i red = clipped_bytes<6>(luma, terms(row_terms.red, cr));
            const __m512i alpha = _mm512_set1_epi8(-1);
            const Registers pixels = bgra ? weave(blue, green, red, alpha) : weave(alpha, red, green, blue);
            for (int i = 0; i < 3; ++i) store_64(dst + 64 * i, pixels.at[i]);
        }
        return done;
    }

    static long avx512(uint8_t* dst, const uint8_t* src, long groups)
    {
        const long done = eights_avx512(dst, src, groups);
        return done + sse2(dst + done * 24, src + done * v210_group_bytes, groups - done);
    }
#endif
};

template <bool bgra>
void convert_groups(uint8_t* dst, const uint8_t* src, long groups, InstructionSet level)
{
    long done = run_simd<ConvertGroups<bgra>>(level, {{dst, groups * 24}}, {{src, groups * v210_group_bytes}}, dst, src,
                                              groups);
    for (; done < groups; ++done) convert_group(dst + done * 24, src + done * v210_group_bytes, bgra);
}

TNTVT_FIRST_USE void need_v210_tables()
{
    if (_v210_to_rgb_initted == 0) init_v210_to_rgb();
}

}  // namespace

unsigned int* _v210_get_next_4words(unsigned int* src, v210FourWords* out)
{
    store(out, split(bytes(src)));
    return advance(src, v210_group_bytes);
}

// QUIRK (keeps_stride_at_common_multiples): groups and pixels run on across line ends. `dstStride` is
// looked at only where a line begins with a group: at a `width` of 1280 that is every third line.
// QUIRK (keeps_whole_last_group): all six pixels of the last group are written.
void _v210_to_rgb(void* src, void* dst, int width, int height, int dstStride, int bgraOrder)
{
    need_v210_tables();
    const InstructionSet level = instruction_set();
    const auto convert = bgraOrder != 0 ? convert_groups<true> : convert_groups<false>;
    const long total = wrapping_product(height, width), common = std::lcm(long{width}, v210_group_pixels);
    const uint8_t* group = bytes(src);
    for (long i = 0; i < total; i += common) {
        const long groups = (std::min(common, total - i) + v210_group_pixels - 1) / v210_group_pixels;
        convert(advance(bytes(dst), wrapping_product(i / width, dstStride)), group, groups, level);
        group += groups * v210_group_bytes;
    }
}
