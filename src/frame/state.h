// The process-wide state that belongs to no chapter. The flags of first-use tables stand beside their
// tables.
#pragma once

#include <cstdint>

namespace tintvert {

extern uint8_t use_MMX;  // bit 0x20 of the processor's feature word, noted by tnvtt_open; nothing reads it
extern uint8_t a;        // the alpha that widening RGB routines write; nobody writes it

}  // namespace tintvert
