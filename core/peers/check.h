// Routines that an independent program or library agrees with, and what it is asked.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tintvert::core {

struct PeerCheck {
    enum Direction { same, back };  // it does what the routine does, or takes the routine's result back
    // Samples with all their bits, with their upper eight, or give or take 1; or bytes, whatever they are.
    enum Depth { samples, upper8, within1, bytes };

    std::string_view routine, peer;
    std::string_view asked;  // a command in the words of catalog/peers.def, or what a library is asked for
    Direction direction = same;
    Depth depth = samples;
};

// In the order of the routines: every command that the catalogue calls exact, and what the table adds.
std::vector<PeerCheck> peer_checks();

struct PeerVerdict {
    enum Kind { equal, near, differs, skipped } kind;
    std::string why;  // how near, where it differs, or what was missing
};

// One frame of noise through both.
PeerVerdict verify_by_peer(const PeerCheck& check);

}  // namespace tintvert::core
