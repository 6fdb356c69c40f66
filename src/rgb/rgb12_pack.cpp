// 16-bit words to packed 12-bit RGB, a bit at a time, and to the one byte that tntvt_rgb48_12_rgba32 writes.
// Lines are walked in rounds of eight samples; the last round is a whole one.
#include <tintvert/rgb.h>

#include <cstdlib>

#include "frame/bit_cursor.h"
#include "frame/memory.h"
#include "frame/number.h"
#include "rgb/rounds.h"

using namespace tintvert;

namespace {

long samples_walked(long width) { return rounds_of_samples(width) * 8; }

long lines_walked(long width, long height) { return width < 1 ? 0 : magnitude(height); }

struct Low12 {
    static uint32_t sample(uint16_t word) { return word; }
};

struct High12 {
    static uint32_t sample(uint16_t word) { return word >> 4; }
};

// QUIRK (keeps_bits_behind_the_limit): the bound is tested for every bit. A line never passes its
// stride, and the bits that a line does not reach keep what they held.
// QUIRK (keeps_two_bit_orders): samples go out highest bit first, where the unpackers fill words from
// bit 0; packing does not undo unpacking.
template <class Form>
void pack_line(BitCursor* bits, uint8_t* dst, long dst_stride, const uint8_t* src, long samples)
{
    restart(bits, dst, advance(dst, dst_stride));
    for (long n = 0; n < samples; ++n, src += 2) {
        const uint32_t sample = Form::sample(load<uint16_t>(src));
        for (int b = 11; b >= 0; --b) write_bit(bits, sample >> b);
    }
}

template <class Form>
void pack(void* dst, long dst_stride, void* src, long src_stride, long width, long height)
{
    BitCursor* bits = obtain_bit_cursor();
    const long samples = samples_walked(width);
    for (long line = 0; line < lines_walked(width, height); ++line)
        pack_line<Form>(bits, advance(bytes(dst), line_offset(line, dst_stride)), dst_stride,
                        advance(bytes(src), line_offset(line, src_stride)), samples);
    std::free(bits);
}

}  // namespace

void tntvt_rgb48_12_rgb12(void* dst, long dstStride, void* src, long srcStride, long width, long height)
{
    pack<Low12>(dst, dstStride, src, srcStride, width, height);
}

void tntvt_rgb48_rgb12(void* dst, long dstStride, void* src, long srcStride, long width, long height)
{
    pack<High12>(dst, dstStride, src, srcStride, width, height);
}

// QUIRK (keeps_one_byte_a_line): the destination does not advance. Every sample of a line lands in the
// line's first byte, where the last one stays; `volatile` keeps the stores before it.
void tntvt_rgb48_12_rgba32(void* dst, long dstStride, void* src, long srcStride, long width, long height)
{
    const long samples = samples_walked(width);
    for (long line = 0; line < lines_walked(width, height); ++line) {
        volatile uint8_t* to = advance(bytes(dst), line_offset(line, dstStride));
        const uint8_t* from = advance(bytes(src), line_offset(line, srcStride));
        for (long n = 0; n < samples; ++n) *to = static_cast<uint8_t>(load<uint16_t>(from + 2 * n) >> 4);
    }
}
