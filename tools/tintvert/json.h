// The tool's JSON. Keys keep their names and their meaning while `schema` stays the same; keys may be added.
#pragma once

#include <fmt/format.h>

#include <nlohmann/json.hpp>
#include <string_view>

#include "catalog.h"
#include "core.h"

namespace tintvert::tool {

using Json = nlohmann::ordered_json;

constexpr int json_schema = 1;

// All in ASCII, so that no byte of a file name reaches the terminal as it is. -1 is one line.
inline void write_json(const Json& json, int indent = 2)
{
    fmt::print("{}\n", json.dump(indent, ' ', true, Json::error_handler_t::replace));
}

// A routine that neither reads nor writes pixels has null for a layout.
inline Json layout_to_json(std::string_view layout) { return layout == "none" ? Json() : Json(layout); }

inline Json to_json(const catalog::Routine& routine)
{
    return {{"name", routine.name},
            {"chapter", routine.chapter},
            {"summary", routine.summary},
            {"reads", layout_to_json(routine.from->name)},
            {"writes", layout_to_json(routine.to->name)}};
}

}  // namespace tintvert::tool
