// The ST 2084 tables: one block, because the 10-bit routines index past the end of an 8-bit table and the
// next table in the block supplies the value.
#pragma once

#include <cstdint>

namespace tintvert {

inline constexpr int at_RGB_to_SMPTE2048_8Bit = 0;
inline constexpr int at_SMPTE2048_to_RGB_8Bit = at_RGB_to_SMPTE2048_8Bit + 256;
inline constexpr int at_RGB_to_SMPTE2048_12Bit = at_SMPTE2048_to_RGB_8Bit + 256;
inline constexpr int at_RGB_to_SMPTE2048_10Bit = at_RGB_to_SMPTE2048_12Bit + 4096;
inline constexpr int at_SMPTE2048_to_RGB_12Bit = at_RGB_to_SMPTE2048_10Bit + 1024;
inline constexpr int at_SMPTE2048_to_RGB_10Bit = at_SMPTE2048_to_RGB_12Bit + 4096;
inline constexpr int st2084_entries = at_SMPTE2048_to_RGB_10Bit + 1024;

extern uint32_t st2084_block[st2084_entries];

inline uint32_t* const ardwRGB_to_SMPTE2048_8Bit = st2084_block + at_RGB_to_SMPTE2048_8Bit;
inline uint32_t* const ardwSMPTE2048_to_RGB_8Bit = st2084_block + at_SMPTE2048_to_RGB_8Bit;
inline uint32_t* const ardwRGB_to_SMPTE2048_12Bit = st2084_block + at_RGB_to_SMPTE2048_12Bit;
inline uint32_t* const ardwRGB_to_SMPTE2048_10Bit = st2084_block + at_RGB_to_SMPTE2048_10Bit;
inline uint32_t* const ardwSMPTE2048_to_RGB_12Bit = st2084_block + at_SMPTE2048_to_RGB_12Bit;
inline uint32_t* const ardwSMPTE2048_to_RGB_10Bit = st2084_block + at_SMPTE2048_to_RGB_10Bit;

}  // namespace tintvert
