// BMP files: 24 and 32 bits a pixel to read and write, run-length coded ones (BI_RLE8) to read.
#pragma once

#include <cstdint>
#include <vector>

#include "io/input_file.h"
#include "io/output_file.h"
#include "io/pictures/picture.h"

namespace tintvert::tool {

struct BmpRle8 {
    int64_t width, height;
    std::vector<uint8_t> palette;  // 256 entries of four bytes: blue, green, red, unused
    std::vector<uint8_t> stream;
};

// Both throw Failure. Alpha is read from files that have a mask for it; all others are opaque.
BmpRle8 read_bmp_rle8(InputFile& file);
Picture read_bmp(InputFile& file);

// 24 bits, or 32 with a mask for alpha; bottom line first.
void write_bmp(OutputFile& file, const Picture& picture, bool alpha);

}  // namespace tintvert::tool
