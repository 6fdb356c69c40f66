// Tables that are filled by whoever needs them first.
//
// The flag is a plain variable, tested on every call and stored after the last entry. Two first callers
// both fill the table; every entry gets the same value from both, so neither sees a wrong one. Stores
// become visible in program order on the x86 processors that the library serves, and the fence keeps the
// compiler to that order. There is no lock and no atomic operation.
#pragma once

#include <atomic>

// The flag and the entries race by design; this keeps the thread sanitizer to the races that matter.
#if defined(__SANITIZE_THREAD__)
#define TNTVT_FIRST_USE __attribute__((no_sanitize("thread"), noinline))
#elif defined(__has_feature)
#if __has_feature(thread_sanitizer)
#define TNTVT_FIRST_USE __attribute__((no_sanitize("thread"), noinline))
#endif
#endif
#ifndef TNTVT_FIRST_USE
#define TNTVT_FIRST_USE
#endif

namespace tintvert {

inline void entries_before_flag() { std::atomic_signal_fence(std::memory_order_release); }

}  // namespace tintvert
