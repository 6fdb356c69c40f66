// Stores to some variables, one at a time: their pages are closed to stores, each store faults, is let through by
// itself, and the variables can be looked at before the next.
#pragma once

#include <cstddef>
#include <functional>
#include <vector>

namespace tintvert::test {

// The variables' pages may hold others, whose stores are seen as well.
struct Watched {
    const void* begin;
    size_t bytes;
};

// False on other processors, and under the thread sanitizer, which holds signals back.
bool can_watch_stores();

// Runs `work`, and `look` after each of its stores to a page of `what`. `look` runs in a signal handler.
void watch_stores(const std::vector<Watched>& what, const std::function<void()>& work,
                  const std::function<void()>& look);

}  // namespace tintvert::test
