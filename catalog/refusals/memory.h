// What every routine refuses: sizes beyond memory.
#pragma once

#include <algorithm>
#include <utility>

#include "refusals/rules.h"

namespace tintvert::catalog::refusals {

// How an argument enters the size of a frame.
enum class Part : uint8_t { none, size, lines, distance };

constexpr Part part_of(Arg argument)
{
    switch (argument) {
        case Arg::height:
            return Part::lines;
        case Arg::width:
        case Arg::pixels:
        case Arg::count:
        case Arg::groups:
        case Arg::total:
        case Arg::bytes:
        case Arg::size:
        case Arg::scale:
        case Arg::pgroupCount:
            return Part::size;
        case Arg::stride:
        case Arg::dstStride:
        case Arg::srcStride:
        case Arg::fieldStride:
        case Arg::srcPitch:
        case Arg::dstPitch:
            return Part::distance;
        default:
            return Part::none;
    }
}

constexpr int64_t memory = int64_t{1} << 47;

// Numbers of up to 2^31 - 1, distances of up to 2^32 - 1, and no product of one with the lines beyond memory.
struct Size {
    int64_t lines = 1, longest = 0;

    // Whether `number` is within what its argument may be.
    template <Arg argument>
    bool takes(int64_t number)
    {
        constexpr Part part = part_of(argument);
        constexpr int64_t most = part == Part::distance ? most_unsigned : most_signed;
        if constexpr (part == Part::none) return true;
        if (number > most || number < -most) return false;
        if constexpr (part == Part::lines)
            lines = size_of(number);
        else if (argument != Arg::scale)
            longest = std::max(longest, size_of(number));
        return true;
    }
    bool fits_in_memory() const { return longest * lines <= memory; }
};

template <auto& shape>
bool fits_in_memory(const Arguments& call)
{
    Size size;
    return [&]<size_t... place>(std::index_sequence<place...>)
    {
        return (size.takes<shape.arguments[place]>(call[shape.arguments[place]]) && ...) && size.fits_in_memory();
    }
    (std::make_index_sequence<shape.arguments.size()>{});
}

}  // namespace tintvert::catalog::refusals
