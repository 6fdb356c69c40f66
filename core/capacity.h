// What a layout can store of a picture, from which follows what a conversion loses.
#pragma once

#include <span>
#include <string_view>

namespace tintvert::core {

// Ordered: each has all that those before it have.
enum class Chroma { none, c420, c422, c444 };

struct Capacity {
    std::string_view layout;
    std::string_view bytes;  // the first of the layouts with the same bytes
    int bits;                // of a sample
    Chroma chroma;
    bool alpha;
};

std::span<const Capacity> capacities();
const Capacity& capacity_of(std::string_view layout);  // throws Failure for a name that is no layout

}  // namespace tintvert::core
