#include <array>
#include <cstdint>
#include <cstdlib>
#include <cstring>

#include "zkutil.h"

namespace {

// From one to two words of bytes, the first word and the last, which may share some. Both are read before either is
// written, so the blocks may overlap.
template <class Word>
void copy_ends(void* destination, const void* source, unsigned int bytes)
{
    const size_t rest = bytes - sizeof(Word);
    Word first, last;
    std::memcpy(&first, source, sizeof(Word));
    std::memcpy(&last, static_cast<const char*>(source) + rest, sizeof(Word));
    std::memcpy(destination, &first, sizeof(Word));
    std::memcpy(static_cast<char*>(destination) + rest, &last, sizeof(Word));
}

}  // namespace

// For a few bytes the call of memmove would take longer than the copy.
void CopyMemoryFast(void* destination, const void* source, unsigned int bytes)
{
    if (bytes > 32)
        std::memmove(destination, source, bytes);
    else if (bytes >= 16)
        copy_ends<std::array<uint64_t, 2>>(destination, source, bytes);
    else if (bytes >= 8)
        copy_ends<uint64_t>(destination, source, bytes);
    else if (bytes >= 4)
        copy_ends<uint32_t>(destination, source, bytes);
    else if (bytes >= 2)
        copy_ends<uint16_t>(destination, source, bytes);
    else if (bytes == 1)
        copy_ends<uint8_t>(destination, source, bytes);
}

void* ZKAlloc(unsigned int bytes) { return std::malloc(bytes); }

void ZKFree(void* block) { std::free(block); }
