#include "facts.h"

#include <algorithm>

namespace tintvert::catalog {

bool is_empty_entry(const Routine& routine)
{
    return !routine.arguments.empty() && routine.companions.empty() &&
           std::ranges::all_of(routine.arguments, [](Arg argument) { return argument == Arg::ignored; });
}

std::vector<std::string_view> quirks_of(const Routine& routine)
{
    return {routine.quirks.begin(), routine.quirks.end()};
}

std::vector<std::string_view> companions_of(const Routine& routine)
{
    return {routine.companions.begin(), routine.companions.end()};
}

std::optional<Peer> peer_of(const Routine& routine)
{
    if (routine.peers.empty()) return std::nullopt;
    const Peer& first = routine.peers[0];
    const bool is_command = first.program == peers::ffmpeg_program || first.program == peers::gstreamer_program;
    return is_command ? std::optional(first) : std::nullopt;
}

}  // namespace tintvert::catalog
