// What has to hold. The sanitizers and libFuzzer tell the rest.
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
