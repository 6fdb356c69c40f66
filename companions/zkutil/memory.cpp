#include <cstdlib>
#include <cstring>

#include "zkutil.h"

void CopyMemoryFast(void* destination, const void* source, unsigned int bytes)
{
    std::memmove(destination, source, bytes);
}

void* ZKAlloc(unsigned int bytes) { return std::malloc(bytes); }

void ZKFree(void* block) { std::free(block); }
