// The routines that conversion paths are made of: those that convert a whole picture from one layout to another.
// docs/tool.md says which routines are left out, and why.
#pragma once

#include <span>
#include <string_view>

namespace tintvert::core::paths {

enum class Matrix { none, bt601, by_size };

struct StepRule {
    std::string_view routine;
    std::string_view from = {}, to = {};  // of routines that also go back: where not as in the catalogue
    Matrix matrix = Matrix::none;
    std::string_view chroma_by = {};  // how chroma is reduced
    bool from_full_range = false;     // samples of full range become samples of video range
    bool wraps = false;               // colours outside the RGB cube wrap
    bool alpha_0 = false;             // the alpha that it makes is 0, and not 255
};

// In the order in which they are preferred.
std::span<const StepRule> steps();

}  // namespace tintvert::core::paths
