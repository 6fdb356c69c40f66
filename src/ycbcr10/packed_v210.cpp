// Packed 10-bit 4:2:2, a frame of pgroups, to `v210`.
//
// The twelve samples of three pgroups stand in the stream in the order in which they stand in a `v210`
// group, there from the highest bit down, here from the lowest bit up.
#include <tintvert/ycbcr10.h>

#include <immintrin.h>

#include <algorithm>
#include <cstdlib>

#include "frame/wide.h"
#include "ycbcr10/pgroup.h"
#include "ycbcr10/v210.h"

using namespace tintvert;

namespace {

// A pgroup that lies wholly in its line, at once.
Pgroup load_pgroup(const uint8_t* p)
{
    const uint64_t stream =
        uint64_t{p[0]} << 32 | uint64_t{p[1]} << 24 | uint64_t{p[2]} << 16 | uint64_t{p[3]} << 8 | p[4];
    const auto sample = [&](int shift) { return static_cast<uint32_t>(stream >> shift & 0x3FF); };
    return {sample(30), sample(20), sample(10), sample(0)};
}

// Three pgroups by two 64-bit words: samples 0 to 5 from bit 63 of the first, 6 to 11 from bit 59 of the second.
void group_by_words(uint8_t* dst, const uint8_t* src)
{
    const uint64_t one = byte_reverse(load<uint64_t>(src)), other = byte_reverse(load<uint64_t>(src + 7));
    const auto word = [](uint64_t stream, int low) {
        return static_cast<uint32_t>((stream >> low & 0x3FF) | (stream >> (low - 10) & 0x3FF) << 10 |
                                     (stream >> (low - 20) & 0x3FF) << 20);
    };
    store(dst, word(one, 54));
    store(dst + 4, word(one, 24));
    store(dst + 8, word(other, 50));
    store(dst + 12, word(other, 20));
}

TNTVT_AVX2 inline __m128i load_half(const uint8_t* at) { return _mm_loadu_si128(reinterpret_cast<const __m128i*>(at)); }

// Two groups, one in each half. A sample spans two bytes and begins at bit 0, 2, 4 or 6 of the first; a
// product with 1, 4, 16 or 64 moves it to the top of 16 bits, a shift to its place in the word.
TNTVT_AVX2 inline void step_avx2(uint8_t* dst, const uint8_t* src)
{
    const __m256i stream = _mm256_inserti128_si256(_mm256_castsi128_si256(load_half(src)), load_half(src + 15), 1);
    // Samples 3k and 3k + 1 of word k, and sample 3k + 2 in the low half of its word.
    const __m256i low_places =
        _mm256_broadcastsi128_si256(_mm_setr_epi8(1, 0, 2, 1, 4, 3, 6, 5, 8, 7, 9, 8, 12, 11, 13, 12));
    const __m256i low_factors = _mm256_broadcastsi128_si256(_mm_setr_epi16(1, 4, 64, 1, 16, 64, 4, 16));
    const __m256i top_places =
        _mm256_broadcastsi128_si256(_mm_setr_epi8(3, 2, -1, -1, 7, 6, -1, -1, 11, 10, -1, -1, 14, 13, -1, -1));
    const __m256i top_shifts = _mm256_broadcastsi128_si256(_mm_setr_epi32(18, 16, 14, 20));
    const __m256i low = _mm256_srli_epi16(_mm256_mullo_epi16(_mm256_shuffle_epi8(stream, low_places), low_factors), 6);
    const __m256i top = _mm256_sllv_epi32(_mm256_shuffle_epi8(stream, top_places), top_shifts);
    const __m256i joined = _mm256_madd_epi16(low, _mm256_set1_epi32(1024 << 16 | 1));
    const __m256i raised = _mm256_and_si256(top, _mm256_set1_epi32(0x3FF00000));
    _mm256_storeu_si256(reinterpret_cast<__m256i*>(dst), _mm256_or_si256(joined, raised));
}

// The second half reads a byte beyond its 15, so the last step leaves a group behind it.
TNTVT_AVX2 long groups_avx2(uint8_t* dst, const uint8_t* src, long groups)
{
    long done = 0;
    for (; groups - done > 2; done += 2) step_avx2(dst + done * 16, src + done * 15);
    return done;
}

void whole_groups(uint8_t* dst, const uint8_t* src, long groups)
{
    long done = tier() >= Tier::avx2 ? groups_avx2(dst, src, groups) : 0;
    for (; done < groups; ++done) group_by_words(dst + done * 16, src + done * 15);
}

// Pgroups that lie wholly in the line are read at once; what is left is read bit by bit, and bits past the
// line's end are 0.
// DELIBERATE (keeps_pair_past_odd_width): an odd `width` takes a pair for which the line has no room.
void unpack_line(BitCursor* bits, uint8_t* dst, long width)
{
    const uint8_t* src = bits->cursor;
    const long pairs = (width + 1) / 2, whole = std::min(pairs, (bits->limit - bits->cursor) / 5);
    long pair = 0;
    if (disjoint(dst, (pairs + 2) / 3 * 16, src, whole * 5)) {
        whole_groups(dst, src, whole / 3);
        pair = whole / 3 * 3;
    }
    for (; pair < whole; ++pair) store_pgroup(dst + pair / 3 * 16, pair % 3, load_pgroup(src + pair * 5));
    bits->cursor += whole * 5;
    for (; pair < pairs; ++pair) store_pgroup(dst + pair / 3 * 16, pair % 3, read_pgroup(bits));
}

}  // namespace

int tntvt_YCbCr10Packed_to_v210(unsigned char* dst, unsigned char* src, unsigned int width, unsigned int height)
{
    const uint32_t dst_line = v210_line_of_48(width), src_line = width * 20 >> 3;
    BitCursor* bits = obtain_bit_cursor();
    restart(bits, src, src + src_line * height);
    for (uint32_t y = 0; y < height; ++y) {
        uint8_t* const line = src + y * src_line;
        restart(bits, line, line + src_line);
        unpack_line(bits, dst + y * dst_line, width);
    }
    std::free(bits);
    return 0;
}
