// The stored entries, as tools/st2084 prints them, and their accessors.
#include "hdr/st2084_tables.h"

#include <tintvert/hdr.h>

namespace tintvert {

uint32_t st2084_block[st2084_entries] = {
#include "hdr/st2084_block.inc"
};

}  // namespace tintvert

using namespace tintvert;

unsigned int* get_ardwRGB_to_SMPTE2048_8Bit(void) { return ardwRGB_to_SMPTE2048_8Bit; }
unsigned int* get_ardwRGB_to_SMPTE2048_10Bit(void) { return ardwRGB_to_SMPTE2048_10Bit; }
unsigned int* get_ardwRGB_to_SMPTE2048_12Bit(void) { return ardwRGB_to_SMPTE2048_12Bit; }
unsigned int* get_ardwSMPTE2048_to_RGB_8Bit(void) { return ardwSMPTE2048_to_RGB_8Bit; }
unsigned int* get_ardwSMPTE2048_to_RGB_10Bit(void) { return ardwSMPTE2048_to_RGB_10Bit; }
unsigned int* get_ardwSMPTE2048_to_RGB_12Bit(void) { return ardwSMPTE2048_to_RGB_12Bit; }
