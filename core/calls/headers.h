// What the public headers say of a routine. Their text is compiled into the tool, so the header is the one
// place where a routine is described.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace tintvert::core {

// One header of include/tintvert/; filled in when the tool is built. The headers rgb.h and rgb_8bit.h are both of the
// chapter rgb.
struct Header {
    std::string_view chapter, text;
};
std::span<const Header> headers();

struct Declaration {
    std::string prototype;      // on one line, without the export mark
    std::string documentation;  // the comment above it, without the comment marks
};

// Empty strings if no header of the chapter declares the routine.
Declaration declaration_of(std::string_view chapter, std::string_view routine);

}  // namespace tintvert::core
