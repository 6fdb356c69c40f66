// RFC 4175 payload to `v210`: forty one-bit reads a pgroup, with the bound tested at every bit.
#include <tintvert/ycbcr10.h>

#include <cstdlib>

#include "ycbcr10/pgroup.h"

using namespace tintvert;

int tntvt_4175_to_v210(void* dst, unsigned char* payload, long payloadSize, long pgroupCount, long startPhase)
{
    BitCursor* bits = obtain_bit_cursor();
    restart(bits, payload, advance(payload, payloadSize));
    uint8_t* group = bytes(dst);

    // A line that does not begin a group: its first pgroups, which `pgroupCount` does not count.
    if (startPhase == 2) store_pgroup_1(group, read_pgroup(bits));
    if (startPhase == 2 || startPhase == 4) {
        store_pgroup_2(group, read_pgroup(bits));
        group += 16;
    }
    for (long count = 0; count < pgroupCount; count += 3, group += 16) {
        store_pgroup_0(group, read_pgroup(bits));
        if (pgroupCount - count > 1) store_pgroup_1(group, read_pgroup(bits));
        if (pgroupCount - count > 2) store_pgroup_2(group, read_pgroup(bits));
    }
    std::free(bits);
    return 0;
}
