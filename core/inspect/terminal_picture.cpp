#include "inspect/terminal_picture.h"

#include <fmt/format.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <algorithm>
#include <string_view>

#include "inspect/chafa_picture.h"

namespace tintvert::core {
namespace {

// Each pixel is the average of those that it covers.
Picture reduced(const Picture& from, long width, long height)
{
    Picture to(width, height);
    for (long y = 0; y < height; ++y) {
        const long top = y * from.height / height, bottom = std::max((y + 1) * from.height / height, top + 1);
        for (long x = 0; x < width; ++x) {
            const long left = x * from.width / width, right = std::max((x + 1) * from.width / width, left + 1);
            long sums[3] = {};
            for (long line = top; line < bottom; ++line)
                for (long column = left; column < right; ++column)
                    for (long c = 0; c < 3; ++c) sums[c] += from.pixel(column, line)[c];
            for (long c = 0; c < 3; ++c)
                to.pixel(x, y)[c] = static_cast<uint8_t>(sums[c] / ((bottom - top) * (right - left)));
        }
    }
    return to;
}

std::string half_block(const uint8_t* upper, const uint8_t* lower)
{
    std::string text = fmt::format("\x1b[38;2;{};{};{}m", upper[0], upper[1], upper[2]);
    if (lower != nullptr) text += fmt::format("\x1b[48;2;{};{};{}m", lower[0], lower[1], lower[2]);
    return text + "\u2580";
}

char letter(const uint8_t* upper, const uint8_t* lower)
{
    constexpr std::string_view ramp = " .:-=+*#%@";
    const auto brightness = [](const uint8_t* p) { return (p[0] * 299 + p[1] * 587 + p[2] * 114) / 1000; };
    const int both = lower == nullptr ? brightness(upper) : (brightness(upper) + brightness(lower)) / 2;
    return ramp[static_cast<size_t>(both) * ramp.size() / 256];
}

}  // namespace

long terminal_columns()
{
    winsize size{};
    return ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0 ? size.ws_col : 80;
}

std::string terminal_picture(const Picture& picture, long columns, Drawing drawing)
{
    const long width = std::clamp<long>(columns, 1, picture.width);
    if (drawing != Drawing::letters && drawing != Drawing::blocks) return chafa_picture(picture, width, drawing);
    const bool color = drawing == Drawing::blocks;
    const long height = std::max<long>((picture.height * width + picture.width / 2) / picture.width, 1);
    const Picture small = reduced(with_8_bits(picture), width, height);
    std::string text;
    for (long y = 0; y < height; y += 2) {
        for (long x = 0; x < width; ++x) {
            const uint8_t *upper = small.pixel(x, y), *lower = y + 1 < height ? small.pixel(x, y + 1) : nullptr;
            if (color)
                text += half_block(upper, lower);
            else
                text += letter(upper, lower);
        }
        text += color ? "\x1b[0m\n" : "\n";
    }
    return text;
}

}  // namespace tintvert::core
