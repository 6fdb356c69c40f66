// The tool's JSON. Keys keep their names and their meaning while `schema` stays the same; keys may be added.
#pragma once

#include <nlohmann/json.hpp>
#include <string_view>

#include "catalog.h"
#include "core.h"

namespace tintvert::tool {

using Json = nlohmann::ordered_json;

constexpr int json_schema = 1;

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
