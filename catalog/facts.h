// What else is known of each routine: its other names, its quirks, whom it calls, and who does the same work.
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "catalog.h"

namespace tintvert::catalog {

// The routine that this one is a second name of; null if it has a body of its own.
inline const Routine* alias_of(const Routine& routine) { return routine.alias_of; }

// Takes its arguments and does nothing.
bool is_empty_entry(const Routine& routine);

// Names of docs/quirks.md.
std::vector<std::string_view> quirks_of(const Routine& routine);

// Functions of the companion libraries.
std::vector<std::string_view> companions_of(const Routine& routine);

// The nearest command.
std::optional<Peer> peer_of(const Routine& routine);

}  // namespace tintvert::catalog
