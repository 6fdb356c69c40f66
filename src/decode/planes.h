// The 8-bit terms as planes of bytes, for processors that look up 64 bytes in 128 entries at once.
//
// A plane holds the low or the high bytes of the terms of all 256 codes.
#pragma once

#include <array>

#include "decode/block.h"
#include "decode/forms.h"

namespace tintvert {

struct Planes {
    alignas(64) std::array<uint8_t, 256> low, high;
    constexpr void set(int code, int term)
    {
        low[static_cast<size_t>(code)] = static_cast<uint8_t>(term);
        high[static_cast<size_t>(code)] = static_cast<uint8_t>(term >> 8);
    }
};

struct PlaneTables {
    Planes luma, green_of_cb, blue, red, green_of_cr;
};

constexpr PlaneTables plane_tables()
{
    PlaneTables result{};
    for (int k = 0; k < 256; ++k) {
        result.luma.set(k, luma_term(k));
        result.green_of_cb.set(k, cb_terms(k).first);
        result.blue.set(k, cb_terms(k).second);
        result.red.set(k, cr_terms(k).first);
        result.green_of_cr.set(k, cr_terms(k).second);
    }
    return result;
}
inline constexpr PlaneTables plane_terms = plane_tables();

#if defined(__x86_64__)

struct WordPair {
    __m512i first, second;  // of the one block and the other, or of even and odd pixels
};

TNTVT_AVX512 inline WordPair words(__m512i low, __m512i high)
{
    return {_mm512_unpacklo_epi8(low, high), _mm512_unpackhi_epi8(low, high)};
}

TNTVT_AVX512 inline WordPair add(WordPair x, WordPair y)
{
    return {_mm512_add_epi16(x.first, y.first), _mm512_add_epi16(x.second, y.second)};
}

TNTVT_AVX512 inline __m512i look_up(const uint8_t* plane, __m512i codes)
{
    const __m512i below = _mm512_permutex2var_epi8(entries(plane), codes, entries(plane + 64));
    const __m512i above = _mm512_permutex2var_epi8(entries(plane + 128), codes, entries(plane + 192));
    return _mm512_mask_blend_epi8(_mm512_movepi8_mask(codes), below, above);
}

TNTVT_AVX512 inline WordPair look_up(const Planes& planes, __m512i codes)
{
    return words(look_up(planes.low.data(), codes), look_up(planes.high.data(), codes));
}

// Shares of blue, green and red in the pairs of two blocks.
struct Chroma {
    WordPair blue, green, red;
};

TNTVT_AVX512 inline Chroma chroma_of(const Block& one, const Block& other)
{
    const __m512i cb = _mm512_unpacklo_epi64(one.chroma, other.chroma);
    const __m512i cr = _mm512_unpackhi_epi64(one.chroma, other.chroma);
    return {look_up(plane_terms.blue, cb),
            add(look_up(plane_terms.green_of_cb, cb), look_up(plane_terms.green_of_cr, cr)),
            look_up(plane_terms.red, cr)};
}

#endif

}  // namespace tintvert
