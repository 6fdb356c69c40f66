// Blocks of up to 32 pairs of pixels, for steps of 64 bytes: one register of luma codes and one of chroma codes.
//
// Unpacking and packing move bytes inside the quarters of a register only. So the pairs are dealt out to the quarters
// beforehand, in such an order that unpacked registers come out with the pixels in the order of the line:
//
//                    quarter 0        quarter 1          quarter 2          quarter 3
//   bytes 0 to 7     0 1 8 9 16 ..    2 3 10 11 18 ..    4 5 12 13 20 ..    6 7 14 15 22 ..    Y0, or Cb, of these
//   pairs bytes 8 to 15    0 1 8 9 16 ..    2 3 10 11 18 ..    4 5 12 13 20 ..    6 7 14 15 22 ..    Y1, or Cr
//
//   register 0       0 1              2 3                4 5                6 7                pixels of these pairs
//   register 1       8 9              10 11              12 13              14 15
//   register 2       16 17            18 19              20 21              22 23
//   register 3       24 25            26 27              28 29              30 31
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "simd/vec.h"

namespace tintvert {

// The pair at one of the eight places of a quarter.
constexpr size_t pair_at(size_t quarter, size_t place) { return place / 2 * 8 + quarter * 2 + place % 2; }

// The byte of a register in which the luma of pixel `pixel` is.
constexpr size_t place_of(size_t pixel)
{
    const size_t pair = pixel / 2;
    return pair % 8 / 2 * 16 + pixel % 2 * 8 + pair / 8 * 2 + pair % 2;
}

static_assert(pair_at(0, 2) == 8 && pair_at(1, 0) == 2 && pair_at(3, 7) == 31);
static_assert(place_of(0) == 0 && place_of(1) == 8 && place_of(4) == 16 && place_of(16) == 2 && place_of(63) == 63);

// Where the codes of a block are in two registers of samples: `sample_place` says it of sample n.
struct Places {
    alignas(64) std::array<uint8_t, 64> luma, chroma;
};

template <class Source>
constexpr Places places_in()
{
    Places result{};
    for (size_t quarter = 0; quarter < 4; ++quarter)
        for (size_t place = 0; place < 8; ++place) {
            const size_t at = quarter * 16 + place, sample = pair_at(quarter, place) * 4;
            result.chroma[at] = Source::sample_place(sample);
            result.luma[at] = Source::sample_place(sample + 1);
            result.chroma[at + 8] = Source::sample_place(sample + 2);
            result.luma[at + 8] = Source::sample_place(sample + 3);
        }
    return result;
}

#if defined(__x86_64__)

struct Block {
    __m512i luma, chroma;
};

TNTVT_AVX512 inline __m512i entries(const uint8_t* at) { return _mm512_loadu_si512(at); }

TNTVT_AVX512 inline Block pick(const Places& places, __m512i low, __m512i high)
{
    return {_mm512_permutex2var_epi8(low, entries(places.luma.data()), high),
            _mm512_permutex2var_epi8(low, entries(places.chroma.data()), high)};
}

#endif

}  // namespace tintvert
