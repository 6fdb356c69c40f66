// Run-length coded pictures (BI_RLE8) through the library's decoders.
#pragma once

#include <cstdint>
#include <vector>

#include "catalog.h"

namespace tintvert::core {

struct CodedPicture {
    int64_t width, height;
    std::vector<uint8_t> palette;  // 256 entries of four bytes: blue, green, red, unused
    std::vector<uint8_t> stream;
};

bool decodes_rle8(const catalog::Routine& routine);

// The frame that the routine makes. The stream is scanned before it is decoded: it has to end, and to stay inside
// its picture; if not, Failure (unsafe).
std::vector<uint8_t> decode_rle8(const catalog::Routine& routine, catalog::Arguments call, const CodedPicture& picture);

// The stream of a picture of one colour: runs of up to 254 pixels, line ends, the end.
std::vector<uint8_t> one_colour_stream(int64_t width, int64_t height);

}  // namespace tintvert::core
