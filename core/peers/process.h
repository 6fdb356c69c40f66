// Independent programs, run on bytes of ours.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "peers/peer.h"

namespace tintvert::core {

// What a program makes of `input` on its stdin: its stdout, or why there is none, if it is not on the path or fails.
// No shell is asked. Throws Failure if no process can be made.
PeerAnswer answer_of(const std::vector<std::string>& command, const std::vector<uint8_t>& input);

}  // namespace tintvert::core
