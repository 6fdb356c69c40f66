// Routines that an independent program agrees with, and how it is asked.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tintvert::tool {

struct PeerCheck {
    enum Direction { same, back };  // it does what the routine does, or takes the routine's result back
    enum Depth { whole, upper8 };   // all bits of a sample, or its upper eight

    std::string_view routine, program, from, to;  // formats by the program's names
    std::string_view filter = {};                 // FFmpeg's filters, or videoconvert's options
    Direction direction = same;
    Depth depth = whole;
};

std::span<const PeerCheck> peer_checks();

// The program and its arguments: raw frames from stdin to stdout.
std::vector<std::string> peer_command(const PeerCheck& check, int64_t width, int64_t height);

struct PeerVerdict {
    enum Kind { equal, differs, skipped } kind;
    std::string why;  // where it differs, or what was missing
};

// One frame of noise through both.
PeerVerdict verify_by_peer(const PeerCheck& check);

}  // namespace tintvert::tool
