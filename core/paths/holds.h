// What a layout can hold of a picture, so that it can be said what a picture loses on its way.
#pragma once

#include <span>
#include <string_view>

namespace tintvert::tool::road {

// Ordered: each has all that those before it have.
enum class Chroma { none, c420, c422, c444 };

struct Holds {
    std::string_view layout;
    std::string_view bytes;  // the layout whose name stands for these bytes; several names may share them
    int bits;                // of a sample
    Chroma chroma;
    bool alpha;
};

std::span<const Holds> all_holds();
const Holds& holds_of(std::string_view layout);  // throws Failure for a name that is no layout

}  // namespace tintvert::tool::road
