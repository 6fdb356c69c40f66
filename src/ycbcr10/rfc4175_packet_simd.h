// The payload of a packet: one pgroup over and over. Sixteen of them are 80 bytes, which is whole registers.
#pragma once

#include <cstring>

#include "simd/simd.h"
#include "ycbcr10/pgroup.h"

namespace tintvert {

struct RepeatPgroup {
    static long sse2(uint8_t* payload, const Pgroup& p, long count)
    {
        constexpr long block_pgroups = 16;
        const uint64_t bits = uint64_t{p.cb} << 30 | uint64_t{p.y0} << 20 | uint64_t{p.cr} << 10 | p.y1;
        const uint64_t pgroup = byte_reverse(bits << 24);
        uint8_t block[5 * block_pgroups];
        for (long n = 0; n < block_pgroups; ++n) put(block + 5 * n, pgroup);
        long done = 0;
        for (; count - done >= block_pgroups; done += block_pgroups)
            std::memcpy(payload + 5 * done, block, sizeof block);
        for (; done < count; ++done) put(payload + 5 * done, pgroup);
        return count;
    }

private:
    // Five bytes, the lowest one first.
    static void put(uint8_t* at, uint64_t pgroup)
    {
        store(at, static_cast<uint32_t>(pgroup));
        at[4] = static_cast<uint8_t>(pgroup >> 32);
    }
};

}  // namespace tintvert
