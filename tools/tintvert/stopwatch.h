// How long a piece of work takes.
#pragma once

#include <algorithm>
#include <array>
#include <chrono>

namespace tintvert::tool {

// The middle one of nine runs, in nanoseconds, after a first that only warms up.
template <class Work>
double median_ns(Work work)
{
    using Clock = std::chrono::steady_clock;
    work();
    std::array<double, 9> runs{};
    for (double& run : runs) {
        const Clock::time_point start = Clock::now();
        work();
        run = std::chrono::duration<double, std::nano>(Clock::now() - start).count();
    }
    std::ranges::nth_element(runs, runs.begin() + 4);
    return runs[4];
}

}  // namespace tintvert::tool
