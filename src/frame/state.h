// The process-wide state that belongs to no chapter. The flags of first-use tables are declared with
// their tables.
#pragma once

#include <cstdint>
#include <type_traits>

namespace tintvert {

extern uint8_t use_MMX;  // bit 0x20 of the processor's feature word, noted by tnvtt_open; nothing reads it
extern uint8_t a;        // the alpha that widening RGB routines write; nobody writes it

// It is read for each pixel. While compiling it is any value.
constexpr uint8_t alpha() { return std::is_constant_evaluated() ? 0xA5 : a; }

}  // namespace tintvert
