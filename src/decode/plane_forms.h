// The pixels of a block, by the planes of bytes, in the order of a line.
//
// A block fills registers of eight pairs, three of them from 48 pixels of `v210`, four from 64 of `2vuy`.
#pragma once

#include "decode/planes.h"

#if defined(__x86_64__)

namespace tintvert {

template <int shift>
TNTVT_AVX512 inline __m512i clipped_bytes(WordPair luma, WordPair chroma)
{
    const __m512i first = _mm512_srai_epi16(_mm512_adds_epi16(luma.first, chroma.first), shift);
    const __m512i second = _mm512_srai_epi16(_mm512_adds_epi16(luma.second, chroma.second), shift);
    return _mm512_packus_epi16(first, second);
}

// Of even and of odd pixels, which share their chroma.
template <int shift>
TNTVT_AVX512 inline __m512i clipped_bytes(WordPair luma, __m512i chroma)
{
    return clipped_bytes<shift>(luma, WordPair{chroma, chroma});
}

// The bits of `one` where the mask has ones, those of `other` where it has zeros.
TNTVT_AVX512 inline __m512i either(__m512i mask, __m512i one, __m512i other)
{
    return _mm512_ternarylogic_epi64(mask, one, other, 0xCA);
}

// Sixteen pixels of four bytes a register.
struct Registers {
    __m512i at[4];
};

TNTVT_AVX512 inline Registers weave(__m512i byte_0, __m512i byte_1, __m512i byte_2, __m512i byte_3)
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
TNTVT_AVX512 inline Registers pixels_of(WordPair luma, __m512i blue, __m512i green, __m512i red)
{
    return weave(clipped_bytes<4>(luma, blue), clipped_bytes<4>(luma, green), clipped_bytes<4>(luma, red),
                 _mm512_set1_epi8(-1));
}

TNTVT_AVX512 inline void store_64(uint8_t* dst, __m512i bytes) { _mm512_storeu_si512(dst, bytes); }

template <int registers>
TNTVT_AVX512 inline void put_block(Rgb32, uint8_t* dst, WordPair luma, __m512i blue, __m512i green, __m512i red)
{
    const Registers pixels = pixels_of(luma, blue, green, red);
    for (int i = 0; i < registers; ++i) store_64(dst + 64 * i, pixels.at[i]);
}

// Where the bytes of the 64-byte piece `piece` of a block are: blue and green in two registers, red in a third.
struct Rgb24Piece {
    alignas(64) std::array<uint8_t, 64> blue_green, red;
    uint64_t red_bytes;
};

constexpr Rgb24Piece piece_of_rgb24(size_t piece)
{
    Rgb24Piece result{};
    for (size_t n = 0; n < 64; ++n) {
        const size_t byte = 64 * piece + n, pixel = byte / 3, channel = byte % 3;
        const auto at = static_cast<uint8_t>(place_of(pixel));
        result.blue_green[n] = static_cast<uint8_t>(at + 64 * (channel % 2));
        result.red[n] = at;
        if (channel == 2) result.red_bytes |= uint64_t{1} << n;
    }
    return result;
}
inline constexpr Rgb24Piece rgb24_pieces[] = {piece_of_rgb24(0), piece_of_rgb24(1), piece_of_rgb24(2)};

TNTVT_AVX512 inline __m512i woven(const Rgb24Piece& piece, __m512i blue, __m512i green, __m512i red)
{
    const __m512i blue_green = _mm512_permutex2var_epi8(blue, entries(piece.blue_green.data()), green);
    return _mm512_mask_permutexvar_epi8(blue_green, piece.red_bytes, entries(piece.red.data()), red);
}

template <int registers>
TNTVT_AVX512 inline void put_block(Rgb24, uint8_t* dst, WordPair luma, __m512i blue, __m512i green, __m512i red)
{
    const __m512i b = clipped_bytes<4>(luma, blue), g = clipped_bytes<4>(luma, green), r = clipped_bytes<4>(luma, red);
    store_64(dst, woven(rgb24_pieces[0], b, g, r));
    store_64(dst + 64, woven(rgb24_pieces[1], b, g, r));
    const __m512i last = woven(rgb24_pieces[2], b, g, r);
    if constexpr (registers == 4)
        store_64(dst + 128, last);
    else
        _mm_storeu_si128(reinterpret_cast<__m128i*>(dst + 128), _mm512_castsi512_si128(last));
}

template <int registers, class Form>
TNTVT_AVX512 inline void put_blocks(Form form, uint8_t* dst, const Block& one, const Block& other, const Chroma& chroma)
{
    put_block<registers>(form, dst, look_up(plane_terms.luma, one.luma), chroma.blue.first, chroma.green.first,
                         chroma.red.first);
    put_block<registers>(form, dst + 16 * registers * Form::pixel_bytes, look_up(plane_terms.luma, other.luma),
                         chroma.blue.second, chroma.green.second, chroma.red.second);
}

// Where the bytes of sixteen pairs of one word, written twice, are: low bytes in one register, high bytes in another,
// each as the pairs of the one block and of the other by turns of eight.
constexpr std::array<uint8_t, 64> places_of_rgb16(size_t registers, size_t piece)
{
    std::array<uint8_t, 64> result{};
    for (size_t n = 0; n < 64; ++n) {
        const size_t pair = 16 * piece + n / 4, block = pair / (8 * registers), first = pair % (8 * registers) * 2;
        result[n] = static_cast<uint8_t>(place_of(first) + 8 * block + 64 * (n % 2));
    }
    return result;
}
template <size_t registers>
alignas(64) inline constexpr std::array<uint8_t, 64> rgb16_places[] = {
    places_of_rgb16(registers, 0), places_of_rgb16(registers, 1), places_of_rgb16(registers, 2),
    places_of_rgb16(registers, 3)};

// The pixels of the first lumas: of blue bits 3 to 7, of green and of red the same above them.
template <int registers>
TNTVT_AVX512 inline void put_blocks(Rgb16, uint8_t* dst, const Block& one, const Block& other, const Chroma& chroma)
{
    const WordPair luma = look_up(plane_terms.luma, _mm512_unpacklo_epi64(one.luma, other.luma));
    const __m512i blue = clipped_bytes<4>(luma, chroma.blue), green = clipped_bytes<4>(luma, chroma.green);
    const __m512i red = clipped_bytes<4>(luma, chroma.red);
    const __m512i low = either(_mm512_set1_epi8(0x1F), _mm512_srli_epi16(blue, 3), _mm512_slli_epi16(green, 2));
    const __m512i high = either(_mm512_set1_epi8(0x03), _mm512_srli_epi16(green, 6), _mm512_srli_epi16(red, 1));
    const __m512i seven = _mm512_and_si512(high, _mm512_set1_epi8(0x7F));
    for (int i = 0; i < registers; ++i)
        store_64(dst + 64 * i, _mm512_permutex2var_epi8(low, entries(rgb16_places<registers>[i].data()), seven));
}

// Two blocks of `Source` a step: their lumas, their chroma, their pixels. `pairs` are whole groups of `Source`. Returns
// the pairs made, all of them or, where they fill no step, none: the last step ends with them and makes some again.
template <class Form, class Source>
TNTVT_AVX512 long pairs_avx512(uint8_t* dst, const uint8_t* src, long pairs)
{
    constexpr long block_pairs = 8 * Source::registers, step = 2 * block_pairs;
    if (pairs < step) return 0;
    for (long done = 0; done < pairs; done += step) {
        const long at = done < pairs - step ? done : pairs - step;
        const uint8_t* const from = src + at * Source::block_bytes / block_pairs;
        const Block one = Source::block(from), other = Source::block(from + Source::block_bytes);
        put_blocks<Source::registers>(Form{}, dst + 2 * at * Form::pixel_bytes, one, other, chroma_of(one, other));
    }
    return pairs;
}

}  // namespace tintvert

#endif
