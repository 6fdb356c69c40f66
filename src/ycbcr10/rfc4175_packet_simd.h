// The payload of a packet: one pgroup over and over. Sixteen of them are 80 bytes, which is whole registers.
#pragma once

#include <cstring>

#include "simd/simd.h"
#include "ycbcr10/pgroup.h"

namespace tintvert {

struct RepeatPgroup {
    static long sse2(uint8_t* payload, const Pgroup& p, long count)
    {
        constexpr long block = 16;
        const uint64_t bits = uint64_t{p.cb} << 30 | uint64_t{p.y0} << 20 | uint64_t{p.cr} << 10 | p.y1;
        const uint64_t pgroup = byte_reverse(bits << 24);
        long done = 0;
        for (; done < count && done < block; ++done) put(payload + 5 * done, pgroup);
        for (; count - done >= block; done += block) std::memcpy(payload + 5 * done, payload, 5 * block);
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
