// Routines that an independent program or library agrees with, and what it is asked.
#pragma once

#include <string>
#include <vector>

#include "catalog.h"

namespace tintvert::core {

struct PeerCheck {
    const catalog::Routine* routine;
    const catalog::Peer* peer;
};

// In the order of the routines.
std::vector<PeerCheck> peer_checks();

struct PeerVerdict {
    enum Kind { equal, near, differs, skipped } kind;
    std::string why;  // how near, where it differs, or what was missing
};

// One frame of noise through both.
PeerVerdict verify_by_peer(const PeerCheck& check);

}  // namespace tintvert::core
