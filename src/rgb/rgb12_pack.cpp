// 16-bit words to packed 12-bit RGB, by a bit writer, and to the one byte that tntvt_rgb48_12_rgba32 writes.
// Lines are walked in rounds of eight samples; the last round is a whole one.
#include <tintvert/rgb.h>

#include <algorithm>
#include <cstdlib>

#include "frame/bit_cursor.h"
#include "frame/memory.h"
#include "frame/number.h"
#include "rgb/rgb12_pack_simd.h"
#include "rgb/rounds.h"

using namespace tintvert;

namespace {

long lines_walked(long width, long height) { return width < 1 ? 0 : magnitude(height); }

// QUIRK (keeps_bits_behind_the_limit): the bound is tested for every bit. A line never passes its
// stride, and the bits that a line does not reach keep what they held.
// QUIRK (keeps_two_bit_orders): samples go out highest bit first, where the unpackers fill words from
// bit 0; packing does not undo unpacking.
template <int shift>
void write_samples(BitCursor* bits, const uint8_t* src, long samples)
{
    for (long n = 0; n < samples; ++n, src += 2) {
        const uint32_t sample = static_cast<uint32_t>(load<uint16_t>(src)) >> shift;
        for (int b = 11; b >= 0; --b) write_bit(bits, sample >> b);
    }
}

// Rounds that end below the limit fill whole bytes.
template <int shift>
void pack(void* dst, long dst_stride, void* src, long src_stride, long width, long height)
{
    const InstructionSet level = instruction_set();
    BitCursor* bits = obtain_bit_cursor();
    const long rounds = rounds_of_samples(width), whole = std::clamp(dst_stride / 12, 0L, rounds);
    for (long line = 0; line < lines_walked(width, height); ++line) {
        uint8_t* to = advance(bytes(dst), line_offset(line, dst_stride));
        const uint8_t* from = advance(bytes(src), line_offset(line, src_stride));
        restart(bits, to, advance(to, dst_stride));
        const long made = run_simd<PackRounds<shift>>(level, {{to, whole * 12}}, {{from, whole * 16}}, to, from, whole);
        bits->cursor += made * 12;
        write_samples<shift>(bits, from + made * 16, (rounds - made) * 8);
    }
    std::free(bits);
}

// The samples of a line but the last, which replaces the byte that they would store. They are not needed, but memory
// that cannot be read faults: a sample of each page of 4096 bytes is read.
struct TouchSamples {
    static long sse2(const uint8_t* src, long samples)
    {
        for (long n = 0; n < samples; n += 2048) static_cast<void>(*static_cast<const volatile uint8_t*>(src + 2 * n));
        return samples - 1;
    }
};

}  // namespace

void tntvt_rgb48_12_rgb12(void* dst, long dstStride, void* src, long srcStride, long width, long height)
{
    pack<0>(dst, dstStride, src, srcStride, width, height);
}

void tntvt_rgb48_rgb12(void* dst, long dstStride, void* src, long srcStride, long width, long height)
{
    pack<4>(dst, dstStride, src, srcStride, width, height);
}

// QUIRK (keeps_one_byte_a_line): the destination does not advance. Every sample of a line lands in the
// line's first byte, where the last one stays; `volatile` keeps the stores before it.
void tntvt_rgb48_12_rgba32(void* dst, long dstStride, void* src, long srcStride, long width, long height)
{
    const InstructionSet level = instruction_set();
    const long samples = rounds_of_samples(width) * 8;
    for (long line = 0; line < lines_walked(width, height); ++line) {
        uint8_t* to = advance(bytes(dst), line_offset(line, dstStride));
        const uint8_t* from = advance(bytes(src), line_offset(line, srcStride));
        long n = run_simd<TouchSamples>(level, {{to, 1}}, {{from, 2 * samples}}, from, samples);
        for (; n < samples; ++n)
            *static_cast<volatile uint8_t*>(to) = static_cast<uint8_t>(load<uint16_t>(from + 2 * n) >> 4);
    }
}
