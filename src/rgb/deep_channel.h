// Channels of 16 bits, and the pixels that are made of them.
//
// `bits` says how many bits of a 16-bit channel are significant; the shift between it and a byte is
// `bits` - 8, taken modulo 32. Common shifts are constants, so that whole lines stay in 16-bit lanes.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <type_traits>

#include "frame/bit_moves.h"
#include "frame/memory.h"
#include "frame/walk.h"
#include "rgb/mirror.h"

namespace tintvert {

template <uint32_t k>
using Shift = std::integral_constant<uint32_t, k>;

struct AnyShift {
    uint32_t k;
    constexpr operator uint32_t() const { return k; }
};

// QUIRK (keeps_shift_modulo_32): fewer than 8 bits are a shift by 24 to 31, which leaves 0.
template <class Work>
void with_shift_of(uint32_t bits, Work work)
{
    const uint32_t k = (bits - 8) & 31;
    switch (k) {
        case 8:
            return work(Shift<8>{});
        case 4:
            return work(Shift<4>{});
        case 2:
            return work(Shift<2>{});
        case 0:
            return work(Shift<0>{});
        default:
            return work(AnyShift{k});
    }
}

template <std::endian order>
constexpr uint16_t load_channel(const uint8_t* src)
{
    const auto stored = load<uint16_t>(src);
    return order == std::endian::little ? stored : byte_reverse(stored);
}

// Where the bits of a channel come from is known if its shift is known to the compiler.
template <class K>
constexpr bool is_constant = requires
{
    K::value;
};

// 16 bits to 8: the value moves down by k and keeps its low eight bits.
// QUIRK (keeps_wrap_of_wide_values): nothing is rounded or clamped. A value of more than `bits` bits
// loses its upper ones.
template <std::endian order, class K>
struct Reduced {
    static constexpr long src_bytes = 2, dst_bytes = 1;
    static constexpr bool has_moves = is_constant<K>;
    K k;

    constexpr uint8_t operator()(const uint8_t* src) const
    {
        return static_cast<uint8_t>(load_channel<order>(src) >> k);
    }

    static constexpr MovedByte moved(int) { return moved_bits(K::value, 0xFF, order == std::endian::little ? 1 : 2); }
};

// 8 bits to 16: the byte moves up by k.
// QUIRK (keeps_low_bits_of_deep_channels_clear): at 16 bits 255 becomes 0xFF00.
template <class K>
struct Widened {
    static constexpr long src_bytes = 1, dst_bytes = 2;
    static constexpr bool has_moves = is_constant<K>;
    K k;

    constexpr uint16_t operator()(const uint8_t* src) const { return static_cast<uint16_t>(uint32_t{*src} << k); }

    static constexpr MovedByte moved(int byte)
    {
        const int bit = 8 * byte - static_cast<int>(K::value);
        return moved_bits(bit, (0xFFu << K::value) >> (8 * byte) & 0xFF);
    }
};

// 16 bits, big-endian, to 16 bits of the machine.
struct Swapped {
    static constexpr long src_bytes = 2, dst_bytes = 2;
    static constexpr bool has_moves = true;

    constexpr uint16_t operator()(const uint8_t* src) const { return load_channel<std::endian::big>(src); }

    static constexpr MovedByte moved(int byte) { return moved_bits(8 * byte, 0xFF, 2); }
};

// Which channel of the source goes to q0, q1, ... of the result, or `zero`.
inline constexpr int zero = -1;
template <int... from>
struct Order {};

// A pixel of `channels` channels. It is read to its last channel before it is written; channels that the
// order leaves out are not read.
template <class Channel, int channels, class Places>
struct Deep;

template <class Channel, int channels, int... from>
struct Deep<Channel, channels, Order<from...>> {
    static constexpr long src_bytes = channels * Channel::src_bytes;
    static constexpr long dst_bytes = long{sizeof...(from)} * Channel::dst_bytes;
    Channel channel;

    using Simd = std::conditional_t<Channel::has_moves, BitMoves<Deep>, void>;
    static constexpr MovedByte moved(int byte)
    {
        constexpr int places[] = {from...};
        const int place = places[byte / Channel::dst_bytes];
        if (place == zero) return fixed_byte(0);
        MovedByte result = Channel::moved(static_cast<int>(byte % Channel::dst_bytes));
        result.bit += static_cast<int>(8 * Channel::src_bytes) * place;
        return result;
    }

    constexpr void pixel(uint8_t* dst, const uint8_t* src) const { write(dst, take<from>(src)...); }

private:
    template <int index>
    constexpr auto take(const uint8_t* src) const
    {
        if constexpr (index == zero)
            return decltype(channel(src)){0};
        else
            return channel(src + index * Channel::src_bytes);
    }

    template <class... Result>
    static constexpr void write(uint8_t* dst, Result... q)
    {
        ((store(dst, q), dst += sizeof q), ...);
    }
};

// What the sign of `height` means. Lines are right-aligned in their strides; last line first, rightmost
// pixel first.
struct PositiveOnly {
    template <class Form>
    static void walk(const Frame& frame, long width, long height, Form form)
    {
        walk_backward(frame, width, height, form);
    }
};

struct ExactFlip {
    template <class Form>
    static void walk(const Frame& frame, long width, long height, Form form)
    {
        const long lines = magnitude(height);
        walk_backward(height > 0 ? frame : mirrored(frame, line_sum(lines, 1)), width, lines, form);
    }
};

// QUIRK (keeps_flip_one_line_off): a negative `height` sends source line r, counted from 1, to the
// line that ends at `lines` - r strides. The last source line is written before `dst` and the last
// destination line is never written.
// QUIRK (keeps_signed_32_bit_count): the lines are the low 32 bits of the magnitude, as a signed number: 2^32 + 1 lines
// are one, and 2^31 to 2^32 - 1 lines are below 1 and so no work.
struct FlipOneLineOff {
    template <class Form>
    static void walk(const Frame& frame, long width, long height, Form form)
    {
        const long lines = static_cast<int32_t>(magnitude(height));
        walk_backward(height > 0 ? frame : mirrored(frame, lines), width, lines, form);
    }
};

}  // namespace tintvert
