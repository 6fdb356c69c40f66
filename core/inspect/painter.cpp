#include "inspect/painter.h"

#include <fmt/format.h>

#include <algorithm>
#include <iterator>

namespace tintvert::core {
namespace {

struct Shade {
    std::string_view component;
    int code;  // of the terminal's sixteen
};

constexpr Shade shades[] = {{"Y", 33}, {"Cb", 94}, {"Cr", 91}, {"R", 31}, {"G", 32}, {"B", 34}, {"A", 36}};

}  // namespace

std::string Painter::operator()(std::string_view component, std::string_view text, bool strong) const
{
    if (!on_) return std::string(text);
    const auto shade = std::ranges::find(shades, component, &Shade::component);
    const int code = shade == std::end(shades) ? 90 : shade->code;
    return fmt::format("\x1b[{}{}m{}\x1b[0m", strong ? "1;" : "", code, text);
}

}  // namespace tintvert::core
