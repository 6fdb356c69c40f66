// One memory twice, filled alike: a routine works on the one, its reference on the other, and then every
// byte is compared, those that neither should touch included.
#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <vector>

#include "support/random.h"

namespace tintvert::test {

class Arena {
public:
    // `below` bytes before offset 0 and `above` bytes from there on.
    Arena(Random& random, int64_t below, int64_t above)
        : below_(below), actual_(random.bytes(static_cast<size_t>(below + above))), expected_(actual_)
    {}

    uint8_t* actual(int64_t offset = 0) { return actual_.data() + (below_ + offset); }
    uint8_t* expected(int64_t offset = 0) { return expected_.data() + (below_ + offset); }

    // The message counts from `origin`, in lines of `stride` bytes if that is not 0.
    testing::AssertionResult agrees(int64_t origin = 0, int64_t stride = 0) const;

private:
    int64_t below_;
    std::vector<uint8_t> actual_, expected_;
};

}  // namespace tintvert::test
