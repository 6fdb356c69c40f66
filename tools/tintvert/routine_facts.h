// What the catalogue knows of a routine beside its arguments, as text and as JSON.
#pragma once

#include "facts.h"
#include "json.h"

namespace tintvert::tool {

// The command for frames of this size; W x H unchanged for one of 0 x 0.
std::string peer_command_at(const catalog::Peer& peer, int64_t width, int64_t height);

Json peer_to_json(const catalog::Routine& routine, int64_t width, int64_t height);

// alias_of, empty, in_place, quirks, companions, peer.
Json facts_to_json(const catalog::Routine& routine);

// A line for each that there is.
std::string facts_to_text(const catalog::Routine& routine);

}  // namespace tintvert::tool
