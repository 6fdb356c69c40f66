// The two run-length decoders, the reference implementation. A decode that is not done after `codes` codes
// is left there, and the answer is false: such a stream may have no end.
#pragma once

#include <cstdint>

namespace tintvert::reference {

bool rle8_rgb32(uint8_t* dst, long dstStride, const uint8_t* src, long height, const uint8_t* palette, long codes);
bool rle8_rgb24(uint8_t* dst, const uint8_t* src, long height, const uint8_t* palette, long codes);

}  // namespace tintvert::reference
