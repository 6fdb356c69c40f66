// Frames through the two 8-bit tables. A line is as long as the shorter of its two pitches.
#include <tintvert/hdr.h>

#include <algorithm>

#include "frame/byte_lookup.h"
#include "frame/memory.h"
#include "hdr/st2084_tables.h"
#include "hdr/v210_lookup_simd.h"

using namespace tintvert;

namespace {

struct Frame {
    uint8_t* dst;
    uint8_t* src;
    uint32_t dst_stride, src_stride;
    int32_t height;

    uint32_t line_bytes() const { return std::min(dst_stride, src_stride); }
};

// Line offsets are 32-bit products.
template <class Line>
int for_each_line(const Frame& frame, uint32_t least_bytes, Line line)
{
    if (frame.height == 0 || frame.line_bytes() < least_bytes) return 0;
    for (uint32_t y = 0; y < static_cast<uint32_t>(frame.height); ++y)
        line(frame.dst + y * frame.dst_stride, frame.src + y * frame.src_stride, frame.line_bytes());
    return 0;
}

uint8_t mapped(const uint32_t* table, uint8_t code) { return static_cast<uint8_t>(table[code]); }

// A table as bytes, for the SIMD versions, as its entries are when the call begins.
struct Bytes {
    uint8_t of[256];

    explicit Bytes(const uint32_t* table)
    {
        for (int code = 0; code < 256; ++code) of[code] = mapped(table, static_cast<uint8_t>(code));
    }
};

int map_bytes(const Frame& frame, const uint32_t* table)
{
    const InstructionSet level = instruction_set();
    const Bytes bytes(table);
    return for_each_line(frame, 1, [&](uint8_t* dst, const uint8_t* src, uint32_t count) {
        long i = map_pairs_simd(level, dst, src, count, {bytes.of, bytes.of});
        for (; i < count; ++i) dst[i] = mapped(table, src[i]);
    });
}

// A word one byte past a `v210` word holds that word's bits 8 to 31 and eight bits of the next.
// QUIRK (keeps_unmasked_entries): an entry is shifted whole, so one above 1023 spills into the bits
// above its field.
// QUIRK (keeps_10_bit_index_into_8_bit_table): an index above 255 reads on into the tables after it.
uint32_t even_word(const uint32_t* table, uint32_t w) { return (w & 0x3FF003FF) | table[w >> 12 & 0x3FF] << 12; }

uint32_t odd_word(const uint32_t* table, uint32_t w)
{
    return (w & 0xFFC00) | table[w >> 22] << 22 | table[w >> 2 & 0x3FF] << 2;
}

// QUIRK (keeps_words_one_byte_on): every word is read and written one byte past its place.
int map_v210(const Frame& frame, const uint32_t* table)
{
    EntryPlanes planes;
    const InstructionSet level = instruction_set();
    const bool fit = run_simd<TakeEntries>(level, {{planes.low, sizeof planes}}, {}, planes, table) > 0;
    return for_each_line(frame, 1, [&](uint8_t* dst, const uint8_t* src, uint32_t count) {
        ++dst;
        ++src;
        const long bytes = (long{count} + 15) / 16 * 16;
        long o = fit ? run_simd<MapV210>(level, {{dst, bytes}}, {{src, bytes}}, dst, src, bytes, planes) : 0;
        for (; o < bytes; o += 16) {
            store(dst + o, even_word(table, load<uint32_t>(src + o)));
            store(dst + o + 4, odd_word(table, load<uint32_t>(src + o + 4)));
            store(dst + o + 8, even_word(table, load<uint32_t>(src + o + 8)));
            store(dst + o + 12, odd_word(table, load<uint32_t>(src + o + 12)));
        }
    });
}

}  // namespace

int tntvt_rgb_to_st2084(unsigned char* dst, unsigned char* src, unsigned int dstStride, unsigned int srcStride,
                        int height)
{
    return map_bytes({dst, src, dstStride, srcStride, height}, ardwRGB_to_SMPTE2048_8Bit);
}

int tntvt_st2084_to_rgb(unsigned char* dst, unsigned char* src, unsigned int dstStride, unsigned int srcStride,
                        int height)
{
    return map_bytes({dst, src, dstStride, srcStride, height}, ardwSMPTE2048_to_RGB_8Bit);
}

int tntvt_yuv2_to_st2084(unsigned char* dst, unsigned char* src, unsigned int dstStride, unsigned int srcStride,
                         int height)
{
    const InstructionSet level = instruction_set();
    const uint32_t* const table = ardwRGB_to_SMPTE2048_8Bit;
    const Bytes bytes(table);
    return for_each_line(
        {dst, src, dstStride, srcStride, height}, 4, [&](uint8_t* to, const uint8_t* from, uint32_t m) {
            // From the first luma byte to the last.
            const long run = m / 4 * 4 - 1;
            long i = run_simd<MapEvenBytes>(level, {{to + 1, run}}, {{from + 1, run}}, to + 1, from + 1, run, bytes.of);
            for (; i < run; i += 2) to[i + 1] = mapped(table, from[i + 1]);
        });
}

// QUIRK (keeps_copy_of_bytes_1_to_4): unlike its forward twin, each group first brings over the source
// bytes 1 to 4, so the byte after the last group is written and byte 0 of a line is not.
int tntvt_st2084_to_yuv2(unsigned char* dst, unsigned char* src, unsigned int dstStride, unsigned int srcStride,
                         int height)
{
    const InstructionSet level = instruction_set();
    const uint32_t* const table = ardwSMPTE2048_to_RGB_8Bit;
    const Bytes bytes(table);
    return for_each_line({dst, src, dstStride, srcStride, height}, 4,
                         [&](uint8_t* to, const uint8_t* from, uint32_t m) {
                             const long run = m / 4 * 4;
                             long i = map_pairs_simd(level, to + 1, from + 1, run, {bytes.of, nullptr});
                             for (; i < run; i += 4) {
                                 store(to + i + 1, load<uint32_t>(from + i + 1));
                                 to[i + 1] = mapped(table, from[i + 1]);
                                 to[i + 3] = mapped(table, from[i + 3]);
                             }
                         });
}

int tntvt_v210_to_st2084(unsigned char* dst, unsigned char* src, unsigned int dstStride, unsigned int srcStride,
                         int height)
{
    return map_v210({dst, src, dstStride, srcStride, height}, ardwRGB_to_SMPTE2048_8Bit);
}

int tntvt_st2084_to_v210(unsigned char* dst, unsigned char* src, unsigned int dstStride, unsigned int srcStride,
                         int height)
{
    return map_v210({dst, src, dstStride, srcStride, height}, ardwSMPTE2048_to_RGB_8Bit);
}
