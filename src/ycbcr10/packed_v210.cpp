// Packed 10-bit 4:2:2, a frame of pgroups, to `v210`.
//
// The twelve samples of three pgroups are in the stream in the order in which they are in a `v210` group, there from
// the highest bit down, here from the lowest bit up.
#include <tintvert/ycbcr10.h>

#include <algorithm>
#include <cstdlib>

#include "ycbcr10/packed_v210_simd.h"
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

// Two 64-bit words side by side, as every processor of the architecture has them.
typedef uint64_t Pair __attribute__((vector_size(16)));

// Three pgroups by two 64-bit words with six samples each, from bit 63 down. These are moved apart into three and
// three, from bits 29 and 61 down; in a `v210` word the first is lowest, so the outer ones change places.
void group_by_words(uint8_t* dst, const uint8_t* src)
{
    constexpr uint64_t low = 0x000003FF'000003FF;
    const uint64_t one = byte_reverse(load<uint64_t>(src)), other = byte_reverse(load<uint64_t>(src + 7));
    const Pair samples = {one >> 4 << 4, other << 4};
    const Pair words = samples >> 34 | samples << 28;
    store(dst, (words >> 20 & low) | (words & low << 10) | (words & low) << 20);
}

void whole_groups(uint8_t* dst, const uint8_t* src, long groups, InstructionSet level)
{
    long done = run_simd<UnpackGroups>(level, {{dst, groups * 16}}, {{src, groups * 15}}, dst, src, groups);
    for (; done < groups; ++done) group_by_words(dst + done * 16, src + done * 15);
}

// Pgroups that lie wholly in the line are read at once; what is left is read bit by bit, and bits past the
// line's end are 0.
// QUIRK (keeps_pair_past_odd_width): an odd `width` takes a pair for which the line has no room.
void unpack_line(BitCursor* bits, uint8_t* dst, long width, InstructionSet level)
{
    const uint8_t* src = bits->cursor;
    const long pairs = (width + 1) / 2, whole = std::min(pairs, (bits->limit - bits->cursor) / 5);
    long pair = 0;
    if (disjoint(dst, (pairs + 2) / 3 * 16, src, whole * 5)) {
        whole_groups(dst, src, whole / 3, level);
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
    const InstructionSet level = instruction_set();
    BitCursor* bits = obtain_bit_cursor();
    restart(bits, src, src + src_line * height);
    for (uint32_t y = 0; y < height; ++y) {
        uint8_t* const line = src + y * src_line;
        restart(bits, line, line + src_line);
        unpack_line(bits, dst + y * dst_line, width, level);
    }
    std::free(bits);
    return 0;
}
