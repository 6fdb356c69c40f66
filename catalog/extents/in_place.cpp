#include "extents.h"

namespace tintvert::catalog::extents {

// Luma bytes only: the second of each pair is written. Mode 1 ends with the pair that begins below `bytes`;
// the others take one reference more, at or past `bytes`, and write the second luma before it.
Extents average_2y(const Arguments& call)
{
    Extents result;
    const int64_t bytes = call.as<uint32_t>(Arg::bytes), mode = call.as<int32_t>(Arg::mode);
    if (bytes < 2 || mode < 1 || mode > 6) return result;
    if (mode == 1) {
        const int64_t end = (bytes - 2) / 4 * 4 + 4;
        result.add(Arg::buf, {1, end}, {3, end});
    } else {
        const int64_t last = bytes <= 5 ? 5 : round_up(bytes - 1, 4) + 1;
        result.add(Arg::buf, {1, last + 1}, {3, last - 1});
    }
    return result;
}

Extents scaled_groups(const Arguments& call)
{
    Extents result;
    const int64_t bytes = round_up(call.as<uint32_t>(Arg::bytes), 4);
    result.add(Arg::buffer, {0, bytes}, {0, bytes});
    return result;
}

}  // namespace tintvert::catalog::extents
