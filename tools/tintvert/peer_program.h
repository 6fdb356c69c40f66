// Independent programs, run on bytes of ours.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace tintvert::tool {

// Whether a program of that name stands on the path.
bool is_installed(const std::string& program);

struct PeerOutput {
    int code;  // its exit code, or minus the signal that ended it
    std::vector<uint8_t> bytes;
    std::string words;  // what it said on stderr
};

// `input` on its stdin, its stdout kept. No shell is asked. Throws Failure if no process can be made.
PeerOutput run_peer(const std::vector<std::string>& command, const std::vector<uint8_t>& input);

}  // namespace tintvert::tool
