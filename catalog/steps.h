// What a routine is good for as a step of a conversion path: routines that carry a whole picture from one layout to
// another and do what their name says.
#pragma once

#include <string_view>

namespace tintvert::catalog {

struct Layout;

enum class Matrix { none, bt601, by_size };

// What becomes of chroma for which the new layout has no room.
enum class ChromaLoss { none, filtered, dropped, averaged };

struct Step {
    int rank = 0;                                 // of several paths that lose the same, the lower rank is preferred
    const Layout *from = nullptr, *to = nullptr;  // where they differ from those of the record
    Matrix matrix = Matrix::none;
    ChromaLoss chroma = ChromaLoss::none;
    bool wraps = false;    // colours outside the RGB cube wrap
    bool alpha_0 = false;  // the alpha that it makes is 0, and not 255
};

}  // namespace tintvert::catalog
