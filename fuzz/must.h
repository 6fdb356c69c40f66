// What has to be true. The sanitizers and libFuzzer report everything else.
#pragma once

#include <cstdio>
#include <cstdlib>

namespace tintvert::fuzz {

inline void must(bool holds, const char* what, const char* about = "")
{
    if (holds) return;
    std::fprintf(stderr, "does not hold: %s%s%s\n", what, *about == 0 ? "" : ": ", about);
    std::abort();
}

}  // namespace tintvert::fuzz
