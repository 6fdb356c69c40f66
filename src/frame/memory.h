// Loads and stores of words at any address, in the byte order of the layouts.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>

#include "simd/platform.h"

namespace tintvert {

// The built-in copy: clang vectorizes no loop with the fortified memcpy of the C library.
template <class Word>
inline Word load(const void* address)
{
    Word word;
    __builtin_memcpy(&word, address, sizeof word);
    return word;
}

template <class Word>
inline void store(void* address, Word word)
{
    __builtin_memcpy(address, &word, sizeof word);
}

// The same for integers, also while compiling.
template <class Word>
requires std::is_integral_v<Word>
constexpr Word load(const uint8_t* at)
{
    if (!std::is_constant_evaluated()) return load<Word>(static_cast<const void*>(at));
    uint64_t word = 0;
    for (size_t i = 0; i < sizeof(Word); ++i) word |= uint64_t{at[i]} << 8 * i;
    return static_cast<Word>(word);
}

template <class Word>
requires std::is_integral_v<Word>
constexpr void store(uint8_t* at, Word word)
{
    if (!std::is_constant_evaluated()) return store(static_cast<void*>(at), word);
    for (size_t i = 0; i < sizeof(Word); ++i) at[i] = static_cast<uint8_t>(static_cast<uint64_t>(word) >> 8 * i);
}

constexpr uint16_t byte_reverse(uint16_t word) { return static_cast<uint16_t>(word << 8 | word >> 8); }
constexpr uint32_t byte_reverse(uint32_t word) { return __builtin_bswap32(word); }
constexpr uint64_t byte_reverse(uint64_t word) { return __builtin_bswap64(word); }

inline uint8_t* bytes(void* pointer) { return static_cast<uint8_t*>(pointer); }

// Offsets are summed as integers: a stride may lead far outside a buffer, where pointer arithmetic
// is undefined.
template <class Pointer>
inline Pointer* advance(Pointer* pointer, long offset)
{
    return reinterpret_cast<Pointer*>(reinterpret_cast<uintptr_t>(pointer) + static_cast<uintptr_t>(offset));
}

}  // namespace tintvert
