#include <tintvert/frame.h>

#include <cstdint>

#include "frame/imports.h"

namespace {

// `size` plus 31, 31 more if that is negative as a signed number, and the low five bits set.
unsigned int request_for(int size)
{
    unsigned int request = static_cast<unsigned int>(size) + 31;
    if (static_cast<int>(request) < 0) request += 31;
    return request | 31;
}

}  // namespace

void malloc_own_cache_lines(int size, void** raw, void** aligned)
{
    void* block = ZKAlloc(request_for(size));
    *raw = block;
    const uintptr_t past = reinterpret_cast<uintptr_t>(block) & 31;
    *aligned = past == 0 ? block : static_cast<unsigned char*>(block) + (32 - past);
}

void free_own_cache_lines(void** raw, void** aligned)
{
    if (*raw != nullptr) ZKFree(*raw);
    *raw = nullptr;
    *aligned = nullptr;
}
