#include "extents.h"

namespace tintvert::catalog::extents {

Extents deinterlace(const Arguments& call)
{
    const auto mode = call.as<int32_t>(Arg::mode);
    const auto softness = call.as<uint32_t>(Arg::softness);
    const bool looks = static_cast<int32_t>(softness * softness) >= 0;
    const int64_t stride = call.as<uint32_t>(Arg::stride);
    const int64_t height = call.as<uint32_t>(Arg::height);
    const int64_t elements = int64_t{8} * call.as<uint32_t>(Arg::width);
    Range read, written;
    outermost(height, 4, [&](int64_t y) {
        const bool odd = y % 2 != 0;
        const bool copied = (mode == 16 && !odd) || (mode == 17 && odd);
        const Range line = lines(y * stride, stride, 1, copied ? stride : elements);
        read = join(read, line);
        written = join(written, line);
        // Three bytes of the last element are looked at in the neighbours, which the frame holds.
        const bool first_two = y < 2, last = y + 1 == height;
        if (copied || !looks || (mode != 2 && !odd) || elements == 0) return;
        if (!last) read = join(read, lines((y + 1) * stride, stride, 1, elements - 5));
        if (!first_two) read = join(read, lines((y - 1) * stride, stride, 1, elements - 5));
    });
    return two_frames_or_one(call, read, written);
}

}  // namespace tintvert::catalog::extents
