// Pictures in a terminal by libchafa, if the tool is built with it.
#pragma once

#include <string>

#include "inspect/terminal_picture.h"

namespace tintvert::core {

// What the environment says of the terminal, the finest first: kitty, sixels, symbols. Blocks without libchafa.
Drawing finest_drawing();
bool has_chafa();

// Symbols, sixels or kitty, `columns` wide. Throws Failure (usage) without libchafa.
std::string chafa_picture(const Picture& picture, long columns, Drawing drawing);

}  // namespace tintvert::core
