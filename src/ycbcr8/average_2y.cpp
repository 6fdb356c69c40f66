// Isolated errors in the second luma of a `2yuv` pair, pulled back in place.
#include <tintvert/ycbcr8.h>

#include <cstddef>
#include <cstdlib>

#include "frame/memory.h"

using namespace tintvert;

namespace {

//   byte    0    1    2    3     4    5    6    7
//           c   prev  c    t     c   cur   c    t ...
//
// The first luma of each pair is the reference: `prev` and `cur` stand around the second luma `t`.

// Mode 1 takes no look at the neighbours.
void average_pairs(uint8_t* buf, size_t bytes)
{
    for (size_t i = 1; i < bytes; i += 4) buf[i + 2] = static_cast<uint8_t>((buf[i + 2] + buf[i]) >> 1);
}

int reference(int prev, int, int) { return prev; }
int half_way(int prev, int t, int) { return (t + prev) >> 1; }
int between(int prev, int, int cur) { return (cur + prev) >> 1; }

// The references agree within 7 and `t` is off by 11 or more. References from `gate` on are left alone.
bool is_isolated(int prev, int t, int cur, int gate)
{
    return prev < gate && std::abs(prev - cur) < 8 && std::abs(prev - t) >= 11;
}

// DELIBERATE (keeps_round_past_the_end): the test follows the round, so that the last one has `cur` at or
// past `bytes`: up to index `bytes` + 3 for `cur` and `bytes` + 1 for `t`. A `t` that stays is stored as it
// is, which leaves the loop without a branch.
template <int (*replacement)(int prev, int t, int cur)>
void pull_back(uint8_t* buf, size_t bytes, int gate)
{
    const size_t rounds = (bytes + 2) / 4;
    for (size_t k = 0; k < rounds; ++k) {
        const int prev = buf[4 * k + 1], t = buf[4 * k + 3], cur = buf[4 * k + 5];
        buf[4 * k + 3] = static_cast<uint8_t>(is_isolated(prev, t, cur, gate) ? replacement(prev, t, cur) : t);
    }
}

constexpr int dark_only = 128, any = 256;

}  // namespace

int tntvt_2yuv_average_2y(void* buf, unsigned int bytes, int mode)
{
    if (bytes < 2) return 0;
    uint8_t* const line = tintvert::bytes(buf);
    switch (mode) {
        case 1:
            average_pairs(line, bytes);
            break;
        case 2:
            pull_back<reference>(line, bytes, dark_only);
            break;
        case 3:
            pull_back<reference>(line, bytes, any);
            break;
        case 4:
            pull_back<half_way>(line, bytes, dark_only);
            break;
        case 5:
            pull_back<half_way>(line, bytes, any);
            break;
        case 6:
            pull_back<between>(line, bytes, any);
            break;
        default:
            break;
    }
    return 0;
}
