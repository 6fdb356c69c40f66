#include "inspect/difference.h"

#include <algorithm>
#include <cstdlib>

namespace tintvert::core {

Difference difference(const Picture& result, const Picture& original, long step)
{
    Difference found;
    for (long y = 0; y < result.height; ++y) {
        for (long x = 0; x < result.width; ++x) {
            const uint8_t* one = result.pixel(x, y);
            const uint8_t* other = original.pixel(x * step, y * step);
            for (size_t c = 0; c < 3; ++c) {
                const int apart = std::abs(one[c] - other[c]);
                found.largest[c] = std::max(found.largest[c], apart);
                found.mean[c] += apart;
            }
        }
    }
    for (double& mean : found.mean) mean /= static_cast<double>(result.width * result.height);
    return found;
}

}  // namespace tintvert::core
