#include "io/clip_options.h"

#include <charconv>
#include <optional>

#include "failure.h"
#include "layouts.h"

namespace tintvert::core {
namespace {

constexpr int64_t most_pixels = int64_t{1} << 28, most_bytes = 0x7FFFFFFF;

// A number too large for int64_t becomes the largest one. What follows it stays in `text`.
std::optional<int64_t> leading_number(std::string_view& text)
{
    int64_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error == std::errc::invalid_argument) return {};
    if (error == std::errc::result_out_of_range) number = text[0] == '-' ? INT64_MIN : INT64_MAX;
    text.remove_prefix(static_cast<size_t>(end - text.data()));
    return number;
}

}  // namespace

Size size_of(const std::string& text)
{
    std::string_view rest = text;
    const auto width = leading_number(rest);
    const bool has_x = rest.starts_with('x');
    if (has_x) rest.remove_prefix(1);
    const auto height = leading_number(rest);
    if (!width || !has_x || !height || !rest.empty())
        throw Failure(Exit::usage, "a size is WIDTHxHEIGHT, such as 1920x1080, and not '{}'", text);
    need_sane_size({*width, *height});
    return {*width, *height};
}

void need_sane_size(Size size)
{
    if (size.width < 1 || size.height < 1) throw Refusal("refused: a picture of {}x{}", size.width, size.height);
    if (size.height > most_pixels / size.width)
        throw Refusal("refused: a picture of {}x{}, which is more than 2^28 pixels", size.width, size.height);
}

FrameRange frame_range_of(const std::string& text)
{
    if (text.empty()) return {};
    std::string_view rest = text;
    const auto first = leading_number(rest);
    std::optional<int64_t> end = first;
    if (rest.empty() && first && *first < INT64_MAX) {
        end = *first + 1;
    } else if (rest.starts_with(':')) {
        rest.remove_prefix(1);
        end = leading_number(rest);
    }
    if (!first || !end || !rest.empty() || *first < 0 || *end <= *first)
        throw Failure(Exit::usage, "frames are A:B or A, and not '{}'", text);
    return {*first, *end};
}

int64_t stride_of(const std::string& text, std::string_view layout, Size size)
{
    if (text.empty()) return 0;
    const catalog::Layout& about = *catalog::find_layout(layout);
    const int64_t least = about.tight_line_bytes(size.width);
    if (about.planes() != catalog::Planes::packed || least == 0)
        throw Failure(Exit::usage, "{} has no lines to take at a --stride", layout);
    if (text == "packed") return least;
    if (text == "auto64") return ((layout == "v210" ? size.width * 16 / 6 : least) + 63) / 64 * 64;
    if (text == "auto48") {
        if (layout != "v210") throw Failure(Exit::usage, "--stride auto48 is for v210, and not for {}", layout);
        return about.line_bytes(size.width);
    }
    std::string_view rest = text;
    const auto bytes = leading_number(rest);
    if (!bytes || !rest.empty())
        throw Failure(Exit::usage, "a stride is auto48, auto64, packed or bytes, and not '{}'", text);
    if (*bytes < least)
        throw Refusal("refused: lines of {} bytes; {} pixels of {} take {}", *bytes, size.width, layout, least);
    if (*bytes > most_bytes / size.height)
        throw Refusal("refused: {} lines of {} bytes are more than 2^31", size.height, *bytes);
    return *bytes;
}

}  // namespace tintvert::core
