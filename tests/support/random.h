// Random numbers that are the same in every run and on every compiler.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace tintvert::test {

class Random {
public:
    explicit Random(uint64_t seed) : state_(seed) {}

    // splitmix64
    uint64_t next()
    {
        uint64_t z = (state_ += 0x9E3779B97F4A7C15u);
        z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9u;
        z = (z ^ (z >> 27)) * 0x94D049BB133111EBu;
        return z ^ (z >> 31);
    }

    // From `low` to `high`, both included.
    long between(long low, long high)
    {
        return low + static_cast<long>(next() % static_cast<uint64_t>(high - low + 1));
    }

    std::vector<uint8_t> bytes(size_t count)
    {
        std::vector<uint8_t> result(count);
        for (uint8_t& byte : result) byte = static_cast<uint8_t>(next());
        return result;
    }

private:
    uint64_t state_;
};

}  // namespace tintvert::test
