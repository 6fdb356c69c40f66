// Text from outside as a terminal may safely show it.
#pragma once

#include <string>
#include <string_view>

namespace tintvert::core {

// Printable UTF-8 stays. Control characters, invalid UTF-8 and changes of the writing direction become `\x1B` for each
// byte. What comes out has no newline, and passes through unchanged a second time.
std::string printable(std::string_view text);

}  // namespace tintvert::core
