// The pixels of a block, by the planes of bytes, in the order of a line.
//
// A block fills registers of eight pairs, three of them from 48 pixels of `v210`, four from 64 of `2vuy`.
#pragma once

#include "decode/planes.h"

namespace tintvert {

template <int shift>
TNTVT_VBMI inline __m512i clipped_bytes(WordPair luma, __m512i chroma)
{
    const __m512i even = _mm512_srai_epi16(_mm512_adds_epi16(luma.first, chroma), shift);
    const __m512i odd = _mm512_srai_epi16(_mm512_adds_epi16(luma.second, chroma), shift);
    return _mm512_packus_epi16(even, odd);
}

// Sixteen pixels of four bytes a register.
struct Registers {
    __m512i at[4];
};

TNTVT_VBMI inline Registers weave(__m512i byte_0, __m512i byte_1, __m512i byte_2, __m512i byte_3)
{
    const WordPair low = words(byte_0, byte_1), high = words(byte_2, byte_3);
    const __m512i even_0 = _mm512_unpacklo_epi16(low.first, high.first);
    const __m512i even_1 = _mm512_unpackhi_epi16(low.first, high.first);
    const __m512i odd_0 = _mm512_unpacklo_epi16(low.second, high.second);
    const __m512i odd_1 = _mm512_unpackhi_epi16(low.second, high.second);
    return {{_mm512_unpacklo_epi32(even_0, odd_0), _mm512_unpackhi_epi32(even_0, odd_0),
             _mm512_unpacklo_epi32(even_1, odd_1), _mm512_unpackhi_epi32(even_1, odd_1)}};
}

// B, G, R, 255.
TNTVT_VBMI inline Registers pixels_of(WordPair luma, __m512i blue, __m512i green, __m512i red)
{
    return weave(clipped_bytes<4>(luma, blue), clipped_bytes<4>(luma, green), clipped_bytes<4>(luma, red),
                 _mm512_set1_epi8(-1));
}

TNTVT_VBMI inline void store_64(uint8_t* dst, __m512i bytes) { _mm512_storeu_si512(dst, bytes); }

template <int registers>
TNTVT_VBMI inline void put_block(Rgb32, uint8_t* dst, WordPair luma, __m512i blue, __m512i green, __m512i red)
{
    const Registers pixels = pixels_of(luma, blue, green, red);
    for (int i = 0; i < registers; ++i) store_64(dst + 64 * i, pixels.at[i]);
}

// Byte n of the 64-byte piece `piece`, counted from the piece's own register.
constexpr std::array<uint8_t, 64> places_of_rgb24(int piece)
{
    std::array<uint8_t, 64> result{};
    for (int n = 0; n < 64; ++n) {
        const int byte = 64 * piece + n;
        result[static_cast<size_t>(n)] = static_cast<uint8_t>((byte / 3 - 16 * piece) * 4 + byte % 3);
    }
    return result;
}
alignas(64) inline constexpr std::array<uint8_t, 64> rgb24_places[] = {places_of_rgb24(0), places_of_rgb24(1),
                                                                       places_of_rgb24(2)};

TNTVT_VBMI inline __m512i piece_of_rgb24(const Registers& pixels, int piece)
{
    return _mm512_permutex2var_epi8(pixels.at[piece], _mm512_loadu_si512(rgb24_places + piece), pixels.at[piece + 1]);
}

template <int registers>
TNTVT_VBMI inline void put_block(Rgb24, uint8_t* dst, WordPair luma, __m512i blue, __m512i green, __m512i red)
{
    const Registers pixels = pixels_of(luma, blue, green, red);
    store_64(dst, piece_of_rgb24(pixels, 0));
    store_64(dst + 64, piece_of_rgb24(pixels, 1));
    if constexpr (registers == 4)
        store_64(dst + 128, piece_of_rgb24(pixels, 2));
    else
        _mm_storeu_si128(reinterpret_cast<__m128i*>(dst + 128), _mm512_castsi512_si128(piece_of_rgb24(pixels, 2)));
}

// Places of the words of sixteen pairs, each twice.
constexpr std::array<uint16_t, 32> places_of_rgb16(size_t piece)
{
    std::array<uint16_t, 32> result{};
    for (size_t quarter = 0; quarter < 4; ++quarter)
        for (size_t place = 4 * piece; place < 4 * piece + 4; ++place)
            for (size_t twice = 0; twice < 2; ++twice)
                result[(pair_at(quarter, place) - 16 * piece) * 2 + twice] = static_cast<uint16_t>(quarter * 8 + place);
    return result;
}
alignas(64) inline constexpr std::array<uint16_t, 32> rgb16_places[] = {places_of_rgb16(0), places_of_rgb16(1)};

// Five bits of a sum: its clipped byte without three bits.
TNTVT_VBMI inline __m512i clipped_five(__m512i luma, __m512i term)
{
    const __m512i sum = _mm512_srai_epi16(_mm512_add_epi16(luma, term), 7);
    return _mm512_min_epi16(_mm512_max_epi16(sum, _mm512_setzero_si512()), _mm512_set1_epi16(31));
}

template <int registers>
TNTVT_VBMI inline void put_block(Rgb16, uint8_t* dst, WordPair luma, __m512i blue, __m512i green, __m512i red)
{
    const __m512i low =
        _mm512_or_si512(clipped_five(luma.first, blue), _mm512_slli_epi16(clipped_five(luma.first, green), 5));
    const __m512i pairs = _mm512_or_si512(low, _mm512_slli_epi16(clipped_five(luma.first, red), 10));
    store_64(dst, _mm512_permutexvar_epi16(_mm512_loadu_si512(rgb16_places), pairs));
    const __m512i rest = _mm512_permutexvar_epi16(_mm512_loadu_si512(rgb16_places + 1), pairs);
    if constexpr (registers == 4)
        store_64(dst + 64, rest);
    else
        _mm256_storeu_si256(reinterpret_cast<__m256i*>(dst + 64), _mm512_castsi512_si256(rest));
}

// Two blocks of `Source`: their lumas, their chroma, their pixels. Returns the pairs done, two blocks a step.
template <class Form, class Source>
TNTVT_VBMI long pairs_vbmi(uint8_t* dst, const uint8_t* src, long pairs)
{
    constexpr long block_pairs = 8 * Source::registers;
    constexpr long dst_bytes = 2 * block_pairs * Form::pixel_bytes;
    long done = 0;
    for (; pairs - done >= 2 * block_pairs; done += 2 * block_pairs) {
        const Block one = Source::block(src), other = Source::block(src + Source::block_bytes);
        const Chroma chroma = chroma_of(one, other);
        put_block<Source::registers>(Form{}, dst, luma_words(one.luma), chroma.blue.first, chroma.green.first,
                                     chroma.red.first);
        put_block<Source::registers>(Form{}, dst + dst_bytes, luma_words(other.luma), chroma.blue.second,
                                     chroma.green.second, chroma.red.second);
        src += 2 * Source::block_bytes;
        dst += 2 * dst_bytes;
    }
    return done;
}

// Where the codes of a block stand in two registers of samples: `sample_place` says it of sample n.
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

TNTVT_VBMI inline Block pick(const Places& places, __m512i low, __m512i high)
{
    return {_mm512_permutex2var_epi8(low, entries(places.luma.data()), high),
            _mm512_permutex2var_epi8(low, entries(places.chroma.data()), high)};
}

}  // namespace tintvert
