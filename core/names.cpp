#include "names.h"

#include <fmt/format.h>

#include <algorithm>
#include <numeric>
#include <utility>
#include <vector>

#include "failure.h"

namespace tintvert::core {
namespace {

// Single characters inserted, left out or replaced.
size_t edits(std::string_view one, std::string_view other)
{
    std::vector<size_t> row(other.size() + 1);
    std::iota(row.begin(), row.end(), size_t{0});
    for (size_t i = 0; i < one.size(); ++i) {
        size_t diagonal = std::exchange(row[0], i + 1);
        for (size_t j = 0; j < other.size(); ++j) {
            const size_t replaced = diagonal + (one[i] == other[j] ? 0 : 1);
            diagonal = row[j + 1];
            row[j + 1] = std::min({replaced, row[j] + 1, diagonal + 1});
        }
    }
    return row.back();
}

size_t distance(std::string_view typed, std::string_view name)
{
    constexpr std::string_view prefix = "tntvt_";
    const size_t whole = edits(typed, name);
    return name.starts_with(prefix) ? std::min(whole, edits(typed, name.substr(prefix.size()))) : whole;
}

}  // namespace

std::string suggestion(std::string_view typed, std::span<const std::string_view> candidates)
{
    const auto nearest = std::ranges::min_element(
        candidates, {}, [&](std::string_view candidate) { return distance(typed, candidate); });
    if (nearest == candidates.end() || distance(typed, *nearest) > 1 + typed.size() / 3) return {};
    return fmt::format("; did you mean '{}'?", *nearest);
}

const catalog::Routine& routine_named(std::string_view name)
{
    if (const catalog::Routine* routine = catalog::find(name)) return *routine;
    std::vector<std::string_view> names;
    for (const catalog::Routine& routine : catalog::routines()) names.push_back(routine.name);
    throw Failure(Exit::usage, "there is no routine '{}'{}", name, suggestion(name, names));
}

const catalog::Layout& layout_named(std::string_view name)
{
    if (const catalog::Layout* layout = catalog::find_layout(name)) return *layout;
    std::vector<std::string_view> names;
    for (const catalog::Layout& layout : catalog::layouts()) names.push_back(layout.name);
    throw Failure(Exit::usage, "there is no layout '{}'{}", name, suggestion(name, names));
}

}  // namespace tintvert::core
