// The 8-bit terms as planes of bytes, for processors that look up 64 bytes in 128 entries at once.
//
// A plane holds the low or the high bytes of the terms. The terms of Cb and of Cr are odd about 128, so that
// 128 entries, of 1 to 128 above it, serve both sides: below it the term is negated, at 128 it is 0.
#pragma once

#include <array>

#include "decode/forms.h"
#include "frame/intrinsics.h"
#include "frame/wide.h"

namespace tintvert {

template <size_t entries>
struct Planes {
    alignas(64) std::array<uint8_t, entries> low, high;
    constexpr void set(size_t at, int term)
    {
        low[at] = static_cast<uint8_t>(term);
        high[at] = static_cast<uint8_t>(term >> 8);
    }
};

struct PlaneTables {
    Planes<256> luma;
    Planes<128> green_of_cb, blue, red, green_of_cr;
};

constexpr PlaneTables plane_tables()
{
    PlaneTables result{};
    for (int k = 0; k < 256; ++k) result.luma.set(static_cast<size_t>(k), luma_term(k));
    for (int k = 0; k < 128; ++k) {
        const auto at = static_cast<size_t>(127 - k);
        result.green_of_cb.set(at, -cb_terms(k).first);
        result.blue.set(at, -cb_terms(k).second);
        result.red.set(at, -cr_terms(k).first);
        result.green_of_cr.set(at, -cr_terms(k).second);
    }
    return result;
}

constexpr bool terms_are_odd()
{
    for (int k = 1; k < 128; ++k)
        if (cb_terms(128 + k).first != -cb_terms(128 - k).first ||
            cb_terms(128 + k).second != -cb_terms(128 - k).second ||
            cr_terms(128 + k).first != -cr_terms(128 - k).first ||
            cr_terms(128 + k).second != -cr_terms(128 - k).second)
            return false;
    return cb_terms(128).first == 0 && cb_terms(128).second == 0 && cr_terms(128).first == 0 &&
           cr_terms(128).second == 0;
}
static_assert(terms_are_odd());

inline constexpr PlaneTables plane_terms = plane_tables();

// 32 pairs. Each quarter holds eight pairs: in the low half their first lumas, or their Cb, in the high half
// their second lumas, or their Cr. So one unpacking parts the words of a plane, and the pixels come out in order.
struct Block {
    __m512i luma, chroma;
};

// The pair that stands at a place of the quarters: out of them come registers of eight pairs, two from each.
constexpr size_t pair_at(size_t quarter, size_t place) { return place / 2 * 8 + quarter * 2 + place % 2; }

struct WordPair {
    __m512i first, second;  // of the one block and the other, or of even and odd pixels
};

TNTVT_VBMI inline __m512i entries(const uint8_t* at) { return _mm512_loadu_si512(at); }

TNTVT_VBMI inline WordPair words(__m512i low, __m512i high)
{
    return {_mm512_unpacklo_epi8(low, high), _mm512_unpackhi_epi8(low, high)};
}

TNTVT_VBMI inline WordPair add(WordPair x, WordPair y)
{
    return {_mm512_add_epi16(x.first, y.first), _mm512_add_epi16(x.second, y.second)};
}

TNTVT_VBMI inline __m512i look_up(const uint8_t* plane, __m512i at)
{
    const __m512i below = _mm512_permutex2var_epi8(entries(plane), at, entries(plane + 64));
    const __m512i above = _mm512_permutex2var_epi8(entries(plane + 128), at, entries(plane + 192));
    return _mm512_mask_blend_epi8(_mm512_movepi8_mask(at), below, above);
}

TNTVT_VBMI inline WordPair luma_words(__m512i luma)
{
    return words(look_up(plane_terms.luma.low.data(), luma), look_up(plane_terms.luma.high.data(), luma));
}

// Codes of Cb or of Cr: how far from 128, and on which side.
struct Distance {
    __m512i entry;
    __mmask64 some;
    __mmask32 below_first, below_second;
};

TNTVT_VBMI inline Distance distance_from_128(__m512i codes)
{
    const __m512i x = _mm512_xor_si512(codes, _mm512_set1_epi8(-128));
    return {_mm512_add_epi8(_mm512_abs_epi8(x), _mm512_set1_epi8(-1)), _mm512_test_epi8_mask(x, x),
            _mm512_movepi16_mask(_mm512_unpacklo_epi8(x, x)), _mm512_movepi16_mask(_mm512_unpackhi_epi8(x, x))};
}

TNTVT_VBMI inline __m512i look_up(const std::array<uint8_t, 128>& plane, const Distance& at)
{
    const uint8_t* const bytes = reinterpret_cast<const uint8_t*>(&plane);
    return _mm512_maskz_permutex2var_epi8(at.some, entries(bytes), at.entry, entries(bytes + 64));
}

TNTVT_VBMI inline WordPair chroma_words(const Planes<128>& planes, const Distance& at)
{
    const WordPair w = words(look_up(planes.low, at), look_up(planes.high, at));
    const __m512i zero = _mm512_setzero_si512();
    return {_mm512_mask_sub_epi16(w.first, at.below_first, zero, w.first),
            _mm512_mask_sub_epi16(w.second, at.below_second, zero, w.second)};
}

// Shares of blue, green and red in the pairs of two blocks.
struct Chroma {
    WordPair blue, green, red;
};

TNTVT_VBMI inline Chroma chroma_of(const Block& one, const Block& other)
{
    const Distance cb = distance_from_128(_mm512_unpacklo_epi64(one.chroma, other.chroma));
    const Distance cr = distance_from_128(_mm512_unpackhi_epi64(one.chroma, other.chroma));
    return {chroma_words(plane_terms.blue, cb),
            add(chroma_words(plane_terms.green_of_cb, cb), chroma_words(plane_terms.green_of_cr, cr)),
            chroma_words(plane_terms.red, cr)};
}

}  // namespace tintvert
