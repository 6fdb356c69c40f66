#include "support/arena.h"

#include <sstream>

namespace tintvert::test {

testing::AssertionResult Arena::agrees(int64_t origin, int64_t stride) const
{
    size_t first = actual_.size(), last = 0, differing = 0;
    for (size_t i = 0; i < actual_.size(); ++i) {
        if (actual_[i] == expected_[i]) continue;
        if (differing++ == 0) first = i;
        last = i;
    }
    if (differing == 0) return testing::AssertionSuccess();

    const auto offset_of = [&](size_t i) { return static_cast<int64_t>(i) - below_ - origin; };
    std::ostringstream message;
    message << differing << " bytes differ, from offset " << offset_of(first) << " to " << offset_of(last);
    if (stride != 0)
        message << "; the first is line " << offset_of(first) / stride << ", byte " << offset_of(first) % stride;
    message << std::hex << "; it is 0x" << +actual_[first] << ", expected 0x" << +expected_[first];
    return testing::AssertionFailure() << message.str();
}

}  // namespace tintvert::test
