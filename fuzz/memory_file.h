// The bytes of a case as a file that has a name and takes no room on a disk.
#pragma once

#include <cstdint>
#include <filesystem>
#include <span>

namespace tintvert::fuzz {

// Stays until the next one is made.
std::filesystem::path memory_file(std::span<const uint8_t> bytes);

}  // namespace tintvert::fuzz
