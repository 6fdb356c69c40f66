// The terms of the table decoders as lanes of pixels: two pixels a 128-bit register, by lookups, adds and shifts.
//
// An entry is in the order of the pixel that it goes into. Alpha is a term of Cb: shifted, it is 255.
#pragma once

#include <array>
#include <cstdint>

#include "decode/tables.h"
#include "simd/vec.h"

namespace tintvert {

struct alignas(8) Lanes {
    int16_t blue, green, red, alpha;
};

template <size_t codes, int shift_>
struct LaneTables {
    static constexpr int shift = shift_;
    std::array<Lanes, codes> luma, cb, cr;
};

#if defined(__x86_64__)

inline __m128i lanes(const Lanes& entry) { return _mm_loadl_epi64(reinterpret_cast<const __m128i*>(&entry)); }

inline __m128i lanes(const Lanes& low, const Lanes& high)
{
    return _mm_castpd_si128(_mm_loadh_pd(_mm_castsi128_pd(lanes(low)), reinterpret_cast<const double*>(&high)));
}

// The largest blue sum of 10-bit terms is 34358. It saturates at 32767, which still clips to 255.
template <int shift>
inline __m128i shifted_sum(__m128i luma, __m128i chroma)
{
    return _mm_srai_epi16(_mm_adds_epi16(luma, chroma), shift);
}

// Both pixels of a pair.
template <class Tables>
inline __m128i pair_of_pixels(const Tables& tables, const Codes& pair)
{
    const __m128i chroma = _mm_add_epi16(lanes(tables.cb[pair.cb]), lanes(tables.cr[pair.cr]));
    return shifted_sum<Tables::shift>(lanes(tables.luma[pair.y0], tables.luma[pair.y1]),
                                      _mm_unpacklo_epi64(chroma, chroma));
}

// The first pixels of two pairs.
template <class Tables>
inline __m128i first_pixels(const Tables& tables, const Codes& one, const Codes& other)
{
    const __m128i chroma =
        _mm_add_epi16(lanes(tables.cb[one.cb], tables.cb[other.cb]), lanes(tables.cr[one.cr], tables.cr[other.cr]));
    return shifted_sum<Tables::shift>(lanes(tables.luma[one.y0], tables.luma[other.y0]), chroma);
}

#endif

}  // namespace tintvert
