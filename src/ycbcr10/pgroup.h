// The pgroup of RFC 4175 in its 10-bit 4:2:2 form: two pixels in five bytes, most significant bit first.
//
//   b0         b1         b2         b3         b4
//   CCCCCCCC   CCYYYYYY   YYYYDDDD   DDDDDDyy   yyyyyyyy       C = Cb, Y = Y0, D = Cr, y = Y1
//
// Three of them fill a `v210` group: pgroup 0 the pixels 0 and 1, pgroup 1 the pixels 2 and 3, pgroup 2 the
// pixels 4 and 5.
#pragma once

#include <cstdint>

#include "frame/bit_cursor.h"
#include "frame/memory.h"

namespace tintvert {

struct Pgroup {
    uint32_t cb, y0, cr, y1;
};

inline uint32_t read_sample(BitCursor* bits)
{
    uint32_t sample = 0;
    for (int bit = 0; bit < 10; ++bit) sample = sample << 1 | read_bit(bits);
    return sample;
}

inline void write_sample(BitCursor* bits, uint32_t sample)
{
    for (int bit = 9; bit >= 0; --bit) write_bit(bits, sample >> bit);
}

inline Pgroup read_pgroup(BitCursor* bits)
{
    const uint32_t cb = read_sample(bits), y0 = read_sample(bits), cr = read_sample(bits), y1 = read_sample(bits);
    return {cb, y0, cr, y1};
}

inline void write_pgroup(BitCursor* bits, const Pgroup& pgroup)
{
    write_sample(bits, pgroup.cb);
    write_sample(bits, pgroup.y0);
    write_sample(bits, pgroup.cr);
    write_sample(bits, pgroup.y1);
}

// Fields that a pgroup does not own are kept, so that different calls may fill one group, one after another: words are
// read, masked and stored whole. Bits 30 and 31 of a word become 0, but for word 1 under pgroup 0.
inline void store_pgroup_0(uint8_t* group, const Pgroup& p)
{
    store(group, p.cb | p.y0 << 10 | p.cr << 20);
    store(group + 4, (load<uint32_t>(group + 4) & 0xFFFFFC00) | p.y1);
}

inline void store_pgroup_1(uint8_t* group, const Pgroup& p)
{
    store(group + 4, (load<uint32_t>(group + 4) & 0x000003FF) | p.cb << 10 | p.y0 << 20);
    store(group + 8, (load<uint32_t>(group + 8) & 0x3FF00000) | p.cr | p.y1 << 10);
}

inline void store_pgroup_2(uint8_t* group, const Pgroup& p)
{
    store(group + 8, (load<uint32_t>(group + 8) & 0x000FFFFF) | p.cb << 20);
    store(group + 12, p.y0 | p.cr << 10 | p.y1 << 20);
}

inline void store_pgroup(uint8_t* group, long position, const Pgroup& p)
{
    if (position == 0) store_pgroup_0(group, p);
    if (position == 1) store_pgroup_1(group, p);
    if (position == 2) store_pgroup_2(group, p);
}

}  // namespace tintvert
