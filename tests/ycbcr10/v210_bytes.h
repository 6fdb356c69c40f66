// `v210` words as bytes, and three pgroups that the literal tests share.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <vector>

namespace tintvert::test {

using Bytes = std::vector<uint8_t>;

inline Bytes v210_words(std::initializer_list<uint32_t> words)
{
    Bytes bytes;
    for (const uint32_t word : words)
        for (int shift = 0; shift < 32; shift += 8) bytes.push_back(static_cast<uint8_t>(word >> shift));
    return bytes;
}

inline Bytes joined(std::initializer_list<Bytes> parts)
{
    Bytes whole;
    for (const Bytes& part : parts) whole.insert(whole.end(), part.begin(), part.end());
    return whole;
}

// Samples 0x123 0x245 0x367 0x089, then 0x3A5 0x15A 0x0F0 0x30F, then 0x2BD 0x001 0x3FE 0x200.
inline const Bytes first_pgroup = {0x48, 0xE4, 0x5D, 0x9C, 0x89};
inline const Bytes second_pgroup = {0xE9, 0x55, 0xA3, 0xC3, 0x0F};
inline const Bytes third_pgroup = {0xAF, 0x40, 0x1F, 0xFA, 0x00};
inline const Bytes three_pgroups = joined({first_pgroup, second_pgroup, third_pgroup});
inline const Bytes their_group = v210_words({0x36791523, 0x15AE9489, 0x2BDC3CF0, 0x200FF801});

}  // namespace tintvert::test
