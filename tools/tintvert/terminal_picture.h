// Pictures in a terminal.
#pragma once

#include <string>

#include "picture.h"

namespace tintvert::tool {

// Columns of the terminal that stdout is, or 80.
long terminal_columns();

// Reduced to at most `columns` by averages. In colour a character is two pixels, one above the other, as a half
// block; without, it is the brightness of both as a letter.
std::string terminal_picture(const Picture& picture, long columns, bool color);

}  // namespace tintvert::tool
