// Whether this program is built with a sanitizer, which reports some bugs in its own way: as macros and as a constant.
#pragma once

#if defined(__SANITIZE_ADDRESS__)
#define TINTVERT_TEST_ASAN 1
#elif defined(__SANITIZE_THREAD__)
#define TINTVERT_TEST_TSAN 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define TINTVERT_TEST_ASAN 1
#elif __has_feature(thread_sanitizer)
#define TINTVERT_TEST_TSAN 1
#endif
#endif

#if defined(TINTVERT_TEST_ASAN) || defined(TINTVERT_TEST_TSAN)
#define TINTVERT_TEST_SANITIZED 1
#endif

namespace tintvert::test {

#ifdef TINTVERT_TEST_SANITIZED
inline constexpr bool sanitized = true;
#else
inline constexpr bool sanitized = false;
#endif

}  // namespace tintvert::test
