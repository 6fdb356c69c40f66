// Frames of ours against frames of a peer.
#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>
#include <vector>

namespace tintvert::test {

// Every value the same. No values at all agree with nothing.
template <typename Value>
testing::AssertionResult same(const std::vector<Value>& ours, const std::vector<Value>& theirs)
{
    if (ours.size() != theirs.size())
        return testing::AssertionFailure() << ours.size() << " values of ours, " << theirs.size() << " of theirs";
    if (ours.empty()) return testing::AssertionFailure() << "nothing to compare";
    size_t differ = 0, first = 0;
    for (size_t i = ours.size(); i-- > 0;) {
        if (ours[i] == theirs[i]) continue;
        first = i;
        ++differ;
    }
    if (differ == 0) return testing::AssertionSuccess();
    return testing::AssertionFailure() << differ << " of " << ours.size() << " values differ, the first at " << first
                                       << ": ours " << +ours[first] << ", theirs " << +theirs[first];
}

// No value further than `most` from its fellow, and the mean of the distances no more than `mean`.
template <typename Value>
testing::AssertionResult within(double most, double mean, const std::vector<Value>& ours,
                                const std::vector<Value>& theirs)
{
    if (ours.size() != theirs.size())
        return testing::AssertionFailure() << ours.size() << " values of ours, " << theirs.size() << " of theirs";
    if (ours.empty()) return testing::AssertionFailure() << "nothing to compare";
    double largest = 0, sum = 0;
    size_t where = 0;
    for (size_t i = 0; i < ours.size(); ++i) {
        const double distance = std::abs(static_cast<double>(ours[i]) - static_cast<double>(theirs[i]));
        sum += distance;
        if (distance <= largest) continue;
        largest = distance;
        where = i;
    }
    const double average = sum / static_cast<double>(ours.size());
    if (largest <= most && average <= mean) return testing::AssertionSuccess();
    return testing::AssertionFailure() << "distances up to " << largest << " (at " << where << ": ours " << +ours[where]
                                       << ", theirs " << +theirs[where] << "), mean " << average;
}

}  // namespace tintvert::test
