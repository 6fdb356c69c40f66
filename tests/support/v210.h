// Groups of `v210` from their samples, and the memory of an expected result.
#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <vector>

namespace tintvert::test {

using Memory = std::vector<uint8_t>;

// Any number of samples, three to a word, from low bits to high: Cb0, Y0, Cr0, Y1, Cb2, Y2, Cr2, Y3, Cb4, Y4,
// Cr4, Y5 and again.
inline Memory v210(std::initializer_list<uint32_t> samples)
{
    Memory bytes(samples.size() / 3 * 4);
    size_t n = 0;
    for (const uint32_t sample : samples) {
        for (uint32_t bit = 0; bit < 10; ++bit) {
            const size_t place = n / 3 * 32 + n % 3 * 10 + bit;
            bytes[place / 8] = static_cast<uint8_t>(bytes[place / 8] | (sample >> bit & 1) << (place % 8));
        }
        ++n;
    }
    return bytes;
}

inline Memory operator+(Memory left, const Memory& right)
{
    left.insert(left.end(), right.begin(), right.end());
    return left;
}

inline Memory operator*(size_t times, const Memory& part)
{
    Memory all;
    for (; times > 0; --times) all.insert(all.end(), part.begin(), part.end());
    return all;
}

}  // namespace tintvert::test
