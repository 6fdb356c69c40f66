#include <cstdlib>
#include <cstring>

#include "zkutil.h"

// memmove takes no null pointer, not even for 0 bytes.
void CopyMemoryFast(void* destination, const void* source, unsigned int bytes)
{
    if (bytes != 0) std::memmove(destination, source, bytes);
}

void* ZKAlloc(unsigned int bytes) { return std::malloc(bytes); }

void ZKFree(void* block) { std::free(block); }
