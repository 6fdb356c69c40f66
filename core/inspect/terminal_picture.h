// Pictures in a terminal.
#pragma once

#include <string>

#include "io/pictures/picture.h"

namespace tintvert::core {

// Letters by brightness, half blocks in 24-bit colour, and what libchafa draws: symbols of many shapes, and pixels by
// the sequences of sixels or of kitty.
enum class Drawing { letters, blocks, symbols, sixels, kitty };

// Columns of the terminal that stdout is, or 80.
long terminal_columns();

// Reduced to at most `columns`; a picture of fewer pixels has as many columns as pixels. Throws Failure (usage) for
// what this build cannot draw.
std::string terminal_picture(const Picture& picture, long columns, Drawing drawing);

}  // namespace tintvert::core
