// Colour for text about components.
#pragma once

#include <string>
#include <string_view>

namespace tintvert::core {

// Text in the colour of a component, and plain text where there is no colour.
class Painter {
public:
    explicit Painter(bool on) : on_(on) {}
    bool on() const { return on_; }
    std::string operator()(std::string_view component, std::string_view text, bool strong = false) const;

private:
    bool on_;
};

}  // namespace tintvert::core
