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
Memory v210(std::initializer_list<uint32_t> samples);

// One after the other, and one again and again.
Memory operator+(Memory left, const Memory& right);
Memory operator*(size_t times, const Memory& part);

}  // namespace tintvert::test
