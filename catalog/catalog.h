// What is known of each routine: one record, in routines/<chapter>.cpp. The checked calls, the tests, the benchmarks
// and the tool use the catalogue; the library does not.
#pragma once

#include <span>
#include <string_view>

#include "arguments.h"
#include "few.h"
#include "in_place.h"
#include "layouts.h"
#include "peers.h"
#include "refusals.h"
#include "shape.h"
#include "steps.h"
#include "table.h"

namespace tintvert::catalog {

enum class RoutineId : size_t;  // routine_id.h

namespace extents {
Extents untouched(const Arguments&);
}

// What a record states.
struct Facts {
    std::string_view chapter = {};
    const Layout* from = &layout::none;  // `none` also for routines that take any layout
    const Layout* to = &layout::none;
    Extents (*extents)(const Arguments&) = extents::untouched;
    Reason (*refuses)(const Arguments&) = nullptr;  // beyond what every routine refuses, sizes larger than memory
    InPlaceUse in_place = {};
    const Routine* alias_of = nullptr;         // the routine of which this one is a second name
    Few<std::string_view, 12> quirks = {};     // names of docs/quirks.md
    Few<std::string_view, 4> companions = {};  // functions of the companion libraries that it calls
    Few<Peer, 4> peers = {};                   // who does the same work, the nearest command first
    Few<Step, 2> steps = {};                   // what it is good for in a conversion path, if anything
    std::string_view summary = {};
};

// A record, and what follows from the routine's declaration.
struct Routine : Facts {
    RoutineId id;
    std::string_view name;
    const Shape* shape;
    std::span<const Arg> arguments;
    bool (*fits_in_memory)(const Arguments&);
    int64_t (*call)(const Arguments&);  // 0 from a routine that returns nothing
    std::string_view result;            // C types: of what is returned, and of each argument
    std::span<const std::string_view> types;

    bool takes(Arg argument) const;
};

Table<Routine> routines();
const Routine* find(std::string_view name);  // null if there is none

}  // namespace tintvert::catalog
