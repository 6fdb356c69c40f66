#include "heap.h"

#include <cstdlib>

#include "support/sanitized.h"

namespace tintvert::test {
namespace {

HeapCall log[64];
size_t logged = 0;
bool watching = false, exhausted = false;

}  // namespace

#ifdef TINTVERT_TEST_SANITIZED
bool heap_is_watched() { return false; }
#else
bool heap_is_watched() { return true; }

void* take(size_t bytes, void* (*from)(size_t))
{
    if (exhausted) return nullptr;
    void* const block = from(bytes);
    if (watching && logged < std::size(log)) log[logged++] = {true, bytes, block};
    return block;
}

void give_back(void* block, void (*to)(void*))
{
    if (watching && logged < std::size(log)) log[logged++] = {false, 0, block};
    to(block);
}
#endif

std::vector<HeapCall> heap_calls_of(const std::function<void()>& work)
{
    logged = 0;
    watching = true;
    work();
    watching = false;
    return {log, log + logged};
}

void without_memory(const std::function<void()>& work)
{
    exhausted = true;
    work();
    exhausted = false;
}

}  // namespace tintvert::test

#ifndef TINTVERT_TEST_SANITIZED
#pragma GCC visibility push(default)  // the library binds to these only if the program exports them
extern "C" {

void* __libc_malloc(size_t bytes);
void __libc_free(void* block);

void* malloc(size_t bytes) noexcept { return tintvert::test::take(bytes, __libc_malloc); }
void free(void* block) noexcept { tintvert::test::give_back(block, __libc_free); }
}
#pragma GCC visibility pop
#endif
