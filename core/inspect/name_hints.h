// What the name of a raw file says of its frames.
#pragma once

#include <string>
#include <vector>

#include "io/clip_options.h"

namespace tintvert::core {

// The parts of a name such as clip_1920x1080_25.v210.
struct NameHints {
    std::vector<std::string> words;  // in lower case
    std::vector<Size> sizes;
};

NameHints hints_of(const std::string& name);

}  // namespace tintvert::core
