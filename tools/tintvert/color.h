// Colour in the terminal: --color, NO_COLOR, and whether anybody looks.
#pragma once

#include <CLI/CLI.hpp>
#include <string>
#include <string_view>

namespace tintvert::tool {

// --color=auto|always|never. By default there is colour on a terminal, unless NO_COLOR is set.
void add_color_option(CLI::App* app, std::string* choice);
bool wants_color(const std::string& choice);

// Text in the colour of a component, and plain text where there is no colour.
class Painter {
public:
    explicit Painter(bool on) : on_(on) {}
    bool on() const { return on_; }
    std::string operator()(std::string_view component, std::string_view text, bool strong = false) const;

private:
    bool on_;
};

}  // namespace tintvert::tool
