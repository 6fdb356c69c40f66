// Isolated errors in the second luma of a `2yuv` pair, pulled back in place.
#include <tintvert/ycbcr8.h>

#include <cstdlib>

#include "frame/memory.h"
#include "ycbcr8/average_2y_simd.h"

using namespace tintvert;

namespace {

//   byte    0    1    2    3     4    5    6    7
//           c   prev  c    t     c   cur   c    t ...
//
// The first luma of each pair is the reference: `prev` and `cur` are on either side of the second luma `t`.

// Mode 1 takes no look at the neighbours.
void average_pairs(uint8_t* buf, long pairs)
{
    const auto round = [buf](long k) { buf[4 * k + 3] = static_cast<uint8_t>((buf[4 * k + 3] + buf[4 * k + 1]) >> 1); };
    round(0);
    const long rest = pairs - 1;
    long k = 1 + run_simd<AveragePairs>(instruction_set(), {{buf + 4, rest * 4}}, {}, buf + 4, rest);
    for (; k < pairs; ++k) round(k);
}

template <Replacement replacement>
int replaced(int prev, int t, int cur)
{
    if (replacement == Replacement::reference) return prev;
    return ((replacement == Replacement::half_way ? t : cur) + prev) >> 1;
}

// The references agree within 7 and `t` is off by 11 or more. References brighter than `most` are left alone.
bool is_isolated(int prev, int t, int cur, int most)
{
    return prev <= most && std::abs(prev - cur) < 8 && std::abs(prev - t) >= 11;
}

// QUIRK (keeps_round_past_the_end): the test follows the round, so that the last one has `cur` at or
// past `bytes`: up to index `bytes` + 3 for `cur` and `bytes` + 1 for `t`. Only a `t` that is replaced is stored.
template <Replacement replacement>
void pull_back(uint8_t* buf, long pairs, int most)
{
    const auto round = [buf, most](long k) {
        const int prev = buf[4 * k + 1], t = buf[4 * k + 3], cur = buf[4 * k + 5];
        if (!is_isolated(prev, t, cur, most)) return;
        buf[4 * k + 3] = static_cast<uint8_t>(replaced<replacement>(prev, t, cur));
    };
    round(0);
    const long rest = pairs - 1;
    long k = 1 + run_simd<PullBack>(instruction_set(), {{buf + 4, rest * 4}}, {}, buf + 4, rest, replacement, most);
    for (; k < pairs; ++k) round(k);
}

constexpr int dark_only = 127, any = 255;

}  // namespace

int tntvt_2yuv_average_2y(void* buf, unsigned int bytes, int mode)
{
    if (bytes < 2) return 0;
    uint8_t* const line = tintvert::bytes(buf);
    const long pairs = (long{bytes} + 2) / 4;
    switch (mode) {
        case 1:
            average_pairs(line, pairs);
            break;
        case 2:
            pull_back<Replacement::reference>(line, pairs, dark_only);
            break;
        case 3:
            pull_back<Replacement::reference>(line, pairs, any);
            break;
        case 4:
            pull_back<Replacement::half_way>(line, pairs, dark_only);
            break;
        case 5:
            pull_back<Replacement::half_way>(line, pairs, any);
            break;
        case 6:
            pull_back<Replacement::between>(line, pairs, any);
            break;
        default:
            break;
    }
    return 0;
}
