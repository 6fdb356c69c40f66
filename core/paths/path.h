// The way of a picture from one layout to another through the library's routines.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "catalog.h"
#include "io/clip_options.h"

namespace tintvert::core::paths {

struct Step {
    const catalog::Routine* routine;
    std::string_view from, to;
    std::vector<std::string> losses;  // in words
};

struct Path {
    std::string_view from, to;
    std::vector<Step> steps;                // none if the two layouts have the same bytes
    std::vector<std::string> other_losses;  // what is lost outside of the steps: in files, and by a name without alpha
    bool alpha = false;                     // whether the alpha of the start is still there

    std::vector<std::string> losses() const;
};

struct Start {
    std::string_view layout;
    bool opaque = false;  // its alpha says nothing, and is no loss
    Size size = {};       // {} if it is not known: then any matrix does
};

// The path that loses least and, of those, the shortest; where several are, the first by the order of the steps. The
// losses from the worst to the mildest: colour, a matrix for another size, wrapped colours, chroma across, chroma
// down, a matrix, low bits, alpha, range. Throws Failure (usage) if no path leads to any of the layouts.
Path find_path(const Start& start, std::span<const std::string_view> to);

// The layouts that can be reached, in the order of the catalogue.
std::vector<std::string_view> reachable(std::string_view from);

// One line for each step: the routine, its layouts and what is lost.
std::string to_text(const Path& path);

}  // namespace tintvert::core::paths
