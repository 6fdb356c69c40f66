// One bit at a time, most significant bit of a byte first, with the bound tested at every bit.
#pragma once

#include <cstdint>
#include <cstdlib>

#include "frame/memory.h"

namespace tintvert {

struct BitCursor {
    uint8_t* lineStart;  // first byte of the run; set and never read
    uint8_t* cursor;     // byte now being read or filled
    uint8_t* limit;      // one past the last byte that may be read or stored
    uint32_t bitsLeft;   // bits left in the byte at `cursor`: 8 for a fresh byte
};

// One record a call, from malloc and, at its end, to free. The result is not tested: without memory the first
// store goes through null. The empty statement hides from the optimiser where the pointer comes from, because
// one that knows keeps the record in registers and drops the allocation.
inline BitCursor* obtain_bit_cursor()
{
    BitCursor* bits = static_cast<BitCursor*>(std::malloc(sizeof(BitCursor)));
    asm volatile("" : "+r"(bits));
    return bits;
}

inline void restart(BitCursor* bits, uint8_t* start, uint8_t* limit)
{
    bits->lineStart = start;
    bits->cursor = start;
    bits->limit = limit;
    bits->bitsLeft = 8;
}

inline void step(BitCursor* bits)
{
    if (bits->bitsLeft == 0) {
        bits->cursor = advance(bits->cursor, 1);
        bits->bitsLeft = 8;
    }
}

// Past `limit` a bit reads as 0, and the counting goes on.
inline uint32_t read_bit(BitCursor* bits)
{
    --bits->bitsLeft;
    const uint32_t bit = bits->cursor < bits->limit ? (*bits->cursor >> bits->bitsLeft) & 1u : 0u;
    step(bits);
    return bit;
}

// Past `limit` nothing is stored, and the counting goes on. The other bits of the byte are kept.
inline void write_bit(BitCursor* bits, uint32_t bit)
{
    --bits->bitsLeft;
    if (bits->cursor < bits->limit) {
        const uint32_t kept = *bits->cursor & ~(1u << bits->bitsLeft);
        *bits->cursor = static_cast<uint8_t>(kept | (bit & 1u) << bits->bitsLeft);
    }
    step(bits);
}

}  // namespace tintvert
