#include "calls/headers.h"

#include <algorithm>
#include <cctype>

namespace tintvert::core {
namespace {

constexpr std::string_view mark = "TNTVT_API ";

bool is_blank(char c) { return std::isspace(static_cast<unsigned char>(c)) != 0; }

// "/* One\n * two. */" becomes "One\ntwo."
std::string without_comment_marks(std::string_view comment)
{
    std::string text;
    if (comment.empty()) return text;
    comment.remove_prefix(2);
    comment.remove_suffix(2);
    while (!comment.empty()) {
        std::string_view line = comment.substr(0, comment.find('\n'));
        comment.remove_prefix(std::min(line.size() + 1, comment.size()));
        if (line.starts_with(" *")) line.remove_prefix(2);
        if (line.starts_with(' ')) line.remove_prefix(1);
        while (line.ends_with(' ')) line.remove_suffix(1);
        text.append(line).append("\n");
    }
    text.erase(text.find_last_not_of('\n') + 1);
    return text;
}

// One blank wherever there are any.
std::string on_one_line(std::string_view declaration)
{
    std::string text;
    for (const char c : declaration) {
        if (!is_blank(c))
            text += c;
        else if (!text.empty() && text.back() != ' ')
            text += ' ';
    }
    return text;
}

bool declares(std::string_view prototype, std::string_view routine)
{
    const size_t bracket = prototype.find('(');
    if (bracket == std::string_view::npos) return false;
    const std::string_view before = prototype.substr(0, bracket);
    return before.ends_with(routine) && before.size() > routine.size() &&
           (before[before.size() - routine.size() - 1] == ' ' || before[before.size() - routine.size() - 1] == '*');
}

// The comment of a declaration is the one directly above it.
Declaration declaration_in(std::string_view rest, std::string_view routine)
{
    const size_t opening = rest.find("\nTNTVT_BEGIN");
    if (opening != std::string_view::npos) rest.remove_prefix(opening + 12);

    std::string_view comment;
    while (true) {
        while (!rest.empty() && is_blank(rest.front())) rest.remove_prefix(1);
        const bool in_comment = rest.starts_with("/*");
        const std::string_view end = in_comment ? "*/" : rest.starts_with('#') ? "\n" : ";";
        const size_t found = rest.find(end, in_comment ? 2 : 0);
        if (found == std::string_view::npos) return {};
        const std::string_view piece = rest.substr(0, found + end.size());
        rest.remove_prefix(piece.size());
        if (piece.starts_with(mark)) {
            std::string prototype = on_one_line(piece.substr(mark.size()));
            if (declares(prototype, routine)) return {std::move(prototype), without_comment_marks(comment)};
        }
        comment = in_comment ? piece : std::string_view();
    }
}

}  // namespace

Declaration declaration_of(std::string_view chapter, std::string_view routine)
{
    for (const Header& header : headers()) {
        if (header.chapter != chapter) continue;
        Declaration found = declaration_in(header.text, routine);
        if (!found.prototype.empty()) return found;
    }
    return {};
}

}  // namespace tintvert::core
