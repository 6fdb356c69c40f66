// `rgb10` to 16 and 8 bits a channel. Frames are tight on both sides, and strides say nothing.
//
//            31 ..... 22  21 ..... 12  11 ..... 2  1 0
//   word       field 1      field 2      field 3
#include <tintvert/rgb.h>

#include "frame/bit_moves.h"
#include "frame/walk.h"

using namespace tintvert;

namespace {

// QUIRK (keeps_mask_and_shifts): a field is not spread over its 16 bits. The mask keeps eight bits of
// one field on top and two of the next in bits 5 and 4, and V3 begins two bits into field 2.
//
//            15 ..... 8   5 4
//   V1      w 31 .. 24   21 20
//   V2      w 21 .. 14   11 10
//   V3      w 19 .. 12    9  8
constexpr uint16_t masked(uint32_t word) { return static_cast<uint16_t>(word & 0xFF30); }

struct LittleEndian {
    static constexpr int word_bytes = 1;
    static constexpr uint32_t in_order(uint32_t word) { return word; }
    static constexpr uint16_t V1(uint32_t word) { return masked(word >> 16); }
    static constexpr uint16_t V2(uint32_t word) { return masked(word >> 6); }
    static constexpr uint16_t V3(uint32_t word) { return masked(word >> 4); }

    // The top eight bits of each field: field 3 in byte 0, field 2 in byte 1, field 1 in byte 2.
    static constexpr uint32_t tops(uint32_t word)
    {
        return (word >> 4 & 0xFF) | (word >> 6 & 0xFF00) | (word >> 8 & 0xFF0000);
    }
};

// The same bits out of a word that was loaded with its bytes the other way about: shifts go four at a time
// where a byte reverse would not.
struct BigEndian {
    static constexpr int word_bytes = 4;
    static constexpr uint32_t in_order(uint32_t word) { return byte_reverse(word); }
    static constexpr uint16_t V1(uint32_t word) { return masked((word << 8 & 0xFF00) | (word >> 8 & 0x30)); }
    static constexpr uint16_t V2(uint32_t word) { return masked((word << 2 & 0xFC00) | (word >> 14 & 0x330)); }
    static constexpr uint16_t V3(uint32_t word) { return masked((word << 4 & 0xF000) | (word >> 12 & 0xF30)); }

    static constexpr uint32_t tops(uint32_t word)
    {
        return (word >> 12 & 0xF0) | word >> 28 | (word << 2 & 0xFC00) | (word >> 14 & 0x300) | (word << 16 & 0xFF0000);
    }
};

template <class Order>
constexpr bool holds(uint32_t word, unsigned first, unsigned second, unsigned third, uint32_t tops)
{
    return Order::V1(word) == first && Order::V2(word) == second && Order::V3(word) == third &&
           Order::tops(word) == tops;
}

static_assert(holds<LittleEndian>(0xFFFFFFFC, 0xFF30, 0xFF30, 0xFF30, 0xFFFFFF));
static_assert(holds<LittleEndian>(0xFFC00000, 0xFF00, 0, 0, 0xFF0000));
static_assert(holds<LittleEndian>(0x003FF000, 0x0030, 0xFF00, 0xFF00, 0x00FF00));
static_assert(holds<LittleEndian>(0x00000FFC, 0, 0x0030, 0x0030, 0x0000FF));
static_assert(holds<BigEndian>(0xFCFFFFFF, 0xFF30, 0xFF30, 0xFF30, 0xFFFFFF));
static_assert(holds<BigEndian>(0x0000C0FF, 0xFF00, 0, 0, 0xFF0000));
static_assert(holds<BigEndian>(0x00F03F00, 0x0030, 0xFF00, 0xFF00, 0x00FF00));
static_assert(holds<BigEndian>(0xFC0F0000, 0, 0x0030, 0x0030, 0x0000FF));

// Byte `byte` of V1, V2 or V3 for the steps: V1 begins at bit 16 of the word, V2 at 6, V3 at 4.
template <class Order>
constexpr MovedByte masked_byte(int n, int byte)
{
    constexpr int begins[] = {16, 6, 4};
    return moved_bits(begins[n - 1] + 8 * byte, byte == 0 ? 0x30 : 0xFF, Order::word_bytes);
}

// QUIRK (keeps_opposite_channel_orders): field 1 is the third channel of `rgba64` and the first of `rgb48`.
template <class Order>
struct Rgba64 {
    static constexpr long src_bytes = 4, dst_bytes = 8, bottom = 0;
    using Simd = BitMoves<Rgba64>;
    static constexpr MovedByte moved(int byte)
    {
        return byte < 6 ? masked_byte<Order>(3 - byte / 2, byte % 2) : fixed_byte(0xFF);
    }
    static constexpr void pixel(uint8_t* dst, const uint8_t* src)
    {
        const auto word = load<uint32_t>(src);
        const uint64_t low = Order::V3(word) | uint32_t{Order::V2(word)} << 16, high = Order::V1(word) | 0xFFFF0000u;
        store(dst, high << 32 | low);
    }
};

template <class Order>
struct Rgb48 {
    static constexpr long src_bytes = 4, dst_bytes = 6, bottom = 0;
    using Simd = BitMoves<Rgb48>;
    static constexpr MovedByte moved(int byte) { return masked_byte<Order>(1 + byte / 2, byte % 2); }
    static constexpr void pixel(uint8_t* dst, const uint8_t* src)
    {
        const uint32_t word = Order::in_order(load<uint32_t>(src));  // six bytes a pixel go one at a time anyhow
        store(dst, LittleEndian::V1(word));
        store(dst + 2, LittleEndian::V2(word));
        store(dst + 4, LittleEndian::V3(word));
    }
};

template <class Order>
struct Rgba32 {
    static constexpr long src_bytes = 4, dst_bytes = 4, bottom = -1;
    using Simd = BitMoves<Rgba32>;
    static constexpr MovedByte moved(int byte)
    {
        return byte < 3 ? moved_bits(4 + 10 * byte, 0xFF, Order::word_bytes) : fixed_byte(0xFF);
    }
    static constexpr void pixel(uint8_t* dst, const uint8_t* src)
    {
        store(dst, Order::tops(load<uint32_t>(src)) | 0xFF000000);
    }
};

// A walk down from source line 0, or up from source line `height` + `bottom`.
// QUIRK (keeps_flip_sense_by_byte_order): a big-endian source is walked up if the flag is set, a
// little-endian one if it is clear.
// QUIRK (keeps_start_one_line_below): walking up, the 16-bit forms show source lines `height` to 1 and the
// 8-bit form `height` - 1 to 0.
template <template <class Order> class Form>
void convert(void* dst, void* src, long width, long height, bool swap, bool flip)
{
    if (height < 1) return;
    const long line = line_offset(width, 4);
    const bool up = swap == flip;
    const Frame frame = {dst, line_offset(width, Form<LittleEndian>::dst_bytes),
                         advance(src, up ? line_offset(height + Form<LittleEndian>::bottom, line) : 0),
                         up ? line_offset(-1, line) : line};
    if (swap)
        walk_forward<Form<BigEndian>>(frame, width, height);
    else
        walk_forward<Form<LittleEndian>>(frame, width, height);
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
