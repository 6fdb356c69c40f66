#include "color.h"

#include <fmt/format.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <iterator>

namespace tintvert::tool {
namespace {

struct Shade {
    std::string_view component;
    int code;  // of the terminal's sixteen
};

constexpr Shade shades[] = {{"Y", 33}, {"Cb", 94}, {"Cr", 91}, {"R", 31}, {"G", 32}, {"B", 34}, {"A", 36}};

}  // namespace

void add_color_option(CLI::App* app, std::string* choice)
{
    app->add_option("--color", *choice, "colour; auto is for a terminal, unless NO_COLOR is set")
        ->default_str("auto")
        ->check(CLI::IsMember({"auto", "always", "never"}));
}

bool wants_color(const std::string& choice)
{
    if (choice == "always" || choice == "never") return choice == "always";
    const char* const no = std::getenv("NO_COLOR");
    return (no == nullptr || *no == '\0') && isatty(STDOUT_FILENO) != 0;
}

std::string Painter::operator()(std::string_view component, std::string_view text, bool strong) const
{
    if (!on_) return std::string(text);
    const auto shade = std::ranges::find(shades, component, &Shade::component);
    const int code = shade == std::end(shades) ? 90 : shade->code;
    return fmt::format("\x1b[{}{}m{}\x1b[0m", strong ? "1;" : "", code, text);
}

}  // namespace tintvert::tool
