// The program's own malloc and free in place of the heap's, for routines that take a record for a call.
#pragma once

#include <cstddef>
#include <functional>
#include <vector>

namespace tintvert::test {

struct HeapCall {
    bool is_malloc;  // or free
    size_t bytes;    // asked for
    void* block;     // answered or given back
};

// False under the sanitizers, which have a heap of their own.
bool heap_is_watched();

// What `work` asks of the heap. `work` must not throw. At most 64 calls are reported.
std::vector<HeapCall> heap_calls_of(const std::function<void()>& work);

// Runs `work` while malloc has nothing to give.
void without_memory(const std::function<void()>& work);

}  // namespace tintvert::test
