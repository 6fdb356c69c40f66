// `rgb10` to 16 and 8 bits a channel. Frames are tight on both sides, and strides say nothing.
//
//            31 ..... 22  21 ..... 12  11 ..... 2  1 0
//   word       field 1      field 2      field 3
#include <tintvert/rgb.h>

#include "frame/walk.h"

using namespace tintvert;

namespace {

// DELIBERATE (keeps_mask_and_shifts): a field is not spread over its 16 bits. The mask keeps eight bits of
// one field on top and two of the next in bits 5 and 4, and V3 begins two bits into field 2.
//
//            15 ..... 8   5 4
//   V1      w 31 .. 24   21 20
//   V2      w 21 .. 14   11 10
//   V3      w 19 .. 12    9  8
constexpr uint16_t masked(uint32_t word) { return static_cast<uint16_t>(word & 0xFF30); }
constexpr uint16_t V1(uint32_t word) { return masked(word >> 16); }
constexpr uint16_t V2(uint32_t word) { return masked(word >> 6); }
constexpr uint16_t V3(uint32_t word) { return masked(word >> 4); }

static_assert(V1(0xFFFFFFFC) == 0xFF30 && V2(0xFFFFFFFC) == 0xFF30 && V3(0xFFFFFFFC) == 0xFF30);
static_assert(V1(0xFFC00000) == 0xFF00 && V2(0xFFC00000) == 0 && V3(0xFFC00000) == 0);
static_assert(V1(0x003FF000) == 0x0030 && V2(0x003FF000) == 0xFF00 && V3(0x003FF000) == 0xFF00);
static_assert(V1(0x00000FFC) == 0 && V2(0x00000FFC) == 0x0030 && V3(0x00000FFC) == 0x0030);

// DELIBERATE (keeps_opposite_channel_orders): field 1 is the third channel of `rgba64` and the first of `rgb48`.
struct Rgba64 {
    static constexpr long bytes = 8, bottom = 0;
    static void put(uint8_t* dst, uint32_t word)
    {
        const uint64_t low = V3(word) | uint32_t{V2(word)} << 16, high = V1(word) | 0xFFFF0000u;
        store(dst, high << 32 | low);
    }
};

struct Rgb48 {
    static constexpr long bytes = 6, bottom = 0;
    static void put(uint8_t* dst, uint32_t word)
    {
        store(dst, V1(word));
        store(dst + 2, V2(word));
        store(dst + 4, V3(word));
    }
};

// The top eight bits of each field: field 3 in byte 0, field 2 in byte 1, field 1 in byte 2.
struct Rgba32 {
    static constexpr long bytes = 4, bottom = -1;
    static void put(uint8_t* dst, uint32_t word)
    {
        store(dst, (word >> 4 & 0xFF) | (word >> 6 & 0xFF00) | (word >> 8 & 0xFF0000) | 0xFF000000);
    }
};

template <class Pixel, bool reversed>
struct FromRgb10 {
    static constexpr long src_bytes = 4, dst_bytes = Pixel::bytes;
    static void pixel(uint8_t* dst, const uint8_t* src)
    {
        const uint32_t word = load<uint32_t>(src);
        Pixel::put(dst, reversed ? byte_reverse(word) : word);
    }
};

// A walk down from source line 0, or up from source line `height` + `bottom`.
// DELIBERATE (keeps_flip_sense_by_byte_order): a big-endian source is walked up if the flag is set, a
// little-endian one if it is clear.
// DELIBERATE (keeps_start_one_line_below): walking up, the 16-bit forms show source lines `height` to 1 and the
// 8-bit form `height` - 1 to 0.
template <class Pixel>
void convert(void* dst, void* src, long width, long height, bool swap, bool flip)
{
    if (height < 1) return;
    const long line = line_offset(width, 4);
    const bool up = swap == flip;
    const Frame frame = {dst, line_offset(width, Pixel::bytes),
                         advance(src, up ? line_offset(height + Pixel::bottom, line) : 0),
                         up ? line_offset(-1, line) : line};
    if (swap)
        walk_forward<FromRgb10<Pixel, true>>(frame, width, height);
    else
        walk_forward<FromRgb10<Pixel, false>>(frame, width, height);
}

}  // namespace

void tntvt_rgb10_rgba64(void* dst, long, void* src, long, long width, long height, unsigned char swapBytes,
                        unsigned char flipLines)
{
    convert<Rgba64>(dst, src, width, height, swapBytes != 0, flipLines != 0);
}

void tntvt_rgb10_rgb48(void* dst, long, void* src, long, long width, long height, unsigned char swapBytes,
                       unsigned char flipLines)
{
    convert<Rgb48>(dst, src, width, height, swapBytes != 0, flipLines != 0);
}

void tntvt_rgb10_rgba32(void* dst, long, void* src, long, long width, long height, unsigned char swapBytes,
                        unsigned char flipLines)
{
    convert<Rgba32>(dst, src, width, height, swapBytes != 0, flipLines != 0);
}
