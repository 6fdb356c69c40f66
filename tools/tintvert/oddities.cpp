#include "oddities.h"

#include <fmt/format.h>

#include <algorithm>

namespace tintvert::tool {
namespace {

std::string_view trimmed(std::string_view text)
{
    while (text.starts_with(' ')) text.remove_prefix(1);
    while (text.ends_with(' ')) text.remove_suffix(1);
    return text;
}

std::string_view take_line(std::string_view* text)
{
    const std::string_view line = text->substr(0, text->find('\n'));
    text->remove_prefix(std::min(line.size() + 1, text->size()));
    return line;
}

std::string_view take_cell(std::string_view* row)
{
    const std::string_view cell = row->substr(0, row->find('|'));
    row->remove_prefix(std::min(cell.size() + 1, row->size()));
    return trimmed(cell);
}

}  // namespace

// "the same" stands for the routines of the row above.
std::vector<Oddity> oddities_of(std::string_view routine)
{
    const std::string quoted = fmt::format("`{}`", routine);
    std::vector<Oddity> oddities;
    bool before = false;
    for (std::string_view page = deliberate_page(); !page.empty();) {
        std::string_view row = take_line(&page);
        if (!row.starts_with("| keeps_")) continue;
        row.remove_prefix(1);
        const std::string_view name = take_cell(&row), routines = take_cell(&row), what = take_cell(&row);
        const bool own = routines.starts_with("the same") ? before : routines.find(quoted) != std::string_view::npos;
        if (own) oddities.push_back({name, what});
        before = own;
    }
    return oddities;
}

}  // namespace tintvert::tool
