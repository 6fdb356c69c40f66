// Bytes that show where they come from.
#pragma once

#include <cstddef>
#include <numeric>
#include <vector>

namespace tintvert::test {

using Bytes = std::vector<unsigned char>;

// Bytes that count from 0, so that each shows its place.
inline Bytes places(size_t count)
{
    Bytes result(count);
    std::iota(result.begin(), result.end(), static_cast<unsigned char>(0));
    return result;
}

}  // namespace tintvert::test
