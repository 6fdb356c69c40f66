// The memory that libtintvert keeps for itself: where certain bytes are in it.
#pragma once

#include <cstdint>
#include <vector>

namespace tintvert::test {

// Every place where these bytes are in the library's writable memory.
std::vector<uint8_t*> places_in_library(const std::vector<uint8_t>& bytes);

// Stores over what is at such a place.
void overwrite_in_library(uint8_t* place, const std::vector<uint8_t>& bytes);

}  // namespace tintvert::test
