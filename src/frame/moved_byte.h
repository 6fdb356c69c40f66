// Where the bits of one byte of a result come from.
#pragma once

#include <bit>
#include <cstdint>

#include "frame/state.h"

namespace tintvert {

// What a byte is that takes no bits: `fixed`, the alpha `a`, or what it was.
enum class Rest : uint8_t { fixed, alpha, kept };

// The eight bits from `bit` up, counted from bit 0 of byte 0, where `mask` has ones; the others are 0.
struct MovedByte {
    int bit = 0;
    uint8_t mask = 0;
    int word = 1;  // bytes of a big-endian word of the source; 1 for little-endian
    Rest rest = Rest::fixed;
    uint8_t fixed = 0;

    constexpr bool takes_bits() const { return mask != 0; }
    constexpr bool whole() const { return !takes_bits() || (mask == 0xFF && bit % 8 == 0); }

    // The bytes that it takes bits of, one or two, and where byte n is in memory.
    constexpr int first() const { return (bit + std::countr_zero(mask)) >> 3; }
    constexpr int last() const { return (bit + 7 - std::countl_zero(mask)) >> 3; }
    constexpr int place(int n) const { return n ^ (word - 1); }
};

constexpr MovedByte moved_bits(int bit, unsigned mask = 0xFF, int word = 1)
{
    return {bit, static_cast<uint8_t>(mask), word};
}

constexpr MovedByte fixed_byte(uint8_t value) { return {.fixed = value}; }

// Byte `byte` of a result of whole bytes: which one of the source each is, or one of these.
inline constexpr int alpha_byte = -1, kept_byte = -2;

template <int... from>
constexpr MovedByte moved_byte(int byte)
{
    constexpr int places[] = {from...};
    const int place = places[byte];
    if (place < 0) return {.rest = place == alpha_byte ? Rest::alpha : Rest::kept};
    return moved_bits(8 * place);
}

// Byte `byte` of a run of units, bits counted from the first unit.
template <class Units>
constexpr MovedByte moved_in_run(int byte)
{
    MovedByte result = Units::moved(static_cast<int>(byte % Units::dst_bytes));
    result.bit += static_cast<int>(byte / Units::dst_bytes * Units::src_bytes * 8);
    return result;
}

template <class Units>
constexpr bool moves_whole_bytes()
{
    for (int i = 0; i < Units::dst_bytes; ++i)
        if (!Units::moved(i).whole()) return false;
    return true;
}

template <class Units>
constexpr bool keeps_bytes()
{
    for (int i = 0; i < Units::dst_bytes; ++i)
        if (Units::moved(i).rest == Rest::kept) return true;
    return false;
}

// One past the last byte of a unit that is read.
template <class Units>
constexpr int end_of_reads()
{
    int end = 0;
    for (int i = 0; i < Units::dst_bytes; ++i) {
        const MovedByte byte = Units::moved(i);
        for (int n = byte.first(); byte.takes_bits() && n <= byte.last(); ++n)
            if (byte.place(n) >= end) end = byte.place(n) + 1;
    }
    return end;
}

// What the `count` bytes of a result are that `moved` says, over what they were.
template <class Units>
constexpr void move_bits(uint8_t* dst, const uint8_t* src, int count)
{
    for (int i = 0; i < count; ++i) {
        const MovedByte byte = moved_in_run<Units>(i);
        if (byte.rest == Rest::kept) continue;
        int value = byte.rest == Rest::alpha ? alpha() : byte.fixed;
        for (int k = 0; k < 8; ++k)
            if ((byte.mask >> k & 1) != 0)
                value |= (src[byte.place((byte.bit + k) >> 3)] >> ((byte.bit + k) & 7) & 1) << k;
        dst[i] = static_cast<uint8_t>(value);
    }
}

// Whether `Form::pixel` and the `moved` of its units say the same, of no bit of a source, of each one and of all.
template <class Form, class Units>
constexpr bool pixel_is_moved()
{
    for (int bit = -1; bit <= 8 * Form::src_bytes; ++bit) {
        uint8_t src[Form::src_bytes + 8] = {}, expected[Form::dst_bytes] = {}, dst[Form::dst_bytes] = {};
        for (long i = 0; i < Form::src_bytes; ++i) {
            const bool all = bit == 8 * Form::src_bytes, here = bit >= 0 && bit / 8 == i;
            src[i] = static_cast<uint8_t>(all ? 0xFF : here ? 1 << bit % 8 : 0);
        }
        move_bits<Units>(expected, src, Form::dst_bytes);
        Form{}.pixel(dst, src);
        for (long i = 0; i < Form::dst_bytes; ++i)
            if (dst[i] != expected[i]) return false;
    }
    return true;
}

template <class Units>
constexpr bool takes_alpha()
{
    for (int i = 0; i < Units::dst_bytes; ++i)
        if (Units::moved(i).rest == Rest::alpha) return true;
    return false;
}

}  // namespace tintvert
