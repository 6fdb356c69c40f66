// What has to be true. The sanitizers and libFuzzer find everything else.
#pragma once

#include <cstdio>
#include <cstdlib>

namespace tintvert::fuzz {

inline void must(bool is_true, const char* what, const char* about = "")
{
    if (is_true) return;
    std::fprintf(stderr, "is not true: %s%s%s\n", what, *about == 0 ? "" : ": ", about);
    std::abort();
}

}  // namespace tintvert::fuzz
