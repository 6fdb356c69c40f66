// Bytes that look like nothing.
#pragma once

#include <string>

#include "support/random.h"

namespace tintvert::test {

inline std::string noise(uint64_t seed, size_t count)
{
    const std::vector<uint8_t> bytes = Random(seed).bytes(count);
    return {bytes.begin(), bytes.end()};
}

}  // namespace tintvert::test
