// A run-length coded picture through one of the library's decoders.
#pragma once

#include "catalog.h"
#include "io/pictures/bmp.h"

namespace tintvert::tool {

// The frame that the routine makes. The stream is walked before it is decoded: it has to end, and to stay inside
// its picture; if not, Failure (unsafe).
std::vector<uint8_t> decode_rle8(const catalog::Routine& routine, catalog::Arguments call, const BmpRle8& picture);

}  // namespace tintvert::tool
