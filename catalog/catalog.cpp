#include "catalog.h"

#include <algorithm>

#include "routine_id.h"

namespace tintvert::catalog {
namespace {

constexpr Argument arguments[] = {
#define TNTVT_ARGUMENT(name, kind, meaning) {#name, Argument::kind, meaning},
#include "arguments.def"
#undef TNTVT_ARGUMENT
};

}  // namespace

const Argument& describe(Arg argument) { return arguments[static_cast<size_t>(argument)]; }

bool Routine::takes(Arg argument) const { return std::ranges::find(arguments, argument) != arguments.end(); }

Table<Routine> routines() { return {records::all, routine_count}; }

const Routine* find(std::string_view name)
{
    for (const Routine& routine : routines())
        if (routine.name == name) return &routine;
    return nullptr;
}

}  // namespace tintvert::catalog
