// The routines by number, in the order of routines(): a table about them is checked by the compiler.
#pragma once

#include <cstddef>

#include "catalog.h"

namespace tintvert::catalog {

enum class RoutineId : size_t {
#define TNTVT_ROUTINE(name) name,
#include "routines.def"
#undef TNTVT_ROUTINE
    count
};

inline constexpr size_t routine_count = static_cast<size_t>(RoutineId::count);

// The record of each, under its name.
namespace records {
#define TNTVT_ROUTINE(name) extern const Routine name;
#include "routines.def"
#undef TNTVT_ROUTINE

inline constexpr const Routine* all[] = {
#define TNTVT_ROUTINE(name) &name,
#include "routines.def"
#undef TNTVT_ROUTINE
};
}  // namespace records

inline const Routine& routine_at(RoutineId id) { return *records::all[static_cast<size_t>(id)]; }
inline RoutineId id_of(const Routine& routine) { return routine.id; }

}  // namespace tintvert::catalog
