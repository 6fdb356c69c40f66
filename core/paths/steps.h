// The routines that roads are made of: those that carry a whole picture from one layout to another and do to it what
// their name says. docs/tool.md tells which stand aside, and why.
#pragma once

#include <span>
#include <string_view>

namespace tintvert::tool::road {

enum class Matrix { none, bt601, by_size };

struct Step {
    std::string_view routine;
    std::string_view from = {}, to = {};  // of routines that also go back: where not as in the catalogue
    Matrix matrix = Matrix::none;
    std::string_view chroma_by = {};  // what becomes of the chroma that has no room
    bool from_full_range = false;     // samples of full range become samples of video range
    bool wraps = false;               // colours outside the RGB cube wrap
    bool alpha_0 = false;             // the alpha that it makes is 0, and not 255
};

// In the order in which they are preferred.
std::span<const Step> steps();

}  // namespace tintvert::tool::road
