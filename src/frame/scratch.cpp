#include <tintvert/frame.h>

#include <cstdint>

#include "frame/imports.h"
#include "frame/memory.h"

namespace {

// `size` plus 31, 31 more if that is negative as a signed number, and the low five bits set.
unsigned int request_for(int size)
{
    unsigned int request = static_cast<unsigned int>(size) + 31;
    if (static_cast<int>(request) < 0) request += 31;
    return request | 31;
}

}  // namespace

using namespace tintvert;

void malloc_own_cache_lines(int size, void** raw, void** aligned)
{
    void* block = ZKAlloc(request_for(size));
    store(raw, block);
    const uintptr_t past = reinterpret_cast<uintptr_t>(block) & 31;
    store<void*>(aligned, past == 0 ? block : static_cast<unsigned char*>(block) + (32 - past));
}

void free_own_cache_lines(void** raw, void** aligned)
{
    if (void* const block = load<void*>(raw); block != nullptr) ZKFree(block);
    store<void*>(raw, nullptr);
    store<void*>(aligned, nullptr);
}
